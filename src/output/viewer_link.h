#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quillomat {

class Form;

/// What the output windows need of the viewer: its window, the game it shows, and its full list. A game's number is its
/// position in the list, from 0.
class ViewerLink {
  public:
    virtual ~ViewerLink() = default;

    /// The viewer's window, over which dialogs are centred.
    virtual Form& window() = 0;
    /// The name of the game that the viewer shows.
    virtual std::wstring shown_game() const = 0;
    /// The cheats of that game, as the viewer shows them.
    virtual std::wstring shown_cheats() const = 0;

    /// The number of games in the list.
    virtual int game_count() const = 0;
    /// The name of a game in the list; empty if the list has no such game.
    virtual std::wstring game_name(int number) const = 0;
    /// The number of the selected game, or nothing.
    virtual std::optional<int> selected_game() const = 0;
    /// Selects and shows a game. Throws `Error` with SubscriptOutOfRange if the list has no such game.
    virtual void select_game(int number) = 0;
    /// Selects and shows the first game with exactly this name. Does nothing if there is none.
    virtual void select_game(std::wstring_view name) = 0;
    /// Adds a name at the end of the list.
    virtual void list_game(std::wstring_view name) = 0;
};

}  // namespace quillomat
