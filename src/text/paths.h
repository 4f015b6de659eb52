#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillomat {

/// A folder on the way from the root of its drive down.
struct FolderStep {
    std::wstring path;  ///< whole; only that of a root ends with a separator
    std::wstring name;  ///< what it is called in its parent; for a root the path

    bool operator==(const FolderStep&) const = default;
};

/// The folders that lead to a folder, from its root to itself. The root is a drive such as "C:\" or a share of another
/// computer such as "\\server\share\".
std::vector<FolderStep> folder_steps(std::wstring_view path);

/// The path of something in a folder; a folder that ends with a separator gets no second one.
std::wstring path_in(std::wstring_view folder, std::wstring_view name);

/// Whether a file's name ends with this extension, which begins with its point, in any case of the letters A to Z.
bool has_extension(std::wstring_view name, std::wstring_view extension);

}  // namespace quillomat
