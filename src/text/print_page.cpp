#include "text/print_page.h"

#include <algorithm>

#include "text/blanks.h"

namespace quillomat {
namespace {

constexpr std::size_t tab_width = 8;
// More characters than fit on a line of any paper. No more are measured at once, because lines can be very long.
constexpr std::size_t longest_printed_line = 1000;

std::wstring with_tabs_expanded(std::wstring_view line) {
    std::wstring expanded;
    expanded.reserve(line.size());
    for (const wchar_t character : line) {
        if (character == L'\t') {
            expanded.append(tab_width - expanded.size() % tab_width, L' ');
        } else {
            expanded += character;
        }
    }
    return expanded;
}

bool is_second_of_pair(wchar_t character) {
    return character >= 0xDC00 && character <= 0xDFFF;
}

// Returns the length nearest to `length` that is not 0 and does not split a surrogate pair.
std::size_t whole_characters(std::wstring_view line, std::size_t length) {
    length = std::max<std::size_t>(length, 1);
    if (length >= line.size() || !is_second_of_pair(line[length])) return length;
    return length > 1 ? length - 1 : length + 1;
}

// Returns how many characters of a line that is too wide are printed before the first break.
std::size_t first_part_length(std::wstring_view line, std::size_t fitting) {
    const std::size_t first_word = line.find_first_not_of(L' ');
    const std::size_t blank = line.find_last_of(L' ', fitting);
    const bool can_break_at_blank = blank != std::wstring_view::npos && blank > first_word;
    return can_break_at_blank ? blank : whole_characters(line, fitting);
}

void add_printed_lines(std::wstring_view line, const FittingLength& fitting_length, std::vector<std::wstring>& lines) {
    const std::wstring expanded = with_tabs_expanded(line);
    std::wstring_view rest = without_trailing_blanks(expanded);
    for (;;) {
        const std::wstring_view candidate = rest.substr(0, longest_printed_line);
        const std::size_t fitting = std::min(fitting_length(candidate), candidate.size());
        if (fitting == rest.size()) break;
        const std::size_t length = first_part_length(rest, fitting);
        lines.emplace_back(without_trailing_blanks(rest.substr(0, length)));
        rest = without_leading_blanks(rest.substr(length));
        if (rest.empty()) return;
    }
    lines.emplace_back(rest);
}

}  // namespace

std::vector<std::wstring> printed_lines(std::wstring_view text, const FittingLength& fitting_length) {
    std::vector<std::wstring> lines;
    for (;;) {
        const std::size_t end = std::min(text.find_first_of(L"\r\n"), text.size());
        add_printed_lines(text.substr(0, end), fitting_length, lines);
        if (end == text.size()) return lines;
        text.remove_prefix(end + (text.substr(end).starts_with(L"\r\n") ? 2 : 1));
    }
}

void LineFlow::set_top(int top) {
    first_top_ = top;
    next_top_ = top;
}

LineFlow::Place LineFlow::next() {
    const bool fits = next_top_ == first_top_ || next_top_ + line_height_ <= page_height_;
    if (!fits) next_top_ = first_top_;
    const Place place{fits ? Page::Same : Page::Next, next_top_};
    next_top_ += line_height_;
    return place;
}

}  // namespace quillomat
