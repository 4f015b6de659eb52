#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "database/catalogue.h"
#include "text/error.h"

namespace quillomat {

/// What loading a database must give, found by reading it one line at a time.
struct ReferenceCatalogue {
    std::vector<std::wstring> names;
    /// One more than names, when the game behind the last one has a slot: the text that trails the last name line.
    std::vector<std::wstring> cheats;
    std::optional<ErrorCode> error;
};

/// Reads a database the slow and plain way: the yardstick for the catalogue's own loader.
ReferenceCatalogue load_by_lines(std::wstring_view text);

/// Loads the text into `catalogue`, too. Gives the first difference between the two in words, or nothing.
std::optional<std::string> difference_from_reference(std::wstring_view text, Catalogue& catalogue);

}  // namespace quillomat
