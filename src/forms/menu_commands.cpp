#include "forms/menu_commands.h"

#include <algorithm>

#include "forms/events.h"
#include "forms/menu.h"
#include "text/error.h"

namespace quillomat {

int MenuCommands::add(Menu& menu) {
    if (menus_.size() > last_id - first_id) throw Error(ErrorCode::OutOfMemory);
    // The IDs of removed entries are reused.
    while (!menus_.try_emplace(next_id_, &menu).second) {
        ++next_id_;
        if (next_id_ > last_id) next_id_ = first_id;
    }
    return next_id_;
}

bool MenuCommands::pick(int id) const {
    const auto command = menus_.find(id);
    if (command == menus_.end()) return false;
    command->second->pick();
    return true;
}

void MenuCommands::raise_opening(HMENU menu) const {
    const auto opened = std::find_if(menus_.begin(), menus_.end(),
                                     [menu](const auto& command) { return command.second->handle() == menu; });
    if (opened != menus_.end()) raise(opened->second->on_click);
}

}  // namespace quillomat
