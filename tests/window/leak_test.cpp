// What is opened and closed again, and what goes on for hours, leaves nothing behind.

#include <fstream>

#include "common/session.h"
#include "object_counts.h"
#include "open_forms.h"
#include "shell/frmMain.h"
#include "shell/frmWait.h"
#include "shell/windows.h"
#include "support.h"
#include "temporary.h"
#include "viewer/frmCtlView.h"

namespace quillomat {
namespace {

class LeakTest : public WindowTest {
  protected:
    LeakTest() {
        session.program_folder = folder.path().wstring();
        session.settings = registry.settings();
        std::ofstream database(folder.path() / "Cheats.dat", std::ios::binary);
        for (int i = 0; i < 500; ++i) database << "Type IDDQD.\r\n$$$$$$$$$$$$$$$$$$$$ Game " << i << "\r\n";
    }

    TemporaryFolder folder;
    TemporarySettings registry;
    Session session;
};

TEST_F(LeakTest, CountsWhatIsLeftOpen) {
    const ObjectCounts before = count_objects();
    const std::size_t bytes_before = allocated_bytes();
    const HBRUSH brush = CreateSolidBrush(0x123456);
    const HMENU menu = CreatePopupMenu();
    const HWND window = CreateWindowW(L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    const auto memory = std::make_unique<char[]>(100'000);
    const ObjectCounts after = count_objects();
    EXPECT_GE(after.gdi, before.gdi + 1);
    EXPECT_GE(after.user, before.user + 2);
    EXPECT_GE(allocated_bytes(), bytes_before + 100'000);
    DestroyWindow(window);
    DestroyMenu(menu);
    DeleteObject(brush);
    EXPECT_EQ(count_objects().user, before.user);
}

TEST_F(LeakTest, TwoHundredOpeningsOfTheViewer) {
    constexpr int warm_up = 20;
    constexpr int openings = 200;
    {
        Windows windows(application, session);
        windows.open_main_screen();
        auto& main_screen = *find_form<frmMain>();
        ObjectCounts objects;
        std::size_t bytes = 0;
        for (int i = 1; i <= warm_up + openings; ++i) {
            main_screen.Command4.click();
            ASSERT_TRUE(pump_until([] { return find_form<frmCtlView>() && !find_form<frmWait>(); }));
            ASSERT_EQ(find_form<frmCtlView>()->List2.count(), 500);
            find_form<frmCtlView>()->close();
            ASSERT_TRUE(pump_until([] { return !find_form<frmCtlView>(); }));
            if (i == warm_up) {
                objects = count_objects();
                bytes = allocated_bytes();
            }
        }
        EXPECT_EQ(count_objects(), objects);
        EXPECT_LT(allocated_bytes(), bytes + 1'000'000);
        main_screen.close();
        EXPECT_EQ(application.run(), 0);
    }
}

TEST_F(LeakTest, TenThousandTicksOfHoverHelp) {
    const ViewerWindows none;
    frmCtlView viewer(application, session, none);
    viewer.show();
    // The pointer goes to and fro between two helped controls.
    Control* const controls[] = {&viewer.Option1, &viewer.Option2};
    const auto ticks = [&](int count) {
        for (int i = 0; i < count; ++i) {
            if (i % 20 == 0) {
                RECT area{};
                GetWindowRect(controls[i / 20 % 2]->window(), &area);
                SetCursorPos(area.left + 5, area.top + 5);
                pump();
            }
            viewer.Timer1.tick();
        }
    };
    int shown = 0;
    viewer.Text4.on_change = [&shown] { ++shown; };
    ticks(100);
    const ObjectCounts objects = count_objects();
    const std::size_t bytes = allocated_bytes();
    ticks(10'000);
    EXPECT_EQ(count_objects(), objects);
    EXPECT_LT(allocated_bytes(), bytes + 100'000);
    EXPECT_GT(shown, 400);
}

}  // namespace
}  // namespace quillomat
