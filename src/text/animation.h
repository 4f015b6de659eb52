#pragma once

#include <cstdint>
#include <optional>
#include <vector>

namespace quillomat {

/// A colour as the system writes it: 0xBBGGRR.
using ColourValue = std::uint32_t;

/// The light band that sweeps over the letters of the splash: the step that is shown and a colour for every letter.
struct LetterBand {
    int step = 0;
    std::vector<ColourValue> colours;
};

/// The band one tick after `step`, over `letter_count` letters. A step that cannot be starts again with no band.
LetterBand next_letter_band(int step, int letter_count);

/// The motto, from 1 to 8, that a random number in [0, 1) picks.
int motto_number(double random);

/// Where the version label of the splash starts, and its next position, in twips; nothing once it has arrived. It may
/// come to rest a little left of its goal.
double version_start_left(double window_width);
std::optional<double> next_version_left(double left);

/// The colour cycle of a main-screen button under the pointer: the step reached and the colour to paint, if it changes.
struct ColourCycle {
    int step = 0;
    std::optional<ColourValue> colour;

    bool operator==(const ColourCycle&) const = default;
};

ColourCycle next_colour_cycle(int step);

/// The main screen's exit confirmation while it grows out of the exit button, in twips.
struct ExitConfirmation {
    double exit_width = 0;
    double yes_top = 0;
    double no_top = 0;

    bool operator==(const ExitConfirmation&) const = default;
};

/// Where the buttons stand while nothing is asked.
inline constexpr double exit_width_resting = 5415;
inline constexpr double answer_top_resting = 4588.138;

/// The next tick from where the buttons are, as read back from the window.
ExitConfirmation next_asking(const ExitConfirmation& current);
ExitConfirmation next_withdrawing(const ExitConfirmation& current);
/// Whether the exit button, as read back from the window, has exactly the width that ends the animation. Rounding to
/// pixels decides whether it ever does; otherwise the ticks go on without a further change.
bool asking_is_complete(double exit_width);
bool withdrawing_is_complete(double exit_width);

/// The left edge, in twips, at which the panel of games and the search panel rest, and where each begins to slide.
inline constexpr double panel_resting_left = 120;
inline constexpr double game_panel_start_left = -2535;
inline constexpr double search_panel_start_left = 2655;

/// The next position of a panel that slides to its rest; nothing once it has arrived or passed it.
std::optional<double> next_game_panel_left(double left);
std::optional<double> next_search_panel_left(double left);

}  // namespace quillomat
