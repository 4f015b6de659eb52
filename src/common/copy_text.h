#pragma once

#include <string_view>

namespace quillomat {

class Form;

/// Copies a text to the clipboard. If another program has the clipboard open, waits up to three seconds; meanwhile the
/// windows repaint but take no input. Throws `Error` as `put_on_clipboard` does.
void CopyText(Form& form, std::wstring_view text);

}  // namespace quillomat
