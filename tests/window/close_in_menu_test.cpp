// A window that is closed from outside while a menu of it is open.

#include <gtest/gtest.h>

#include "forms/form.h"
#include "forms/timer.h"
#include "support.h"

namespace quillomat {
namespace {

bool waits_in_menu() {
    GUITHREADINFO thread{};
    thread.cbSize = sizeof thread;
    return GetGUIThreadInfo(GetCurrentThreadId(), &thread) && thread.flags & GUI_INMENUMODE &&
           FindWindowW(L"#32768", nullptr);
}

struct TestDialog : Form {
    explicit TestDialog(Application& application)
        : Form(application, {.name = L"frmTest", .caption = L"Test", .width = 3000, .height = 3000}) {}

    Timer closer{*this, 10};
};

class CloseInMenuTest : public WindowTest {
  protected:
    /// Ends what would else wait for ever.
    static void CALLBACK give_up(HWND, UINT, UINT_PTR timer, DWORD) {
        ADD_FAILURE() << "the dialog does not end";
        KillTimer(nullptr, timer);
        EndMenu();
    }
};

TEST_F(CloseInMenuTest, ADialogEnds) {
    TestDialog owner(application);
    owner.show();
    TestDialog dialog(application);
    bool opened = false;
    dialog.closer.on_timer = [&] {
        if (waits_in_menu()) {
            SendMessageW(dialog.window(), WM_CLOSE, 0, 0);
        } else if (!opened) {
            opened = PostMessageW(dialog.window(), WM_SYSCOMMAND, SC_KEYMENU, ' ');
        }
    };
    const UINT_PTR patience = SetTimer(nullptr, 0, 10'000, give_up);
    dialog.show_modal(&owner);
    KillTimer(nullptr, patience);
    EXPECT_TRUE(opened);
    EXPECT_FALSE(waits_in_menu());
}

}  // namespace
}  // namespace quillomat
