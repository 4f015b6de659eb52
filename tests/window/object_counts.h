#pragma once

#include <cstddef>

namespace quillomat {

/// What this process holds of the system.
struct ObjectCounts {
    int gdi = 0;   ///< brushes, fonts, bitmaps, device contexts and the like
    int user = 0;  ///< windows and menus

    bool operator==(const ObjectCounts&) const = default;
};

/// Counts them now. Takes some tenths of a second where the system does not count for itself.
ObjectCounts count_objects();

/// The bytes that the process has allocated and not freed.
std::size_t allocated_bytes();

}  // namespace quillomat
