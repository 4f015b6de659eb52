#pragma once

#include <string>

#include "common/clsTextBox.h"
#include "common/hover_help.h"
#include "common/session.h"
#include "controls/button.h"
#include "controls/static_label.h"
#include "controls/text_box.h"
#include "forms/form.h"
#include "forms/timer.h"
#include "output/combo_box.h"

namespace quillomat {

/// Sends a message to the author of the program.
class frmMailMe final : public Form {
  public:
    /// `session` must outlive the form.
    frmMailMe(Application& application, Session& session);

    StaticLabel Label1{*this, L"Subject:", {60, 45, 3000, 210}};
    ComboBox Combo1{*this, {60, 270, 6780, 315}};
    StaticLabel Label2{*this, L"Message", {60, 630, 3000, 210}};
    TextBox Text1{*this, {60, 840, 6780, 4185}, TextBoxKind::Writing};
    Button Command2{*this, L"&Cancel", {3810, 5130, 1290, 300}};
    Button Command1{*this, L"&Send!", {5550, 5130, 1290, 300}};
    TextBox Text2{*this, {0, 0, 1500, 270}, TextBoxKind::Help};
    StaticLabel Label6{*this, L"Please wait...", {60, 5130, 1800, 225}};
    Timer Timer1{*this, 1};

    /// Puts a text into the message and selects it, so that typing replaces it. Does nothing if there is a message
    /// already.
    void propose_message(const std::wstring& text);

  private:
    void bind();
    void bind_hover_help();

    void Form_Load();
    void Form_Resize();
    void Form_Unload();
    void Combo1_KeyDown(KeyEvent& event);

    void UpdateSendButton();
    void SendToAuthor();

    Session& session_;
    /// The proposed message. Escape may discard it, but not a message that the user has written.
    std::wstring proposed_;
    clsTextBox lines_{Text1};
    HoverHelp hover_help_{session_.pointer, Text2, Timer1};
};

}  // namespace quillomat
