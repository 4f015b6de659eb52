#include "viewer/frmCtlView.h"

#include <algorithm>

#include "common/minimum_size.h"
#include "forms/application.h"
#include "forms/message_box.h"
#include "resources/pictures.h"
#include "text/game_list.h"
#include "viewer/frmStatus.h"

namespace quillomat {
namespace {

constexpr double picture_size = 360;
constexpr double picture_button_size = 420;
// The image bar has three groups: home; save and add; all others.
constexpr double image_lefts[] = {90, 735, 1165, 1810, 2240, 2670, 3100};
constexpr double colour_image_left = 3530;
constexpr std::size_t save_image = 1;
constexpr double help_above_option = 30;

bool asks_for_menu(const KeyEvent& event) {
    return event.key == keys::context_menu || (event.key == keys::f10 && event.modifiers.shift);
}

}  // namespace

frmCtlView::frmCtlView(Application& application, Session& session, const ViewerWindows& windows)
    : Form(application,
           {.name = L"frmCtlView", .caption = L"Cheat Codes!", .width = 8925, .height = 6660, .minimum = minimum_size}),
      Image1(*this, Picture(PICTURE_COLOUR), {colour_image_left, 30, picture_button_size, picture_button_size}),
      session_(session),
      windows_(windows) {
    for (int i = 0; i < 7; ++i) {
        Image2
            .emplace_back(*this, Picture(PICTURE_COMMAND_FIRST + i),
                          Bounds{image_lefts[i], 30, picture_button_size, picture_button_size})
            .set_picture_size(picture_size);
    }
    Image1.set_picture_size(picture_size);
    Shape1.bring_to_front();
    Shape1.set_visible(false);
    Shape1.set_border_colour(colours::highlight);
    Label1.emplace_back(*this, L"#", Bounds{120, 525, 195, 225}).set_visible(false);
    Frame2.set_visible(false);
    allow_saving(false);
    List2.set_spoken_name(L"Games");
    List1.set_spoken_name(L"Search results");
    Text1.set_spoken_name(L"Cheat codes");
    bind();
    bind_search();
    bind_search_panel();
    bind_commands();
    bind_image_bar();
    bind_list(List1);
    bind_list(List2);
    bind_hover_help();
}

frmCtlView::~frmCtlView() = default;

void frmCtlView::bind() {
    on_load = [this] { Form_Load(); };
    on_resize = [this] { Form_Resize(); };
    on_unload = [this] { Form_Unload(); };
    on_mouse_move = [this](const MouseEvent&) { tidy_image_bar(); };
    drag_by(*this);
    on_key_down = [this](KeyEvent& event) { Form_KeyDown(event); };
    for (Control* control :
         std::initializer_list<Control*>{&Option1, &Option2, &Text3, &Command1, &Option3, &Option4}) {
        control->on_key_down = [this](KeyEvent& event) { Form_KeyDown(event); };
    }
    Text1.on_key_down = [this](KeyEvent& event) { Text1_KeyDown(event); };
    Text1.on_control_wheel = [this](int notches) { set_text_size(session_.viewer.text_steps + notches); };
    Text1.set_tool_tip(L"Double-click a word to search for it");
    List2.on_click = [this] { List2_Click(); };
}

void frmCtlView::bind_list(ListBox& list) {
    list.on_double_click = [this] { List_DblClick(); };
    list.on_key_down = [this, &list](KeyEvent& event) { List_KeyDown(list, event); };
    list.on_mouse_move = [this, &list](const MouseEvent& event) { List_MouseMove(list, event); };
    list.on_mouse_down = [this, &list](const MouseEvent& event) { List_MouseDown(list, event); };
}

void frmCtlView::bind_hover_help() {
    add_hover_help(Command1, L"Click here to start the search!");
    add_hover_help(Option1, L"Click here to show the list of games");
    add_hover_help(Option2, L"Click here to search for a specific game");
    add_hover_help(Text3, L"Type what you want to search for here");
    hover_help_.on_shown = [this](Control& control, const MouseEvent& event) { move_help_box(control, event); };
    hover_help_.pass_focus_to(Text1);
    Timer1.on_timer = [this] { Timer1_Timer(); };
}

void frmCtlView::add_hover_help(Control& control, const wchar_t* text) {
    hover_help_.add(control, text);
    control.on_mouse_move = [this, &control](const MouseEvent& event) { move_help_box(control, event); };
}

void frmCtlView::move_help_box(const Control& control, const MouseEvent& event) {
    const bool in_panel = &control.container() == &Frame2;
    const double left = control.left() + event.x + (in_panel ? Frame2.left() : 0) - Text4.width() / 2;
    // The help box of List and Search opens above them; below, it would hide the keyword field.
    double top = control.top() - Text4.height() - help_above_option;
    if (in_panel) {
        top = Frame2.top() + control.top() + event.y + help_below_pointer;
    }
    place_help_box(Text4, left, top);
}

void frmCtlView::show_game(int number) {
    const std::wstring name(session_.catalogue.name(number));
    Text1.set_text(session_.catalogue.cheats(number));
    session_.viewer.current_title = name;
    set_caption(name);
    allow_saving(true);
    menus.mnuSave.set_caption(L"&Save " + without_access_keys(name));
}

void frmCtlView::allow_saving(bool allowed) {
    menus.mnuSave.set_enabled(allowed);
    menus.mnuSelectedSave.set_enabled(allowed);
    Image2[save_image].set_enabled(allowed);
}

void frmCtlView::Form_Resize() {
    if (window_state() == WindowState::Minimised) {
        set_caption(L"Quillomat - " + List1.text());
        return;
    }
    set_caption(session_.viewer.current_title);
    menus.fit_pictures(dpi());
    if (restore_minimum_size(*this, minimum_size)) return;
    Text1.set_size(width() - 2980, height() - 1755);
    List2.set_height(height() - 2115);
    List1.set_height(height() - 3430);
    Frame2.set_height(height() - 2115);
}

void frmCtlView::Form_KeyDown(KeyEvent& event) {
    if (event.key == keys::escape) {
        event.handled = true;
        close();
    } else if (event.key == keys::f1) {
        event.handled = true;
        ask_for_help();
    } else if (event.key == keys::f && event.modifiers.only_control()) {
        event.handled = true;
        raise(windows_.find);
    } else if (event.modifiers.control && !event.modifiers.alt) {
        change_text_size(event);
    }
}

void frmCtlView::change_text_size(KeyEvent& event) {
    const int steps = session_.viewer.text_steps;
    event.handled = true;
    switch (event.key) {
        case VK_OEM_PLUS:
        case VK_ADD:
            set_text_size(steps + 1);
            break;
        case VK_OEM_MINUS:
        case VK_SUBTRACT:
            set_text_size(steps - 1);
            break;
        case '0':
        case VK_NUMPAD0:
            set_text_size(0);
            break;
        default:
            event.handled = false;
    }
}

void frmCtlView::set_text_size(int steps) {
    constexpr int smallest = -2;
    constexpr int largest = 24;
    session_.viewer.text_steps = std::clamp(steps, smallest, largest);
    FontSpec font = Text1.font();
    font.points = FontSpec{}.points + session_.viewer.text_steps;
    Text1.set_font(font);
}

void frmCtlView::Text1_KeyDown(KeyEvent& event) {
    Form_KeyDown(event);
    if (event.handled || !asks_for_menu(event)) return;
    event.handled = true;
    offer_search_for_selection();
    pop_up_at_corner(menus.mnuTextBox, Text1);
}

void frmCtlView::ask_for_help() {
    const auto answer = show_message(*this, {.text = L"You pressed the F1 Key for help.\r\nYou can e-mail me for "
                                                     L"help.\r\nDo you want to do so?",
                                             .title = L"Help!",
                                             .buttons = MessageButtons::YesNo});
    if (answer == MessageAnswer::Yes) raise(windows_.mail_author, L"[Type your question here]");
}

void frmCtlView::List2_Click() {
    if (const auto number = List2.selected_index()) show_game(*number);
}

void frmCtlView::List_DblClick() {
    raise(windows_.save);
}

void frmCtlView::List_KeyDown(ListBox& list, KeyEvent& event) {
    Form_KeyDown(event);
    if (asks_for_menu(event)) {
        event.handled = true;
        pop_up_at_corner(menus.mnuSelected, list, &menus.mnuSelectedSave);
        return;
    }
    const bool upwards = event.key == keys::up;
    if (event.handled || (!upwards && event.key != keys::down)) return;
    const int count = list.count();
    if (event.modifiers.only_control() && count > 0) {
        event.handled = true;
        list.select_index(upwards ? 0 : count - 1);
    } else if (event.modifiers.only_alt()) {
        event.handled = true;
        const auto item_text = [&list](int index) { return list.item(index); };
        const int selected = list.selected_index().value_or(-1);
        const auto find_group = upwards ? previous_group : next_group;
        if (const auto target = find_group(selected, count, item_text)) list.select_index(*target);
    }
}

std::wstring frmCtlView::hover_text(const ListBox& list, int index) const {
    if (&list == &List2) return full_list_tooltip(list.item(index), index, list.count());
    return result_list_tooltip(list.item(index), index, list.count(), session_.viewer.search_keyword);
}

void frmCtlView::List_MouseMove(ListBox& list, const MouseEvent& event) {
    if (event.button != MouseButton::None) return;
    const int index = list.item_from_point(to_pixels(event.x, dpi()), to_pixels(event.y, dpi()));
    list.set_tool_tip(hover_text(list, index));
    if (menus.mnuAutoSelect.checked() && index < list.count() && list.selected_index() != index) {
        list.select_index(index);
    }
}

void frmCtlView::List_MouseDown(ListBox& list, const MouseEvent& event) {
    if (event.button != MouseButton::Right) return;
    list.select_text(list.item(list.item_from_point(to_pixels(event.x, dpi()), to_pixels(event.y, dpi()))));
    menus.mnuSelected.pop_up(&menus.mnuSelectedSave);
}

void frmCtlView::pop_up_at_corner(Menu& menu, const Control& control, const Menu* default_item) {
    constexpr double inset = 300;
    const bool in_panel = &control.container() == &Frame2;
    menu.pop_up(control.left() + (in_panel ? Frame2.left() : 0) + inset,
                control.top() + (in_panel ? Frame2.top() : 0) + inset, default_item);
}

}  // namespace quillomat
