#pragma once

#include "forms/form.h"
#include "forms/gdi.h"

namespace quillomat {

/// How many pixels of an area of a form are painted in another colour than this one.
inline int pixels_unlike(const Form& form, const RECT& area, Colour colour) {
    const HDC screen = GetDC(form.window());
    int count = 0;
    {
        const BufferedCanvas buffer(screen, area);
        SendMessageW(form.window(), WM_PRINTCLIENT, reinterpret_cast<WPARAM>(buffer.canvas()), PRF_CLIENT);
        for (int y = area.top; y < area.bottom; ++y) {
            for (int x = area.left; x < area.right; ++x) {
                count += GetPixel(buffer.canvas(), x, y) != resolve(colour);
            }
        }
    }
    ReleaseDC(form.window(), screen);
    return count;
}

/// Whether any pixel that a window shows has exactly this colour.
inline bool shows_colour(HWND window, COLORREF colour) {
    RECT client{};
    GetClientRect(window, &client);
    const HDC shown = GetDC(window);
    bool found = false;
    for (int y = 0; y < client.bottom && !found; ++y) {
        for (int x = 0; x < client.right && !found; ++x) found = GetPixel(shown, x, y) == colour;
    }
    ReleaseDC(window, shown);
    return found;
}

}  // namespace quillomat
