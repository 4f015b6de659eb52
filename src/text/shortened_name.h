#pragma once

#include <functional>
#include <string>

namespace quillomat {

/// Returns `name`, or, if it does not fit, the longest text made of its beginning, an ellipsis and its end that does.
/// `fits` tells whether a text has enough room; a shorter text must never need more. If nothing fits, the result is the
/// ellipsis alone.
std::wstring shortened_name(const std::wstring& name, const std::function<bool(const std::wstring& text)>& fits);

}  // namespace quillomat
