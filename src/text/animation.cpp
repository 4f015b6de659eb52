#include "text/animation.h"

#include <array>
#include <utility>

namespace quillomat {
namespace {

constexpr ColourValue dark_grey = 0x404040;
constexpr ColourValue mid_grey = 0x808080;
constexpr ColourValue light_grey = 0xC0C0C0;

constexpr double version_resting_left = 3960;
constexpr double version_step = 50;
constexpr double panel_step = 100;

constexpr int first_cycle_colour = 2;
constexpr std::array<ColourValue, 11> cycle_colours = {0xFFC0C0, 0xFF8080, 0xFF0000, 0xC00000, 0x800000, 0x400000,
                                                       0x800080, 0xC000C0, 0xFF00FF, 0xFF80FF, 0xFFC0FF};

constexpr double exit_width_asking = 2500;
constexpr double exit_width_step = 400;
constexpr double answer_top_asking = 3614.896;
constexpr double answer_top_step = 100;

}  // namespace

LetterBand next_letter_band(int step, int letter_count) {
    const int last_step = letter_count + 1;
    LetterBand band;
    band.colours.assign(static_cast<std::size_t>(letter_count), dark_grey);
    const int next_step = step == last_step ? 0 : step + 1;
    if (next_step < 0 || next_step > last_step) return band;
    band.step = next_step;
    for (const auto& [letter, colour] :
         {std::pair{band.step - 2, mid_grey}, std::pair{band.step - 1, light_grey}, std::pair{band.step, mid_grey}}) {
        if (letter >= 0 && letter < letter_count) band.colours[static_cast<std::size_t>(letter)] = colour;
    }
    return band;
}

int motto_number(double random) {
    return static_cast<int>(random * 8) + 1;
}

double version_start_left(double window_width) {
    return window_width + 400;
}

std::optional<double> next_version_left(double left) {
    if (left <= version_resting_left) return std::nullopt;
    return left - version_step;
}

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

std::optional<double> next_game_panel_left(double left) {
    if (left >= panel_resting_left) return std::nullopt;
    return left + panel_step;
}

std::optional<double> next_search_panel_left(double left) {
    if (left <= panel_resting_left) return std::nullopt;
    return left - panel_step;
}

}  // namespace quillomat
