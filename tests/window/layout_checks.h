#pragma once

#include <string>
#include <vector>

#include "win/api.h"

namespace quillomat {

/// Everything on the window lies inside of what it stands on, nothing overlaps, and every text has the room it needs.
void expect_whole_layout(HWND window);

/// No two captions on the window and its menu bar, and no two entries of one menu, have the same access key; and a
/// screen reader finds a name for every input.
void expect_access_keys_and_names(HWND window);

/// The inputs that the Tab key must reach, in any order; of a group of options only the chosen one.
std::vector<HWND> inputs_of(HWND window);

/// Each control of a walk by the Tab key, all the way round, stands below or to the right of the one before.
void expect_reading_order(const std::vector<HWND>& walk);

/// Lists the visible windows of the program and its message boxes, those that take input or those that wait for others.
std::string forms_and_messages(BOOL taking_input, HWND except = nullptr);

}  // namespace quillomat
