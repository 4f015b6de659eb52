#include "text/paths.h"

#include <algorithm>

#include "text/letter_case.h"

namespace quillomat {
namespace {

constexpr wchar_t separator = L'\\';

// Returns the length of the root of a path, including the separator after it.
std::size_t root_length(std::wstring_view path) {
    std::size_t end = path.find(separator);
    if (path.starts_with(L"\\\\")) {
        end = path.find(separator, 2);
        if (end != std::wstring_view::npos) end = path.find(separator, end + 1);
    }
    return end == std::wstring_view::npos ? path.size() : end + 1;
}

}  // namespace

std::vector<FolderStep> folder_steps(std::wstring_view path) {
    std::wstring root(path.substr(0, root_length(path)));
    path.remove_prefix(root.size());
    if (!root.ends_with(separator)) root += separator;
    std::vector<FolderStep> steps{{root, root}};
    while (!path.empty()) {
        const std::wstring_view name = path.substr(0, path.find(separator));
        if (!name.empty()) steps.push_back({path_in(steps.back().path, name), std::wstring(name)});
        path.remove_prefix(std::min(name.size() + 1, path.size()));
    }
    return steps;
}

std::wstring path_in(std::wstring_view folder, std::wstring_view name) {
    std::wstring path(folder);
    if (!path.ends_with(separator)) path += separator;
    return path.append(name);
}

bool has_extension(std::wstring_view name, std::wstring_view extension) {
    return name.size() >= extension.size() &&
           equal_ignoring_ascii_case(name.substr(name.size() - extension.size()), extension);
}

}  // namespace quillomat
