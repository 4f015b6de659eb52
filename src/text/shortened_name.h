#pragma once

#include <functional>
#include <string>

namespace quillomat {

/// Returns `name` if it fits, otherwise the longest text that fits and consists of its beginning, an ellipsis and its
/// end. `fits` tells whether there is room for a text; a shorter text must never need more room. If nothing fits, the
/// result is the ellipsis alone.
std::wstring shortened_name(const std::wstring& name, const std::function<bool(const std::wstring& text)>& fits);

}  // namespace quillomat
