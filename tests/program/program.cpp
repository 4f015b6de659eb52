#include "program/program.h"

#include <fstream>
#include <iterator>
#include <stdexcept>
#include <utility>

namespace quillomat {
namespace {

struct Search {
    DWORD process;
    const wchar_t* window_class;
    HWND found;
};

std::wstring class_of(HWND window) {
    wchar_t name[64]{};
    GetClassNameW(window, name, std::size(name));
    return name;
}

HWND visible_window(DWORD process, const wchar_t* window_class) {
    Search search{process, window_class, nullptr};
    EnumWindows(
        [](HWND window, LPARAM parameter) -> BOOL {
            auto& wanted = *reinterpret_cast<Search*>(parameter);
            DWORD owner = 0;
            GetWindowThreadProcessId(window, &owner);
            if (owner != wanted.process || !IsWindowVisible(window) || class_of(window) != wanted.window_class)
                return TRUE;
            wanted.found = window;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.found;
}

/// The largest control of a class that stands on a window itself.
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

constexpr wchar_t message_box_class[] = L"#32770";

}  // namespace

std::filesystem::path Program::executable;

Program::Program() : owns_folder_(true) {
    static int count = 0;
    folder_ = std::filesystem::temp_directory_path() /
              (L"quillomat-program-" + std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(++count));
    std::filesystem::create_directories(folder_);
    std::filesystem::copy_file(executable, folder_ / L"Quillomat.exe");
}

Program::Program(std::filesystem::path folder) : folder_(std::move(folder)), owns_folder_(false) {}

Program::~Program() {
    end();
    if (!owns_folder_) return;
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
}

void Program::write_database(std::string_view bytes) const {
    std::ofstream(database(), std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

std::string Program::read_database() const {
    std::ifstream file(database(), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void Program::end() {
    if (!process_.hProcess) return;
    TerminateProcess(process_.hProcess, 1);
    WaitForSingleObject(process_.hProcess, INFINITE);
    CloseHandle(process_.hThread);
    CloseHandle(process_.hProcess);
    process_ = {};
}

void Program::start() {
    end();
    std::wstring command = L"\"" + (folder_ / L"Quillomat.exe").wstring() + L"\"";
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    const std::wstring elsewhere = folder_.root_path().wstring();
    if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, elsewhere.c_str(), &startup,
                        &process_))
        throw std::runtime_error("the program cannot be started");
}

DWORD Program::exit_code() const {
    wait_until([this] { return !running(); });
    DWORD code = 0;
    GetExitCodeProcess(process_.hProcess, &code);
    return code;
}

HWND Program::find(const wchar_t* window_class) const {
    return visible_window(process_.dwProcessId, window_class);
}

bool Program::reach_viewer() {
    HWND last = nullptr;
    return wait_until([&] {
        if (find(message_box_class) || viewer()) return true;
        const HWND splash = find(L"frmSplash");
        const HWND main_screen = find(L"frmMain");
        const HWND next = main_screen ? main_screen : splash;
        if (next && next != std::exchange(last, next)) {
            if (main_screen) {
                PostMessageW(FindWindowExW(main_screen, nullptr, L"Button", L"&Click here to see the cheats!"),
                             BM_CLICK, 0, 0);
            } else {
                PostMessageW(splash, WM_KEYDOWN, VK_SPACE, 0);
            }
        }
        return false;
    });
}

void Program::close() const {
    PostMessageW(find(L"frmMain"), WM_CLOSE, 0, 0);
}

std::wstring Program::message() const {
    const HWND box = find(message_box_class);
    if (!box) return {};
    constexpr int text_control = 0xFFFF;
    const HWND text = GetDlgItem(box, text_control);
    return text_of(box) + L": " + (text ? text_of(text) : text_of(FindWindowExW(box, nullptr, L"Static", nullptr)));
}

bool Program::dismiss_message() const {
    const HWND box = find(message_box_class);
    PostMessageW(box, WM_COMMAND, IDOK, 0);
    return wait_until([box] { return !IsWindow(box); });
}

bool Program::wait_until(const std::function<bool()>& condition) {
    constexpr ULONGLONG patience = 60'000;
    const ULONGLONG start = GetTickCount64();
    while (!condition()) {
        if (GetTickCount64() - start > patience) return false;
        Sleep(10);
    }
    return true;
}

std::wstring text_of(HWND window) {
    std::wstring text(static_cast<std::size_t>(SendMessageW(window, WM_GETTEXTLENGTH, 0, 0)) + 1, L'\0');
    text.resize(
        static_cast<std::size_t>(SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()))));
    return text;
}

std::vector<std::wstring> games_of(HWND viewer) {
    const HWND list = largest_child(viewer, L"ListBox");
    std::vector<std::wstring> games(static_cast<std::size_t>(SendMessageW(list, LB_GETCOUNT, 0, 0)));
    for (std::size_t i = 0; i < games.size(); ++i) {
        games[i].resize(static_cast<std::size_t>(SendMessageW(list, LB_GETTEXTLEN, i, 0)) + 1);
        games[i].resize(
            static_cast<std::size_t>(SendMessageW(list, LB_GETTEXT, i, reinterpret_cast<LPARAM>(games[i].data()))));
    }
    return games;
}

std::wstring cheats_of(HWND viewer, int game) {
    const HWND list = largest_child(viewer, L"ListBox");
    SendMessageW(list, LB_SETCURSEL, static_cast<WPARAM>(game), 0);
    SendMessageW(viewer, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(list), LBN_SELCHANGE), reinterpret_cast<LPARAM>(list));
    return text_of(largest_child(viewer, L"Edit"));
}

}  // namespace quillomat
