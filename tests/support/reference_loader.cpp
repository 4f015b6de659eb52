#include "support/reference_loader.h"

#include <algorithm>
#include <vector>

#include "text/error.h"

namespace quillomat {
namespace {

struct Loaded {
    std::vector<std::wstring> names;
    /// One more than names: the text that trails the last name line.
    std::vector<std::wstring> cheats{1};
    std::optional<ErrorCode> error;
};

Loaded load_by_lines(std::wstring_view text) {
    Loaded loaded;
    while (!text.empty() && !loaded.error) {
        const std::wstring_view line = text.substr(0, text.find(L'\r'));
        text.remove_prefix(line.size());
        if (!text.empty()) text.remove_prefix(text.starts_with(L"\r\n") ? 2 : 1);
        std::wstring& cheats = loaded.cheats.back();
        if (loaded.names.size() == 2501) {
            loaded.error = ErrorCode::SubscriptOutOfRange;
        } else if (line == L"$$$$$$$$$$$$$$$$$$$$") {
            loaded.error = ErrorCode::InvalidArgument;
        } else if (line.starts_with(L"$$$$$$$$$$$$$$$$$$$$")) {
            loaded.names.emplace_back(line.substr(21));
            loaded.cheats.emplace_back();
        } else {
            cheats.append(cheats.empty() ? L"" : L"\r\n").append(line);
        }
    }
    return loaded;
}

}  // namespace

std::optional<std::string> difference_from_reference(std::wstring_view text, Catalogue& catalogue) {
    Loaded expected = load_by_lines(text);
    Loaded actual;
    try {
        catalogue.load(std::wstring(text), [&](std::wstring_view name) { actual.names.emplace_back(name); });
    } catch (const Error& error) {
        actual.error = error.code();
    }
    if (actual.error != expected.error) return "another error";
    if (actual.names != expected.names) return "other names listed";
    // Two slots more than there are texts, which must be empty.
    const std::size_t slots = std::min<std::size_t>(expected.cheats.size() + 2, Catalogue::slot_count);
    expected.names.resize(slots);
    expected.cheats.resize(slots);
    for (std::size_t slot = 0; slot < slots; ++slot) {
        const int number = static_cast<int>(slot);
        if (catalogue.name(number) != expected.names[slot]) return "another name in slot " + std::to_string(number);
        if (catalogue.cheats(number) != expected.cheats[slot]) return "other cheats in slot " + std::to_string(number);
    }
    return std::nullopt;
}

}  // namespace quillomat
