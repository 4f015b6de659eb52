#include "database/catalogue.h"

#include <algorithm>
#include <utility>

#include "database/record.h"
#include "text/error.h"
#include "text/keyword_search.h"
#include "text/line_end.h"

namespace quillomat {
namespace {

// A line without its line break.
struct TextLine {
    std::wstring_view text{};
    bool has_lone_return = false;  // The line break is a CR without LF.
};

// Removes the first line from a text.
TextLine take_line(std::wstring_view& text) {
    TextLine line{.text = text.substr(0, text.find(L'\r'))};
    text.remove_prefix(line.text.size());
    line.has_lone_return = !text.empty() && !text.starts_with(line_end);
    text.remove_prefix(std::min(text.size(), line.has_lone_return ? 1 : line_end.size()));
    return line;
}

bool is_name_line(std::wstring_view line) {
    return std::min(line.find_first_not_of(record_marker_character), line.size()) >= record_marker_length;
}

// The lines of a game, and the name line that closes the record; empty if the text ends without one.
struct Record {
    std::wstring_view lines{};
    bool has_lone_returns = false;
    std::wstring_view name_line{};
};

// Removes the first record from a text.
Record take_record(std::wstring_view& text) {
    Record record{.lines = text};
    while (!text.empty()) {
        const std::size_t length = record.lines.size() - text.size();
        const TextLine line = take_line(text);
        if (is_name_line(line.text)) {
            record.lines = record.lines.substr(0, length);
            record.name_line = line.text;
            break;
        }
        record.has_lone_returns |= line.has_lone_return;
    }
    return record;
}

// Returns the lines with CR LF in place of every line break.
std::wstring with_crlf(std::wstring_view lines) {
    std::wstring result;
    while (!lines.empty()) {
        const std::size_t old_length = lines.size();
        const std::wstring_view line = take_line(lines).text;
        result += line;
        if (line.size() < old_length) result += line_end;
    }
    return result;
}

// Returns the lines of a record without empty lines at the beginning and without the last line break.
std::wstring_view joined_lines(std::wstring_view lines) {
    while (lines.starts_with(line_end)) lines.remove_prefix(line_end.size());
    if (lines.ends_with(line_end)) lines.remove_suffix(line_end.size());
    return lines;
}

std::size_t slot_of(int number) {
    if (number < 0 || number >= Catalogue::slot_count) throw Error(ErrorCode::SubscriptOutOfRange);
    return static_cast<std::size_t>(number);
}

}  // namespace

void Catalogue::load(std::wstring text, const ListName& list_name) {
    names_.assign(slot_count, {});
    cheats_.assign(slot_count, {});
    own_games_.clear();
    upper_cased_ = {};
    text_ = std::move(text);

    std::wstring_view rest = text_;
    for (int number = 0; !rest.empty(); ++number) {
        const std::size_t slot = slot_of(number);
        const Record record = take_record(rest);
        cheats_[slot] = joined_lines(record.lines);
        if (record.has_lone_returns) {
            std::wstring& own = own_games_[number].cheats;
            own = joined_lines(with_crlf(record.lines));
            cheats_[slot] = own;
        }
        if (record.name_line.empty()) return;
        // The line ends with the marker: there is neither a separator nor a name.
        if (record.name_line.size() == record_marker_length) throw Error(ErrorCode::InvalidArgument);
        names_[slot] = record.name_line.substr(record_marker_length + 1);
        list_name(names_[slot]);
    }
}

void Catalogue::relist(const ListName& list_name) const {
    for (int number = 0; !name(number).empty(); ++number) list_name(name(number));
}

std::wstring_view Catalogue::name(int number) const {
    return names_[slot_of(number)];
}

std::wstring_view Catalogue::cheats(int number) const {
    return cheats_[slot_of(number)];
}

void Catalogue::store(int number, std::wstring name, std::wstring cheats) {
    const std::size_t slot = slot_of(number);
    Game& game = own_games_[number];
    game = {std::move(name), std::move(cheats)};
    names_[slot] = game.name;
    cheats_[slot] = game.cheats;
    for (auto& texts : upper_cased_) {
        if (!texts.empty()) texts[slot].clear();
    }
}

void Catalogue::search(SearchScope scope, std::wstring_view keyword, int game_count,
                       const std::function<void(int number)>& on_match) {
    for (int number = 0; number < game_count; ++number) {
        if (occurs_in(upper_cased(scope, number), keyword)) on_match(number);
    }
}

std::wstring_view Catalogue::upper_cased(SearchScope scope, int number) {
    const std::size_t slot = slot_of(number);
    std::vector<std::wstring>& texts = upper_cased_[static_cast<std::size_t>(scope)];
    texts.resize(slot_count);
    if (texts[slot].empty()) {
        std::wstring text(line_end);
        text += scope == SearchScope::Names ? names_[slot] : cheats_[slot];
        upper_case_(text.data(), text.size());
        texts[slot] = std::move(text);
    }
    return texts[slot];
}

}  // namespace quillomat
