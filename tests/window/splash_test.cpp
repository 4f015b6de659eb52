// The splash and the loading window: what they show, and how the user gets past them.

#include "shell/frmSplash.h"

#include <algorithm>
#include <memory>
#include <set>

#include "shell/frmWait.h"
#include "support.h"
#include "text/animation.h"

namespace quillomat {
namespace {

class SplashTest : public WindowTest {
  protected:
    void open() {
        splash = std::make_unique<frmSplash>(application, [this] { ++gone_on; });
        splash->on_closed = [this] { splash.reset(); };
        splash->show();
    }
    std::vector<ColourValue> letter_colours() const {
        std::vector<ColourValue> colours;
        for (const Label& letter : splash->Label1) colours.push_back(letter.fore_colour().value);
        return colours;
    }

    int gone_on = 0;
    std::unique_ptr<frmSplash> splash;
};

TEST_F(SplashTest, ShowsTheNameUnderABandOfLight) {
    open();
    std::wstring name;
    for (const Label& letter : splash->Label1) name += letter.caption();
    EXPECT_EQ(name, L"Quillomat");
    EXPECT_EQ(letter_colours(), std::vector<ColourValue>(9, 0x808080));
    splash->Timer1.tick();
    std::vector<ColourValue> first(9, 0x404040);
    first[0] = 0xC0C0C0;
    first[1] = 0x808080;
    EXPECT_EQ(letter_colours(), first);
    for (int i = 0; i < 11; ++i) splash->Timer1.tick();
    EXPECT_EQ(letter_colours(), first) << "the band comes again";
}

TEST_F(SplashTest, NothingStandsOutsideOrOnSomethingElse) {
    for (const int dpi : {96, 120, 144, 192}) {
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
        EXPECT_LE(client.right, 1024 * dpi / 96);
        EXPECT_LE(client.bottom, 768 * dpi / 96);
        splash.reset();
    }
}

TEST_F(SplashTest, GrowsWithTheResolutionOfTheScreen) {
    open();
    const double name_width = splash->Label1.back().left() - splash->Label1.front().left();
    const RECT suggested{50, 50, 50 + 700, 50 + 420};
    SendMessageW(splash->window(), WM_DPICHANGED, MAKEWPARAM(144, 144), reinterpret_cast<LPARAM>(&suggested));
    EXPECT_EQ(splash->Background.pixels().right, 700);
    EXPECT_NEAR(splash->Label1.back().left() - splash->Label1.front().left(), name_width, name_width / 20);
}

TEST_F(SplashTest, TheVersionSlidesInFromOutside) {
    open();
    EXPECT_EQ(splash->Label2.caption(), L"5.0");
    EXPECT_NEAR(splash->Label2.left(), splash->width() + 400, 8);
    for (int i = 0; i < 200 && splash->Timer2.enabled(); ++i) splash->Timer2.tick();
    EXPECT_FALSE(splash->Timer2.enabled());
    EXPECT_LE(splash->Label2.left(), 3960);
    EXPECT_GT(splash->Label2.left(), 3960 - 60);
}

TEST_F(SplashTest, ShowsOneOfTheMottoes) {
    const std::set<std::wstring> mottoes{L"Ah... cheating - can't live with it, can't live without it.",
                                         L"Life is all about taking the easy way out.",
                                         L"What's life without a little cheating?",
                                         L"What's the point if you can't cheat?",
                                         L"Rufus Quade cheats. Why can't you?",
                                         L"The key to success in the virtual world",
                                         L"Don't cheat on yourself... cheat in the games",
                                         L"Cheating is a way of life... MY way of life."};
    open();
    EXPECT_TRUE(mottoes.contains(splash->Label6.caption()));
}

TEST_F(SplashTest, AnyKeyGoesOn) {
    for (const WORD key : std::initializer_list<WORD>{VK_RETURN, VK_ESCAPE, VK_SPACE, VK_F1, VK_TAB, VK_RIGHT, 'Q'}) {
        gone_on = 0;
        open();
        ASSERT_TRUE(pump_until([this] { return GetFocus() == splash->window(); }));
        press_key(key);
        EXPECT_TRUE(pump_until([this] { return !splash; })) << key;
        EXPECT_EQ(gone_on, 1) << key;
    }
}

TEST_F(SplashTest, AClickOnAnythingGoesOn) {
    const auto click_at = [this](POINT point, DWORD down, DWORD up) {
        gone_on = 0;
        bool there = false;
        splash->on_mouse_move = [&](const MouseEvent&) { there = true; };
        for (MouseEvents* item : std::initializer_list<MouseEvents*>{&splash->Label3, &splash->Label4, &splash->Label6,
                                                                     &splash->Label1[0], &splash->Label1[8]}) {
            item->on_mouse_move = splash->on_mouse_move;
        }
        ASSERT_TRUE(point_until(splash->window(), point.x, point.y, [&] { return there; }));
        click(down, up);
        EXPECT_TRUE(pump_until([this] { return !splash; })) << point.x << " " << point.y;
        EXPECT_EQ(gone_on, 1);
    };
    const auto middle = [](const Label& label) {
        const RECT& area = label.pixels();
        return POINT{(area.left + area.right) / 2, (area.top + area.bottom) / 2};
    };
    const std::function<POINT()> places[] = {
        [] {
            return POINT{5, 5};
        },
        [&] { return middle(splash->Label1[0]); },
        [&] { return middle(splash->Label1[8]); },
        [&] { return middle(splash->Label3); },
        [&] { return middle(splash->Label4); },
        [&] { return middle(splash->Label6); },
    };
    for (const auto& place : places) {
        open();
        click_at(place(), MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP);
    }
    open();
    click_at({5, 5}, MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP);
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
    EXPECT_EQ(wait->Label1.caption(), L"Please wait... loading...");
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
