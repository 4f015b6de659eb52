#pragma once

namespace quillomat {

/// Returns whether the user wants animations inside windows, as set in the accessibility settings of Windows.
bool animations_wanted();

}  // namespace quillomat
