#pragma once

#include <string>
#include <vector>

#include "common/clsTextBox.h"
#include "common/hover_help.h"
#include "common/session.h"
#include "controls/button.h"
#include "controls/list_box.h"
#include "controls/option_button.h"
#include "controls/static_label.h"
#include "controls/text_box.h"
#include "forms/form.h"
#include "forms/timer.h"
#include "output/picking_list_box.h"
#include "output/viewer_link.h"

namespace quillomat {

/// Sends the cheats of picked games to a friend, in a mail or in a file attached to it.
class frmMailCheats final : public Form {
  public:
    /// `session` and `viewer` must outlive the form.
    frmMailCheats(Application& application, Session& session, ViewerLink& viewer);

    StaticLabel Label1{*this, L"Select the games whose cheat codes you want to include.", {}};
    PickingListBox List1{*this, {}};
    StaticLabel Label7{*this, L"(Press CTRL-Arrow Key to go to the next selected item.)", {}};
    /// The names of the picked games, in the list's order. Never shown.
    ListBox List2{*this, {}};
    StaticLabel Label2{*this, L"Your Name:", {}};
    TextBox Text1{*this, {}};
    StaticLabel Label3{*this, L"Friend's Name:", {}};
    TextBox Text2{*this, {}};
    StaticLabel Label4{*this, L"Friend's E-mail", {}};
    TextBox Text4{*this, {}};
    StaticLabel Label5{*this, L"Message for friend:", {}};
    TextBox Text3{*this, {}, TextBoxKind::Writing};
    OptionButton Option1{*this, L"Include cheats in e-mail", {}, OptionButton::Group::Starts};
    OptionButton Option2{*this, L"Include cheats in an attached text file", {}, OptionButton::Group::Continues};
    Button Command2{*this, L"&Cancel", {}};
    Button Command1{*this, L"&Send!", {}};
    TextBox Text5{*this, {0, 0, 1500, 270}, TextBoxKind::Help};
    StaticLabel Label6{*this, L"Please wait...", {}};
    Timer Timer1{*this, 1};

  private:
    void bind();
    void bind_inputs();
    void bind_hover_help();

    void Form_Load();
    void Form_Resize();
    void Form_Unload();
    void List1_Click();
    void List1_KeyDown(KeyEvent& event);
    void Text2_Change();
    void Text3_DblClick();

    void UpdateSendButton();
    void SendCheats();
    std::wstring picked_cheats() const;
    void lay_out_list(double width);
    void lay_out_letter(double left);

    Session& session_;
    ViewerLink& viewer_;
    std::vector<std::wstring> names_;  // of all games, because reading them back from the list is slow
    clsTextBox lines_{Text3};
    HoverHelp hover_help_{session_.pointer, Text5, Timer1};
};

}  // namespace quillomat
