#include "support.h"

#include "layout_checks.h"

namespace quillomat {
namespace {

std::wstring message(const std::wstring& title, const std::wstring& text) {
    std::wstring both = title + L": " + text;
    std::erase(both, L'\r');
    return both;
}

}  // namespace

WindowTest* WindowTest::running_ = nullptr;

WindowTest::WindowTest() : hook_(SetWindowsHookExW(WH_CBT, on_window_event, nullptr, GetCurrentThreadId())) {
    running_ = this;
    // No window of a test opens under the pointer of the one before.
    move_pointer(GetDesktopWindow(), GetSystemMetrics(SM_CXSCREEN) - 2, GetSystemMetrics(SM_CYSCREEN) - 2);
}

WindowTest::~WindowTest() {
    // What a handler threw is reported from the message loop.
    pump();
    set_animations(true);
    UnhookWindowsHookEx(hook_);
    running_ = nullptr;
    EXPECT_TRUE(announced_.empty()) << "announced messages never came: " << ::testing::PrintToString(announced_);
}

LRESULT CALLBACK WindowTest::on_window_event(int code, WPARAM wparam, LPARAM lparam) {
    const auto window = reinterpret_cast<HWND>(wparam);
    // A message box is complete when it is first activated; its answer is posted, so that it is really shown. It may be
    // activated again before it has gone.
    if (code == HCBT_ACTIVATE && running_ && class_of(window) == message_box_class && !GetPropW(window, L"answered")) {
        SetPropW(window, L"answered", window);
        running_->answer(window);
    }
    return CallNextHookEx(nullptr, code, wparam, lparam);
}

void WindowTest::expect_message(const std::wstring& title, const std::wstring& text, int button) {
    announced_.emplace_back(message(title, text), button);
}

void WindowTest::answer(HWND box) {
    EXPECT_EQ(forms_and_messages(TRUE, box), "") << "take input beside the message";
    std::pair expected{std::wstring(L"no message"), refusing_button(box)};
    if (!announced_.empty()) {
        expected = announced_.front();
        announced_.pop_front();
    }
    EXPECT_EQ(message(text_of(box), message_of(box)), expected.first);
    answer_message(box, expected.second);
}

bool WindowTest::pump_until(const std::function<bool()>& condition) {
    return wait_until(condition, std::chrono::seconds{10}, [this] {
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
        pump();
    });
}

void WindowTest::set_animations(bool wanted) {
    SystemParametersInfoW(SPI_SETCLIENTAREAANIMATION, 0, reinterpret_cast<void*>(INT_PTR{wanted}), 0);
}

void WindowTest::move_pointer(HWND window, int x, int y) {
    POINT point{x, y};
    ClientToScreen(window, &point);
    // Real input: just setting the position does not tell the window under it.
    send_mouse(MOUSEEVENTF_MOVE, point);
}

bool WindowTest::point_until(HWND window, int x, int y, const std::function<bool()>& condition) {
    constexpr ULONGLONG patience = 500;
    ULONGLONG moved = 0;
    int nudge = 0;
    return pump_until([&] {
        if (GetTickCount64() > moved + patience) {
            move_pointer(window, x + nudge, y);
            nudge = 1 - nudge;
            moved = GetTickCount64();
        }
        return condition();
    });
}

void WindowTest::click_on(HWND control, int x, int y) {
    POINT pointer{};
    ASSERT_TRUE(
        point_until(control, x, y, [&] { return GetCursorPos(&pointer) && WindowFromPoint(pointer) == control; }));
    click();
}

void WindowTest::click(DWORD down, DWORD up) {
    send_mouse(down);
    send_mouse(up);
}

void WindowTest::press_in_menus(std::deque<WORD> keys, const std::function<void()>& open) {
    menu_keys_ = std::move(keys);
    const UINT_PTR timer = SetTimer(nullptr, 0, 20, [](HWND, UINT, UINT_PTR, DWORD) {
        if (!in_menu() || menu_keys_.empty()) return;
        press_key(menu_keys_.front());
        menu_keys_.pop_front();
    });
    open();
    EXPECT_SOON(menu_keys_.empty()) << "no menu has opened";
    KillTimer(nullptr, timer);
}

std::wstring WindowTest::clipboard_text() {
    std::wstring text;
    if (!OpenClipboard(nullptr)) return text;
    if (const HANDLE memory = GetClipboardData(CF_UNICODETEXT)) {
        text = static_cast<const wchar_t*>(GlobalLock(memory));
        GlobalUnlock(memory);
    }
    CloseClipboard();
    return text;
}

}  // namespace quillomat
