#pragma once

namespace quillomat {

class clsTextBox;

/// Has the tool tip of a text box say how many lines the box has.
void show_line_count(const clsTextBox& lines);
/// The same whenever something happens in the box from now on. Takes over the box's change, click, character and
/// mouse movement events.
void keep_line_count(const clsTextBox& lines);

}  // namespace quillomat
