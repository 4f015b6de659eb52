#pragma once

namespace quillomat {

/// Returns the nearest whole number; a half is rounded to the even neighbour. Throws `Error` with Overflow if the
/// result does not fit into an int.
int round_half_even(double value);

}  // namespace quillomat
