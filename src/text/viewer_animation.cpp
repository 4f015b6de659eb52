#include "text/viewer_animation.h"

namespace quillomat {
namespace {

constexpr double panel_step = 100;

}  // namespace

std::optional<double> next_game_panel_left(double left) {
    if (left >= panel_resting_left) return std::nullopt;
    return left + panel_step;
}

std::optional<double> next_search_panel_left(double left) {
    if (left <= panel_resting_left) return std::nullopt;
    return left - panel_step;
}

}  // namespace quillomat
