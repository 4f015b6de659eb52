#pragma once

#include <string>

#include "forms/control.h"

namespace quillomat {

/// The caption of the control constructed after it. Screen readers name the control by the caption, and the access key
/// focuses the control. A label without a size only names the control.
class StaticLabel : public Control {
  public:
    StaticLabel(Container& container, std::wstring_view caption, Bounds bounds);

    void set_caption(const std::wstring& caption);

  protected:
    void apply_bounds() override;
};

}  // namespace quillomat
