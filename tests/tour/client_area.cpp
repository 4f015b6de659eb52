// Waits until a window is the one the user works in, and prints where its inner area begins on the screen, in pixels:
//   client_area WINDOW_CLASS
#include <cstdio>

#include "support/wait.h"

int wmain(int argc, wchar_t** argv) {
    if (argc != 2) return 2;
    SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
    const auto is_in_front = [argv] {
        const HWND window = FindWindowW(argv[1], nullptr);
        return window && window == GetForegroundWindow() && IsWindowVisible(window);
    };
    if (!quillomat::wait_until(is_in_front)) {
        std::fprintf(stderr, "No window of the class %ls came to the front\n", argv[1]);
        return 1;
    }
    POINT origin{};
    ClientToScreen(GetForegroundWindow(), &origin);
    std::printf("%ld %ld\n", origin.x, origin.y);
    return 0;
}
