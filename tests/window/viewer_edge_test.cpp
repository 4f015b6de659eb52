// The viewer where a caption, a resolution or a screen is not the usual one.

#include "common/window_settings.h"
#include "output/frmAddNew.h"
#include "shown_viewer.h"

namespace quillomat {
namespace {

class ViewerEdgeTest : public ShownViewerTest {
  protected:
    ~ViewerEdgeTest() override { application.force_dpi(0); }

    void change_resolution(int dpi) {
        application.force_dpi(dpi);
        const RECT place{0, 0, 900, 600};
        SendMessageW(viewer->window(), WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&place));
    }
};

TEST_F(ViewerEdgeTest, AChangeOfResolutionKeepsTheGamesNameWhileMinimised) {
    open_viewer("text\r\n$$$$$$$$$$$$$$$$$$$$ Game\r\n");
    viewer->List2.select_index(0);
    viewer->set_window_state(WindowState::Minimised);
    ASSERT_TRUE(pump_until([this] { return viewer->caption() == L"Quillomat - "; }));
    change_resolution(120);
    viewer->set_window_state(WindowState::Normal);
    EXPECT_TRUE(pump_until([this] { return viewer->caption() == L"Game"; }));
}

TEST_F(ViewerEdgeTest, AScreenBelowTheSmallestSizeIsMadeUseOf) {
    // At this resolution the smallest sizes are larger than any window the system allows on the tests' screen.
    application.force_dpi(480);
    open_viewer("text\r\n$$$$$$$$$$$$$$$$$$$$ Game\r\n");
    EXPECT_NEAR(viewer->Text1.width(), viewer->width() - 2980, 15);
    EXPECT_NEAR(viewer->List2.height(), viewer->height() - 2115, 15);

    frmAddNew window(application, session, *link);
    window.show();
    pump();
    EXPECT_NEAR(window.Text1.width(), window.width() - 360, 15);
}

TEST_F(ViewerEdgeTest, TheMenuNamesADoubleClickedWordAsItIs) {
    open_viewer("R&D code\r\n$$$$$$$$$$$$$$$$$$$$ Game\r\n");
    viewer->List2.select_index(0);
    viewer->Text1.select(0, 4);
    const UINT_PTR timer = SetTimer(nullptr, 0, 10, [](HWND, UINT, UINT_PTR, DWORD) { EndMenu(); });
    viewer->Text1.on_double_click();
    KillTimer(nullptr, timer);
    wchar_t shown[40]{};
    GetMenuStringW(viewer->menus.mnuTextBox.handle(), 0, shown, 40, MF_BYPOSITION);
    EXPECT_STREQ(shown, L"Search for R&&D ") << "its ampersand is no access key";
}

TEST(WindowSettings, SizesAreStoredInWholeTwips) {
    const std::pair<double, int> cases[] = {
        {6660, 6660}, {6660.6, 6661}, {6660.5, 6660}, {6661.5, 6662}, {40000, 32767}};
    for (const auto& [twips, stored] : cases) EXPECT_EQ(stored_size(twips), stored) << twips;
}

}  // namespace
}  // namespace quillomat
