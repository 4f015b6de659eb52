#include "shell/frmMain.h"

#include <initializer_list>
#include <limits>

#include "text/author_links.h"
#include "text/product.h"
#include "win/animation_setting.h"

namespace quillomat {
namespace {

constexpr Colour band_colour = rgb(36, 21, 90);
constexpr Colour subtitle_colour = rgb(189, 180, 247);
constexpr Colour stripe_colour = rgb(47, 167, 160);

// In twips, within a button. From this position of the pointer on, the help box ends at the pointer; before it, the
// help box is centred on the pointer.
constexpr double help_left_of_pointer_from = 1290;
constexpr double help_above_pointer = 500;

}  // namespace

frmMain::frmMain(Application& application, Session& session, const MainWindows& windows)
    : Form(application, {.name = L"frmMain",
                         .caption = product::title,
                         .width = design_width,
                         .height = design_height,
                         .border = FormBorder::Fixed}),
      session_(session),
      windows_(windows) {
    style_controls();
    bind();
    bind_exit();
    bind_hover_help();
}

void frmMain::style_controls() {
    Frame1.set_back_colour(band_colour);
    Name.set_font({.name = L"Comic Sans MS", .points = 22});
    Name.set_fore_colour(colours::white);
    Subtitle.set_fore_colour(subtitle_colour);
    Image1.set_tool_tip(L"Double click here to mail me now!");
    Command7.set_back_style(BackStyle::Opaque);
    Command7.set_back_colour(stripe_colour);
    Command9.set_back_style(BackStyle::Opaque);
    Command9.set_back_colour(colours::grey_text);
    Command4.set_font({.points = 12, .bold = true});
    for (Button* button : {&Command6, &Command8, &Command5, &Command3, &Command1, &Command2}) {
        button->set_font({.points = 10});
    }
    // While the button asks "Are you sure?", it is disabled, but its question must be readable.
    Command3.set_disabled_fore_colour(colours::button_text);
    set_answers_visible(false);
}

void frmMain::bind() {
    on_load = [this] { Form_Load(); };
    on_unload = [this] { raise(windows_.close_all); };
    for (MouseEvents* surface :
         std::initializer_list<MouseEvents*>{this, &Frame1, &Picture1, &Name, &Subtitle, &Command7, &Command9}) {
        drag_by(*surface);
    }
    Image1.on_double_click = [this] { raise(windows_.mail_author); };

    Command4.on_click = [this] { raise(windows_.cheats); };
    Command6.on_click = [this] { raise(windows_.about); };
    Command8.on_click = [this] { raise(windows_.about_author); };
    Command5.on_click = [this] { raise(windows_.link, web_site_link()); };

    menus.mnuFileCheat.on_click = Command4.on_click;
    menus.mnuMailMe.on_click = [this] { raise(windows_.mail_author); };
    menus.mnuLinksSite.on_click = Command5.on_click;
    menus.mnuLinksSign.on_click = [this] { raise(windows_.link, guestbook_link()); };
    menus.mnuLinksNews.on_click = [this] { raise(windows_.link, product::mailing_list_page); };
    menus.mnuLinksMail.on_click = [this] { raise(windows_.link, mail_link()); };
    menus.mnuHelpAbout.on_click = Command6.on_click;
}

void frmMain::bind_exit() {
    Command3.on_click = [this] { Command3_Click(); };
    menus.mnuFileExit.on_click = [this] { Command3_Click(); };
    Command1.on_click = [this] { close(); };
    Command2.on_click = [this] { Command2_Click(); };
    for (Button* answer : {&Command1, &Command2}) {
        answer->on_key_down = [this](KeyEvent& event) {
            if (event.key != keys::escape) return;
            event.handled = true;
            Command2_Click();
        };
    }
    Timer1.on_timer = [this] {
        set_caption(product::title);
        Timer1.set_enabled(false);
    };
    Timer2.on_timer = [this] { Timer2_Timer(); };
    Timer3.on_timer = [this] { Timer3_Timer(); };
    Timer4.on_timer = [this] { Command3.set_back_colour(colours::button_face); };
    // Timer5 is never disabled, so Timer4 resets the colour of the exit button only in the first milliseconds.
    Timer5.on_timer = [this] { Timer4.set_enabled(false); };
}

void frmMain::bind_hover_help() {
    hover_help_.add(Command1, L"Click here to confirm your departure from Quillomat");
    hover_help_.add(Command2, L"Click here to stay in Quillomat (Yahoo!)");
    hover_help_.add(Command3, L"Click here to exit Quillomat");
    hover_help_.add(Command4, L"Click here to get a detailed list of the games and their cheat codes!");
    hover_help_.add(Command5, L"Click here to visit my (cool) website - Tob F's home Page");
    hover_help_.add(Command6, L"Click here to see some information about Quillomat");
    hover_help_.add(Command8, L"Click here to see some information about me :-)");
    for (Button* button : {&Command1, &Command2, &Command3, &Command4, &Command5, &Command6, &Command8}) {
        button->on_mouse_move = [this, button](const MouseEvent& event) {
            Timer7_Timer();
            move_help_box(*button, event);
        };
    }
    hover_help_.on_shown = [this](Control& button, const MouseEvent& event) { move_help_box(button, event); };
    hover_help_.pass_focus_to(Command4);
    Timer6.on_timer = [this] { Timer6_Timer(); };
    Timer7.on_timer = [this] { Timer7_Timer(); };
}

void frmMain::move_help_box(const Control& control, const MouseEvent& event) {
    const double left_of_pointer = event.x >= help_left_of_pointer_from ? Text1.width() : Text1.width() / 2;
    const double left = control.left() + event.x - left_of_pointer;
    const double top = control.top() + event.y - help_above_pointer;
    place_help_box(Text1, left, top);
}

void frmMain::Form_Load() {
    set_inner_size(design_width, design_height);
    centre_on_screen();
    int screen_width = 0;
    int screen_height = 0;
    GetScreenSize(screen_width, screen_height, dpi());
    Frame1.set_width(screen_width);
    Frame1.set_left(0);
    count_run();
    session_.settings.write(settings::Directory, session_.program_folder);
    CenterMouseOn(Command4.window());
}

void frmMain::count_run() {
    // The count stops at its highest value; an overflow error would keep the main screen from opening.
    std::int16_t count = session_.settings.read(settings::Counter);
    if (count < std::numeric_limits<std::int16_t>::max()) ++count;
    session_.StartUpTimes = count;
    session_.settings.write(settings::Counter, count);
}

void frmMain::Command3_Click() {
    // An earlier answer may still be animated; its timers would move the buttons back.
    Timer1.set_enabled(false);
    Timer3.set_enabled(false);
    Timer2.set_enabled(true);
    Timer4.set_enabled(true);
    Timer5.set_enabled(true);
    set_caption(L"Exit?");
    set_default_button(&Command1);
    // Move the focus before its button is disabled: a disabled window swallows the keys typed ahead.
    set_answers_visible(true);
    Command1.set_focus();
    enable_other_buttons(false);
    if (!animations_wanted()) finish_animation(Timer2);
}

void frmMain::Command2_Click() {
    set_caption(L"Thanks! You're so kind!");
    Timer2.set_enabled(false);
    Timer3.set_enabled(true);
    Timer1.set_enabled(true);
    Command3.set_visible(true);
    enable_other_buttons(true);
    Timer5.set_enabled(true);
    Command3.set_focus();
    if (!animations_wanted()) finish_animation(Timer3);
}

void frmMain::finish_animation(Timer& timer) {
    ExitConfirmation before;
    do {
        before = exit_confirmation();
        timer.tick();
    } while (timer.enabled() && exit_confirmation() != before);
}

void frmMain::enable_other_buttons(bool enabled) {
    for (Button* button : {&Command4, &Command5, &Command6, &Command8, &Command3}) button->set_enabled(enabled);
    menus.mnuFileExit.set_enabled(enabled);
}

void frmMain::set_answers_visible(bool visible) {
    for (Button* answer : {&Command1, &Command2}) answer->set_visible(visible);
}

ExitConfirmation frmMain::exit_confirmation() const {
    return {.exit_width = Command3.width(), .yes_top = Command1.top(), .no_top = Command2.top()};
}

void frmMain::place(const ExitConfirmation& confirmation) {
    Command3.set_width(confirmation.exit_width);
    Command1.set_top(confirmation.yes_top);
    Command2.set_top(confirmation.no_top);
}

void frmMain::Timer2_Timer() {
    set_answers_visible(true);
    set_default_button(&Command1);
    Command3.set_caption(L"Are you sure?");
    const ExitConfirmation before = exit_confirmation();
    const ExitConfirmation next = next_asking(before);
    if (next != before) {
        place(next);
    } else if (Command1.top() != Command3.top()) {
        // Because of the rounding to pixels, the answers may rest a little above or below the exit button.
        Command1.set_top(Command3.top());
        Command2.set_top(Command3.top());
    }
    if (asking_is_complete(Command3.width())) Timer2.set_enabled(false);
}

void frmMain::Timer3_Timer() {
    Command3.set_caption(L"Exit (Please don't!)");
    set_default_button(&Command1);
    const ExitConfirmation before = exit_confirmation();
    place(next_withdrawing(before));
    if (!withdrawing_is_complete(Command3.width()) && exit_confirmation() != before) return;
    Timer3.set_enabled(false);
    // Because of the rounding to pixels, the exit button may be wider than before.
    Command3.set_width(exit_width_resting);
    // Answers below the edge of the window must not take the focus.
    set_answers_visible(false);
}

void frmMain::Timer6_Timer() {
    const ColourCycle next = next_colour_cycle(colour_step_);
    colour_step_ = static_cast<std::int16_t>(next.step);
    if (next.colour) Command4.set_back_colour(Colour{*next.colour});
}

void frmMain::Timer7_Timer() {
    hover_help_.tick();
    const bool hovered = session_.pointer.PointerWindow == Command4.window();
    if (hovered == Timer6.enabled()) return;
    Timer6.set_enabled(hovered && animations_wanted());
    // If a key has hidden the help, leaving the button does not.
    if (!hovered) Command4.set_back_colour(colours::button_face);
}

}  // namespace quillomat
