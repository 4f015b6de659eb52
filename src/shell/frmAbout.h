#pragma once

#include <cstdint>

#include "common/hover_help.h"
#include "controls/graphics.h"
#include "controls/static_label.h"
#include "controls/text_box.h"
#include "forms/form.h"
#include "forms/menu.h"
#include "forms/timer.h"
#include "shell/emboss_label.h"
#include "shell/link.h"
#include "shell/picture_box.h"
#include "text/about_animation.h"

namespace quillomat {

/// The about box: version, run count, the author's addresses, and a button for the System Information tool.
class frmAbout final : public Form {
  public:
    /// The window to show after the box has closed.
    enum class Next { MainScreen, MessageToAuthor };

    /// `pointer` must outlive the form.
    frmAbout(Application& application, PointerState& pointer, std::int16_t start_up_times);

    /// Returns the window that the user asked for on leaving.
    Next next() const { return next_; }

    std::int16_t StartUpTimes;  ///< number of runs of the program

    PictureBox picIcon;
    Label lblTitle{*this, L"Quillomat", {1230, 165, 3000, 600}};
    StaticLabel lblVersion;
    StaticLabel lblDescription;
    Line Line1{*this, {240, 1635, 5430, 30}};
    Label Label3{*this, {}, {240, 1785, 5430, 330}};
    Label Label1{*this, {}, {240, 1785, 5430, 330}};
    Label Label4{*this, L"You have run Quillomat 10 times.", {240, 1785, 5430, 330}};
    /// The run count for screen readers, which cannot see painted text. A label without a size is invisible.
    StaticLabel SpokenRunCount{*this, {}, {}};
    Line Line2{*this, {240, 2250, 5430, 30}};
    Link Label2;
    Link lblDisclaimer;
    Button cmdButton[2]{{*this, L"OK", {2715, 3330, 1350, 375}}, {*this, L"&System Info...", {4185, 3330, 1485, 375}}};
    TextBox Text1{*this, {2400, 3000, 1500, 270}, TextBoxKind::Help};
    Timer Timer1{*this, 1, Timer::State::Disabled};
    Timer Timer2{*this, 1};
    Timer Timer3{*this, 1};
    Menu mnuMail{*this, {}};
    Menu mnuMailMe{mnuMail, L"Use &Quillomat's Mail program"};
    Menu mnuDefaultMail{mnuMail, L"Use &Default Mail Program"};
    Menu mnuBox{*this, {}};
    Menu mnuOK{mnuBox, L"&OK"};

  private:
    void bind();
    void bind_hover_help();

    void Form_Load();
    void Label4_Click();
    void Timer1_Timer();
    void Timer2_Timer();
    void mnuMailMe_Click();
    void StartSysInfo();

    void show_title(double points);
    void emboss(EmbossStyle style);

    PointerState& pointer_;
    HoverHelp hover_help_{pointer_, Text1, Timer3};
    double title_points_ = largest_title;
    Next next_ = Next::MainScreen;
};

}  // namespace quillomat
