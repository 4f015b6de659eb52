// What moves, by what the windows show after each tick of its timer.

#include <algorithm>
#include <cmath>
#include <set>

#include "object_counts.h"
#include "session_support.h"
#include "shell/Dialog1.h"
#include "shell/frmAbout.h"
#include "shell/frmMain.h"
#include "shell/frmSplash.h"
#include "shown_pixels.h"

namespace quillomat {
namespace {

constexpr COLORREF white = 0xFFFFFF;

struct AnimationTest : SessionTest {
    // Shows a window in which no timer has ticked yet.
    template <class Window, class... Arguments>
    void show(std::unique_ptr<Window>& place, Arguments&&... arguments) {
        place = std::make_unique<Window>(application, std::forward<Arguments>(arguments)...);
        place->show();
    }
    // Shows the main screen, which puts the pointer on its largest button, and waits until that has noticed it.
    void hover_over_button() {
        show(main_screen, session, windows);
        const Button& button = main_screen->Command4;
        ASSERT_TRUE(point_until(button.window(), 8, 8, [&] { return button.back_colour() != colours::button_face; }));
    }
    // What the window shows of a label, in pixels.
    static RECT shown(Label& label, const RECT& area) {
        const ShownPixels with(label.form().window());
        label.set_visible(false);
        const RECT place = with.difference(ShownPixels(label.form().window()), area);
        label.set_visible(true);
        return place;
    }
    RECT shown_version() const {
        const RECT& place = splash->Label2.pixels();
        return shown(splash->Label2,
                     {to_pixels(3900, splash->dpi()), place.top, splash->Background.pixels().right, place.bottom});
    }

