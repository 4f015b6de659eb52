#pragma once

#include <array>

#include "common/clsTextBox.h"
#include "common/hover_help.h"
#include "common/session.h"
#include "controls/button.h"
#include "controls/static_label.h"
#include "controls/text_box.h"
#include "forms/form.h"
#include "forms/timer.h"
#include "output/viewer_link.h"

namespace quillomat {

class Error;

/// The window for adding a game to the catalogue, to the viewer's full list and to the end of the database.
class frmAddNew final : public Form {
  public:
    /// `session` and `viewer` must outlive the form.
    frmAddNew(Application& application, Session& session, ViewerLink& viewer);

    StaticLabel Label1{*this, L"Game:", {120, 75, 3000, 225}};
    TextBox Text1{*this, {120, 300, 5355, 315}};
    StaticLabel Label2{*this, L"Cheat Codes:", {120, 690, 3000, 225}};
    TextBox Text2{*this, {120, 930, 5355, 2055}, TextBoxKind::MultiLine};

  private:
    // Created in the order of the Tab key, from left to right.
    Button cancel_button_{*this, L"&Cancel", {2940, 3120, 1215, 375}};
    Button add_button_{*this, L"&Add!", {4260, 3120, 1215, 375}};

  public:
    std::array<Button*, 2> cmdButton{&add_button_, &cancel_button_};
    TextBox Text3{*this, {0, 0, 1500, 270}, TextBoxKind::Help};
    Timer Timer1{*this, 1};

    /// Adds the typed game and closes the window. If that fails, tells the user why.
    void AddGame();

  private:
    void bind();
    void bind_hover_help();

    void Form_Load();
    void Form_Resize();
    void Form_Unload();
    void Form_MouseMove(const MouseEvent& event);
    void Text1_KeyDown(KeyEvent& event);
    void Timer1_Timer();

    /// Shows the help text of a button near the pointer, which is at `x` and `y` in the button, in twips.
    void show_help_box(std::size_t index, double x, double y);
    void UpdateAddButton();
    void leave_by_escape(KeyEvent& event);

    void propose_other_name(int existing, const std::wstring& name);
    void store(const std::wstring& name, const std::wstring& cheats);
    void report(const Error& error);

    Session& session_;
    ViewerLink& viewer_;
    clsTextBox lines_{Text2};
    HoverHelp hover_help_{session_.pointer, Text3, Timer1};
    bool pointer_placed_ = false;
};

}  // namespace quillomat
