#pragma once

#include <functional>
#include <string>

namespace quillomat {

/// Hooks by which the viewer opens other windows without including them. An unbound hook does nothing.
struct ViewerWindows {
    std::function<void()> save;
    std::function<void()> add_game;
    std::function<void()> mail_cheats;
    std::function<void()> print_list;
    std::function<void()> find;
    /// Opens the message to the author with this text already in it.
    std::function<void(const std::wstring& text)> mail_author;
    /// Restores the main screen if it is minimised; called while the viewer closes.
    std::function<void()> restore_main_screen;
};

}  // namespace quillomat
