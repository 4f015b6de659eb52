#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "common/pointer.h"
#include "forms/events.h"

namespace quillomat {

class Control;
class Graphic;
class Item;
class TextBox;
class Timer;

/// Places a help box, as far inside its form as it fits.
void place_help_box(TextBox& help_box, double left, double top);
/// Shows a help text for a control: in the help box, made as wide as the text, with the control lit up and underlined.
void ShowTip(Control& control, TextBox& help_box, const std::wstring& text);
/// Takes the light off the control and hides the help box.
void HideTip(Control& control, TextBox& help_box);

/// Whether the pointer, when it was last read, was over a painted item and over nothing in front of its container.
bool is_under_pointer(const PointerState& pointer, const Graphic& item);
/// The same for a control, enabled or not: to the pointer a disabled one is a part of its container.
bool is_under_pointer(const PointerState& pointer, const Control& control);

/// True if the pointer of a mouse event is inside the item. A pressed item receives events from outside its bounds,
/// too.
bool is_within(const Item& item, const MouseEvent& event);

/// The help texts of one window: each is shown exactly while the pointer is over its control. The window's hover timer
/// calls `tick`; where the help box stands is the window's business.
class HoverHelp {
  public:
    /// Takes over the pointer movements and key presses of the help box's form.
    HoverHelp(PointerState& pointer, TextBox& help_box, Timer& timer);
    HoverHelp(const HoverHelp&) = delete;
    HoverHelp& operator=(const HoverHelp&) = delete;

    /// A help text has just been shown, with the pointer at this place of its control: it may have come to lie under
    /// the pointer without a movement of the mouse.
    std::function<void(Control&, const MouseEvent&)> on_shown;

    /// Gives a control of the window a help text.
    void add(Control& control, std::wstring text);
    /// The help box never keeps the focus: it hides and passes it to `receiver`. Takes over its focus event.
    void pass_focus_to(Control& receiver) { pass_focus_to(receiver, receiver); }
    /// The same with another receiver while the first one is disabled.
    void pass_focus_to(Control& receiver, Control& otherwise);
    /// Keeps the help box above the pointer while that is on one of the controls added so far, inside of the window as
    /// far as it fits. Takes over their mouse movements and `on_shown`.
    void keep_above_pointer();
    /// Compares the pointer with the controls and shows or hides.
    void tick();

  private:
    struct Tip {
        Control& control;
        std::wstring text;
        bool shown = false;
    };

    MouseEvent pointer_on(const Control& control) const;
    void place_above_pointer(const Control& control, const MouseEvent& pointer) const;
    void pace();
    void wake();
    void dismiss();

    PointerState& pointer_;
    TextBox& help_box_;
    Timer& timer_;
    std::vector<Tip> tips_;
    POINT last_position_{};
    int still_ticks_ = 0;
    std::optional<POINT> dismissed_at_;  // where the pointer was when a key hid the help, until it moves
};

}  // namespace quillomat
