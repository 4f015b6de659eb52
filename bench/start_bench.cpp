// From process start to a window that is painted and answers, in turns with an empty window; and what the program costs
// while nobody does anything. On Debian: scripts/wine build/windows/bench/start_bench.exe

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

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
    Program(const std::wstring& path, const wchar_t* window_class) : started_(seconds()) {
        std::wstring command = L"\"" + path + L"\"";
        STARTUPINFOW startup{};
        startup.cb = sizeof startup;
        if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                            &process_)) {
            std::printf("cannot start %ls\n", path.c_str());
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
    double processor_seconds() const {
        FILETIME created{}, ended{}, kernel{}, user{};
        GetProcessTimes(process_.hProcess, &created, &ended, &kernel, &user);
        const auto value = [](FILETIME time) {
            return static_cast<double>(
                       (static_cast<unsigned long long>(time.dwHighDateTime) << 32 | time.dwLowDateTime)) /
                   1e7;
        };
        return value(kernel) + value(user);
    }

  private:
    PROCESS_INFORMATION process_{};
    HWND window_ = nullptr;
    double started_;
    double shown_ = 0;
};

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

}  // namespace

// Arguments: another build of the program to measure beside this one, if wanted.
int wmain(int count, wchar_t** arguments) {
    wchar_t own_path[MAX_PATH]{};
    GetModuleFileNameW(nullptr, own_path, MAX_PATH);
    const std::filesystem::path folder = std::filesystem::path(own_path).parent_path();
    const std::wstring empty_window = folder / L"empty_window.exe";
    std::vector<std::wstring> programs{folder.parent_path() / L"src" / L"Quillomat.exe"};
    programs.insert(programs.end(), arguments + 1, arguments + count);

    constexpr int rounds = 15;
    std::vector<double> empty;
    std::vector<std::vector<double>> measured(programs.size());
    for (int round = 0; round < rounds; ++round) {
        empty.push_back(Program(empty_window, L"EmptyWindow").milliseconds_to_window());
        for (std::size_t i = 0; i < programs.size(); ++i) {
            measured[i].push_back(Program(programs[i], L"frmSplash").milliseconds_to_window());
        }
    }
    std::printf("start to window, median of %d\n  %7.1f ms             empty window\n", rounds, median(empty));
    constexpr int idle_seconds = 10;
    for (std::size_t i = 0; i < programs.size(); ++i) {
        const double value = median(measured[i]);
        std::printf("  %7.1f ms  %.2f times  %ls\n", value, value / median(empty), programs[i].c_str());
        const Program program(programs[i], L"frmSplash");
        Sleep(2000);
        const double before = program.processor_seconds();
        Sleep(idle_seconds * 1000);
        std::printf("  %7.2f %% of one core for the splash\n",
                    100 * (program.processor_seconds() - before) / idle_seconds);
    }
    return 0;
}
