#pragma once

namespace quillomat {

class clsTextBox;

/// Shows the number of lines of a text box in its tool tip.
void show_line_count(const clsTextBox& lines);
/// Keeps that tool tip up to date from now on. Takes over the box's change, click, character and mouse movement events.
void keep_line_count(const clsTextBox& lines);

}  // namespace quillomat
