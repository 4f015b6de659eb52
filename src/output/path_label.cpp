#include "output/path_label.h"

#include "forms/container.h"

namespace quillomat {

// Without SS_NOTIFY the label would receive no mouse messages, and its tool tip would never appear.
PathLabel::PathLabel(Container& container, Bounds bounds)
    : Control(container, bounds, L"STATIC", {}, SS_LEFT | SS_NOPREFIX | SS_PATHELLIPSIS | SS_NOTIFY) {}

void PathLabel::set_caption(const std::wstring& path) {
    SetWindowTextW(window(), path.c_str());
    set_tool_tip(path);
}

}  // namespace quillomat
