#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillomat {

/// One of the folders that a path leads through.
struct FolderStep {
    std::wstring path;  ///< the full path; only a root ends with a separator
    std::wstring name;  ///< the name in the parent folder; for a root, the path

    bool operator==(const FolderStep&) const = default;
};

/// Returns the folders from the root down to the given folder. A root is a drive such as "C:\" or a network share such
/// as "\\server\share\".
std::vector<FolderStep> folder_steps(std::wstring_view path);

/// Joins a folder and a name, with one separator between them.
std::wstring path_in(std::wstring_view folder, std::wstring_view name);

/// Returns true if a file name ends with the extension, such as L".txt", ignoring the case of the letters A to Z.
bool has_extension(std::wstring_view name, std::wstring_view extension);

}  // namespace quillomat
