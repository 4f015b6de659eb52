// Prints with the program as it is handed out, as a player would by the keyboard:
//   print_driver PROGRAM DATABASE cheats    prints the cheats of the first game
//   print_driver PROGRAM DATABASE list      prints the list of all games
// Writes the message that comes instead of a printed page, if one does. Exits with 0 when the program has done what it
// was told.

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

#include "program/program.h"

namespace quillomat {
namespace {

struct Failure {
    const char* description;
};

void wait_until(const char* what, const std::function<bool()>& condition) {
    if (!Program::wait_until(condition)) throw Failure{what};
}

void press(WORD key, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = flags;
    SendInput(1, &input, sizeof input);
}

void type(char key) {
    press(static_cast<WORD>(key), 0);
    press(static_cast<WORD>(key), KEYEVENTF_KEYUP);
}

bool is_in_menu(HWND window) {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    return GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &info) && (info.flags & GUI_INMENUMODE);
}

/// Gives the command of an entry of the menu "Options", "Print" by its access key.
void choose_print_command(HWND viewer, char access_key) {
    wait_until("the viewer is not in front", [viewer] { return GetForegroundWindow() == viewer; });
    press(VK_MENU, 0);
    type('O');
    press(VK_MENU, KEYEVENTF_KEYUP);
    wait_until("the menu does not open", [viewer] { return is_in_menu(viewer); });
    type('P');
    type(access_key);
    // Now the command is on its way, in front of all that is posted later.
    wait_until("the menu does not close", [viewer] { return !is_in_menu(viewer); });
}

void print_list(const Program& program) {
    choose_print_command(program.viewer(), 'L');
    wait_until("the window does not come", [&] { return program.find(L"frmPrintGames") != nullptr; });
    const HWND window = program.find(L"frmPrintGames");
    PostMessageW(FindWindowExW(window, nullptr, L"Button", L"&OK"), BM_CLICK, 0, 0);
    wait_until("printing does not end", [&] { return !program.message().empty() || !IsWindow(window); });
    if (!IsWindow(window)) return;
    std::printf("%ls\n", program.message().c_str());
    program.dismiss_message();
    PostMessageW(window, WM_CLOSE, 0, 0);
    wait_until("the window does not close", [window] { return !IsWindow(window); });
}

void run(const std::filesystem::path& database, bool cheats) {
    Program program;
    std::ifstream file(database, std::ios::binary);
    program.write_database(std::string(std::istreambuf_iterator<char>(file), {}));
    program.start();
    if (!program.reach_viewer() || !program.message().empty()) throw Failure{"the viewer does not come"};
    const HWND viewer = program.viewer();
    if (cheats) {
        cheats_of(viewer, 0);
        choose_print_command(viewer, 'C');
    } else {
        print_list(program);
    }
    PostMessageW(viewer, WM_CLOSE, 0, 0);
    wait_until("the viewer does not close", [viewer] { return !IsWindow(viewer); });
}

}  // namespace
}  // namespace quillomat

int wmain(int count, wchar_t** arguments) {
    const std::wstring_view what = count == 4 ? arguments[3] : L"";
    if (what != L"cheats" && what != L"list") {
        std::printf("usage: print_driver PROGRAM DATABASE cheats|list\n");
        return 2;
    }
    try {
        quillomat::Program::executable = arguments[1];
        quillomat::run(arguments[2], what == L"cheats");
        return 0;
    } catch (const quillomat::Failure& failure) {
        std::printf("print_driver: %s\n", failure.description);
        return 1;
    }
}
