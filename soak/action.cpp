#include "soak/action.h"

#include <array>
#include <sstream>
#include <stdexcept>
#include <vector>

#include "support/input.h"

namespace quillomat::soak {
namespace {

constexpr std::array<const char*, 9> names = {"move",  "click", "double-click", "right-click", "drag",
                                              "wheel", "key",   "character",    "rest"};

void click(POINT at, DWORD down, DWORD up) {
    send_mouse(MOUSEEVENTF_MOVE | down, at);
    send_mouse(up);
}

void drag(POINT from, POINT to) {
    constexpr int steps = 5;
    send_mouse(MOUSEEVENTF_MOVE | MOUSEEVENTF_LEFTDOWN, from);
    for (int step = 1; step <= steps; ++step) {
        Sleep(5);  // Windows would merge moves that follow at once.
        send_mouse(MOUSEEVENTF_MOVE,
                   {from.x + (to.x - from.x) * step / steps, from.y + (to.y - from.y) * step / steps});
    }
    send_mouse(MOUSEEVENTF_LEFTUP);
}

void press(WORD key, unsigned modifiers) {
    constexpr std::pair<unsigned, WORD> keys[] = {
        {Action::Shift, VK_SHIFT}, {Action::Control, VK_CONTROL}, {Action::Alt, VK_MENU}};
    std::vector<WORD> held;
    for (const auto& [modifier, held_key] : keys) {
        if (modifiers & modifier) held.push_back(held_key);
    }
    press_key(key, held);
}

// Types a UTF-16 code unit, whether the keyboard has a key for it or not. Real input.
void type_character(wchar_t code_unit) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wScan = code_unit;
    for (const DWORD flags : {0, KEYEVENTF_KEYUP}) {
        input.ki.dwFlags = KEYEVENTF_UNICODE | flags;
        SendInput(1, &input, sizeof input);
    }
}

}  // namespace

std::string to_line(const Action& action) {
    std::ostringstream line;
    line << names[static_cast<std::size_t>(action.kind)] << ' ' << action.at.x << ' ' << action.at.y << ' '
         << action.to.x << ' ' << action.to.y << ' ' << action.value << ' ' << action.modifiers << ' ' << action.pause;
    return line.str();
}

std::optional<Action> from_line(const std::string& line) {
    std::istringstream words(line.substr(0, line.find('#')));
    std::string name;
    if (!(words >> name)) return std::nullopt;
    Action action;
    std::size_t kind = 0;
    while (kind < names.size() && names[kind] != name) ++kind;
    if (kind == names.size() || !(words >> action.at.x >> action.at.y >> action.to.x >> action.to.y >> action.value >>
                                  action.modifiers >> action.pause)) {
        throw std::invalid_argument("no action: " + line);
    }
    action.kind = static_cast<Action::Kind>(kind);
    return action;
}

void perform(const Action& action) {
    const auto value = static_cast<WORD>(action.value);
    switch (action.kind) {
        case Action::Kind::Move:
            return send_mouse(MOUSEEVENTF_MOVE, action.at);
        case Action::Kind::Click:
            return click(action.at, MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP);
        case Action::Kind::DoubleClick:
            click(action.at, MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP);
            return click(action.at, MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP);
        case Action::Kind::RightClick:
            return click(action.at, MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP);
        case Action::Kind::Drag:
            return drag(action.at, action.to);
        case Action::Kind::Wheel:
            return send_mouse(MOUSEEVENTF_MOVE | MOUSEEVENTF_WHEEL, action.at, action.value * WHEEL_DELTA);
        case Action::Kind::Key:
            return press(value, action.modifiers);
        case Action::Kind::Character:
            return type_character(static_cast<wchar_t>(value));
        case Action::Kind::Rest:
            return;
    }
}

}  // namespace quillomat::soak
