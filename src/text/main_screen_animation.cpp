#include "text/main_screen_animation.h"

#include <array>
#include <cstddef>

namespace quillomat {
namespace {

constexpr int first_cycle_colour = 2;
constexpr std::array<std::uint32_t, 11> cycle_colours = {0xFFC0C0, 0xFF8080, 0xFF0000, 0xC00000, 0x800000, 0x400000,
                                                         0x800080, 0xC000C0, 0xFF00FF, 0xFF80FF, 0xFFC0FF};

constexpr double exit_width_asking = 2500;
constexpr double exit_width_step = 400;
constexpr double answer_top_asking = 3614.896;
constexpr double answer_top_step = 100;

}  // namespace

ColourCycle next_colour_cycle(int step) {
    const int next = step + 1;
    const int colour = next - first_cycle_colour;
    if (colour >= static_cast<int>(cycle_colours.size())) return {.step = 1, .colour = std::nullopt};
    if (colour < 0) return {.step = next, .colour = std::nullopt};
    return {.step = next, .colour = cycle_colours[static_cast<std::size_t>(colour)]};
}

ExitConfirmation next_asking(const ExitConfirmation& current) {
    ExitConfirmation next = current;
    if (next.exit_width > exit_width_asking) next.exit_width -= exit_width_step;
    if (next.yes_top > answer_top_asking) next.yes_top -= answer_top_step;
    if (next.no_top > answer_top_asking) next.no_top -= answer_top_step;
    return next;
}

ExitConfirmation next_withdrawing(const ExitConfirmation& current) {
    ExitConfirmation next = current;
    if (next.exit_width < exit_width_resting) next.exit_width += exit_width_step;
    if (next.yes_top < answer_top_resting) next.yes_top += answer_top_step;
    if (next.no_top < answer_top_resting) next.no_top += answer_top_step;
    return next;
}

bool asking_is_complete(double exit_width) {
    return exit_width == exit_width_asking;
}

bool withdrawing_is_complete(double exit_width) {
    return exit_width == exit_width_resting;
}

}  // namespace quillomat
