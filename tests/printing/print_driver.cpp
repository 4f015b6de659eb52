// Prints with the program as it is shipped, as a user would: starts it, gives its commands, and tells what it says.
//   print_driver PROGRAM cheats GAME    prints the cheats of a game
//   print_driver PROGRAM list           prints the list of all games
// Writes the text of the message box that comes instead of a printed page, if one does. Exits with 0 when the program
// has done what it was told, and ended.

#include <cstdio>
#include <functional>
#include <string>
#include <string_view>

#include "win/api.h"

namespace {

constexpr DWORD patience = 20'000;  // milliseconds

struct Failure {
    const char* description;
};

void wait_until(const char* what, const std::function<bool()>& condition) {
    const ULONGLONG deadline = GetTickCount64() + patience;
    while (!condition()) {
        if (GetTickCount64() > deadline) throw Failure{what};
        Sleep(10);
    }
}

HWND wait_for_window(const wchar_t* class_name) {
    HWND window = nullptr;
    wait_until("a window does not come", [&] {
        window = FindWindowW(class_name, nullptr);
        return window && IsWindowVisible(window);
    });
    return window;
}

HWND control(HWND window, const wchar_t* class_name, const wchar_t* text) {
    HWND found = FindWindowExW(window, nullptr, class_name, text);
    if (!found) throw Failure{"a control is missing"};
    return found;
}

void press(WORD key, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = flags;
    SendInput(1, &input, sizeof input);
}

void type(WORD key) {
    press(key, 0);
    press(key, KEYEVENTF_KEYUP);
}

bool is_in_menu(HWND window) {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    return GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &info) && (info.flags & GUI_INMENUMODE);
}

/// Gives the command of an entry of the "Print" submenu, by its access key.
void choose_print_command(HWND viewer, char access_key) {
    wait_until("the viewer is not in front", [viewer] { return GetForegroundWindow() == viewer; });
    press(VK_MENU, 0);
    type('O');
    press(VK_MENU, KEYEVENTF_KEYUP);
    wait_until("the menu does not open", [viewer] { return is_in_menu(viewer); });
    type('P');
    type(static_cast<WORD>(access_key));
    // Now the command is on its way, in front of all that is posted later.
    wait_until("the menu does not close", [viewer] { return !is_in_menu(viewer); });
}

void select_game(HWND viewer, const wchar_t* name) {
    const HWND list = control(viewer, L"LISTBOX", nullptr);
    wait_until("the game is not listed", [&] {
        return SendMessageW(list, LB_SELECTSTRING, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(name)) >= 0;
    });
    SendMessageW(viewer, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(list), LBN_SELCHANGE), reinterpret_cast<LPARAM>(list));
}

/// Reads a message box and closes it.
void read_out(HWND box) {
    constexpr int text_control = 0xFFFF;
    wchar_t text[1024]{};
    wait_until("the message says nothing", [&] { return GetDlgItemTextW(box, text_control, text, 1024) != 0; });
    std::wprintf(L"%ls\n", text);
    PostMessageW(box, WM_COMMAND, IDOK, 0);
    wait_until("the message does not close", [box] { return !IsWindow(box); });
}

void print_list(HWND viewer) {
    choose_print_command(viewer, 'L');
    const HWND dialog = wait_for_window(L"frmPrintGames");
    PostMessageW(control(dialog, L"BUTTON", L"&OK"), BM_CLICK, 0, 0);
    HWND box = nullptr;
    wait_until("printing does not end", [&] {
        box = FindWindowW(L"#32770", nullptr);
        return box || !IsWindow(dialog);
    });
    if (!box) return;
    read_out(box);
    SendMessageW(dialog, WM_CLOSE, 0, 0);
}

void run(int argument_count, wchar_t** arguments) {
    const bool cheats = argument_count == 4 && std::wstring_view(arguments[2]) == L"cheats";
    const bool list = argument_count == 3 && std::wstring_view(arguments[2]) == L"list";
    if (!cheats && !list) throw Failure{"usage: print_driver PROGRAM cheats GAME | print_driver PROGRAM list"};
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION program{};
    if (!CreateProcessW(arguments[1], nullptr, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &program))
        throw Failure{"the program does not start"};
    const HWND viewer = wait_for_window(L"frmCtlView");
    if (cheats) {
        select_game(viewer, arguments[3]);
        choose_print_command(viewer, 'C');
    } else {
        print_list(viewer);
    }
    PostMessageW(viewer, WM_CLOSE, 0, 0);
    if (WaitForSingleObject(program.hProcess, patience) != WAIT_OBJECT_0) throw Failure{"the program does not end"};
}

}  // namespace

int wmain(int argument_count, wchar_t** arguments) {
    try {
        run(argument_count, arguments);
        return 0;
    } catch (const Failure& failure) {
        std::printf("print_driver: %s\n", failure.description);
        return 1;
    }
}
