// From the start of a process until its first window is painted and answers: start_bench FOLDER, which holds a
// database.

#include <filesystem>

#include "bench.h"
#include "win/api.h"

namespace {

void start(const std::wstring& command, const wchar_t* window_class, double& milliseconds) {
    const auto begin = std::chrono::steady_clock::now();
    STARTUPINFOW startup{};
    PROCESS_INFORMATION process{};
    std::wstring line = command;
    if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process))
        std::exit(1);
    HWND window = nullptr;
    do {
        Sleep(0);
        window = FindWindowW(window_class, nullptr);
    } while (!window || !IsWindowVisible(window));
    do {
        SendMessageW(window, WM_NULL, 0, 0);
    } while (GetUpdateRect(window, nullptr, FALSE));
    milliseconds = std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count();
    TerminateProcess(process.hProcess, 0);
    WaitForSingleObject(process.hProcess, INFINITE);
}

}  // namespace

int wmain(int, wchar_t** arguments) {
    const std::filesystem::path here = std::filesystem::path(_wpgmptr).parent_path();
    const std::wstring viewer = (here / L"open_window.exe").wstring() + L" viewer " + arguments[1];
    std::vector<double> times[3]{};
    for (int round = 0; round < 41; ++round) {
        start((here / L"empty_window.exe").wstring(), L"EmptyWindow", times[0].emplace_back());
        start((here.parent_path() / L"src" / L"Quillomat.exe").wstring(), L"frmSplash", times[1].emplace_back());
        start(viewer, L"frmCtlView", times[2].emplace_back());
    }
    const double empty = quillomat::bench::median(times[0]);
    quillomat::bench::print("start to splash", quillomat::bench::median(times[1]), "ms", "empty window", empty, 1.2);
    quillomat::bench::print("start to viewer", quillomat::bench::median(times[2]), "ms", "empty window", empty, 1.75);
    return 0;
}
