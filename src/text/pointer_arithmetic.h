#pragma once

#include <optional>

namespace quillomat {

/// A place on the screen, in pixels.
struct PixelPoint {
    int x = 0;
    int y = 0;

    bool operator==(const PixelPoint&) const = default;
};

/// The size of the screen, in pixels.
struct PixelSize {
    int width = 0;
    int height = 0;
};

/// A rectangle on the screen, in pixels.
struct PixelRectangle {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
};

/// A coordinate in pixels as the system's absolute pointer movement takes it, where the whole screen measures 65535.
/// Throws `Error` with Overflow for a screen of no size.
int to_absolute(int pixels, int screen_size);

/// The centre of a rectangle, a half pixel going to the even neighbour; nothing when it lies off the screen, whose far
/// edges still count as on it. Throws `Error` with Overflow for a rectangle whose size an int cannot hold.
std::optional<PixelPoint> centre_on_screen(const PixelRectangle& rectangle, const PixelSize& screen);

}  // namespace quillomat
