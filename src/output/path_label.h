#pragma once

#include "forms/control.h"

namespace quillomat {

/// Shows the path of a file or folder on one line. One that is too long is shown without its middle; the whole of it is
/// the tool tip.
class PathLabel : public Control {
  public:
    PathLabel(Container& container, Bounds bounds);

    /// The whole path.
    std::wstring caption() const { return window_text(); }
    void set_caption(const std::wstring& path);
};

}  // namespace quillomat
