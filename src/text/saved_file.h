#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quillomat {

/// The file name that is proposed for the cheats of a game. A colon, which no file name may hold, becomes " -".
std::wstring proposed_file_name(std::wstring_view game);

/// The file name that a typed text stands for: with " -" for every colon, and with ".txt" at its end, which is added
/// unless it is there in exactly these letters.
std::wstring file_name_of(std::wstring_view typed);

/// Why a file cannot have this name, in a sentence for the user; nothing for a name that a file can have.
std::optional<std::wstring> file_name_fault(std::wstring_view name);

}  // namespace quillomat
