#include "text/rounding.h"

#include <cmath>
#include <limits>

#include "text/error.h"

namespace quillomat {

int round_half_even(double value) {
    // The program never changes the rounding mode from the default: to nearest, ties to even.
    const double rounded = std::nearbyint(value);
    // Negated as a whole, so that NaN is refused, too.
    if (!(rounded >= std::numeric_limits<int>::min() && rounded <= std::numeric_limits<int>::max())) {
        throw Error(ErrorCode::Overflow);
    }
    return static_cast<int>(rounded);
}

}  // namespace quillomat
