#include "controls/static_label.h"

namespace quillomat {

StaticLabel::StaticLabel(Container& container, std::wstring_view caption, Bounds bounds)
    : Control(container, bounds, L"STATIC", caption, SS_LEFT | WS_GROUP) {}

void StaticLabel::set_caption(const std::wstring& caption) {
    SetWindowTextW(window(), caption.c_str());
}

void StaticLabel::apply_bounds() {
    Control::apply_bounds();
    // Lines may break elsewhere in the new size, but Windows repaints only the added area.
    InvalidateRect(window(), nullptr, TRUE);
}

}  // namespace quillomat
