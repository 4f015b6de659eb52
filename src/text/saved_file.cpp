#include "text/saved_file.h"

#include <algorithm>
#include <array>

#include "text/letter_case.h"

namespace quillomat {
namespace {

constexpr std::wstring_view text_extension = L".txt";
constexpr std::wstring_view forbidden_characters = L"\\/:*?\"<>|";
// The longest name that the file systems of Windows take.
constexpr std::size_t longest_name = 255;

std::wstring without_colons(std::wstring_view text) {
    std::wstring result;
    for (const wchar_t character : text) {
        if (character == L':') {
            result.append(L" -");
        } else {
            result.append(1, character);
        }
    }
    return result;
}

std::wstring ascii_upper_cased(std::wstring_view text) {
    std::wstring result(text.size(), L' ');
    std::ranges::transform(text, result.begin(), ascii_upper_case);
    return result;
}

// Returns true if Windows takes the name for a device: only the part before the first full stop counts, without
// trailing blanks.
bool names_device(std::wstring_view name) {
    std::wstring stem = ascii_upper_cased(name.substr(0, name.find(L'.')));
    stem.erase(stem.find_last_not_of(L' ') + 1);
    constexpr std::array<std::wstring_view, 6> devices{L"CON", L"PRN", L"AUX", L"NUL", L"CONIN$", L"CONOUT$"};
    if (std::find(devices.begin(), devices.end(), stem) != devices.end()) return true;
    // Ports have a digit, which may be a superscript.
    constexpr std::wstring_view port_numbers = L"123456789\u00B9\u00B2\u00B3";
    return stem.size() == 4 && (stem.starts_with(L"COM") || stem.starts_with(L"LPT")) &&
           port_numbers.find(stem[3]) != std::wstring_view::npos;
}

}  // namespace

std::wstring proposed_file_name(std::wstring_view game) {
    return without_colons(game).append(text_extension);
}

std::wstring file_name_of(std::wstring_view typed) {
    std::wstring name = without_colons(typed);
    if (!name.ends_with(text_extension)) name += text_extension;
    return name;
}

std::optional<std::wstring> file_name_fault(std::wstring_view name) {
    if (const auto position = name.find_first_of(forbidden_characters); position != std::wstring_view::npos) {
        return std::wstring(L"A file name can't contain the character ")
            .append(1, name[position])
            .append(L"\r\nNone of these characters can stand in a file name: \\ / : * ? \" < > |");
    }
    if (std::any_of(name.begin(), name.end(), [](wchar_t character) { return character < L' '; })) {
        return L"A file name can't contain a tab, a line break or another control character.";
    }
    if (name.ends_with(L'.') || name.ends_with(L' ')) return L"A file name can't end with a full stop or a blank.";
    if (names_device(name)) {
        return std::wstring(L"\"").append(name).append(
            L"\" can't be the name of a file, because Windows keeps it for a device. Try using a different name.");
    }
    if (name.size() > longest_name) {
        return L"The file name is too long: it has " + std::to_wstring(name.size()) + L" characters, and " +
               std::to_wstring(longest_name) + L" is the most. Try using a shorter name.";
    }
    return std::nullopt;
}

}  // namespace quillomat
