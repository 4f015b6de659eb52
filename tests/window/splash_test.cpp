// The splash and the loading window: how the user gets past them.

#include "shell/frmSplash.h"

#include "shell/frmWait.h"
#include "support.h"

namespace quillomat {
namespace {

class SplashTest : public WindowTest {
  protected:
    void open() {
        gone_on = 0;
        open_in(splash, [this] { ++gone_on; });
    }
    void expect_gone_on() {
        EXPECT_SOON(!splash);
        EXPECT_EQ(gone_on, 1);
    }

    int gone_on = 0;
    std::unique_ptr<frmSplash> splash;
    std::unique_ptr<frmWait> wait;
};

TEST_F(SplashTest, AnyKeyAndAClickOnAnythingGoesOn) {
    for (const WORD key : std::initializer_list<WORD>{VK_ESCAPE, VK_TAB, VK_RIGHT, 'Q'}) {
        open();
        ASSERT_SOON(GetFocus() == splash->window());
        press_key(key);
        expect_gone_on();
    }
    for (const bool on_label : {true, false}) {
        open();
        bool there = false;
        splash->on_mouse_move = splash->Label3.on_mouse_move = [&](const MouseEvent&) { there = true; };
        const RECT& label = splash->Label3.pixels();
        const POINT point = on_label ? POINT{label.left + 3, label.top + 3} : POINT{5, 5};
        ASSERT_TRUE(point_until(splash->window(), point.x, point.y, [&] { return there; }));
        on_label ? click() : click(MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP);
        expect_gone_on();
    }
}

TEST_F(SplashTest, TheLoadingWindowStaysPaintedWhileTheViewerLoads) {
    bool painted = false;
    open_in(wait, [&] {
        painted = IsWindowVisible(wait->window()) && !wait->closed() && !GetUpdateRect(wait->window(), nullptr, FALSE);
    });
    EXPECT_SOON(!wait);
    EXPECT_TRUE(painted);
    expect_message(L"Quillomat", L"Out of memory");
    open_in(wait, [] { throw std::bad_alloc(); });
    EXPECT_SOON(!wait) << "also when the load fails";
}

}  // namespace
}  // namespace quillomat
