#pragma once

#include <cstdint>
#include <vector>

namespace quillomat {

/// A picture as pixels of 0xRRGGBB, row by row from the upper left.
struct PixelPicture {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels;
};

/// The picture made `factor` times as wide about its middle, in the same place and size on `background`; a negative
/// factor mirrors it. Factors are from -1 to 1. Every pixel is the average of what falls on it, so that a picture whose
/// factor changes bit by bit moves smoothly, its edges included.
PixelPicture squeezed(const PixelPicture& picture, double factor, std::uint32_t background);

}  // namespace quillomat
