#include "text/squeeze.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace quillomat {
namespace {

// Shares of a pixel are in whole 65536ths: this is drawn many times a second.
constexpr int share_bits = 16;
constexpr std::uint32_t whole = 1U << share_bits;

/// The columns of the picture that fall on one column of the result, and how much of it each of them covers.
struct Coverage {
    std::size_t first_column = 0;
    std::vector<std::uint32_t> shares;
    std::uint32_t background_share = whole;
};

Coverage coverage_of(int column, int width, double factor) {
    const double middle = width / 2.0;
    const double one_end = middle + (column - middle) / factor;
    const double other_end = middle + (column + 1 - middle) / factor;
    const double from = std::clamp(std::min(one_end, other_end), 0.0, static_cast<double>(width));
    const double to = std::clamp(std::max(one_end, other_end), 0.0, static_cast<double>(width));
    Coverage coverage;
    const int first = static_cast<int>(from);
    coverage.first_column = static_cast<std::size_t>(first);
    for (int left = first; left < to; ++left) {
        const double overlap = std::min(left + 1.0, to) - std::max<double>(left, from);
        const auto share = static_cast<std::uint32_t>(overlap * std::abs(factor) * whole);
        coverage.shares.push_back(share);
        coverage.background_share -= share;
    }
    return coverage;
}

std::uint32_t mixed(const Coverage& coverage, const std::uint32_t* row, std::uint32_t background) {
    std::uint32_t red = 0;
    std::uint32_t green = 0;
    std::uint32_t blue = 0;
    const auto add = [&](std::uint32_t pixel, std::uint32_t share) {
        red += share * (pixel >> 16 & 0xFF);
        green += share * (pixel >> 8 & 0xFF);
        blue += share * (pixel & 0xFF);
    };
    add(background, coverage.background_share);
    const std::uint32_t* pixel = row + coverage.first_column;
    for (const std::uint32_t share : coverage.shares) add(*pixel++, share);
    const auto rounded = [](std::uint32_t sum) { return (sum + whole / 2) >> share_bits; };
    return rounded(red) << 16 | rounded(green) << 8 | rounded(blue);
}

}  // namespace

PixelPicture squeezed(const PixelPicture& picture, double factor, std::uint32_t background) {
    PixelPicture result{picture.width, picture.height, std::vector<std::uint32_t>(picture.pixels.size(), background)};
    // Thinner than this nothing of it is to be seen.
    constexpr double edge_on = 1e-4;
    if (std::abs(factor) < edge_on) return result;
    for (int column = 0; column < picture.width; ++column) {
        const Coverage coverage = coverage_of(column, picture.width, factor);
        if (coverage.shares.empty()) continue;
        for (int row = 0; row < picture.height; ++row) {
            const auto start = static_cast<std::size_t>(row) * static_cast<std::size_t>(picture.width);
            result.pixels[start + static_cast<std::size_t>(column)] =
                mixed(coverage, picture.pixels.data() + start, background);
        }
    }
    return result;
}

}  // namespace quillomat
