#pragma once

#include <array>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "text/letter_case.h"

namespace quillomat {

/// The texts that a search looks through.
enum class SearchScope { Names, Cheats };

/// The names and cheat texts of all games: two parallel tables of `slot_count` slots. Slot k of both tables belongs to
/// game number k, which is also the game's position in the list of the viewer.
///
/// A loaded database is kept as one text, and the slots point into it, so that no text is in memory twice.
class Catalogue {
  public:
    static constexpr int slot_count = 2501;

    /// Called with the name of each game as it is listed, in order.
    using ListName = std::function<void(std::wstring_view name)>;

    /// `upper_case` converts the texts that are searched.
    explicit Catalogue(UpperCase upper_case) : upper_case_(upper_case) {}
    Catalogue(const Catalogue&) = delete;
    Catalogue& operator=(const Catalogue&) = delete;

    /// Replaces the contents of the tables with the text of a whole database, and lists every game.
    ///
    /// Lines end with CR LF or a lone CR. A line of 20 dollar signs, one more character and a name closes the record of
    /// the lines before it. Text after the last such line goes into the next free slot and is not listed.
    /// Throws `Error` with SubscriptOutOfRange for text after the last slot's name line, and with InvalidArgument for a
    /// name line of exactly 20 characters; the games before it are then in the tables and listed.
    void load(std::wstring text, const ListName& list_name);

    /// Lists the names in the table, up to the first empty one. Throws `Error` with SubscriptOutOfRange after listing
    /// them all if no name is empty.
    void relist(const ListName& list_name) const;

    /// Returns the name of game `number`. Throws `Error` with SubscriptOutOfRange outside 0 to 2500.
    std::wstring_view name(int number) const;
    /// Returns the cheats of game `number`: lines joined by CR LF. Throws as `name` does.
    std::wstring_view cheats(int number) const;

    /// Stores a game in slot `number`, replacing what was there. Throws as `name` does, before changing anything.
    void store(int number, std::wstring name, std::wstring cheats);

    /// Calls `on_match`, in order, with the number of each game below `game_count` whose upper-cased name or cheats,
    /// after a line end, contain `keyword`, which must be in upper case already. An empty keyword matches every game.
    /// Throws as `name` does if `game_count` is beyond the slots.
    void search(SearchScope scope, std::wstring_view keyword, int game_count,
                const std::function<void(int number)>& on_match);

  private:
    struct Game {
        std::wstring name;
        std::wstring cheats;
    };

    std::wstring_view upper_cased(SearchScope scope, int number);

    UpperCase upper_case_;
    std::wstring text_;
    /// Games that own their strings: those added, and loaded ones whose text has lone CRs.
    std::map<int, Game> own_games_;
    // The views in both tables point into the loaded text, or to a game in `own_games_`; a map never moves its
    // elements.
    std::vector<std::wstring_view> names_ = std::vector<std::wstring_view>(slot_count);
    std::vector<std::wstring_view> cheats_ = std::vector<std::wstring_view>(slot_count);
    /// The searched texts, by scope and number. A text is empty until a search needs it, and again after its game
    /// changed.
    std::array<std::vector<std::wstring>, 2> upper_cased_;
};

}  // namespace quillomat
