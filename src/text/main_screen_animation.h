#pragma once

#include <cstdint>
#include <optional>

namespace quillomat {

/// The colour cycle of the main screen's largest button while the pointer is on it.
struct ColourCycle {
    int step = 0;
    std::optional<std::uint32_t> colour;  ///< the new colour as 0xBBGGRR; nothing if it stays
};

/// Returns the cycle one tick after `step`.
ColourCycle next_colour_cycle(int step);

/// The changing sizes and positions of the buttons of the exit question, in twips.
struct ExitConfirmation {
    double exit_width = 0;
    double yes_top = 0;
    double no_top = 0;

    bool operator==(const ExitConfirmation&) const = default;
};

/// The exit button's width and the answers' top edge while nothing is asked.
inline constexpr double exit_width_resting = 5415;
inline constexpr double answer_top_resting = 4588.138;

/// Returns the next step while the exit button shrinks and the answers rise, or while both return. `current` comes
/// from the window, rounded to pixels.
ExitConfirmation next_asking(const ExitConfirmation& current);
ExitConfirmation next_withdrawing(const ExitConfirmation& current);
/// Returns true if the exit button has exactly the width that ends the animation. Because of the rounding to pixels it
/// may never have that width; the timer then ticks on without further changes.
bool asking_is_complete(double exit_width);
bool withdrawing_is_complete(double exit_width);

}  // namespace quillomat
