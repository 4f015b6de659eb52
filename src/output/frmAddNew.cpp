#include "output/frmAddNew.h"

#include <algorithm>
#include <new>
#include <optional>
#include <utility>

#include "common/line_count.h"
#include "common/minimum_size.h"
#include "common/select_all_text.h"
#include "common/window_settings.h"
#include "database/record.h"
#include "forms/application.h"
#include "forms/message_box.h"
#include "text/add_game_layout.h"
#include "text/error.h"
#include "text/numbers.h"
#include "win/code_page.h"

namespace quillomat {
namespace {

constexpr std::size_t add_button = 0;
constexpr std::size_t cancel_button = 1;

constexpr WindowKeys window_keys{settings::frmAddNewWindowState, settings::frmAddNewWidth, settings::frmAddNewHeight,
                                 settings::frmAddNewHeight};

constexpr const wchar_t* help_texts[] = {L"Click here to add the game!",
                                         L"Click here to leave without adding the game!"};

// Returns the number of the first game below `count` with exactly this name, or nothing.
std::optional<int> find_game(const Catalogue& catalogue, int count, std::wstring_view name) {
    for (int number = 0; number < count; ++number) {
        if (catalogue.name(number) == name) return number;
    }
    return std::nullopt;
}

}  // namespace

frmAddNew::frmAddNew(Application& application, Session& session, ViewerLink& viewer)
    : Form(application, {.name = L"frmAddNew",
                         .caption = L"Add New Game",
                         .width = 5715,
                         .height = 4320,
                         .minimum = add_game_minimum_size}),
      session_(session),
      viewer_(viewer) {
    bind();
    bind_hover_help();
    UpdateAddButton();
    show_line_count(lines_);
}

void frmAddNew::bind() {
    on_load = [this] { Form_Load(); };
    on_resize = [this] { Form_Resize(); };
    on_unload = [this] { Form_Unload(); };
    drag_by(*this);
    on_mouse_move = [this](const MouseEvent& event) { Form_MouseMove(event); };
    Text1.on_change = [this] { UpdateAddButton(); };
    Text1.on_key_down = [this](KeyEvent& event) { Text1_KeyDown(event); };
    keep_line_count(lines_, [this] { UpdateAddButton(); });
    Text2.on_key_down = [this](KeyEvent& event) { leave_by_escape(event); };
    cmdButton[add_button]->on_click = [this] { AddGame(); };
    cmdButton[cancel_button]->on_click = [this] { close(); };
    for (Button* button : cmdButton) button->on_key_down = [this](KeyEvent& event) { leave_by_escape(event); };
}

void frmAddNew::bind_hover_help() {
    for (const std::size_t index : {add_button, cancel_button}) hover_help_.add(*cmdButton[index], help_texts[index]);
    for (const std::size_t index : {add_button, cancel_button}) {
        cmdButton[index]->on_mouse_move = [this, index](const MouseEvent& event) {
            show_help_box(index, event.x, event.y);
        };
    }
    hover_help_.on_shown = [this](Control& button, const MouseEvent& event) {
        show_help_box(&button == cmdButton[add_button] ? add_button : cancel_button, event.x, event.y);
    };
    hover_help_.pass_focus_to(*cmdButton[add_button], *cmdButton[cancel_button]);
    Timer1.on_timer = [this] { Timer1_Timer(); };
}

void frmAddNew::Form_Load() {
    restore_window_state(*this, session_.settings, window_keys);
    restore_window_size(*this, session_.settings, window_keys);
    place_over(viewer_.window());
    Text1.set_focus();
}

void frmAddNew::Form_Unload() {
    store_window(*this, session_.settings, window_keys);
}

void frmAddNew::Form_Resize() {
    if (window_state() == WindowState::Minimised) return;
    if (restore_minimum_size(*this, add_game_minimum_size)) return;
    const AddGameLayout layout = add_game_layout({width(), height()}, {inner_width(), inner_height()});
    for (StaticLabel* label : {&Label1, &Label2}) label->set_left(layout.margin);
    Text1.move({layout.margin, Text1.top(), layout.box_width, Text1.height()});
    Text2.move({layout.margin, Text2.top(), layout.box_width, layout.cheats_height});
    cmdButton[add_button]->move({layout.add_left, layout.button_top, layout.button_width, add_game_button_height});
    cmdButton[cancel_button]->move(
        {layout.cancel_left, layout.button_top, layout.button_width, add_game_button_height});
}

void frmAddNew::Text1_KeyDown(KeyEvent& event) {
    leave_by_escape(event);
    if (event.key == keys::enter) Text2.set_focus();
}

void frmAddNew::leave_by_escape(KeyEvent& event) {
    if (event.key != keys::escape) return;
    event.handled = true;
    // A single press of Escape must not discard typed text.
    const bool nothing_typed = Text1.empty() && Text2.empty();
    if (nothing_typed || cmdButton[cancel_button]->has_focus()) {
        close();
    } else {
        cmdButton[cancel_button]->set_focus();
    }
}

void frmAddNew::Timer1_Timer() {
    // The window reaches its final position only after on_load.
    if (!std::exchange(pointer_placed_, true)) CenterMouseOn(cmdButton[add_button]->window());
    hover_help_.tick();
    // HoverHelp does not hide a help box that was shown for a disabled button.
    const auto under_pointer = [this](const Button* button) { return is_under_pointer(session_.pointer, *button); };
    if (std::none_of(cmdButton.begin(), cmdButton.end(), under_pointer)) Text3.set_visible(false);
}

void frmAddNew::Form_MouseMove(const MouseEvent& event) {
    // Mouse messages over a disabled button go to the window. Its help text is shown all the same.
    const Button& button = *cmdButton[add_button];
    const double x = event.x - button.left();
    const double y = event.y - button.top();
    if (x >= 0 && x < button.width() && y >= 0 && y < button.height()) show_help_box(add_button, x, y);
}

void frmAddNew::show_help_box(std::size_t index, double x, double y) {
    // Set the text first: the position of the help box depends on its width.
    Text3.set_text(help_texts[index]);
    Text3.fit_width_to_text();
    Text3.bring_to_front();
    constexpr double flush_right_from = 330;
    constexpr double height_above_pointer = 500;
    const Button& button = *cmdButton[index];
    double left = button.left() + x - Text3.width() / 2;
    if (index == add_button && x >= flush_right_from) left = width() - Text3.width();
    place_help_box(Text3, left, button.top() + y - height_above_pointer);
    Text3.set_visible(true);
}

void frmAddNew::UpdateAddButton() {
    cmdButton[add_button]->set_enabled(!Text1.empty() && !Text2.empty());
}

void frmAddNew::AddGame() {
    Text3.set_visible(false);
    const std::wstring name = Text1.text();
    const std::wstring cheats = Text2.text();
    if (const auto existing = find_game(session_.catalogue, session_.viewer.game_count, name)) {
        propose_other_name(*existing, name);
        return;
    }
    try {
        store(name, cheats);
        close();
    } catch (const Error& error) {
        report(error);
    } catch (const std::bad_alloc&) {
        report(Error(ErrorCode::OutOfMemory));
    }
}

void frmAddNew::propose_other_name(int existing, const std::wstring& name) {
    show_message(*this, {.text = L"The cheat codes for " + name +
                                 L" already exist. Try using a different name.\r\n(You can use the name I have "
                                 L"provided for you.)",
                         .title = name + L" already exists!",
                         .icon = MessageIcon::Information});
    viewer_.select_game(existing);
    Text1.set_text(name + L" (Custom)");
    SelectAllText(Text1);
}

void frmAddNew::store(const std::wstring& name, const std::wstring& cheats) {
    const std::wstring record = record_text(name, cheats);
    // Refuse a text that cannot be encoded before the game is stored: once stored, its name would be taken when the
    // user tries again with a corrected text.
    encode(record);
    const int number = session_.viewer.game_count;
    session_.catalogue.store(number, name, cheats);
    session_.viewer.game_count = checked_add_16(session_.viewer.game_count, 1);
    viewer_.list_game(name);
    show_message(*this, {.text = L"The cheat codes for " + name + L" have been successfully added!",
                         .title = application().title()});
    viewer_.select_game(name);
    const Hourglass hourglass(*this);
    const bool appended = application().run_without_blocking(
        [&] { session_.text_file.append(session_.program_folder + L"\\Cheats.dat", record); });
    if (!appended) throw Error(ErrorCode::FileAlreadyOpen);
}

void frmAddNew::report(const Error& error) {
    if (error.code() == ErrorCode::SubscriptOutOfRange) {
        show_message(*this, {.text = L"Sorry, you have reached the maximum limit of games!",
                             .title = L"Overload!",
                             .icon = MessageIcon::Critical});
        close();
        return;
    }
    show_error(*this, error);
}

}  // namespace quillomat
