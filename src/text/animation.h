#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
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

/// The cycle one tick after `step`.
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

/// The next size of the about box's title while it shrinks or grows, in points; nothing once it must turn round.
std::optional<double> next_shrinking_title(double points);
std::optional<double> next_growing_title(double points);

/// Which character of the author dialog's caption is the next one in upper case, counted from 1; 0 is before the first.
int next_capital(int position, std::size_t caption_length);
/// `caption` with the character at `position`, counted from 1, in upper case. What follows it is cut to
/// `address_length` less `position` characters, the length of the dialog's address text.
std::wstring with_capital(std::wstring_view caption, int position, std::size_t address_length);

/// The author dialog's picture turns about its vertical axis: the fraction of a turn it has made, from the fraction
/// before, of which there is none on the first tick.
double next_turn(std::optional<double> turn);
/// How wide the picture looks at a fraction of a turn, from 1 over 0, seen from its edge, to -1, seen from behind.
double turned_width(double turn);

/// Which of its three pictures the author dialog's icon shows next, from 0.
int next_icon(int icon);

/// The next height of the author dialog's window while it grows to show the links or shrinks to hide them, in twips;
/// nothing once it is there. It may go a little further than its goal.
inline constexpr double author_dialog_height = 5400;
std::optional<double> next_expanded_height(double height);
std::optional<double> next_contracted_height(double height);

}  // namespace quillomat
