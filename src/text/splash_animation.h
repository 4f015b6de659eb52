#pragma once

#include <cstdint>
#include <optional>
#include <vector>

namespace quillomat {

/// A step of the band of light that sweeps over the letters of the splash, and the colour of every letter as 0xBBGGRR.
struct LetterBand {
    int step = 0;
    std::vector<std::uint32_t> colours;
};

/// Returns the band one tick after `step`, over `letter_count` letters. After an invalid step, no letter is lit and the
/// band starts again.
LetterBand next_letter_band(int step, int letter_count);

/// Returns the motto, from 1 to 8, for a random number in [0, 1).
int motto_number(double random);

/// Returns where the version label starts, in twips, in a window of this width.
double version_start_left(double window_width);
/// Returns the version label's next position, in twips, or nothing once the label has arrived. It comes to rest up to
/// 49 twips beyond its goal.
std::optional<double> next_version_left(double left);

}  // namespace quillomat
