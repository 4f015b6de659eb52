#pragma once

#include <vector>

#include "forms/form_keyboard.h"
#include "forms/menu_commands.h"
#include "forms/tool_tips.h"

namespace quillomat {

class Timer;

/// What the controls, menus and timers of one form share. For the toolkit: the author of a window needs none of it.
struct FormInternals {
    explicit FormInternals(Form& form) : keyboard(form) {}

    ToolTips tool_tips;
    MenuCommands commands;
    FormKeyboard keyboard;
    std::vector<Timer*> timers;
    UINT_PTR next_control_id = 1000;
};

}  // namespace quillomat
