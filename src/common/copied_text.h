#pragma once

#include <string_view>

namespace quillomat {

class Form;

/// Copies a text to the clipboard. If another program keeps the clipboard open, waits some seconds, in which the
/// windows repaint but take no input. Throws `Error` as `put_on_clipboard` does.
void CopyText(Form& form, std::wstring_view text);

}  // namespace quillomat
