#pragma once

#include "win/api.h"
#include "window/object_counts.h"

namespace quillomat::soak {

/// Returns the numbers of GDI and USER objects of another process. Wine: 0 GDI objects, and the USER objects of all
/// processes together.
ObjectCounts count_objects_of(HANDLE process);

}  // namespace quillomat::soak
