#pragma once

namespace quillomat {

class TextBox;

/// Gives a text box the focus and selects all of its text.
void SelectAllText(TextBox& box);

}  // namespace quillomat
