#include "program/program.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace quillomat {
namespace {

/// Returns the largest direct child of a window class.
HWND largest_child(HWND parent, const wchar_t* control_class) {
    HWND largest = nullptr;
    int largest_area = 0;
    for (HWND child = FindWindowExW(parent, nullptr, control_class, nullptr); child;
         child = FindWindowExW(parent, child, control_class, nullptr)) {
        RECT place{};
        GetWindowRect(child, &place);
        const int area = (place.right - place.left) * (place.bottom - place.top);
        if (area <= largest_area) continue;
        largest = child;
        largest_area = area;
    }
    return largest;
}

std::vector<std::wstring> entries_of(HWND list) {
    std::vector<std::wstring> entries(static_cast<std::size_t>(SendMessageW(list, LB_GETCOUNT, 0, 0)));
    for (std::size_t i = 0; i < entries.size(); ++i) {
        entries[i].resize(static_cast<std::size_t>(SendMessageW(list, LB_GETTEXTLEN, i, 0)) + 1);
        entries[i].resize(
            static_cast<std::size_t>(SendMessageW(list, LB_GETTEXT, i, reinterpret_cast<LPARAM>(entries[i].data()))));
    }
    return entries;
}

}  // namespace

std::filesystem::path Program::executable;

Program::Program() : own_folder_(std::in_place), folder_(own_folder_->path()) {
    std::filesystem::copy_file(executable, folder_ / L"Quillomat.exe");
}

void Program::end() {
    if (!process_.hProcess) return;
    TerminateProcess(process_.hProcess, 1);
    WaitForSingleObject(process_.hProcess, INFINITE);
    CloseHandle(process_.hThread);
    CloseHandle(process_.hProcess);
    process_ = {};
}

void Program::start(const std::wstring& arguments) {
    end();
    std::wstring command = L"\"" + (folder_ / L"Quillomat.exe").wstring() + L"\" " + arguments;
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    const std::wstring elsewhere = folder_.root_path().wstring();
    if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, elsewhere.c_str(), &startup,
                        &process_)) {
        throw std::runtime_error("the program cannot be started");
    }
}

DWORD Program::exit_code() const {
    wait_until([this] { return !running(); });
    DWORD code = 0;
    GetExitCodeProcess(process_.hProcess, &code);
    return code;
}

HWND Program::find(const wchar_t* window_class) const {
    const std::vector<HWND> windows = visible_windows();
    const auto found = std::ranges::find_if(windows, [&](HWND window) {
        return process_of(window) == process_.dwProcessId && class_of(window) == window_class;
    });
    if (found == windows.end()) return nullptr;
    return *found;
}

bool Program::reach_viewer() {
    HWND last = nullptr;
    return wait_until([&] {
        if (find(message_box_class) || viewer()) return true;
        const HWND main_screen = find(L"frmMain");
        HWND next = main_screen;
        if (!next) next = find(L"frmSplash");
        if (!next || next == std::exchange(last, next)) return false;
        if (main_screen) {
            PostMessageW(FindWindowExW(next, nullptr, L"Button", L"&Click here to see the cheats!"), BM_CLICK, 0, 0);
        } else {
            PostMessageW(next, WM_KEYDOWN, VK_SPACE, 0);
        }
        return false;
    });
}

std::wstring Program::message() const {
    const HWND box = find(message_box_class);
    if (!box) return {};
    return text_of(box) + L": " + message_of(box);
}

bool Program::dismiss_message() const {
    const HWND box = find(message_box_class);
    answer_message(box, IDOK);
    return wait_until([box] { return !IsWindow(box); });
}

std::vector<std::wstring> games_of(HWND viewer) {
    return entries_of(largest_child(viewer, L"ListBox"));
}

std::vector<std::wstring> results_of(HWND viewer) {
    HWND list = nullptr;
    for (HWND frame = nullptr; !list && (frame = FindWindowExW(viewer, frame, nullptr, nullptr));) {
        list = FindWindowExW(frame, nullptr, L"ListBox", nullptr);
    }
    return entries_of(list);
}

std::wstring cheats_of(HWND viewer, int game) {
    const HWND list = largest_child(viewer, L"ListBox");
    SendMessageW(list, LB_SETCURSEL, static_cast<WPARAM>(game), 0);
    SendMessageW(viewer, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(list), LBN_SELCHANGE), reinterpret_cast<LPARAM>(list));
    return text_of(largest_child(viewer, L"Edit"));
}

}  // namespace quillomat
