#pragma once

#include <functional>
#include <string>

namespace quillomat {

/// Hooks by which the main screen opens other windows without including them. An unbound hook does nothing.
struct MainWindows {
    /// Shows the loading window, which opens the viewer.
    std::function<void()> cheats;
    std::function<void()> about;
    std::function<void()> about_author;
    std::function<void()> mail_author;
    /// Opens a web or mail address in the user's browser or mail program.
    std::function<void(const std::wstring& address)> link;
    /// Closes every other window; called while the main screen closes.
    std::function<void()> close_all;
};

}  // namespace quillomat
