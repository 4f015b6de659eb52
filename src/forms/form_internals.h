#pragma once

#include <vector>

#include "forms/form_keyboard.h"
#include "forms/menu_commands.h"
#include "forms/tool_tips.h"

namespace quillomat {

class Timer;

/// State shared by the controls, menus and timers of a form. Only the toolkit uses it, no window.
struct FormInternals {
    explicit FormInternals(Form& form) : keyboard(form) {}

    ToolTips tool_tips;
    MenuCommands commands;
    FormKeyboard keyboard;
    std::vector<Timer*> timers;
    UINT_PTR next_control_id = 1000;
};

}  // namespace quillomat
