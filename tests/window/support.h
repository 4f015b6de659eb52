#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "forms/application.h"
#include "forms/control.h"
#include "forms/message_box.h"
#include "support/desktop.h"
#include "support/input.h"
#include "support/wait.h"

/// Handles messages until the condition holds; fails when it does not within ten seconds.
#define EXPECT_SOON(condition) EXPECT_TRUE(pump_until([&] { return static_cast<bool>(condition); })) << #condition
#define ASSERT_SOON(condition) ASSERT_TRUE(pump_until([&] { return static_cast<bool>(condition); })) << #condition

namespace quillomat {

/// For another thread than the window's: whether the window, once a part of it was uncovered, is painted again within
/// ten seconds.
inline bool is_repainted(HWND window) {
    const auto is_painted = [window] { return !GetUpdateRect(window, nullptr, FALSE); };
    bool repainted = true;
    // Twice: the first painting may have begun before this call. The second one comes after all messages that were
    // posted before.
    for (int time = 0; time < 2; ++time) {
        RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE);
        repainted &= wait_until(is_painted, std::chrono::seconds{10});
    }
    return repainted;
}

/// Windows are tested as they are: real ones, in the test's own process, with real messages.
struct WindowTest : ::testing::Test {
    WindowTest();
    ~WindowTest() override;

    /// Announces the next message box and how it is answered. One that comes unannounced, and one that was announced
    /// and does not come, fail the test.
    void expect_message(const std::wstring& title, const std::wstring& text, int button = IDOK);

    /// Handles messages until the condition holds; false when it does not within ten seconds.
    bool pump_until(const std::function<bool()>& condition);
    /// Handles what waits now.
    void pump() { application.let_pending_events_run(); }

    /// Opens a window in a place that is empty again once it has closed.
    template <class Window, class... Arguments>
    void open_in(std::unique_ptr<Window>& place, Arguments&&... arguments) {
        place = std::make_unique<Window>(application, std::forward<Arguments>(arguments)...);
        place->on_closed = [&place] { place.reset(); };
        place->show();
        pump();
    }

    /// As the user does, so that what goes wrong is shown to the user.
    static void press(const Control& button) { SendMessageW(button.window(), BM_CLICK, 0, 0); }

    /// Changes the user's setting of Windows, for the rest of the test.
    static void set_animations(bool wanted);

    /// Moves the pointer to a place of a window, in pixels from its inner left and top.
    static void move_pointer(HWND window, int x, int y);
    /// Moves the pointer there until the condition holds; false when it does not within ten seconds. The movement is
    /// made again now and then, because a window that has just opened may miss one.
    bool point_until(HWND window, int x, int y, const std::function<bool()>& condition);
    /// Clicks a control with the real pointer, in pixels from its inner left and top.
    void click_on(HWND control, int x = 8, int y = 8);
    /// Presses and releases a mouse button where the pointer is.
    static void click(DWORD down = MOUSEEVENTF_LEFTDOWN, DWORD up = MOUSEEVENTF_LEFTUP);

    /// The text on the clipboard; nothing when there is none.
    static std::wstring clipboard_text();

    /// Presses keys, one after the other, in the menus that open while something is done. Every one must be used.
    void press_in_menus(std::deque<WORD> keys, const std::function<void()>& open);

    Application application{L"Quillomat"};

  private:
    static LRESULT CALLBACK on_window_event(int code, WPARAM wparam, LPARAM lparam);
    void answer(HWND box);

    static WindowTest* running_;
    static inline std::deque<WORD> menu_keys_;
    HHOOK hook_;
    /// Title and text, and the button that answers.
    std::deque<std::pair<std::wstring, int>> announced_;
};

}  // namespace quillomat
