#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quillomat {

/// The decoded characters of a whole file. Not a string, because a string would fill its memory once more before the
/// decoder does.
struct DecodedText {
    std::unique_ptr<wchar_t[]> characters;
    std::size_t length = 0;

    std::wstring_view view() const { return {characters.get(), length}; }
};

/// The games and their cheat texts: two parallel tables of `slot_count` slots. Slot k of both is game number k, which
/// is also the game's place in the list a player sees.
///
/// A loaded database is kept as one block of text that the slots point into, so that it costs no more memory than its
/// characters; only a game added later owns its strings.
class Catalogue {
  public:
    static constexpr int slot_count = 2501;

    /// Told of each game name as it is listed, in order.
    using ListName = std::function<void(std::wstring_view name)>;

    Catalogue() = default;
    Catalogue(const Catalogue&) = delete;
    Catalogue& operator=(const Catalogue&) = delete;

    /// Reads the text of a whole database into the slots from 0 on and lists every game.
    ///
    /// Lines end at CR LF or at a lone CR. A line of 20 dollar signs, one further character and a name closes the
    /// record of the lines before it; text behind the last such line goes into the next free slot and is not listed.
    /// Whatever was held before is forgotten first.
    /// Throws `Error` with SubscriptOutOfRange for anything behind the last slot's name line, and with InvalidArgument
    /// for a name line of exactly 20 characters; what was read before it stays in the tables and listed.
    void load(DecodedText text, const ListName& list_name);

    /// Lists the names held already, up to the first empty one. Throws `Error` with SubscriptOutOfRange, after listing
    /// them, when all slots are taken.
    void relist(const ListName& list_name) const;

    /// The name of game `number`. Throws `Error` with SubscriptOutOfRange outside 0 to 2500.
    std::wstring_view name(int number) const;
    /// The cheat text of game `number`: its lines joined by CR LF. Throws as `name` does.
    std::wstring_view cheats(int number) const;

    /// Puts a game into slot `number`, over whatever was there. Throws as `name` does, before anything is changed.
    void store(int number, std::wstring name, std::wstring cheats);

  private:
    struct Game {
        std::wstring name;
        std::wstring cheats;
    };

    // Both tables only point: into the loaded text, or at a game of `added_`, whose strings stay where they are.
    std::vector<std::wstring_view> names_ = std::vector<std::wstring_view>(slot_count);
    std::vector<std::wstring_view> cheats_ = std::vector<std::wstring_view>(slot_count);
    DecodedText text_;
    std::map<int, Game> added_;
};

}  // namespace quillomat
