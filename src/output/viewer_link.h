#pragma once

#include <string>
#include <string_view>

namespace quillomat {

class Form;

/// What the output windows need of the viewer: its window, the game it shows, and its full list, in which a game's
/// position is its number.
class ViewerLink {
  public:
    virtual ~ViewerLink() = default;

    /// The window, for dialogs to stand over.
    virtual Form& window() = 0;
    /// The name of the game that is shown.
    virtual std::wstring game_name() const = 0;
    /// Its cheats, as they are shown.
    virtual std::wstring cheats() const = 0;

    /// Selects and shows game `number`. Throws `Error` with SubscriptOutOfRange when the list has no such game.
    virtual void select_game(int number) = 0;
    /// Selects and shows the first game that has exactly this name.
    virtual void select_game(std::wstring_view name) = 0;
    /// Adds a name at the end of the full list.
    virtual void list_game(std::wstring_view name) = 0;
};

}  // namespace quillomat
