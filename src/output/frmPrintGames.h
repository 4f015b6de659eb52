#pragma once

#include <functional>

#include "common/hover_help.h"
#include "common/session.h"
#include "controls/button.h"
#include "controls/frame.h"
#include "controls/option_button.h"
#include "controls/static_label.h"
#include "controls/text_box.h"
#include "forms/form.h"
#include "forms/timer.h"
#include "output/viewer_link.h"

namespace quillomat {

/// Prints the names of all games or of a range of them.
class frmPrintGames final : public Form {
  public:
    /// `session` and `viewer` must outlive the form.
    frmPrintGames(Application& application, Session& session, ViewerLink& viewer);

    OptionButton Option1{*this, L"&All Games", {240, 180, 2400, 255}, OptionButton::Group::Starts};
    OptionButton Option2{*this, L"&Selected Number", {240, 495, 2400, 255}, OptionButton::Group::Continues};
    Frame Frame1{*this, L"Range", {240, 870, 4260, 1320}, FrameBorder::Captioned};
    StaticLabel Label1{Frame1, L"From", {195, 390, 480, 225}};
    TextBox Text1{Frame1, {705, 345, 1050, 315}};
    StaticLabel Label2{Frame1, L"To", {2130, 390, 300, 225}};
    TextBox Text2{Frame1, {2475, 345, 1050, 315}};
    StaticLabel Label3{Frame1, L"No. of Games : -", {195, 870, 1350, 225}};
    TextBox Text3{Frame1, {1575, 825, 1950, 315}, TextBoxKind::Result};
    Button Command2{*this, L"&Cancel", {1050, 2400, 1215, 375}};
    Button Command1{*this, L"&OK", {2475, 2400, 1215, 375}};
    TextBox Text4{*this, {0, 0, 1500, 270}, TextBoxKind::Help};
    Timer Timer1{*this, 1};

    /// Shows how many games the range holds.
    void Total();

  private:
    void bind();
    void bind_number_box(TextBox& box, std::function<void()> go_on);
    void bind_hover_help();

    void Form_Load();
    void Form_Unload();
    void Option1_Click();
    void Option2_Click();
    void Command1_Click();

    void enable_range(bool enabled);
    void print(const std::vector<std::wstring>& names);

    Session& session_;
    ViewerLink& viewer_;
    HoverHelp hover_help_{session_.pointer, Text4, Timer1};
};

}  // namespace quillomat
