#include "text/about_animation.h"

namespace quillomat {
namespace {

constexpr double smallest_title = 2;

}  // namespace

std::optional<double> next_shrinking_title(double points) {
    if (points <= smallest_title) return std::nullopt;
    return points - 1;
}

std::optional<double> next_growing_title(double points) {
    if (points >= largest_title) return std::nullopt;
    return points + 1;
}

}  // namespace quillomat
