#pragma once

namespace quillomat {

/// What this process holds of the system.
struct ObjectCounts {
    int gdi = 0;   ///< brushes, fonts, bitmaps, device contexts and the like
    int user = 0;  ///< windows and menus

    bool operator==(const ObjectCounts&) const = default;
};

ObjectCounts count_objects();

}  // namespace quillomat
