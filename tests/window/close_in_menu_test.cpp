// A window that is closed from outside while a menu of it is open.

#include "forms/form.h"
#include "forms/timer.h"
#include "support.h"

namespace quillomat {
namespace {

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
    const FormDesign design{.name = L"frmTest", .caption = L"Test", .width = 3000, .height = 3000};
    Form owner(application, design);
    owner.show();
    Form dialog(application, design);
    Timer closer(dialog, 10);
    bool opened = false;
    closer.on_timer = [&] {
        if (in_menu() && FindWindowW(L"#32768", nullptr)) {
            SendMessageW(dialog.window(), WM_CLOSE, 0, 0);
        } else if (!opened) {
            opened = PostMessageW(dialog.window(), WM_SYSCOMMAND, SC_KEYMENU, ' ');
        }
    };
    const UINT_PTR patience = SetTimer(nullptr, 0, 10'000, give_up);
    dialog.show_modal(&owner);
    KillTimer(nullptr, patience);
    EXPECT_TRUE(opened);
    EXPECT_FALSE(in_menu());
}

}  // namespace
}  // namespace quillomat
