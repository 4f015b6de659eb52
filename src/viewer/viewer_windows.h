#pragma once

#include <functional>
#include <string>

namespace quillomat {

/// The windows that the viewer opens without including them. A hook that is not bound does nothing.
struct ViewerWindows {
    std::function<void()> save;
    std::function<void()> add_game;
    std::function<void()> mail_cheats;
    std::function<void()> print_list;
    std::function<void()> find;
    /// Opens the message to the author with this text already in it.
    std::function<void(const std::wstring& text)> mail_author;
    /// The viewer has closed: brings a minimised main screen back.
    std::function<void()> restore_main_screen;
};

}  // namespace quillomat
