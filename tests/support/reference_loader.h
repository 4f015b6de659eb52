#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "database/catalogue.h"

namespace quillomat {

/// Loads the text into `catalogue` and reads it the slow and plain way, too, one line at a time. Gives the first
/// difference between the two in words, or nothing.
std::optional<std::string> difference_from_reference(std::wstring_view text, Catalogue& catalogue);

}  // namespace quillomat
