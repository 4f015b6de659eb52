#pragma once

#include <string_view>

namespace quillomat {

class Form;

/// Puts a text on the clipboard. While another program keeps the clipboard open, the windows repaint but take no input.
/// Throws `Error` as `put_on_clipboard` does, after some seconds.
void CopyText(Form& form, std::wstring_view text);

}  // namespace quillomat
