#include "program/program.h"

#include <stdexcept>

namespace quillomat {
namespace {

std::vector<std::wstring> entries_of(HWND list) {
    std::vector<std::wstring> entries(static_cast<std::size_t>(SendMessageW(list, LB_GETCOUNT, 0, 0)));
    for (std::size_t i = 0; i < entries.size(); ++i) {
        entries[i].resize(static_cast<std::size_t>(SendMessageW(list, LB_GETTEXTLEN, i, 0)));
        SendMessageW(list, LB_GETTEXT, i, reinterpret_cast<LPARAM>(entries[i].data()));
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
    for (const HWND window : visible_windows()) {
        if (process_of(window) == process_.dwProcessId && class_of(window) == window_class) return window;
    }
    return nullptr;
}

bool Program::reach_viewer() const {
    if (!wait_until([this] { return find(L"frmSplash"); })) return false;
    PostMessageW(find(L"frmSplash"), WM_KEYDOWN, VK_SPACE, 0);
    if (!wait_until([this] { return find(L"frmMain"); })) return false;
    PostMessageW(FindWindowExW(find(L"frmMain"), nullptr, L"Button", L"&Click here to see the cheats!"), BM_CLICK, 0,
                 0);
    return wait_until([this] { return viewer() || find(message_box_class); });
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
    return entries_of(FindWindowExW(viewer, nullptr, L"ListBox", nullptr));
}

std::vector<std::wstring> results_of(HWND viewer) {
    const HWND panel = FindWindowExW(viewer, nullptr, nullptr, L"Search");
    return entries_of(FindWindowExW(panel, nullptr, L"ListBox", nullptr));
}

}  // namespace quillomat
