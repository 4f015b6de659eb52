#pragma once

#include <functional>
#include <string>

namespace quillomat {

/// What the main screen opens without knowing it. What is not bound does nothing.
struct MainWindows {
    /// Opens the viewer, by way of the loading window.
    std::function<void()> cheats;
    std::function<void()> about;
    std::function<void()> about_author;
    std::function<void()> mail_author;
    /// Opens a web or mail address in the user's own program.
    std::function<void(const std::wstring& address)> link;
    /// The main screen closes, and every other window with it.
    std::function<void()> close_all;
};

}  // namespace quillomat
