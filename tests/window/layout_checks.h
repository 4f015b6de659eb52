#pragma once

#include <vector>

#include "win/api.h"

namespace quillomat {

/// Everything on the window lies inside of what it stands on, nothing overlaps, and every text has the room it needs.
void expect_whole_layout(HWND window);

/// No two captions on the window and its menu bar, and no two entries of one menu, have the same access key.
void expect_unique_access_keys(HWND window);

/// A screen reader finds a name for every input.
void expect_spoken_names(HWND window);

/// The inputs that the Tab key must reach, in any order; of a group of options only one.
std::vector<HWND> inputs_of(HWND window);

/// Each control of a walk by the Tab key, all the way round, stands below or to the right of the one before.
void expect_reading_order(const std::vector<HWND>& walk);

/// While a dialog or a message box is open, it is the only visible window of the program that takes input.
void expect_only_one_takes_input(HWND dialog);

/// True if every visible window of the program takes input.
bool all_take_input();

}  // namespace quillomat
