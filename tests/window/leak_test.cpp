// What is opened and closed again, and what goes on for hours, leaves nothing behind.

#include <algorithm>
#include <cstdlib>

#include "metafile_printer.h"
#include "object_counts.h"
#include "session_support.h"
#include "shell/Dialog1.h"
#include "shell/frmAbout.h"
#include "shell/frmMain.h"
#include "shell/frmWait.h"
#include "shell/windows.h"
#include "viewer/frmCtlView.h"

namespace quillomat {
namespace {

/// How many times as often as usual everything is repeated: QUILLOMAT_REPEATS=250 makes a long run.
int repeats() {
    const char* factor = std::getenv("QUILLOMAT_REPEATS");
    return factor ? std::max(1, std::atoi(factor)) : 1;
}

struct LeakTest : SessionTest {
    LeakTest() {
        session.open_printer = [this] { return std::make_unique<MetafilePrinter>(printed); };
        std::string database;
        for (int i = 0; i < 500; ++i)
            database += "Type IDDQD.\r\n$$$$$$$$$$$$$$$$$$$$ Game " + std::to_string(i) + "\r\n";
        write("Cheats.dat", database);
    }

    /// Does it again and again and expects that the process holds no more than before then.
    void repeat(const char* what, int times, const std::function<void()>& action) {
        constexpr int warm_up = 20;
        times *= repeats();
        // Of every message box Wine keeps 24 bytes for good.
        const std::size_t noise = 100'000 + 24 * static_cast<std::size_t>(times);
        for (int i = 0; i < warm_up; ++i) action();
        const ObjectCounts objects = count_objects();
        const std::size_t bytes = allocated_bytes();
        for (int i = 0; i < times; ++i) action();
        EXPECT_EQ(count_objects(), objects) << what;
        EXPECT_LT(allocated_bytes(), bytes + noise) << what;
    }

    Printed printed;
    ViewerWindows no_windows;
    PointerState pointer;
};

int brushes_in(const std::string& kinds) {
    const std::size_t end = kinds.find(" brushes");
    return end == std::string::npos ? -1 : std::stoi(kinds.substr(kinds.rfind(' ', end - 1)));
}

TEST_F(LeakTest, CountsWhatIsLeftOpen) {
    const ObjectCounts before = count_objects();
    const std::size_t bytes_before = allocated_bytes();
    const std::string kinds_before = list_gdi_objects(GetCurrentProcess());
    const HBRUSH brush = CreateSolidBrush(0x123456);
    const HMENU menu = CreatePopupMenu();
    const auto memory = std::make_unique<char[]>(100'000);
    const ObjectCounts after = count_objects();
    EXPECT_GT(after.gdi, before.gdi);
    EXPECT_EQ(brushes_in(list_gdi_objects(GetCurrentProcess())), brushes_in(kinds_before) + 1);
    EXPECT_GT(after.user, before.user);
    EXPECT_GE(allocated_bytes(), bytes_before + 100'000);
    DestroyMenu(menu);
    DeleteObject(brush);
}

TEST_F(LeakTest, OpeningTheViewer) {
    Windows windows(application, session);
    windows.open_main_screen();
    auto& main_screen = *find_form<frmMain>();
    repeat("openings", 40, [&] {
        main_screen.Command4.click();
        ASSERT_TRUE(pump_until([] { return find_form<frmCtlView>() && !find_form<frmWait>(); }));
        ASSERT_EQ(find_form<frmCtlView>()->List2.count(), 500);
        find_form<frmCtlView>()->close();
        ASSERT_TRUE(pump_until([] { return !find_form<frmCtlView>(); }));
    });
    main_screen.close();
    EXPECT_EQ(application.run(), 0);
}

TEST_F(LeakTest, HoverHelp) {
    frmCtlView viewer(application, session, no_windows);
    viewer.show();
    int shown = 0;
    viewer.Text4.on_change = [&shown] { ++shown; };
    // The pointer goes to and fro between two helped controls.
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
    for (int i = 1; i <= 400; ++i) {
        viewer.menus.add_font(L"Font " + std::to_wstring(i));
        viewer.menus.mnuFontName.back()->pick();
        ASSERT_EQ(viewer.Text1.font().name, L"Font " + std::to_wstring(i));
    }
    constexpr int kept = 100;  // some of those that are tried again soon, and what the system draws with
    EXPECT_LT(count_objects().gdi, before.gdi + kept);
    // What is on the screen keeps its font, be it new or old.
    for (HWND control = GetWindow(viewer.window(), GW_CHILD); control; control = GetWindow(control, GW_HWNDNEXT)) {
        const LRESULT font = SendMessageW(control, WM_GETFONT, 0, 0);
        EXPECT_TRUE(!font || is_font(font));
    }
    EXPECT_TRUE(is_font(SendMessageW(viewer.Text1.window(), WM_GETFONT, 0, 0)));
    EXPECT_TRUE(is_font(SendMessageW(viewer.List2.window(), WM_GETFONT, 0, 0)));
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
    repeat("animations", 300, step);
}

TEST_F(LeakTest, Commands) {
    frmCtlView viewer(application, session, no_windows);
    viewer.show();
    viewer.List2.select_index(0);
    repeat("colours", 40, [&] {
        viewer.menus.mnuColour.pick();
        pump();
    });
    repeat("copies", 40, [&] {
        expect_message(L"Quillomat", L"The cheat codes for Game 0 have been copied to the clipboard.");
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
    repeat("menus", 40, [&] { viewer.pop_up(*menus[opened++ % std::size(menus)], 100, 100); });
    KillTimer(nullptr, timer);
}

}  // namespace
}  // namespace quillomat
