#pragma once

#include "win/api.h"
#include "window/object_counts.h"

namespace quillomat::soak {

/// What another process holds of the system. Where the system does not count by process, `user` is what all processes
/// together hold: windows, menus, icons and all else that has a handle of that kind.
ObjectCounts count_objects_of(HANDLE process);

}  // namespace quillomat::soak
