#pragma once

#include <string>
#include <utility>

#include "forms/item.h"

namespace quillomat {

/// An item without a window of its own. Its container paints the item and raises its mouse events.
class Graphic : public Item {
  public:
    Graphic(Container& container, Bounds bounds);
    ~Graphic() override;

    void bring_to_front() override;
    /// Paints the item at once.
    void refresh();

    /// The text of the tool tip; empty for no tool tip.
    const std::wstring& tool_tip() const { return tool_tip_; }
    void set_tool_tip(std::wstring text);

    /// Draws the item within `pixels()`. For the container.
    virtual void draw(HDC canvas) const = 0;
    /// Returns false if mouse events go to whatever lies behind the item.
    virtual bool takes_mouse() const { return true; }
    /// The position in the container, in pixels.
    const RECT& pixels() const { return pixels_; }
    /// Marks the item to be painted once the message queue is empty.
    void invalidate() const;

  protected:
    void apply_bounds() override;
    void apply_visible() override { invalidate(); }
    void apply_enabled() override { invalidate(); }
    /// Sets a property and, if the value is a new one, marks the item to be painted.
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
