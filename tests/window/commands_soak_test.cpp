// The commands a player gives again and again leave nothing behind.

#include <fstream>

#include "common/session.h"
#include "metafile_printer.h"
#include "object_counts.h"
#include "support.h"
#include "temporary.h"
#include "viewer/frmCtlView.h"
#include "win/clipboard.h"

namespace quillomat {
namespace {

class CommandsSoakTest : public WindowTest {
  protected:
    CommandsSoakTest() {
        session.program_folder = folder.path().wstring();
        session.settings = registry.settings();
        session.open_printer = [this] { return std::make_unique<MetafilePrinter>(printed); };
        std::ofstream(folder.path() / "Cheats.dat", std::ios::binary) << "IDDQD\r\n$$$$$$$$$$$$$$$$$$$$ Doom\r\n";
        viewer.show();
        viewer.List2.select_index(0);
        pump();
    }

    /// Does it `times` times and expects that the process holds no more of the system's objects then.
    void repeat(const char* what, int times, const std::function<void()>& action) {
        constexpr int warm_up = 20;
        for (int i = 0; i < warm_up; ++i) action();
        const ObjectCounts objects = count_objects();
        for (int i = 0; i < times; ++i) action();
        const ObjectCounts later = count_objects();
        EXPECT_EQ(later.gdi, objects.gdi) << what;
        EXPECT_EQ(later.user, objects.user) << what;
    }

    TemporaryFolder folder;
    TemporarySettings registry;
    Session session;
    ViewerWindows windows;
    Printed printed;
    frmCtlView viewer{application, session, windows};
};

TEST_F(CommandsSoakTest, CommandsLeaveNothingBehind) {
    repeat("colours", 10'000, [this] { viewer.menus.mnuColour.pick(); });
    repeat("colours seen", 300, [this] {
        viewer.menus.mnuColour.pick();
        pump();
    });
    repeat("menus", 10'000, [this] {
        for (const Menu* menu : {&viewer.menus.mnuMenu, &viewer.menus.mnuOptions, &viewer.menus.mnuFont}) {
            SendMessageW(viewer.window(), WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu->handle()), 0);
        }
    });
    repeat("clipboard", 10'000, [this] { put_on_clipboard(viewer.window(), viewer.Text1.text()); });
    // A message takes its time to come up.
    repeat("copies with their message", 50, [this] {
        expect_message(L"Quillomat", L"The cheat codes for Doom have been copied to the clipboard.");
        viewer.menus.mnuCopy.pick();
    });
    repeat("prints", 200, [this] {
        printed.pages.clear();
        viewer.menus.mnuPrint.pick();
    });
    repeat("hover", 50, [this] {
        for (const Image& image : viewer.Image2) {
            SendMessageW(viewer.window(), WM_MOUSEMOVE, 0, MAKELPARAM(image.pixels().left + 5, image.pixels().top + 5));
        }
        pump();
    });
}

TEST_F(CommandsSoakTest, OpenedMenusLeaveNothingBehind) {
    const UINT_PTR timer = SetTimer(nullptr, 0, 1, [](HWND, UINT, UINT_PTR, DWORD) {
        const HWND menu = FindWindowW(L"#32768", nullptr);
        if (menu && IsWindowVisible(menu)) EndMenu();
    });
    repeat("popups", 300, [this] { viewer.pop_up(viewer.menus.mnuPrintOptions, 100, 100); });
    KillTimer(nullptr, timer);
}

}  // namespace
}  // namespace quillomat
