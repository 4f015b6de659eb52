#pragma once

#include <cstdint>

#include "common/hover_help.h"
#include "common/session.h"
#include "controls/button.h"
#include "controls/frame.h"
#include "controls/graphics.h"
#include "controls/text_box.h"
#include "forms/form.h"
#include "forms/menu.h"
#include "forms/timer.h"
#include "resources/pictures.h"
#include "shell/main_windows.h"
#include "text/main_screen_animation.h"

namespace quillomat {

/// The menus of the main screen.
struct MainMenus {
    explicit MainMenus(Form& form) : bar(form) {}

    MenuBar bar;

    Menu mnuFile{bar, L"&File"};
    Menu mnuFileCheat{mnuFile, L"&Start cheating!"};
    Menu mnuMailMe{mnuFile, L"&Mail me now!"};
    Menu mnuFileExit{mnuFile, L"E&xit"};

    Menu mnuLinks{bar, L"&Links"};
    Menu mnuLinksSite{mnuLinks, L"Visit my Website!"};
    Menu mnuLinksSign{mnuLinks, L"Sign my Guestbook!"};
    Menu mnuLinksNews{mnuLinks, L"All VB - Visual Basic"};
    Menu mnuLinksMail{mnuLinks, L"Mail me!"};

    Menu mnuHelp{bar, L"&Help"};
    Menu mnuHelpAbout{mnuHelp, L"&About "};
};

/// The main screen: counts the program's runs, opens the other windows, and asks before the user leaves. Closing it
/// closes every other window.
class frmMain final : public Form {
  public:
    /// `session` and `windows` must outlive the form.
    frmMain(Application& application, Session& session, const MainWindows& windows);

    static constexpr double design_width = 5895;
    static constexpr double design_height = 4380;

    // The band at the top with the product's name.
    Frame Frame1{*this, {}, {0, 0, design_width, 1140}, FrameBorder::None};
    Image Picture1{Frame1, Picture(PICTURE_GAME_PAD), {240, 210, 720, 720}};
    Label Name{Frame1, product::title, {1170, 150, 3400, 540}};
    Label Subtitle{Frame1, L"Cheat codes for computer games", {1185, 690, 3400, 240}};
    Image Image1{Frame1, Picture(PICTURE_AUTHOR_MAIL), {4695, 90, 960, 960}};
    // Painted stripes above and below the four upper buttons.
    Label Command7{*this, {}, {0, 1140, design_width, 60}};
    Label Command9{*this, {}, {240, 3405, 5415, 15}};

    Button Command4{*this, L"&Click here to see the cheats!", {240, 1365, 5415, 720}};
    Button Command6{*this, L"About the &program", {240, 2205, 2640, 495}};
    Button Command8{*this, L"About &me", {3015, 2205, 2640, 495}};
    Button Command5{*this, std::wstring(L"h&ttp://") + product::web_site, {240, 2790, 5415, 495}};
    Button Command3{*this, L"E&xit (Please don't)", {240, 3540, exit_width_resting, 600}};
    Button Command1{*this, L"&Yes", {2640, answer_top_resting, 1440, 600}};
    Button Command2{*this, L"&No", {4215, answer_top_resting, 1440, 600}};
    TextBox Text1{*this, {0, 0, 1500, 270}, TextBoxKind::Help};

    Timer Timer1{*this, 1000, Timer::State::Disabled};
    Timer Timer2{*this, 1, Timer::State::Disabled};
    Timer Timer3{*this, 1, Timer::State::Disabled};
    Timer Timer4{*this, 1, Timer::State::Disabled};
    Timer Timer5{*this, 4, Timer::State::Disabled};
    Timer Timer6{*this, 1, Timer::State::Disabled};
    Timer Timer7{*this, 1};
    MainMenus menus{*this};

  private:
    void style_controls();
    void bind();
    void bind_exit();
    void bind_hover_help();
    void move_help_box(const Control& control, const MouseEvent& event);

    void Form_Load();
    void count_run();
    void Command3_Click();
    void Command2_Click();
    void Timer2_Timer();
    void Timer3_Timer();
    void Timer6_Timer();
    void Timer7_Timer();

    void enable_other_buttons(bool enabled);
    void set_answers_visible(bool visible);
    /// Ticks one of the exit question's timers until it stops or the buttons no longer move.
    void finish_animation(Timer& timer);
    ExitConfirmation exit_confirmation() const;
    void place(const ExitConfirmation& confirmation);

    Session& session_;
    const MainWindows& windows_;
    HoverHelp hover_help_{session_.pointer, Text1, Timer7};
    std::int16_t colour_step_ = 0;
};

}  // namespace quillomat
