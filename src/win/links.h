#pragma once

#include <string>

namespace quillomat {

/// Opens a web or mail address in the user's own program; false when the system cannot.
bool open_link(const std::wstring& address);

}  // namespace quillomat
