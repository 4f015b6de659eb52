#include "forms/graphic.h"

#include <utility>

#include "forms/container.h"
#include "forms/form.h"

namespace quillomat {

Graphic::Graphic(Container& container, Bounds bounds) : Item(container, bounds), pixels_(pixel_bounds()) {
    container.add(*this);
}

Graphic::~Graphic() {
    container().remove(*this);
}

void Graphic::invalidate() const {
    // Before the form is first shown, all of it is invalid anyway.
    if (form().shown()) InvalidateRect(container().window(), &pixels_, FALSE);
}

void Graphic::apply_bounds() {
    const RECT pixels = pixel_bounds();
    if (EqualRect(&pixels, &pixels_)) return;
    if (visible()) invalidate();
    pixels_ = pixels;
    if (visible()) invalidate();
    if (!tool_tip_.empty()) form().internals().tool_tips.set(container().window(), this, pixels_, tool_tip_);
}

void Graphic::set_tool_tip(std::wstring text) {
    tool_tip_ = std::move(text);
    form().internals().tool_tips.set(container().window(), this, pixels_, tool_tip_);
}

void Graphic::bring_to_front() {
    container().bring_to_front(*this);
}

void Graphic::refresh() {
    RedrawWindow(container().window(), &pixels_, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
}

}  // namespace quillomat
