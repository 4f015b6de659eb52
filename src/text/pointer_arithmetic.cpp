#include "text/pointer_arithmetic.h"

#include "text/rounding.h"

namespace quillomat {
namespace {

int middle(int low, int high) {
    const int extent = round_half_even(static_cast<double>(high) - low);
    return round_half_even(low + extent / 2.0);
}

}  // namespace

int to_absolute(int pixels, int screen_size) {
    // In single precision on purpose: in double precision, some coordinates would round to a neighbour.
    const float scale = 65535.0F / static_cast<float>(screen_size);
    const float absolute = scale * static_cast<float>(pixels);
    return round_half_even(absolute);
}

std::optional<PixelPoint> centre_on_screen(const PixelRectangle& rectangle, const PixelSize& screen) {
    const PixelPoint centre{middle(rectangle.left, rectangle.right), middle(rectangle.top, rectangle.bottom)};
    if (centre.x < 0 || centre.x > screen.width || centre.y < 0 || centre.y > screen.height) return std::nullopt;
    return centre;
}

}  // namespace quillomat
