// Measures the time from the start of a process until its first window is painted and answers: start_bench FOLDER, a
// folder with a database.

#include <filesystem>

#include "bench.h"
#include "win/api.h"

static void start(std::wstring command, const wchar_t* window_class, HANDLE& process) {
    STARTUPINFOW startup{};
    PROCESS_INFORMATION information{};
    CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &information);
    process = information.hProcess;
    HWND window = nullptr;
    while (!window || !IsWindowVisible(window)) {
        Sleep(0);
        window = FindWindowW(window_class, nullptr);
    }
    do {
        SendMessageW(window, WM_NULL, 0, 0);
    } while (GetUpdateRect(window, nullptr, FALSE));
}

int wmain(int, wchar_t** arguments) {
    const std::filesystem::path here = std::filesystem::path(_wpgmptr).parent_path();
    const std::wstring viewer = (here / L"open_window.exe").wstring() + L" viewer " + arguments[1];
    HANDLE process = nullptr;
    const auto end = [&] {
        TerminateProcess(process, 0);
        WaitForSingleObject(process, INFINITE);
    };
    const auto times = quillomat::bench::medians(
        {[&] { start((here / L"empty_window.exe").wstring(), L"EmptyWindow", process); }, end,
         [&] { start((here.parent_path() / L"src" / L"Quillomat.exe").wstring(), L"frmSplash", process); }, end,
         [&] { start(viewer, L"frmCtlView", process); }, end});
    quillomat::bench::print("start to splash", times[2], "ms", "empty window", times[0], 1.2);
    quillomat::bench::print("start to viewer", times[4], "ms", "empty window", times[0], 1.75);
    return 0;
}
