#pragma once

#include "forms/control.h"

namespace quillomat {

/// A label for the path of a file or folder. A path that is too long is shown without its middle. The tool tip shows
/// the whole path.
class PathLabel : public Control {
  public:
    PathLabel(Container& container, Bounds bounds);

    /// The whole path.
    std::wstring caption() const { return window_text(); }
    void set_caption(const std::wstring& path);
};

}  // namespace quillomat
