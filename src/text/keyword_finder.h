#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace quillomat {

/// How often characters occur in the texts that are searched, judged by a sample of them.
class CharacterFrequencies {
  public:
    /// Counts a text in.
    void add(std::wstring_view text);
    /// Comparable with that of another character only. Characters far apart may share a figure.
    std::uint32_t frequency(wchar_t character) const { return counts_[class_of(character)]; }

  private:
    static std::size_t class_of(wchar_t character) { return static_cast<std::uint32_t>(character) % 256; }

    std::array<std::uint32_t, 256> counts_{};
};

/// Finds one keyword in many texts, by plain comparison of characters.
///
/// The keyword's two rarest characters are compared at a whole block of places at once, which runs about as fast as
/// memory can be read. Only where both stand are its four rarest compared, and only where those stand the keyword.
class KeywordFinder {
  public:
    /// So many characters behind the end of a searched text are read, though never found. It is the size of a block:
    /// large enough that little is spent between blocks, small enough that a false alarm in one costs little.
    static constexpr std::size_t readable_beyond = 256 / sizeof(wchar_t);

    /// The frequencies are those of the texts to be searched; wrong ones make it slow, not wrong.
    KeywordFinder(std::wstring_view keyword, const CharacterFrequencies& frequencies);

    /// Whether the keyword occurs in `text`; an empty one occurs everywhere. At least `readable_beyond` characters
    /// behind the text must be readable.
    bool occurs_in(std::wstring_view text) const;

  private:
    bool starts_in(const wchar_t* begin, const wchar_t* end) const;

    std::wstring keyword_;
    /// Positions in the keyword, the rarest character first; those of a keyword of fewer characters come again.
    std::array<std::size_t, 4> rarest_{};
};

}  // namespace quillomat
