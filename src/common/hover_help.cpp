#include "common/hover_help.h"

#include <algorithm>
#include <utility>

#include "controls/graphics.h"
#include "controls/text_box.h"
#include "forms/form.h"
#include "forms/timer.h"

namespace quillomat {
namespace {

constexpr Colour highlight{0xFF8080};

// The timer ticks at full speed while the pointer moves. Once the pointer has rested for a while, slow ticks are enough
// to notice windows that open or close under it; the next mouse move restores the full speed.
constexpr int awake_milliseconds = 1;
constexpr int asleep_milliseconds = 200;
constexpr int ticks_until_asleep = 20;

}  // namespace

void place_help_box(TextBox& help_box, double left, double top) {
    const double last_left = std::max(0.0, help_box.form().inner_width() - help_box.width());
    help_box.move({std::clamp(left, 0.0, last_left), std::max(0.0, top), help_box.width(), help_box.height()});
}

void ShowTip(Control& control, TextBox& help_box, const std::wstring& text) {
    help_box.set_text(text);
    help_box.fit_width_to_text();
    help_box.bring_to_front();
    help_box.set_visible(true);
    control.set_back_colour(highlight);
    control.set_underlined(true);
}

void HideTip(Control& control, TextBox& help_box) {
    control.set_back_colour(colours::button_face);
    control.set_underlined(false);
    help_box.set_visible(false);
}

bool is_under_pointer(const PointerState& pointer, const Graphic& item) {
    const HWND window = item.container().window();
    if (pointer.PointerWindow != window) return false;
    POINT position = pointer.PointerPos;
    ScreenToClient(window, &position);
    return PtInRect(&item.pixels(), position);
}

bool is_under_pointer(const PointerState& pointer, const Control& control) {
    if (pointer.PointerWindow == control.window()) return true;
    RECT area{};
    return pointer.PointerWindow == control.container().window() && GetWindowRect(control.window(), &area) &&
           PtInRect(&area, pointer.PointerPos);
}

bool is_within(const Item& item, const MouseEvent& event) {
    return event.x >= 0 && event.y >= 0 && event.x < item.width() && event.y < item.height();
}

HoverHelp::HoverHelp(PointerState& pointer, TextBox& help_box, Timer& timer)
    : pointer_(pointer), help_box_(help_box), timer_(timer) {
    help_box_.form().on_pointer_moved = [this] { wake(); };
    help_box_.form().on_key_pressed = [this] { dismiss(); };
}

void HoverHelp::add(Control& control, std::wstring text) {
    tips_.push_back({control, std::move(text)});
}

void HoverHelp::pass_focus_to(Control& receiver, Control& otherwise) {
    help_box_.on_got_focus = [this, &receiver, &otherwise] {
        help_box_.set_visible(false);
        if (receiver.enabled()) {
            receiver.set_focus();
        } else {
            otherwise.set_focus();
        }
    };
}

void HoverHelp::keep_above_pointer() {
    on_shown = [this](Control& control, const MouseEvent& pointer) { place_above_pointer(control, pointer); };
    for (const Tip& tip : tips_) {
        tip.control.on_mouse_move = [this, &control = tip.control](const MouseEvent& pointer) {
            place_above_pointer(control, pointer);
        };
    }
}

void HoverHelp::place_above_pointer(const Control& control, const MouseEvent& pointer) const {
    constexpr double above_pointer = 500;
    place_help_box(help_box_, control.left() + pointer.x - help_box_.width() / 2,
                   control.top() + pointer.y - above_pointer);
}

void HoverHelp::tick() {
    UpdatePointer(pointer_);
    pace();
    // Handle leaving before entering: moving directly between two controls must end with the second one's help visible.
    for (Tip& tip : tips_) {
        if (tip.shown && pointer_.PointerWindow != tip.control.window()) {
            tip.shown = false;
            HideTip(tip.control, help_box_);
        }
    }
    for (Tip& tip : tips_) {
        if (!tip.shown && !dismissed_at_ && pointer_.PointerWindow == tip.control.window()) {
            tip.shown = true;
            ShowTip(tip.control, help_box_, tip.text);
            raise(on_shown, tip.control, pointer_on(tip.control));
        }
    }
}

MouseEvent HoverHelp::pointer_on(const Control& control) const {
    POINT point = pointer_.PointerPos;
    ScreenToClient(control.window(), &point);
    const int dpi = control.form().dpi();
    return {.modifiers = {}, .x = to_twips(point.x, dpi), .y = to_twips(point.y, dpi)};
}

void HoverHelp::pace() {
    const POINT position = pointer_.PointerPos;
    const bool moved = position.x != last_position_.x || position.y != last_position_.y;
    last_position_ = position;
    still_ticks_ = moved ? 0 : still_ticks_ + 1;
    timer_.set_interval(still_ticks_ < ticks_until_asleep ? awake_milliseconds : asleep_milliseconds);
}

void HoverHelp::dismiss() {
    POINT position{};
    GetCursorPos(&position);
    dismissed_at_ = position;
    help_box_.set_visible(false);
    for (const Tip& tip : tips_) {
        if (tip.shown) HideTip(tip.control, help_box_);
    }
}

void HoverHelp::wake() {
    // Windows may send a mouse move for a resting pointer when the help box is hidden under it.
    POINT position{};
    GetCursorPos(&position);
    if (dismissed_at_ && (position.x != dismissed_at_->x || position.y != dismissed_at_->y)) {
        dismissed_at_.reset();
        for (Tip& tip : tips_) tip.shown = false;
    }
    still_ticks_ = 0;
    timer_.set_interval(awake_milliseconds);
}

}  // namespace quillomat