    MainWindows windows;
    std::unique_ptr<frmSplash> splash;
    std::unique_ptr<frmMain> main_screen;
    std::unique_ptr<frmAbout> about;
    std::unique_ptr<Dialog1> author;
};

TEST_F(AnimationTest, TheVersionMovesFiftyTwipsAStep) {
    show(splash, [] {});
    std::set<LONG> distances;
    for (double left = 7405; splash->Timer2.enabled(); splash->Timer2.tick()) {
        const RECT version = shown_version();
        if (!IsRectEmpty(&version)) distances.insert(version.left - to_pixels(left, 96));
        if (left > 3960) left -= 50;
    }
    EXPECT_EQ(distances.size(), 1u) << "it is where the arithmetic says at each step, and rests there";
}

TEST_F(AnimationTest, ABandOfLightSweepsOverTheLetters) {
    show(splash, [] {});
    const int letters = static_cast<int>(splash->Label1.size());
    for (int tick = 1; tick <= 2 * (letters + 2); ++tick) {
        splash->Timer1.tick();
        const int brightest = tick % (letters + 2) - 1;
        const ShownPixels shown(splash->window());
        for (int letter = 0; letter < letters; ++letter) {
            constexpr COLORREF by_distance[] = {0xC0C0C0, 0x808080, 0x404040};
            const RECT& place = splash->Label1[static_cast<std::size_t>(letter)].pixels();
            const auto most = std::ranges::max_element(by_distance, {}, [&](auto c) { return shown.count(place, c); });
            EXPECT_EQ(most - by_distance, std::min(2, std::abs(letter - brightest))) << letter << " at " << tick;
        }
    }
    const ShownPixels shown(splash->window());
    EXPECT_GT(shown.count(splash->Label6.pixels(), white), 100) << "the motto";
    EXPECT_LT(shown.count(shown.area(), shown.at(2, 2)), shown.area().right * 100) << "the background";
    const std::wstring spoken = L"Version 5.0. " + splash->Label6.caption();
    EXPECT_TRUE(FindWindowExW(splash->window(), nullptr, L"Static", spoken.c_str())) << "for screen readers";
}

TEST_F(AnimationTest, TheButtonUnderThePointerShowsEveryColourInOrder) {
    hover_over_button();
    const auto shown = [this] { return ShownPixels(main_screen->Command4.window()).at(6, 40); };
    // The last one stays for one more tick.
    constexpr COLORREF colours[] = {0xFFC0C0, 0xFF8080, 0xFF0000, 0xC00000, 0x800000, 0x400000,
                                    0x800080, 0xC000C0, 0xFF00FF, 0xFF80FF, 0xFFC0FF, 0xFFC0FF};
    for (int tick = 0; shown() != colours[0] && tick < 20; ++tick) main_screen->Timer6.tick();
    for (int tick = 0; tick < 24; ++tick, main_screen->Timer6.tick()) EXPECT_EQ(shown(), colours[tick % 12]) << tick;
    press_key(VK_TAB);
    ASSERT_SOON(main_screen->Command6.has_focus()) << "the key hides the help";
    const auto is_plain = [this] { return main_screen->Command4.back_colour() == colours::button_face; };
    EXPECT_TRUE(point_until(main_screen->window(), 4, 150, is_plain)) << "also after a key";
}

TEST_F(AnimationTest, TheAboutTitleShowsEverySize) {
    show(about, session.pointer, std::int16_t{1});
    EXPECT_TRUE(FindWindowExW(about->window(), nullptr, L"Static", L"You have run Quillomat 1 times."));
    const auto shown_width = [&] {
        const RECT text = shown(about->lblTitle, about->lblTitle.pixels());
        return text.right - text.left;
    };
    LONG width = shown_width();
    // From 20 points to 2 and back; one tick is spent on each turn.
    for (int tick = 1; tick <= 38; ++tick) {
        (about->Timer2.enabled() ? about->Timer2 : about->Timer1).tick();
        const LONG former = std::exchange(width, shown_width());
        EXPECT_EQ(width < former, tick < 19) << tick;
        EXPECT_EQ(width > former, tick > 19 && tick < 38) << tick;
    }
}

TEST_F(AnimationTest, TheAuthorsCoinTurns) {
    show(author, session.pointer);
    const HWND coin = author->picCopy.window();
    RECT box = ShownPixels(coin).area();
    InflateRect(&box, -1, -1);
    const RECT whole = ShownPixels(coin).ink(box, white);
    ObjectCounts held;
    for (int tick = 1; tick <= 110; ++tick) {
        author->Timer2.tick();
        if (tick == 10) held = count_objects();
        const double factor = std::abs(std::cos((tick + 9) % 100 * 0.0628));
        const RECT part = ShownPixels(coin).ink(box, white);
        EXPECT_NEAR(part.right - part.left, factor * (whole.right - whole.left), 3) << tick;
        if (IsRectEmpty(&part)) continue;
        EXPECT_NEAR(part.left - box.left, box.right - part.right, 3) << tick;
    }
    EXPECT_EQ(count_objects(), held);
}

TEST_F(AnimationTest, TheAuthorsCaptionAndIconChange) {
    show(author, session.pointer);
    const std::wstring title = text_of(author->window());
    std::vector<LRESULT> icons;
    ObjectCounts held;
    for (std::size_t tick = 0; tick <= title.size(); ++tick) {
        author->Timer1.tick();
        author->Timer4.tick();
        std::wstring expected = title;
        CharUpperBuffW(&expected[tick % title.size()], 1);
        EXPECT_EQ(text_of(author->window()), expected);
        icons.push_back(SendMessageW(author->window(), WM_GETICON, ICON_BIG, 0));
        if (tick == 3) held = count_objects();
    }
    EXPECT_EQ(std::set(icons.begin(), icons.begin() + 3).size(), 3u);
    EXPECT_TRUE(std::equal(icons.begin() + 3, icons.end(), icons.begin()));
    EXPECT_EQ(count_objects(), held);
}

TEST_F(AnimationTest, WithoutAnimationsTheEndIsShownAtOnce) {
    for (const bool wanted : {true, false}) {
        set_animations(wanted);
        hover_over_button();
        EXPECT_EQ(main_screen->Timer6.enabled(), wanted) << "one colour for as long as the pointer stays";
        EXPECT_TRUE(point_until(main_screen->window(), 5, 300, [&] { return !main_screen->Timer6.enabled(); }));
        main_screen.reset();

        show(splash, [] {});
        EXPECT_EQ(shown_version().left > 0, !wanted);
        show(about, session.pointer, std::int16_t{1});
        show(author, session.pointer);
        for (const Timer* timer :
             {&splash->Timer1, &about->Timer2, &author->Timer1, &author->Timer2, &author->Timer4}) {
            EXPECT_EQ(timer->enabled(), wanted);
        }
        std::vector<double> heights;
        author->on_resize = [&] { heights.push_back(author->height()); };
        author->cmdButton[0].click();
        author->cmdButton[1].click();
        EXPECT_EQ(heights.size(), wanted ? 28u : 2u);
        EXPECT_EQ(heights[heights.size() / 2 - 1], 6795);
        EXPECT_EQ(heights.back(), 5400);
        // The next main screen must not lie behind them.
        splash.reset();
        about.reset();
        author.reset();
    }
}

}  // namespace
}  // namespace quillomat
