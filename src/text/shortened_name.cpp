#include "text/shortened_name.h"

#include <cstddef>

namespace quillomat {
namespace {

// Returns `kept` characters of a name around an ellipsis. The games of a series share a long beginning and often their
// last words, so four fifths are kept of the beginning, to show where the names differ.
std::wstring keeping(const std::wstring& name, std::size_t kept) {
    const std::size_t end_length = kept / 5;
    return name.substr(0, kept - end_length) + L"\u2026" + name.substr(name.size() - end_length);
}

}  // namespace

std::wstring shortened_name(const std::wstring& name, const std::function<bool(const std::wstring& text)>& fits) {
    if (fits(name)) {
        return name;
    }
    std::size_t fitting = 0;
    std::size_t too_long = name.size();
    while (fitting + 1 < too_long) {
        const std::size_t middle = (fitting + too_long) / 2;
        if (fits(keeping(name, middle))) {
            fitting = middle;
        } else {
            too_long = middle;
        }
    }
    return keeping(name, fitting);
}

}  // namespace quillomat
