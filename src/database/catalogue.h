#pragma once

#include <array>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "text/letter_case.h"

namespace quillomat {

/// What of the games is searched.
enum class SearchScope { Names, Cheats };

/// The names and cheat texts of all games: two parallel tables of `slot_count` slots. Slot k of both tables belongs to
/// game number k, which is also the game's position in the list of the viewer.
///
/// A loaded database is kept as one text that the slots point into, so that it takes no more memory than its
/// characters.
class Catalogue {
  public:
    static constexpr int slot_count = 2501;

    /// Called with the name of each game as it is listed, in order.
    using ListName = std::function<void(std::wstring_view name)>;

    /// `upper_case` makes the texts that are searched.
    explicit Catalogue(UpperCase upper_case) : upper_case_(upper_case) {}
    Catalogue(const Catalogue&) = delete;
    Catalogue& operator=(const Catalogue&) = delete;

    /// Reads the text of a whole database into the slots from 0 on and lists every game.
    ///
    /// Lines end at CR LF or at a lone CR. A line of 20 dollar signs, one further character and a name closes the
    /// record of the lines before it; text behind the last such line goes into the next free slot and is not listed.
    /// Whatever was held before is forgotten first.
    /// Throws `Error` with SubscriptOutOfRange for anything behind the last slot's name line, and with InvalidArgument
    /// for a name line of exactly 20 characters; what was read before it stays in the tables and listed.
    void load(std::wstring text, const ListName& list_name);

    /// Lists the names held already, up to the first empty one. Throws `Error` with SubscriptOutOfRange, after listing
    /// them, when all slots are taken.
    void relist(const ListName& list_name) const;

    /// The name of game `number`. Throws `Error` with SubscriptOutOfRange outside 0 to 2500.
    std::wstring_view name(int number) const;
    /// The cheat text of game `number`: its lines joined by CR LF. Throws as `name` does.
    std::wstring_view cheats(int number) const;

    /// Puts a game into slot `number`, over whatever was there. Throws as `name` does, before anything is changed.
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
    // Both tables only point: into the loaded text, or at a game of `own_games_`, whose strings stay where they are.
    std::vector<std::wstring_view> names_ = std::vector<std::wstring_view>(slot_count);
    std::vector<std::wstring_view> cheats_ = std::vector<std::wstring_view>(slot_count);
    /// By scope and number, the text that is searched; empty until it is needed, and again when the game changes.
    std::array<std::vector<std::wstring>, 2> upper_cased_;
};

}  // namespace quillomat
