#include "forms/static_label.h"

#include "forms/container.h"

namespace quillomat {

StaticLabel::StaticLabel(Container& container, std::wstring_view caption, Bounds bounds)
    : Control(container, bounds, L"STATIC", caption, SS_LEFT | WS_GROUP) {}

HBRUSH StaticLabel::prepare_colours(HDC canvas) {
    set_default_back_colour(container().back_colour());
    return Control::prepare_colours(canvas);
}

}  // namespace quillomat
