#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include "database/catalogue.h"
#include "text/keyword_finder.h"

namespace quillomat {

/// What of the games is searched.
enum class SearchScope { Names, Cheats };

/// The names and cheat texts of a catalogue in upper case, kept beside it for searching: a line end, then the text.
///
/// They are made at the first search of each scope and extended when games were added since. Games once searched must
/// not change.
class SearchTexts {
  public:
    /// Converts characters to upper case where they stand. Their number stays the same.
    using UpperCase = std::function<void(wchar_t* characters, std::size_t length)>;

    /// `catalogue` must outlive the object.
    SearchTexts(const Catalogue& catalogue, UpperCase upper_case);

    /// Tells `on_match`, in order, of each game below number `game_count` whose name or cheats hold `keyword`, which
    /// must be in upper case already. An empty keyword matches every game. Throws `Error` with SubscriptOutOfRange for
    /// more games than a catalogue has slots.
    void find(SearchScope scope, std::wstring_view keyword, int game_count,
              const std::function<void(int number)>& on_match);

  private:
    struct Texts {
        std::vector<std::wstring_view> by_number;
        std::vector<std::unique_ptr<wchar_t[]>> blocks;
        CharacterFrequencies frequencies;
    };

    void extend(Texts& texts, SearchScope scope, int game_count);
    std::wstring_view source(SearchScope scope, int number) const;

    const Catalogue& catalogue_;
    UpperCase upper_case_;
    std::array<Texts, 2> texts_;
};

}  // namespace quillomat
