// Waits until a window is the one the user works in, and prints where its inner area begins on the screen, in pixels:
//   client_area WINDOW_CLASS
#include <chrono>
#include <cstdio>
#include <thread>

#include "win/api.h"

int wmain(int argc, wchar_t** argv) {
    using namespace std::chrono_literals;
    if (argc != 2) return 2;
    SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
    const auto deadline = std::chrono::steady_clock::now() + 30s;
    while (std::chrono::steady_clock::now() < deadline) {
        const HWND window = FindWindowW(argv[1], nullptr);
        if (window && window == GetForegroundWindow() && IsWindowVisible(window)) {
            POINT origin{};
            ClientToScreen(window, &origin);
            std::printf("%ld %ld\n", origin.x, origin.y);
            return 0;
        }
        std::this_thread::sleep_for(50ms);
    }
    std::fprintf(stderr, "No window of the class %ls came to the front\n", argv[1]);
    return 1;
}
