#pragma once

#include <unordered_map>

#include "win/api.h"

namespace quillomat {

class Menu;

/// The command IDs of the menu entries of a form.
class MenuCommands {
  public:
    /// Adds an entry and returns its ID. Throws `Error` with OutOfMemory if no ID is free.
    int add(Menu& menu);
    void remove(int id) { menus_.erase(id); }
    /// Picks the entry with the ID `id`. Returns false if there is none.
    bool pick(int id) const;
    /// Raises the event of a menu that is about to open.
    void raise_opening(HMENU menu) const;

  private:
    // WM_COMMAND carries 16 bits, and Windows reserves the upper IDs.
    static constexpr int first_id = 100;
    static constexpr int last_id = 0xEFFF;

    std::unordered_map<int, Menu*> menus_;
    int next_id_ = first_id;
};

}  // namespace quillomat
