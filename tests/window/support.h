#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "forms/application.h"
#include "forms/message_box.h"
#include "win/api.h"

namespace quillomat {

/// Windows are tested as they are: real ones, in the test's own process, with real messages.
class WindowTest : public ::testing::Test {
  protected:
    WindowTest();
    ~WindowTest() override;

    /// Announces the next message box and how it is answered. One that comes unannounced, and one that was announced
    /// and does not come, fail the test.
    void expect_message(std::wstring title, std::wstring text, int button = IDOK);

    /// Handles messages until the condition holds; false when it does not within ten seconds.
    bool pump_until(const std::function<bool()>& condition);
    /// Handles what waits now.
    void pump() { application.let_pending_events_run(); }

    /// Real input: presses and releases a key on whatever has the focus.
    static void press_key(WORD key, std::initializer_list<WORD> held = {});
    /// Moves the pointer to a place of a window, in pixels from its inner left and top.
    static void move_pointer(HWND window, int x, int y);
    /// Moves the pointer there until the condition holds; false when it does not within ten seconds. The movement is
    /// made again now and then, because a window that has just opened may miss one.
    bool point_until(HWND window, int x, int y, const std::function<bool()>& condition);
    /// Presses and releases a mouse button where the pointer is.
    static void click(DWORD down = MOUSEEVENTF_LEFTDOWN, DWORD up = MOUSEEVENTF_LEFTUP);

    Application application{L"Quillomat"};

  private:
    struct Announced {
        std::wstring title;
        std::wstring text;
        int button;
    };

    static LRESULT CALLBACK on_window_event(int code, WPARAM wparam, LPARAM lparam);
    void answer(HWND box);

    static WindowTest* running_;
    HHOOK hook_;
    std::vector<Announced> announced_;
};

}  // namespace quillomat
