#include "support/reference_loader.h"

#include <algorithm>

#include "support/decoded_text.h"

namespace quillomat {
namespace {

std::vector<std::wstring_view> split_into_lines(std::wstring_view text) {
    std::vector<std::wstring_view> lines;
    while (!text.empty()) {
        const std::size_t carriage_return = text.find(L'\r');
        lines.push_back(text.substr(0, carriage_return));
        if (carriage_return == std::wstring_view::npos) break;
        text.remove_prefix(carriage_return + 1);
        if (text.starts_with(L'\n')) text.remove_prefix(1);
    }
    return lines;
}

std::optional<ErrorCode> load(Catalogue& catalogue, std::wstring_view text, std::vector<std::wstring>& listed) {
    try {
        catalogue.load(decoded(text), [&](std::wstring_view name) { listed.emplace_back(name); });
    } catch (const Error& error) {
        return error.code();
    }
    return std::nullopt;
}

}  // namespace

ReferenceCatalogue load_by_lines(std::wstring_view text) {
    ReferenceCatalogue reference;
    reference.cheats.emplace_back();
    for (const std::wstring_view line : split_into_lines(text)) {
        if (reference.names.size() == 2501) {
            reference.error = ErrorCode::SubscriptOutOfRange;
            break;
        }
        if (line.starts_with(L"$$$$$$$$$$$$$$$$$$$$")) {
            if (line.size() == 20) {
                reference.error = ErrorCode::InvalidArgument;
                break;
            }
            reference.names.emplace_back(line.substr(21));
            reference.cheats.emplace_back();
        } else if (reference.cheats.back().empty()) {
            reference.cheats.back() = line;
        } else {
            reference.cheats.back().append(L"\r\n").append(line);
        }
    }
    if (reference.names.size() == 2501) reference.cheats.pop_back();
    return reference;
}

std::optional<std::string> difference_from_reference(std::wstring_view text, Catalogue& catalogue) {
    const ReferenceCatalogue reference = load_by_lines(text);
    std::vector<std::wstring> listed;
    if (load(catalogue, text, listed) != reference.error) return "another error";
    if (listed != reference.names) return "other names listed";
    // Two slots more than the reference has, which must be empty.
    const std::size_t slots = std::min<std::size_t>(reference.cheats.size() + 2, Catalogue::slot_count);
    for (std::size_t slot = 0; slot < slots; ++slot) {
        const int number = static_cast<int>(slot);
        const std::wstring_view name = slot < reference.names.size() ? reference.names[slot] : std::wstring_view();
        const std::wstring_view cheats = slot < reference.cheats.size() ? reference.cheats[slot] : std::wstring_view();
        if (catalogue.name(number) != name) return "another name in slot " + std::to_string(number);
        if (catalogue.cheats(number) != cheats) return "other cheats in slot " + std::to_string(number);
    }
    return std::nullopt;
}

}  // namespace quillomat
