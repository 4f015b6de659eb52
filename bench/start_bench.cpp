// From process start to a window on screen that answers, in turns with an empty window; and what an idle viewer costs.

#include <algorithm>
#include <cstdio>
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
        SendMessageW(window_, WM_NULL, 0, 0);
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

// Arguments: the empty window's program, then pairs of a program and the class of its first window.
int wmain(int count, wchar_t** arguments) {
    constexpr int rounds = 15;
    const int programs = (count - 2) / 2;
    std::vector<double> empty;
    std::vector<std::vector<double>> measured(static_cast<std::size_t>(programs));
    for (int round = 0; round < rounds; ++round) {
        empty.push_back(Program(arguments[1], L"EmptyWindow").milliseconds_to_window());
        for (int i = 0; i < programs; ++i) {
            measured[static_cast<std::size_t>(i)].push_back(
                Program(arguments[2 + 2 * i], arguments[3 + 2 * i]).milliseconds_to_window());
        }
    }
    std::printf("start to window, median of %d\n  %-24s %7.1f ms\n", rounds, "empty window", median(empty));
    for (int i = 0; i < programs; ++i) {
        const double value = median(measured[static_cast<std::size_t>(i)]);
        std::printf("  %-24ls %7.1f ms  %.2f times\n", arguments[3 + 2 * i], value, value / median(empty));
    }
    constexpr int idle_seconds = 10;
    for (int i = 0; i < programs; ++i) {
        const Program program(arguments[2 + 2 * i], arguments[3 + 2 * i]);
        Sleep(2000);
        const double before = program.processor_seconds();
        Sleep(idle_seconds * 1000);
        std::printf("  %-24ls %7.2f %% of one core, idle for %d s\n", arguments[3 + 2 * i],
                    100 * (program.processor_seconds() - before) / idle_seconds, idle_seconds);
    }
    return 0;
}
