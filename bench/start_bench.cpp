// From process start to a window that is painted and answers, in turns with an empty window: start_bench FOLDER
// FOLDER is where the database of the viewer lies.

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "measure.h"
#include "win/api.h"

namespace {

double seconds() {
    LARGE_INTEGER count{};
    LARGE_INTEGER frequency{};
    QueryPerformanceCounter(&count);
    QueryPerformanceFrequency(&frequency);
    return static_cast<double>(count.QuadPart) / static_cast<double>(frequency.QuadPart);
}

class Program {
  public:
    Program(std::wstring command, const wchar_t* window_class) : started_(seconds()) {
        STARTUPINFOW startup{};
        startup.cb = sizeof startup;
        if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                            &process_)) {
            std::printf("cannot start %ls\n", command.c_str());
            std::exit(1);
        }
        do {
            Sleep(0);
            window_ = FindWindowW(window_class, nullptr);
        } while (!window_ || !IsWindowVisible(window_));
        do {
            SendMessageW(window_, WM_NULL, 0, 0);
        } while (GetUpdateRect(window_, nullptr, FALSE));
        shown_ = seconds();
    }
    ~Program() {
        TerminateProcess(process_.hProcess, 0);
        WaitForSingleObject(process_.hProcess, INFINITE);
        CloseHandle(process_.hThread);
        CloseHandle(process_.hProcess);
    }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    double milliseconds_to_window() const { return (shown_ - started_) * 1000; }

  private:
    PROCESS_INFORMATION process_{};
    HWND window_ = nullptr;
    double started_;
    double shown_ = 0;
};

/// What the first window of a program is compared with an empty one.
struct Start {
    std::string name;
    std::wstring command;
    const wchar_t* window_class;
    double at_most_times;
    std::vector<double> milliseconds;
};

std::wstring quoted(const std::filesystem::path& path) {
    return L"\"" + path.wstring() + L"\"";
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
    if (count != 2) {
        std::printf("usage: start_bench FOLDER\n");
        return 2;
    }
    wchar_t own_path[MAX_PATH]{};
    GetModuleFileNameW(nullptr, own_path, MAX_PATH);
    const std::filesystem::path folder = std::filesystem::path(own_path).parent_path();
    const std::wstring empty_window = quoted(folder / L"empty_window.exe");
    Start starts[] = {
        {"start to splash", quoted(folder.parent_path() / L"src" / L"Quillomat.exe"), L"frmSplash", 1.2, {}},
        {"start to viewer with its games",
         quoted(folder / L"open_window.exe") + L" viewer " + quoted(arguments[1]),
         L"frmCtlView",
         1.5,
         {}},
    };
    constexpr int rounds = 41;
    std::vector<double> empty;
    for (int round = 0; round < rounds; ++round) {
        empty.push_back(Program(empty_window, L"EmptyWindow").milliseconds_to_window());
        for (Start& start : starts) {
            start.milliseconds.push_back(Program(start.command, start.window_class).milliseconds_to_window());
        }
    }
    using namespace quillomat::bench;
    for (const Start& start : starts) {
        print({start.name, median(start.milliseconds), "ms", "empty window", median(empty),
               start.at_most_times * median(empty)});
    }
    return 0;
}
