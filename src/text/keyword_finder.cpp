#include "text/keyword_finder.h"

#include <algorithm>
#include <numeric>
#include <type_traits>
#include <utility>
#include <vector>

namespace quillomat {
namespace {

constexpr std::size_t block_size = KeywordFinder::readable_beyond;

/// As wide as a character, so that the compiler tests as many places at once as fit into a vector register.
using CharacterMask = std::conditional_t<sizeof(wchar_t) == 2, std::uint16_t, std::uint32_t>;

/// One character of a keyword and where it stands in it.
struct Probe {
    Probe(const std::wstring& keyword, std::size_t position) : offset(position), character(keyword[position]) {}

    std::size_t offset;
    wchar_t character;
};

/// Whether there is a place in the block behind which all the probes' characters stand at their offsets.
template <typename... Probes>
bool stand_in_block(const wchar_t* block, const Probes&... probes) {
    // No branch for a single place, so that the compiler makes this a few dozen vector instructions.
    CharacterMask found = 0;
    for (std::size_t place = 0; place < block_size; ++place) {
        found |= static_cast<CharacterMask>((... & (block[place + probes.offset] == probes.character)));
    }
    return found != 0;
}

}  // namespace

void CharacterFrequencies::add(std::wstring_view text) {
    constexpr std::size_t sampling_distance = 7;
    for (std::size_t i = 0; i < text.size(); i += sampling_distance) ++counts_[class_of(text[i])];
}

KeywordFinder::KeywordFinder(std::wstring_view keyword, const CharacterFrequencies& frequencies) : keyword_(keyword) {
    if (keyword_.empty()) return;
    std::vector<std::size_t> positions(keyword_.size());
    std::iota(positions.begin(), positions.end(), std::size_t{0});
    // A character that came before tells nothing new where texts are made of words, so it counts as the most frequent.
    const auto repeats_and_frequency = [&](std::size_t position) {
        const bool repeated = keyword_.find(keyword_[position]) < position;
        return std::pair(repeated, frequencies.frequency(keyword_[position]));
    };
    std::stable_sort(positions.begin(), positions.end(),
                     [&](std::size_t a, std::size_t b) { return repeats_and_frequency(a) < repeats_and_frequency(b); });
    for (std::size_t i = 0; i < rarest_.size(); ++i) rarest_[i] = positions[i % positions.size()];
}

bool KeywordFinder::occurs_in(std::wstring_view text) const {
    if (keyword_.empty()) return true;
    if (text.size() < keyword_.size()) return false;
    const std::size_t place_count = text.size() - keyword_.size() + 1;
    const Probe first(keyword_, rarest_[0]);
    const Probe second(keyword_, rarest_[1]);
    const Probe third(keyword_, rarest_[2]);
    const Probe fourth(keyword_, rarest_[3]);
    for (std::size_t block = 0; block < place_count; block += block_size) {
        const wchar_t* begin = text.data() + block;
        if (!stand_in_block(begin, first, second) || !stand_in_block(begin, first, second, third, fourth)) continue;
        if (starts_in(begin, begin + std::min(block_size, place_count - block))) return true;
    }
    return false;
}

bool KeywordFinder::starts_in(const wchar_t* begin, const wchar_t* end) const {
    for (const wchar_t* place = begin; place != end; ++place) {
        if (place[rarest_[0]] == keyword_[rarest_[0]] && std::wstring_view(place, keyword_.size()) == keyword_) {
            return true;
        }
    }
    return false;
}

}  // namespace quillomat
