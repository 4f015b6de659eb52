#pragma once

#include "controls/button.h"
#include "controls/frame.h"
#include "controls/graphics.h"
#include "controls/list_box.h"
#include "controls/option_button.h"
#include "controls/text_box.h"
#include "forms/form.h"
#include "output/drive_list_box.h"
#include "output/folder_list_box.h"
#include "resources/pictures.h"
#include "shell/link.h"
#include "shell/picture_box.h"
#include "viewer/check_box.h"

namespace quillomat {

/// A window with one item of each kind.
struct Board : Form {
    explicit Board(Application& application)
        : Form(application, {.name = L"frmBoard", .caption = L"Board", .width = 9600, .height = 7200}) {
        // Large enough for strokes of the very colour of the text.
        for (Label* label : {&Label1, &Raised, &Shadow, &Highlight}) label->set_font({.points = 20});
        for (Control* control : controls()) {
            // A tool tip hooks itself into its control; nothing may change by that.
            control->set_tool_tip(L"tip");
            if (control != &Drives) control->set_font({.points = 20});
        }
        // A link takes its size from its font only now.
        Link1.resolution_changed();
        List1.add(L"Item");
    }

    Label Label1{*this, L"Label", {120, 120, 2400, 600}};
    Image Image1{*this, Picture(PICTURE_GAME_PAD), {2700, 120, 900, 900}};
    Shape Shape1{*this, {3750, 120, 900, 900}};
    Line Line1{*this, {4800, 120, 900, 30}};
    Label Shadow{*this, {}, {6000, 120, 3000, 600}};
    Label Highlight{*this, {}, {6000, 120, 3000, 600}};
    Label Raised{*this, L"Raised", {6000, 120, 3000, 600}};
    Button Button1{*this, L"Button", {120, 1200, 2400, 750}};
    /// Without a caption, so that only its face tells whether it is pressed.
    Button Button2{*this, {}, {2700, 1200, 2400, 750}};
    OptionButton Option1{*this, L"Option", {120, 2100, 2400, 600}, OptionButton::Group::Starts};
    OptionButton Option2{*this, L"Other", {8000, 2100, 1200, 600}, OptionButton::Group::Continues};
    CheckBox Check1{*this, L"Check", {2700, 2100, 2400, 600}};
    Link Link1{*this, L"Link", 5400, 2100};
    Frame Frame1{*this, L"Frame", {5400, 750, 2400, 1200}, FrameBorder::Captioned};
    PictureBox Picture1{*this, Picture(PICTURE_COIN), L"Coin", {120, 2850, 1500, 1500}};
    ListBox List1{*this, {2700, 2850, 2400, 1500}};
    TextBox Text1{*this, {5400, 2850, 2400, 600}};
    TextBox Text2{*this, {5400, 3600, 2400, 600}, TextBoxKind::MultiLine};
    FolderListBox Folders{*this, {120, 4500, 3000, 2100}};
    DriveListBox Drives{*this, {3300, 4500, 3000, 315}};
    /// Over the list, which is made before it and so lies in front of it at first.
    TextBox Help{*this, {2760, 3600, 1500, 270}, TextBoxKind::Help};
};

}  // namespace quillomat
