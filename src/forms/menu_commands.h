#pragma once

#include <unordered_map>

#include "win/api.h"

namespace quillomat {

class Menu;

/// Gives every menu entry of a form a command number.
class MenuCommands {
  public:
    /// Adds an entry and returns its number. Throws `Error` with OutOfMemory if no number is free.
    int add(Menu& menu);
    void remove(int id) { menus_.erase(id); }
    /// Picks the entry with number `id`. Returns false if there is none.
    bool pick(int id) const;
    /// Raises the event of a menu that is about to open.
    void opens(HMENU menu) const;

  private:
    std::unordered_map<int, Menu*> menus_;
    int next_id_ = 100;
};

}  // namespace quillomat
