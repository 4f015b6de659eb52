// Measures the program's loading and its windows in one process: window_bench FILE ... loads every FILE and opens
// windows with the first one. window_bench memory FILE measures the memory that a database takes.

#include "bench.h"
#include "common/session.h"
#include "forms/application.h"
#include "output/frmAddNew.h"
#include "output/frmMailCheats.h"
#include "shell/open_viewer.h"
#include "support/files.h"
#include "viewer/frmCtlView.h"
#include "viewer/frmFind.h"
#include "win/code_page.h"
#include "win/database_file.h"
// Needs <windows.h> before it.
#include <psapi.h>

namespace quillomat::bench {
namespace {

const auto ignore = [](auto) {};

double megabytes_in_use() {
    PROCESS_MEMORY_COUNTERS counters{};
    GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
    return static_cast<double>(counters.WorkingSetSize) / 1e6;
}

int measure_memory(const std::filesystem::path& file) {
    const double size = static_cast<double>(file_size(file)) / 1e6;
    const double before = megabytes_in_use();
    TextFileSlot slot;
    Catalogue catalogue(upper_case);
    load_catalogue(slot, file, catalogue, ignore);
    print("memory of " + file.stem().string(), megabytes_in_use() - before, "MB", "the file", size, 2.2);
    catalogue.search(SearchScope::Names, L"", game_count, ignore);
    catalogue.search(SearchScope::Cheats, L"", game_count, ignore);
    print("memory of " + file.stem().string() + ", searched", megabytes_in_use() - before, "MB", "the file", size, 4.2);
    return 0;
}

void measure_loading(const std::filesystem::path& file) {
    TextFileSlot slot;
    Catalogue catalogue(upper_case);
    const auto read_and_decode = [&] {
        slot.open_for_reading(file);
        slot.read_all();
        slot.close();
    };
    const auto times = medians({[&] { load_catalogue(slot, file, catalogue, ignore); }, read_and_decode});
    print("load " + file.stem().string(), times[0], "ms", "read, decode", times[1], 2);
}

// A viewer with a database of its own.
struct OpenedViewer {
    OpenedViewer(Application& running, const std::string& database) : application(running) {
        folder.write("Cheats.dat", database);
        session.program_folder = folder.path().wstring();
        session.settings = Settings(L"QuillomatBench");
        viewer.show();
        application.let_pending_events_run();
    }
    void add_game() {
        frmAddNew window(application, session, link);
        window.show();
        window.Text1.set_text(L"Added game " + std::to_wstring(viewer.List2.count()));
        window.Text2.set_text(std::wstring(1200, L'x'));
        window.cmdButton[0]->click();
    }

    Application& application;
    TemporaryFolder folder;
    Session session;
    ViewerWindows windows;
    frmCtlView viewer{application, session, windows};
    OpenViewer link{viewer};
};

// Prints the duration of an action that may take up to a frame, a sixtieth of a second.
void print_frame(const std::string& figure, const std::function<void()>& action, const std::function<void()>& before) {
    print(figure, medians({before, action})[1], "ms", "a frame", 17, 1);
}

void measure_frames(OpenedViewer& open) {
    TextBox& box = open.viewer.Text1;
    box.set_text(decode(database(1'000'000)) + L"The Money Of Nobody");
    open.session.find = {.gFindString = L"the money of nobody", .gFindDirection = true, .gFirstTime = true};
    frmFind dialog(open.application, open.session.find, open.viewer, box);
    dialog.show();
    const auto find = [&] { dialog.FindIt(); };
    print_frame("find in 1 MB until selected", find, [&] { box.select(0, 0); });

    open.viewer.Option2.set_value(true);
    open.viewer.Option4.set_value(true);
    open.viewer.Text3.set_text(L"level");
    const auto search = [&] {
        open.viewer.Command1.click();
        UpdateWindow(open.viewer.List1.window());
    };
    search();
    print_frame("search with " + std::to_string(open.viewer.List1.count()) + " hits", search, [] {});

    while (open.link.game_count() < 2500) open.link.list_game(L"A game");
    frmMailCheats form(open.application, open.session, open.link);
    form.show();
    const HWND list = form.List1.window();
    SendMessageW(list, LB_SETSEL, TRUE, -1);
    const auto click = [list] {
        SendMessageW(list, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(10, 5));
        SendMessageW(list, WM_LBUTTONUP, 0, MAKELPARAM(10, 5));
        UpdateWindow(list);
    };
    print_frame("click with 2500 picked", click, [] {});
}

// Presses the button of every message box that appears.
LRESULT CALLBACK on_window_event(int code, WPARAM wparam, LPARAM lparam) {
    const auto window = reinterpret_cast<HWND>(wparam);
    constexpr DWORD dialog_class = 32770;
    const bool box_opened = code == HCBT_ACTIVATE && GetClassLongW(window, GCW_ATOM) == dialog_class;
    if (box_opened) PostMessageW(window, WM_COMMAND, IDOK, 0);
    return CallNextHookEx(nullptr, code, wparam, lparam);
}

}  // namespace
}  // namespace quillomat::bench

int wmain(int count, wchar_t** arguments) {
    using namespace quillomat::bench;
    const std::vector<std::wstring> files(arguments + 1, arguments + count);
    if (files.at(0) == L"memory") return measure_memory(files.at(1));
    for (const std::wstring& file : files) measure_loading(file);
    SetWindowsHookExW(WH_CBT, on_window_event, nullptr, GetCurrentThreadId());
    quillomat::Application application(L"Quillomat");
    const std::string games = quillomat::bytes_of(files[0]);
    OpenedViewer large(application, games.substr(0, games.find("Game number 2459") + 18));  // with room for more
    OpenedViewer small(application, "");
    measure_frames(large);
    const auto times = medians({[&] { large.add_game(); }, [&] { small.add_game(); }});
    print("adding a game to 2460", times[0], "ms", "to none", times[1], 1.1);
    return 0;
}
