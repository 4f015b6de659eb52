#pragma once

#include <functional>

namespace quillomat {

class clsTextBox;

/// Shows the number of lines of a text box in its tool tip.
void show_line_count(const clsTextBox& lines);
/// Updates that tool tip at every change, click, key press and mouse move in the box. Takes over those events, and
/// calls `on_change` after a change.
void keep_line_count(const clsTextBox& lines, std::function<void()> on_change);

}  // namespace quillomat
