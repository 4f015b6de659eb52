#pragma once

#include <string>

namespace quillomat {

/// Opens a web or mail address in the user's default program. Returns false if Windows cannot open it.
bool open_link(const std::wstring& address);

}  // namespace quillomat
