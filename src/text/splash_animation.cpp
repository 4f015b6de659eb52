#include "text/splash_animation.h"

#include <cstddef>
#include <utility>

namespace quillomat {
namespace {

constexpr std::uint32_t dark_grey = 0x404040;
constexpr std::uint32_t mid_grey = 0x808080;
constexpr std::uint32_t light_grey = 0xC0C0C0;

constexpr double version_resting_left = 3960;
constexpr double version_step = 50;

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

}  // namespace quillomat
