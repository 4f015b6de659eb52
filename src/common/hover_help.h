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
/// Shows a help text in the help box, made as wide as the text, and lights up and underlines its control.
void ShowTip(Control& control, TextBox& help_box, const std::wstring& text);
/// Gives the control its usual look back and hides the help box.
void HideTip(Control& control, TextBox& help_box);

/// True if the last pointer position read lies on a painted item that nothing in front of its container covers.
bool is_under_pointer(const PointerState& pointer, const Graphic& item);
/// The same for a control, enabled or not: Windows reports the container as the window under a disabled control.
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

    /// A help text has just been shown. The event holds the pointer's place on the control; no mouse move need have
    /// come before, because a control can open under a resting pointer.
    std::function<void(Control&, const MouseEvent&)> on_shown;

    /// Gives a control of the window a help text.
    void add(Control& control, std::wstring text);
    /// Hides the help box when it gets the focus, and passes the focus to `receiver`. Takes over the box's focus event.
    void pass_focus_to(Control& receiver) { pass_focus_to(receiver, receiver); }
    /// The same, passing the focus to `otherwise` while `receiver` is disabled.
    void pass_focus_to(Control& receiver, Control& otherwise);
    /// Keeps the help box above the pointer while the pointer is on one of the controls added so far. Takes over their
    /// mouse moves and `on_shown`.
    void keep_above_pointer();
    /// Shows or hides help texts by what is under the pointer now.
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
