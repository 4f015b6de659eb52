#pragma once

#include "controls/button.h"
#include "controls/frame.h"
#include "controls/list_box.h"
#include "controls/option_button.h"
#include "controls/static_label.h"
#include "controls/text_box.h"

namespace quillomat {

/// What stands on the panel that slides in over the viewer's list of games: the keyword, where to look for it, and the
/// games that were found. Positions are on the panel.
struct SearchPanel {
    /// Makes the controls on `frame`, which must outlive them.
    explicit SearchPanel(Frame& frame)
        : KeywordLabel(frame, L"Keyword:", {0, 15, 1700, 225}),
          Text3(frame, {0, 255, 1725, 315}),
          Command1(frame, L"&Go!", {1800, 240, 690, 345}),
          Frame1(frame, L"Look in", {0, 645, 2490, 600}, FrameBorder::Captioned),
          Option3(Frame1, L"G&ame", {120, 255, 1050, 255}, OptionButton::Group::Starts, OptionButton::Choice::Set),
          Option4(Frame1, L"&Cheats", {1230, 255, 1050, 255}, OptionButton::Group::Continues),
          List1(frame, {0, 1315, 2490, 3230}) {
        List1.set_spoken_name(L"Search results");
    }

    StaticLabel KeywordLabel;
    TextBox Text3;
    Button Command1;
    Frame Frame1;
    OptionButton Option3;
    OptionButton Option4;
    ListBox List1;
};

}  // namespace quillomat
