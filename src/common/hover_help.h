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

/// Moves a help box, but not beyond the left, upper or right edge of its form. Positions are in twips.
void place_help_box(TextBox& help_box, double left, double top);
/// Shows a help text in a help box of the text's width, and highlights and underlines the control.
void ShowTip(Control& control, TextBox& help_box, const std::wstring& text);
/// Restores the usual look of the control and hides the help box.
void HideTip(Control& control, TextBox& help_box);

/// Returns true if the last pointer position read is on a painted item that no other window covers.
bool is_under_pointer(const PointerState& pointer, const Graphic& item);
/// The same for a control, which may be disabled: Windows then reports the container as the window under the pointer.
bool is_under_pointer(const PointerState& pointer, const Control& control);

/// Returns true if the pointer of a mouse event is inside the item. A pressed item receives events from outside its
/// bounds, too.
bool is_within(const Item& item, const MouseEvent& event);

/// The help texts of a window, each shown while the pointer is over its control. The window calls `tick` from a timer
/// and decides where the help box appears.
class HoverHelp {
  public:
    /// Takes over the events `on_pointer_moved` and `on_key_pressed` of the help box's form.
    HoverHelp(PointerState& pointer, TextBox& help_box, Timer& timer);
    HoverHelp(const HoverHelp&) = delete;
    HoverHelp& operator=(const HoverHelp&) = delete;

    /// A help text has just been shown. The event holds the pointer's position on the control. There may have been no
    /// mouse move, because a control can appear under a resting pointer.
    std::function<void(Control&, const MouseEvent&)> on_shown;

    /// Gives a control of the window a help text.
    void add(Control& control, std::wstring text);
    /// Hides the help box if it gets the focus, and passes the focus to `receiver`. Takes over the box's
    /// `on_got_focus`.
    void pass_focus_to(Control& receiver) { pass_focus_to(receiver, receiver); }
    /// The same, but the focus goes to `otherwise` while `receiver` is disabled.
    void pass_focus_to(Control& receiver, Control& otherwise);
    /// Keeps the help box above the pointer while the pointer is on one of the controls added so far. Takes over their
    /// mouse moves and `on_shown`.
    void keep_above_pointer();
    /// Shows and hides help texts according to what is under the pointer now.
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
