#pragma once

#include <optional>

namespace quillomat {

/// A position on the screen, in pixels.
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

/// Converts a coordinate from pixels to the units of `mouse_event`, in which the screen is 65535 wide and high. Throws
/// `Error` with Overflow if `screen_size` is 0.
int to_absolute(int pixels, int screen_size);

/// Returns the centre of a rectangle, a half pixel rounded to the even neighbour, or nothing if the centre is off the
/// screen. The screen's right and lower edges count as on it. Throws `Error` with Overflow if the size of the rectangle
/// does not fit into an int.
std::optional<PixelPoint> centre_on_screen(const PixelRectangle& rectangle, const PixelSize& screen);

}  // namespace quillomat
