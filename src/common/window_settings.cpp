#include "common/window_settings.h"

#include <algorithm>
#include <limits>

#include "text/rounding.h"

namespace quillomat {

WindowState window_state_of(std::int32_t stored) {
    return stored == 1 ? WindowState::Minimised : stored == 2 ? WindowState::Maximised : WindowState::Normal;
}

std::int16_t stored_size(double twips) {
    return static_cast<std::int16_t>(
        round_half_even(std::min<double>(twips, std::numeric_limits<std::int16_t>::max())));
}

}  // namespace quillomat
