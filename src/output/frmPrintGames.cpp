#include "output/frmPrintGames.h"

#include <utility>

#include "common/select_all_text.h"
#include "forms/application.h"
#include "forms/message_box.h"
#include "text/game_range.h"
#include "text/printout.h"

namespace quillomat {
namespace {

constexpr wchar_t backspace = 8;

// In twips.
constexpr double help_below_button = 60;
constexpr double print_margin = 100;
constexpr double rule_right = 10000;
constexpr double upper_rule_top = 100;
constexpr double lower_rule_top = 350;
// In printer dots.
constexpr int rule_width = 3;

}  // namespace

frmPrintGames::frmPrintGames(Application& application, Session& session, ViewerLink& viewer)
    : Form(application, {.name = L"frmPrintGames", .caption = L"Number of Games", .border = FormBorder::Dialog}),
      session_(session),
      viewer_(viewer) {
    set_inner_size(4740, 3285);
    bind();
    bind_number_box(Text1, [this] { SelectAllText(Text2); });
    bind_number_box(Text2, [this] { Command1.set_focus(); });
    bind_hover_help();
    set_default_button(&Command1);
    set_cancel_button(&Command2);
    Option1.set_value(true);
}

void frmPrintGames::bind() {
    on_load = [this] { Form_Load(); };
    on_unload = [this] { Form_Unload(); };
    drag_by(*this);
    Option1.on_click = [this] { Option1_Click(); };
    Option2.on_click = [this] { Option2_Click(); };
    Command1.on_click = [this] { Command1_Click(); };
    Command2.on_click = [this] { close(); };
}

void frmPrintGames::bind_number_box(TextBox& box, std::function<void()> go_on) {
    box.on_change = [this] { Total(); };
    box.on_key_down = [go_on = std::move(go_on)](KeyEvent& event) {
        if (event.key != keys::enter) return;
        event.handled = true;
        go_on();
    };
    box.on_key_press = [](CharacterEvent& event) {
        const bool is_digit = event.character >= L'0' && event.character <= L'9';
        if (is_digit || event.character == backspace) return;
        event.handled = true;
        beep();
    };
}

void frmPrintGames::bind_hover_help() {
    hover_help_.add(Command1, L"Print Now!");
    hover_help_.add(Command2, L"Cancel Printing");
    hover_help_.on_shown = [this](Control& button, const MouseEvent&) {
        place_help_box(Text4, button.left(), button.top() + button.height() + help_below_button);
    };
    hover_help_.pass_focus_to(Command1, Command2);
    Timer1.on_timer = [this] { hover_help_.tick(); };
}

void frmPrintGames::Form_Load() {
    // One past the last game, so that the user has to choose the end of the range.
    const auto beyond_last = static_cast<std::int16_t>(viewer_.game_count() + 1);
    Text2.set_text(std::to_wstring(session_.settings.read(settings::UpperLimit, beyond_last)));
    Text1.set_text(session_.settings.read(settings::LowerLimit));
    Total();
    centre_on_screen();
    CenterMouseOn(Command1.window());
}

void frmPrintGames::Form_Unload() {
    session_.settings.write(settings::LowerLimit, Text1.text());
    // Stored as typed. If the text is no number, reading it yields the default.
    session_.settings.write(SettingKey<std::wstring_view>{settings::UpperLimit.key}, Text2.text());
}

void frmPrintGames::Total() {
    Text3.set_text(typed_range_total(Text1.text(), Text2.text()));
}

void frmPrintGames::Option1_Click() {
    enable_range(false);
}

void frmPrintGames::Option2_Click() {
    enable_range(true);
}

void frmPrintGames::enable_range(bool enabled) {
    const std::initializer_list<Control*> range{&Frame1, &Label1, &Label2, &Label3, &Text1, &Text2, &Text3};
    for (Control* control : range) control->set_enabled(enabled);
}

void frmPrintGames::Command1_Click() {
    const int count = viewer_.game_count();
    const auto name = [this](int index) { return viewer_.game_name(index); };
    if (Option1.value()) {
        print(all_game_names(count, name));
    } else if (const auto range = typed_range(Text1.text(), Text2.text(), count)) {
        print(game_names_in_range(range->first, range->last, name));
    } else {
        show_message(*this, {.text = typed_range_hint(count), .title = L"Error!", .icon = MessageIcon::Information});
        return;
    }
    close();
}

void frmPrintGames::print(const std::vector<std::wstring>& names) {
    const Hourglass hourglass(*this);
    const auto printer = session_.open_printer();
    PrintJob job(*printer, std::wstring(game_list_heading));
    job.set_position(print_margin, print_margin);
    job.print(game_list_heading);
    job.set_line_width(rule_width);
    for (const double top : {upper_rule_top, lower_rule_top}) job.draw_line(print_margin, top, rule_right, top);
    job.print(game_list_printout(names));
    job.end();
}

}  // namespace quillomat
