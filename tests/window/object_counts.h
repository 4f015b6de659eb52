#pragma once

#include <cstddef>
#include <string>

namespace quillomat {

/// What this process holds of the system.
struct ObjectCounts {
    int gdi = 0;   ///< brushes, fonts, bitmaps, device contexts and the like
    int user = 0;  ///< windows and menus

    bool operator==(const ObjectCounts&) const = default;
};

/// Counts them now. Takes some tenths of a second where the system does not count for itself.
ObjectCounts count_objects();

/// The brushes, fonts and so on of a process, which may be another one, where the system does not count for itself;
/// `process` is a handle that allows reading its memory. 0 when it cannot be read.
int count_gdi_objects(void* process);

/// How many of each kind these are, as " 2 pens 3 fonts": tells what it is that grows.
std::string list_gdi_objects(void* process);

/// The bytes that the process has allocated and not freed.
std::size_t allocated_bytes();

}  // namespace quillomat
