// Searching the catalogue, and the two panels that take turns at the left of the viewer.

#include "common/hover_help.h"
#include "common/pointer.h"
#include "common/select_all_text.h"
#include "forms/application.h"
#include "forms/message_box.h"
#include "text/search_text.h"
#include "text/viewer_animation.h"
#include "viewer/frmCtlView.h"
#include "win/animation_setting.h"
#include "win/upper_case.h"

namespace quillomat {

void frmCtlView::bind_search() {
    Option1.on_click = [this] { Option1_Click(); };
    Option2.on_click = [this] { Option2_Click(); };
    Text1.on_double_click = [this] { Text1_DblClick(); };
    Text1.on_context_menu = [this] {
        offer_search_for_selection();
        menus.mnuTextBox.pop_up();
    };
    menus.mnuTextBoxInGames.on_click = [this] { SearchFor(SearchScope::Names); };
    menus.mnuTextBoxInCheats.on_click = [this] { SearchFor(SearchScope::Cheats); };
    menus.mnuSelectedSearch.on_click = [this] {
        Option2.set_value(true);
        // Option2 raises no click if the search panel is open already.
        SelectAllText(Text3);
        CenterMouseOn(Command1.window());
    };
}

void frmCtlView::bind_search_panel() {
    Command1.on_click = [this] { Command1_Click(); };
    Text3.on_change = [this] { Command1.set_enabled(!Text3.empty()); };
    Command1.set_enabled(false);
    for (OptionButton* option : {&Option3, &Option4}) {
        option->on_click = [this] { Text3.set_focus(); };
        // Clicking the option that is already set raises no on_click.
        option->on_mouse_up = [this, option](const MouseEvent& event) {
            if (event.button == MouseButton::Left && is_within(*option, event)) {
                Text3.set_focus();
            }
        };
    }
    Option3.set_tool_tip(L"Searches list of games for required keywords.");
    Option4.set_tool_tip(L"Searches all cheat codes for required keywords.");
    List1.on_click = [this] { List1_Click(); };
}

void frmCtlView::Command1_Click() {
    {
        const Hourglass hourglass(*this);
        session_.viewer.search_keyword = upper_cased(Text3.text());
        const ListBox::RedrawLock lock(List1);
        List1.clear();
        const SearchScope scope = Option3.value() ? SearchScope::Names : SearchScope::Cheats;
        session_.catalogue.search(scope, session_.viewer.search_keyword, session_.viewer.game_count,
                                  [this](int number) { List1.add(session_.catalogue.name(number)); });
        // Redraw the line once instead of after every hit: nothing is painted while the list is filled.
        if (List1.count() > 0) Line1.invalidate();
    }
    if (List1.count() == 0) {
        show_message(*this,
                     {.text = L"Nothing was found! Try searching for something else.", .title = L"Nothing there."});
        List1.set_tool_tip({});
    }
    SelectAllText(Text3);
}

void frmCtlView::List1_Click() {
    List2.select_text(List1.text());
    if (!Option4.value()) return;
    const std::wstring& keyword = session_.viewer.search_keyword;
    const std::size_t position = upper_cased(Text1.text()).find(keyword);
    Text1.set_focus();
    Text1.select(position == std::wstring::npos ? 0 : position, keyword.size());
}

void frmCtlView::Text1_DblClick() {
    if (offer_search_for_selection()) menus.mnuTextBox.pop_up();
}

bool frmCtlView::offer_search_for_selection() {
    const auto caption = search_menu_caption(Text1.selected_text());
    menus.mnuTextBoxSearch.set_enabled(caption.has_value());
    if (caption) {
        menus.mnuTextBoxSearch.set_caption(without_access_keys(*caption));
    } else {
        menus.mnuTextBoxSearch.set_caption(L"&Search for");
    }
    return caption.has_value();
}

OptionButton& frmCtlView::scope_option(SearchScope scope) {
    if (scope == SearchScope::Names) return Option3;
    return Option4;
}

void frmCtlView::SearchFor(SearchScope scope) {
    scope_option(scope).set_value(true);
    Option2.set_value(true);
    Text3.set_text(keyword_of(Text1.selected_text()));
    SelectAllText(Text3);
    CenterMouseOn(Command1.window());
}

void frmCtlView::look_up(const std::wstring& query) {
    const std::wstring keyword = upper_cased(query);
    const int game_count = session_.viewer.game_count;
    // There is nothing to find: the database is empty, or the user has been told that it could not be read.
    if (game_count == 0) return;
    bool named = false;
    for (int number = 0; number < game_count; ++number) {
        const std::wstring name = upper_cased(std::wstring(session_.catalogue.name(number)));
        if (name == keyword) {
            List2.select_index(number);
            List2.set_top_index(number);
            return;
        }
        if (name.find(keyword) != std::wstring::npos) named = true;
    }
    scope_option(named ? SearchScope::Names : SearchScope::Cheats).set_value(true);
    Option2.set_value(true);
    Text3.set_text(query);
    Command1_Click();
    if (List1.count() == 1) List1.select_index(0);
}

void frmCtlView::Option1_Click() {
    ShowList();
    List2.set_focus();
}

void frmCtlView::Option2_Click() {
    ShowFrame();
    // As after a search, typing replaces the previous keyword.
    SelectAllText(Text3);
    set_default_button(&Command1);
}

void frmCtlView::ShowFrame() {
    Frame2.set_left(search_panel_start_left);
    Frame2.set_visible(true);
    Frame2.bring_to_front();
    Text1.bring_to_front();
    Text4.bring_to_front();
    slide(Frame2, search_panel_start_left, next_search_panel_left);
    // The keyboard must not reach the list behind the panel.
    List2.set_visible(false);
}

void frmCtlView::ShowList() {
    List2.set_left(game_panel_start_left);
    List2.set_visible(true);
    List2.bring_to_front();
    Text4.bring_to_front();
    slide(List2, game_panel_start_left, next_game_panel_left);
    Frame2.set_visible(false);
}

void frmCtlView::slide(Control& panel, double left, std::optional<double> (*next_left)(double)) {
    // Keep the exact position: the panel rounds it to whole pixels.
    for (auto next = next_left(left); next && animations_wanted(); next = next_left(*next)) {
        panel.set_left(*next);
        paint_changes();
        Line1.refresh();
        Sleep(1);
    }
    panel.set_left(panel_resting_left);
}

}  // namespace quillomat
