#pragma once

#include <string>

#include "forms/control.h"

namespace quillomat {

/// The caption of the input made after it: screen readers name the input by it, and its access key moves the focus
/// there. Without a size it names the input and shows nothing.
class StaticLabel : public Control {
  public:
    StaticLabel(Container& container, std::wstring_view caption, Bounds bounds);

    void set_caption(const std::wstring& caption);

  protected:
    void apply_bounds() override;
};

}  // namespace quillomat
