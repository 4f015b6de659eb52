#include "synthetic_database.h"

#include <algorithm>
#include <random>
#include <stdexcept>
#include <string_view>
#include <vector>

namespace quillomat {
namespace {

constexpr std::string_view line_end = "\r\n";

/// Accented letters are written in octal, where an escape ends by itself.
constexpr std::string_view vocabulary =
    "the press and level type game during to health code for enter all weapons console in hold unlock a while menu "
    "full "
    "armour skip of mission invincible main then ammo name as lives with your extra password screen pause at walk "
    "through walls money infinite on player key file map edit show toggle caf\351 na\357ve se\361or \374ber "
    "d\351j\340 fa\347ade will you get more time";

std::vector<std::string_view> split(std::string_view text) {
    std::vector<std::string_view> words;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(' '), text.size());
        words.push_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return words;
}

/// The standard library's distributions differ from one implementation to the next; the generators do not.
class Dice {
  public:
    explicit Dice(std::uint32_t seed) : generator_(seed) {}
    std::size_t below(std::size_t limit) { return generator_() % limit; }
    std::string_view word() { return words_[below(words_.size())]; }

  private:
    std::mt19937 generator_;
    std::vector<std::string_view> words_ = split(vocabulary);
};

std::string name_line(int number, int records, Dice& dice) {
    std::string digits = std::to_string(number + 1);
    digits.insert(0, 5 - std::min<std::size_t>(digits.size(), 5), '0');
    const char initial = static_cast<char>('A' + static_cast<std::int64_t>(number) * 26 / records);
    std::string line(20, '$');
    line.append(" ").append(1, initial).append(" ").append(digits);
    for (std::size_t count = 1 + dice.below(3); count > 0; --count) line.append(" ").append(dice.word());
    return line.append(line_end);
}

/// Lines of words that take exactly `bytes` bytes with their line ends.
std::string cheat_lines(std::size_t bytes, Dice& dice) {
    constexpr std::size_t longest_piece = 16;  // a word, a blank, a line end and room to spare
    std::string lines;
    std::size_t line_start = 0;
    std::size_t width = 20 + dice.below(60);
    while (bytes - lines.size() > longest_piece) {
        lines.append(dice.word());
        if (lines.size() - line_start < width) {
            lines.append(" ");
            continue;
        }
        lines.append(line_end);
        line_start = lines.size();
        width = 20 + dice.below(60);
    }
    return lines.append(bytes - lines.size() - line_end.size(), 'x').append(line_end);
}

}  // namespace

std::string synthetic_database(int records, std::size_t bytes, std::uint32_t seed) {
    Dice dice(seed);
    std::string text;
    std::size_t name_bytes = 0;
    std::vector<std::string> name_lines;
    for (int number = 0; number < records; ++number) {
        name_lines.push_back(name_line(number, records, dice));
        name_bytes += name_lines.back().size();
    }
    constexpr std::size_t shortest_cheats = 8;
    if (records < 1 || bytes < name_bytes + static_cast<std::size_t>(records) * shortest_cheats) {
        throw std::invalid_argument("too few bytes for so many games");
    }
    std::size_t left = bytes - name_bytes;
    text.reserve(bytes);
    for (std::size_t number = 0; number < name_lines.size(); ++number) {
        // Half to one and a half times what every game would get, leaving the shortest text for all the others.
        const std::size_t others = name_lines.size() - number - 1;
        const std::size_t fair = left / (others + 1);
        const std::size_t wanted = std::max(shortest_cheats, fair / 2 + dice.below(fair + 1));
        const std::size_t size = others == 0 ? left : std::min(wanted, left - others * shortest_cheats);
        text.append(cheat_lines(size, dice)).append(name_lines[number]);
        left -= size;
    }
    return text;
}

}  // namespace quillomat
