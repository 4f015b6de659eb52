#include "forms/menu_commands.h"

#include <algorithm>

#include "forms/events.h"
#include "forms/menu.h"
#include "text/error.h"

namespace quillomat {

int MenuCommands::add(Menu& menu) {
    // WM_COMMAND carries 16 bits, and Windows reserves the upper numbers. Numbers of removed entries are reused.
    constexpr int first = 100;
    constexpr int last = 0xEFFF;
    if (menus_.size() > last - first) throw Error(ErrorCode::OutOfMemory);
    while (!menus_.try_emplace(next_id_, &menu).second) {
        ++next_id_;
        if (next_id_ > last) next_id_ = first;
    }
    return next_id_;
}

bool MenuCommands::pick(int id) const {
    const auto command = menus_.find(id);
    if (command == menus_.end()) return false;
    command->second->pick();
    return true;
}

void MenuCommands::opens(HMENU menu) const {
    const auto opened = std::find_if(menus_.begin(), menus_.end(),
                                     [menu](const auto& command) { return command.second->handle() == menu; });
    if (opened != menus_.end()) raise(opened->second->on_click);
}

}  // namespace quillomat
