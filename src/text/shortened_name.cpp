#include "text/shortened_name.h"

#include <algorithm>
#include <cstddef>
#include <ranges>

namespace quillomat {
namespace {

std::wstring keeping(const std::wstring& name, std::size_t kept) {
    const std::size_t end_length = kept / 2;
    return name.substr(0, kept - end_length) + L"\u2026" + name.substr(name.size() - end_length);
}

}  // namespace

std::wstring shortened_name(const std::wstring& name, const std::function<bool(const std::wstring& text)>& fits) {
    if (fits(name)) {
        return name;
    }
    const auto lengths = std::views::iota(std::size_t{1}, std::max<std::size_t>(name.size(), 1));
    const auto first_too_long =
        std::ranges::partition_point(lengths, [&](std::size_t kept) { return fits(keeping(name, kept)); });
    return keeping(name, static_cast<std::size_t>(first_too_long - lengths.begin()));
}

}  // namespace quillomat
