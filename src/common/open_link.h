#pragma once

#include <string>

namespace quillomat {

class Form;

/// Opens a web page or a "mailto:" address in the user's own program. If that fails, tells the user in a message box
/// above `form`.
void OpenLink(Form& form, const std::wstring& address);

}  // namespace quillomat
