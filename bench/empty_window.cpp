// The least that a Windows program can do to show a window of the viewer's size.

#include "win/api.h"

int WINAPI wWinMain(HINSTANCE program, HINSTANCE, wchar_t*, int) {
    WNDCLASSW description{};
    description.lpfnWndProc = DefWindowProcW;
    description.hInstance = program;
    description.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    description.lpszClassName = L"EmptyWindow";
    RegisterClassW(&description);
    UpdateWindow(CreateWindowExW(0, L"EmptyWindow", L"Empty", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 100, 100, 595, 444,
                                 nullptr, nullptr, program, nullptr));
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
    return 0;
}
