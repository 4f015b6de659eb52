#pragma once

#include <optional>

namespace quillomat {

/// The size, in points, at which the about box's title begins to shrink.
inline constexpr double largest_title = 20;

/// Returns the next size of the title while it shrinks or grows, in points, or nothing if it has reached its limit.
std::optional<double> next_shrinking_title(double points);
std::optional<double> next_growing_title(double points);

}  // namespace quillomat
