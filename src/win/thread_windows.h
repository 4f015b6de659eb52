#pragma once

#include <vector>

#include "win/api.h"

namespace quillomat {

/// Returns the top-level windows of this thread from front to back, hidden ones included. Throws std::bad_alloc.
std::vector<HWND> thread_windows();

}  // namespace quillomat
