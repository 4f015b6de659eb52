// The splash and the loading window: what they show, and how the user gets past them.

#include "shell/frmSplash.h"

#include <memory>

#include "shell/frmWait.h"
#include "support.h"

namespace quillomat {
namespace {

class SplashTest : public WindowTest {
  protected:
    void open() {
        splash = std::make_unique<frmSplash>(application, [this] { ++gone_on; });
        splash->on_closed = [this] { splash.reset(); };
        splash->show();
    }
    int gone_on = 0;
    std::unique_ptr<frmSplash> splash;
};

TEST_F(SplashTest, TheBandOfLightAndTheVersionMove) {
    open();
    EXPECT_EQ(splash->Label1[0].fore_colour().value, 0x808080U);
    splash->Timer1.tick();
    EXPECT_EQ(splash->Label1[0].fore_colour().value, 0xC0C0C0U);
    EXPECT_EQ(splash->Label1[8].fore_colour().value, 0x404040U);
    EXPECT_GT(splash->Label2.left(), splash->width()) << "slides in from outside";
    for (int i = 0; i < 200 && splash->Timer2.enabled(); ++i) splash->Timer2.tick();
    EXPECT_FALSE(splash->Timer2.enabled());
    EXPECT_NEAR(splash->Label2.left(), 3960 - 30, 30);
}

TEST_F(SplashTest, NothingStandsOutsideOrOnSomethingElse) {
    for (const int dpi : {96, 144}) {
        application.force_dpi(dpi);
        open();
        splash->Label2.set_left(3960);
        RECT client{};
        GetClientRect(splash->window(), &client);
        std::vector<const Label*> labels{&splash->Label2, &splash->Label3, &splash->Label4, &splash->Label6};
        for (const Label& letter : splash->Label1) labels.push_back(&letter);
        for (const Label* label : labels) {
            RECT common{};
            IntersectRect(&common, &client, &label->pixels());
            EXPECT_TRUE(EqualRect(&common, &label->pixels())) << dpi;
            for (const Label* other : labels) {
                EXPECT_FALSE(label != other && IntersectRect(&common, &label->pixels(), &other->pixels())) << dpi;
            }
        }
        splash.reset();
    }
}

TEST_F(SplashTest, AnyKeyGoesOn) {
    for (const WORD key : std::initializer_list<WORD>{VK_ESCAPE, VK_TAB, VK_RIGHT, 'Q'}) {
        gone_on = 0;
        open();
        ASSERT_TRUE(pump_until([this] { return GetFocus() == splash->window(); }));
        press_key(key);
        EXPECT_TRUE(pump_until([this] { return !splash; })) << key;
        EXPECT_EQ(gone_on, 1) << key;
    }
}

TEST_F(SplashTest, AClickOnAnythingGoesOn) {
    const auto expect_click_goes_on = [this](POINT point, DWORD down, DWORD up) {
        gone_on = 0;
        bool there = false;
        splash->on_mouse_move = splash->Label3.on_mouse_move = [&](const MouseEvent&) { there = true; };
        ASSERT_TRUE(point_until(splash->window(), point.x, point.y, [&] { return there; }));
        click(down, up);
        EXPECT_TRUE(pump_until([this] { return !splash; })) << point.x << " " << point.y;
        EXPECT_EQ(gone_on, 1);
    };
    open();
    const RECT& label = splash->Label3.pixels();
    expect_click_goes_on({label.left + 3, label.top + 3}, MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP);
    open();
    expect_click_goes_on({5, 5}, MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP);
}

TEST_F(SplashTest, TheLoadingWindowStaysPaintedWhileTheViewerLoads) {
    std::unique_ptr<frmWait> wait;
    bool painted = false;
    bool closed_early = true;
    wait = std::make_unique<frmWait>(application, [&] {
        painted = IsWindowVisible(wait->window()) && !GetUpdateRect(wait->window(), nullptr, FALSE);
        closed_early = wait->closed();
    });
    wait->on_closed = [&] { wait.reset(); };
    wait->show();
    EXPECT_TRUE(pump_until([&] { return !wait; }));
    EXPECT_TRUE(painted);
    EXPECT_FALSE(closed_early);
}

TEST_F(SplashTest, ALoadThatFailsDoesNotLeaveTheLoadingWindow) {
    std::unique_ptr<frmWait> wait;
    wait = std::make_unique<frmWait>(application, [] { throw std::bad_alloc(); });
    wait->on_closed = [&] { wait.reset(); };
    expect_message(L"Quillomat", L"Out of memory");
    wait->show();
    EXPECT_TRUE(pump_until([&] { return !wait; }));
}

}  // namespace
}  // namespace quillomat
