// What goes on for hours in one window leaves nothing behind. The walk over all windows opens and closes them.

#include "metafile_printer.h"
#include "object_counts.h"
#include "session_support.h"
#include "shell/Dialog1.h"
#include "shell/frmAbout.h"
#include "viewer/frmCtlView.h"

namespace quillomat {
namespace {

struct LeakTest : SessionTest {
    LeakTest() {
        session.open_printer = [this] { return std::make_unique<MetafilePrinter>(printed); };
        write("Cheats.dat", "Type IDDQD.\r\n$$$$$$$$$$$$$$$$$$$$ Game\r\n");
    }

    /// Does it again and again and expects that the process holds no more than before then.
    void repeat(const char* what, int times, const std::function<void()>& action) {
        constexpr int warm_up = 20;
        for (int i = 0; i < warm_up; ++i) action();
        const ObjectCounts before = count_objects();
        for (int i = 0; i < times; ++i) action();
        EXPECT_EQ(count_objects(), before) << what;
    }

    Printed printed;
    ViewerWindows no_windows;
    PointerState pointer;
};

TEST_F(LeakTest, CommandsAndHoverHelp) {
    frmCtlView viewer(application, session, no_windows);
    viewer.show();
    viewer.List2.select_index(0);
    repeat("colours", 40, [&] {
        viewer.menus.mnuColour.pick();
        pump();
    });
    repeat("copies", 40, [&] {
        expect_message(L"Quillomat", L"The cheat codes for Game have been copied to the clipboard.");
        viewer.menus.mnuCopy.pick();
    });
    repeat("prints", 40, [&] {
        printed.pages.clear();
        viewer.menus.mnuPrint.pick();
    });
    const UINT_PTR timer = SetTimer(nullptr, 0, 1, [](HWND, UINT, UINT_PTR, DWORD) {
        const HWND menu = FindWindowW(L"#32768", nullptr);
        if (menu && IsWindowVisible(menu)) EndMenu();
    });
    Menu* const menus[] = {&viewer.menus.mnuMenu, &viewer.menus.mnuOptions, &viewer.menus.mnuFont,
                           &viewer.menus.mnuSelected, &viewer.menus.mnuTextBox};
    int opened = 0;
    repeat("menus", 40, [&] { menus[opened++ % std::size(menus)]->pop_up(100, 100); });
    KillTimer(nullptr, timer);
    // The pointer goes to and fro between two helped controls.
    int shown = 0;
    viewer.Text4.on_change = [&shown] { ++shown; };
    repeat("hover", 40, [&] {
        for (const Control* control : {&viewer.Option1, &viewer.Option2}) {
            RECT area{};
            GetWindowRect(control->window(), &area);
            SetCursorPos(area.left + 5, area.top + 5);
            pump();
            for (int tick = 0; tick < 10; ++tick) viewer.Timer1.tick();
        }
    });
    EXPECT_GT(shown, 40);
}

TEST_F(LeakTest, FontsThatWereTried) {
    frmCtlView viewer(application, session, no_windows);
    viewer.show();
    const auto is_font = [](LRESULT handle) { return GetObjectType(reinterpret_cast<HGDIOBJ>(handle)) == OBJ_FONT; };
    const ObjectCounts before = count_objects();
    constexpr int fonts = 200;
    constexpr int kept = 100;  // some of those that are tried again soon, and what the system draws with
    for (int i = 1; i <= fonts; ++i) {
        viewer.menus.add_font(L"Font " + std::to_wstring(i));
        viewer.menus.mnuFontName.back()->pick();
        ASSERT_EQ(viewer.Text1.font().name, L"Font " + std::to_wstring(i));
    }
    EXPECT_LT(count_objects().gdi, before.gdi + kept);
    // What is on the screen keeps its font, be it new or old.
    for (HWND control = GetWindow(viewer.window(), GW_CHILD); control; control = GetWindow(control, GW_HWNDNEXT)) {
        const LRESULT font = SendMessageW(control, WM_GETFONT, 0, 0);
        EXPECT_TRUE(!font || is_font(font));
    }
}

TEST_F(LeakTest, Animations) {
    frmAbout about(application, pointer, 1);
    Dialog1 author(application, pointer);
    about.show();
    author.show();
    const auto step = [&] {
        for (Timer* timer :
             {&about.Timer1, &about.Timer2, &author.Timer1, &author.Timer2, &author.Timer3, &author.Timer4}) {
            timer->tick();
        }
        UpdateWindow(about.window());
        UpdateWindow(author.picCopy.window());
    };
    constexpr int sizes_of_title = 20;  // their fonts are made once and kept
    for (int i = 0; i < 2 * sizes_of_title; ++i) step();
    repeat("animations", 100, step);
}

}  // namespace
}  // namespace quillomat
