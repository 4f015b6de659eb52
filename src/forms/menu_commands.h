#pragma once

#include <unordered_map>

#include "win/api.h"

namespace quillomat {

class Menu;

/// The commands of one form's menus, each under a number of its own.
class MenuCommands {
  public:
    /// Returns the number for a new entry. Throws `Error` with OutOfMemory if no number is free.
    int add(Menu& menu);
    void remove(int id) { menus_.erase(id); }
    /// Picks the entry with a number; false if there is none.
    bool pick(int id) const;
    /// A menu opens: raises the event of the entry it belongs to.
    void opens(HMENU menu) const;
    /// Makes the pictures of all entries again for the form's resolution.
    void renew_pictures() const;

  private:
    std::unordered_map<int, Menu*> menus_;
    int next_id_ = 100;
};

}  // namespace quillomat
