// Prints with the program as it is handed out, as a player would by the keyboard:
//   print_driver PROGRAM DATABASE cheats    prints the cheats of the first game
//   print_driver PROGRAM DATABASE list      prints the list of all games
// Writes the message that comes instead of a printed page, if one does. Exits with 0 when the program has done what it
// was told.

#include <cstdio>
#include <stdexcept>

#include "program/program.h"
#include "support/input.h"

namespace quillomat {
namespace {

void wait_until(const char* what, const std::function<bool()>& condition) {
    if (!quillomat::wait_until(condition)) throw std::runtime_error(what);
}

/// Gives the command of an entry of the menu "Options", "Print" by its access key.
void choose_print_command(HWND viewer, char access_key) {
    wait_until("the viewer is not in front", [viewer] { return GetForegroundWindow() == viewer; });
    const DWORD thread = GetWindowThreadProcessId(viewer, nullptr);
    press_key('O', {VK_MENU});
    wait_until("the menu does not open", [thread] { return in_menu(thread); });
    press_key('P');
    press_key(static_cast<WORD>(access_key));
    // Now the command is on its way, in front of all that is posted later.
    wait_until("the menu does not close", [thread] { return !in_menu(thread); });
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
    program.write_database(bytes_of(database));
    program.start();
    if (!program.reach_viewer() || !program.message().empty()) throw std::runtime_error("the viewer does not come");
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
    } catch (const std::exception& failure) {
        std::printf("print_driver: %s\n", failure.what());
        return 1;
    }
}
