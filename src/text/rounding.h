#pragma once

namespace quillomat {

/// The nearest whole number, a half going to the even neighbour. Throws `Error` with Overflow when an int cannot hold
/// it.
int round_half_even(double value);

}  // namespace quillomat
