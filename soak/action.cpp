#include "soak/action.h"

#include <array>
#include <sstream>
#include <stdexcept>

namespace quillomat::soak {
namespace {

constexpr std::array<const char*, 9> names = {"move",  "click", "double-click", "right-click", "drag",
                                              "wheel", "key",   "character",    "rest"};

void send_mouse(DWORD flags, POINT at, int data = 0) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dx = MulDiv(at.x, 65536, GetSystemMetrics(SM_CXSCREEN)) + 1;
    input.mi.dy = MulDiv(at.y, 65536, GetSystemMetrics(SM_CYSCREEN)) + 1;
    input.mi.mouseData = static_cast<DWORD>(data);
    input.mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE | flags;
    SendInput(1, &input, sizeof input);
}

void click(POINT at, DWORD down, DWORD up) {
    send_mouse(down, at);
    send_mouse(up, at);
}

void drag(POINT from, POINT to) {
    constexpr int steps = 5;
    send_mouse(MOUSEEVENTF_LEFTDOWN, from);
    for (int step = 1; step <= steps; ++step) {
        Sleep(5);  // else the moves become one
        send_mouse(0, {from.x + (to.x - from.x) * step / steps, from.y + (to.y - from.y) * step / steps});
    }
    send_mouse(MOUSEEVENTF_LEFTUP, to);
}

void send_key(WORD key, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.dwFlags = flags;
    SendInput(1, &input, sizeof input);
}

void press(WORD key, unsigned modifiers) {
    constexpr std::pair<unsigned, WORD> held[] = {
        {Action::Shift, VK_SHIFT}, {Action::Control, VK_CONTROL}, {Action::Alt, VK_MENU}};
    for (const auto& [modifier, held_key] : held) {
        if (modifiers & modifier) send_key(held_key, 0);
    }
    send_key(key, 0);
    send_key(key, KEYEVENTF_KEYUP);
    for (const auto& [modifier, held_key] : held) {
        if (modifiers & modifier) send_key(held_key, KEYEVENTF_KEYUP);
    }
}

void type(WORD code_unit) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wScan = code_unit;
    for (const DWORD flags : {KEYEVENTF_UNICODE, KEYEVENTF_UNICODE | KEYEVENTF_KEYUP}) {
        input.ki.dwFlags = static_cast<DWORD>(flags);
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
            return send_mouse(0, action.at);
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
            return send_mouse(MOUSEEVENTF_WHEEL, action.at, action.value * WHEEL_DELTA);
        case Action::Kind::Key:
            return press(value, action.modifiers);
        case Action::Kind::Character:
            return type(value);
        case Action::Kind::Rest:
            return;
    }
}

}  // namespace quillomat::soak
