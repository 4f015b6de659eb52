#pragma once

#include "controls/button.h"
#include "controls/frame.h"
#include "controls/option_button.h"
#include "controls/static_label.h"
#include "controls/text_box.h"
#include "forms/form.h"
#include "text/find_in_text.h"
#include "viewer/check_box.h"

namespace quillomat {

/// Searches the text box of another window step by step. The user can go on working in that window.
class frmFind final : public Form {
  public:
    /// Searches `box`, a control of `searched`. The dialog stays in front of `searched` and closes with it. `state`
    /// holds the search between two dialogs and must outlive them.
    frmFind(Application& application, FindState& state, Form& searched, TextBox& box);

    StaticLabel Label1{*this, L"Fi&nd What:", {120, 120, 930, 225}};
    TextBox txtFind{*this, {1065, 75, 2235, 315}};
    CheckBox chkCase{*this, L"Match &Case", {1065, 450, 1410, 255}};
    Frame Frame1{*this, L"Direction", {3420, 60, 1695, 660}, FrameBorder::Captioned};
    OptionButton optDirection[2]{{Frame1, L"&Up", {120, 285, 645, 255}, OptionButton::Group::Starts},
                                 {Frame1, L"&Down", {780, 285, 855, 255}, OptionButton::Group::Continues}};
    Button cmdFind{*this, L"&Find", {5235, 60, 1080, 315}};
    Button cmdcancel{*this, L"C&ancel", {5235, 405, 1080, 315}};

    /// Selects the next match in the text box, or tells the user that there is none.
    void FindIt();

  private:
    void bind();
    void Form_Load();
    void Form_Unload();
    void txtFind_Change();
    void stay_in_front();

    FindState& state_;
    Form& searched_;
    TextBox& box_;
};

}  // namespace quillomat
