#pragma once

#include <string>
#include <utility>

#include "forms/item.h"

namespace quillomat {

/// An item without a window: its container paints it, in the order of the items, and gives it its mouse events.
class Graphic : public Item {
  public:
    Graphic(Container& container, Bounds bounds);
    ~Graphic() override;

    void bring_to_front() override;
    /// Paints the item now instead of when the program is idle.
    void refresh();

    /// The one-line text shown while the pointer rests on the item; an empty one shows none.
    const std::wstring& tool_tip() const { return tool_tip_; }
    void set_tool_tip(std::wstring text);

    /// Draws the item; its place is `pixels()`. For the container.
    virtual void draw(HDC canvas) const = 0;
    /// Whether the mouse meets the item or what lies behind it.
    virtual bool takes_mouse() const { return true; }
    /// Where it stands in its container, in pixels.
    const RECT& pixels() const { return pixels_; }
    /// Has it painted again when the program is idle.
    void invalidate() const;

  protected:
    void apply_bounds() override;
    void apply_visible() override { invalidate(); }
    void apply_enabled() override { invalidate(); }
    /// Sets a property that shows in the drawing.
    template <class Value>
    void change(Value& property, Value value) {
        if (value == property) return;
        property = std::move(value);
        invalidate();
    }

  private:
    RECT pixels_{};
    std::wstring tool_tip_;
};

}  // namespace quillomat
