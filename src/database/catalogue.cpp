#include "database/catalogue.h"

#include <algorithm>
#include <cstdint>
#include <type_traits>
#include <utility>

#include "database/record.h"
#include "text/error.h"
#include "text/line_end.h"

namespace quillomat {
namespace {

/// As wide as a character, so that the compiler tests as many characters at once as fit into a vector register.
using CharacterMask = std::conditional_t<sizeof(wchar_t) == 2, std::uint16_t, std::uint32_t>;

bool is_lone_carriage_return(std::wstring_view text, std::size_t position) {
    return text[position] == L'\r' && (position + 1 == text.size() || text[position + 1] != L'\n');
}

bool has_lone_carriage_return(std::wstring_view text) {
    constexpr std::size_t block_size = 4096;
    std::size_t position = 0;
    for (; text.size() - position > block_size; position += block_size) {
        // No branch for a single character: a whole block costs a few hundred vector instructions.
        const wchar_t* block = text.data() + position;
        CharacterMask lone = 0;
        for (std::size_t i = 0; i < block_size; ++i) {
            lone |= static_cast<CharacterMask>((block[i] == L'\r') & (block[i + 1] != L'\n'));
        }
        if (lone != 0) return true;
    }
    for (; position < text.size(); ++position) {
        if (is_lone_carriage_return(text, position)) return true;
    }
    return false;
}

/// The text with every lone CR made a CR LF. Files of this program have none, so the text usually comes back as it is.
DecodedText with_whole_line_ends(DecodedText text) {
    const std::wstring_view old = text.view();
    if (!has_lone_carriage_return(old)) return text;

    std::size_t lone_count = 0;
    for (std::size_t i = 0; i < old.size(); ++i) lone_count += is_lone_carriage_return(old, i) ? 1 : 0;

    DecodedText whole;
    whole.characters = std::make_unique_for_overwrite<wchar_t[]>(old.size() + lone_count);
    for (std::size_t i = 0; i < old.size(); ++i) {
        whole.characters[whole.length++] = old[i];
        if (is_lone_carriage_return(old, i)) whole.characters[whole.length++] = L'\n';
    }
    return whole;
}

bool starts_line(std::wstring_view text, std::size_t position) {
    return position == 0 || text.substr(0, position).ends_with(line_end);
}

/// The position of the first name line in a text that begins with a line, or its length when there is none.
std::size_t find_name_line(std::wstring_view text) {
    // A run as long as the marker holds a character of every such stride, so nothing between two probes is looked at.
    for (std::size_t probe = record_marker_length - 1; probe < text.size(); probe += record_marker_length) {
        if (text[probe] != record_marker_character) continue;
        std::size_t start = probe;
        while (start > 0 && text[start - 1] == record_marker_character) --start;
        const std::size_t end = std::min(text.find_first_not_of(record_marker_character, probe), text.size());
        if (end - start >= record_marker_length && starts_line(text, start)) return start;
        probe = end;
    }
    return text.size();
}

/// The lines of a record joined: empty lines at the beginning are dropped, and the line end of the last one.
std::wstring_view joined_lines(std::wstring_view lines) {
    while (lines.starts_with(line_end)) lines.remove_prefix(line_end.size());
    if (lines.ends_with(line_end)) lines.remove_suffix(line_end.size());
    return lines;
}

void check_number(int number) {
    if (number < 0 || number >= Catalogue::slot_count) throw Error(ErrorCode::SubscriptOutOfRange);
}

}  // namespace

void Catalogue::load(DecodedText text, const ListName& list_name) {
    names_.assign(slot_count, {});
    cheats_.assign(slot_count, {});
    added_.clear();
    text_ = with_whole_line_ends(std::move(text));

    std::wstring_view rest = text_.view();
    for (int number = 0; !rest.empty(); ++number) {
        check_number(number);
        const std::size_t name_line_start = find_name_line(rest);
        cheats_[number] = joined_lines(rest.substr(0, name_line_start));
        rest.remove_prefix(name_line_start);
        if (rest.empty()) return;

        const std::wstring_view name_line = rest.substr(0, rest.find(L'\r'));
        // The separator is missing altogether, so there is nothing a name could stand behind.
        if (name_line.size() == record_marker_length) throw Error(ErrorCode::InvalidArgument);
        names_[number] = name_line.substr(record_marker_length + 1);
        list_name(names_[number]);
        rest.remove_prefix(std::min(name_line.size() + line_end.size(), rest.size()));
    }
}

void Catalogue::relist(const ListName& list_name) const {
    for (int number = 0; !name(number).empty(); ++number) list_name(names_[number]);
}

std::wstring_view Catalogue::name(int number) const {
    check_number(number);
    return names_[number];
}

std::wstring_view Catalogue::cheats(int number) const {
    check_number(number);
    return cheats_[number];
}

void Catalogue::store(int number, std::wstring name, std::wstring cheats) {
    check_number(number);
    const Game& game = added_[number] = Game{std::move(name), std::move(cheats)};
    names_[number] = game.name;
    cheats_[number] = game.cheats;
}

}  // namespace quillomat
