#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quillomat {

/// Returns the file name proposed for the cheats of a game. A colon, which file names cannot contain, becomes " -".
std::wstring proposed_file_name(std::wstring_view game);

/// Returns the file name for a typed text: every colon becomes " -", and ".txt" is added unless the text ends with it
/// in small letters.
std::wstring file_name_of(std::wstring_view typed);

/// Returns a sentence that tells the user why a file cannot have this name, or nothing if it can.
std::optional<std::wstring> file_name_fault(std::wstring_view name);

}  // namespace quillomat
