// What is done for hours in the viewer leaves nothing behind. The walk over all windows opens and closes them.

#include "metafile_printer.h"
#include "object_counts.h"
#include "session_support.h"
#include "viewer/frmCtlView.h"

namespace quillomat {
namespace {

struct LeakTest : SessionTest {
    LeakTest() {
        session.open_printer = [this] { return std::make_unique<MetafilePrinter>(printed); };
        write("Cheats.dat", "Type IDDQD.\r\n$$$$$$$$$$$$$$$$$$$$ Game\r\n");
    }

    /// Does it again and again and expects that the process holds no more than after the first times.
    void repeat(const char* what, const std::function<void()>& action) {
        constexpr int warm_up = 40;
        ObjectCounts before;
        for (int i = 0; i < 2 * warm_up; ++i) {
            if (i == warm_up) before = count_objects();
            action();
        }
        EXPECT_EQ(count_objects(), before) << what;
    }

    Printed printed;
    ViewerWindows no_windows;
};

TEST_F(LeakTest, CommandsHoverHelpAndFontsThatWereTried) {
    frmCtlView viewer(application, session, no_windows);
    viewer.show();
    viewer.List2.select_index(0);
    repeat("colours and prints", [&] {
        viewer.menus.mnuColour.pick();
        viewer.menus.mnuPrint.pick();
        pump();
    });
    // The pointer goes to and fro between two helped controls.
    int shown = 0;
    viewer.Text4.on_change = [&shown] { ++shown; };
    repeat("hover", [&] {
        for (const Control* control : {&viewer.Option1, &viewer.Option2}) {
            move_pointer(control->window(), 5, 5);
            pump();
            for (int tick = 0; tick < 10; ++tick) viewer.Timer1.tick();
        }
    });
    EXPECT_GT(shown, 40);

    const ObjectCounts before = count_objects();
    constexpr int kept = 100;  // some of those that are tried again soon, and what the system draws with
    for (int i = 1; i <= 2 * kept; ++i) {
        viewer.menus.add_font(L"Font " + std::to_wstring(i));
        viewer.menus.mnuFontName.back()->pick();
    }
    EXPECT_LT(count_objects().gdi, before.gdi + kept);
}

}  // namespace
}  // namespace quillomat
