// What moves, by what the windows show after each tick of its timer.

#include <algorithm>
#include <cmath>
#include <cwctype>
#include <iterator>
#include <set>

#include "session_support.h"
#include "shell/Dialog1.h"
#include "shell/frmAbout.h"
#include "shell/frmMain.h"
#include "shell/frmSplash.h"
#include "shown_pixels.h"

namespace quillomat {
namespace {

constexpr COLORREF dark = 0x404040;
constexpr COLORREF mid = 0x808080;
constexpr COLORREF light = 0xC0C0C0;

struct AnimationTest : SessionTest {
    ~AnimationTest() override { set_animations(true); }

    /// The user's own setting of Windows.
    static void set_animations(bool wanted) {
        SystemParametersInfoW(SPI_SETCLIENTAREAANIMATION, 0, reinterpret_cast<void*>(INT_PTR{wanted}), 0);
    }
    /// Shows a window in which no timer has ticked yet.
    template <class Window, class... Arguments>
    void show(std::unique_ptr<Window>& place, Arguments&&... arguments) {
        place = std::make_unique<Window>(application, std::forward<Arguments>(arguments)...);
        place->show();
    }
    void show_splash(int dpi = 96) {
        application.force_dpi(dpi);
        show(splash, [] {});
    }
    /// The window puts the pointer on its largest button; waits until that is noticed.
    void show_main_screen() {
        show(main_screen, session, windows);
        ASSERT_SOON(main_screen->Command4.back_colour() != colours::button_face);
    }
    COLORREF shown_on_button() const { return ShownPixels(main_screen->Command4.window()).at(6, 40); }
    /// What is shown of the version, in pixels of the splash.
    std::optional<RECT> shown_version() const {
        const RECT& place = splash->Label2.pixels();
        const RECT row{to_pixels(3900, splash->dpi()), place.top, to_pixels(7000, splash->dpi()), place.bottom};
        const ShownPixels shown(splash->window());
        splash->Label2.set_visible(false);
        const auto version = shown.difference(ShownPixels(splash->window()), row);
        splash->Label2.set_visible(true);
        return version;
    }

    MainWindows windows;
    std::unique_ptr<frmSplash> splash;
    std::unique_ptr<frmMain> main_screen;
    std::unique_ptr<frmAbout> about;
    std::unique_ptr<Dialog1> author;
};

TEST_F(AnimationTest, TheVersionMovesFiftyTwipsAStep) {
    for (const auto& [dpi, start] : {std::pair{96, 7405.0}, std::pair{144, 7400.0}}) {
        show_splash(dpi);
        EXPECT_FALSE(shown_version()) << "it starts outside of the window";
        double left = start;
        std::set<LONG> distances;
        while (left > 3960) {
            splash->Timer2.tick();
            left -= 50;
            if (const auto version = shown_version()) distances.insert(version->left - to_pixels(left, dpi));
        }
        EXPECT_EQ(distances.size(), 1u) << "each step is as long as every other one";
        const RECT resting = shown_version().value_or(RECT{});
        splash->Timer2.tick();
        EXPECT_EQ(shown_version().value_or(RECT{}).left, resting.left);
        EXPECT_FALSE(splash->Timer2.enabled());
    }
}

TEST_F(AnimationTest, ABandOfLightSweepsOverTheLetters) {
    show_splash();
    const int letters = static_cast<int>(splash->Label1.size());
    for (int tick = 1; tick <= 2 * (letters + 2); ++tick) {
        splash->Timer1.tick();
        const int step = tick % (letters + 2);
        const ShownPixels shown(splash->window());
        for (int letter = 0; letter < letters; ++letter) {
            const int distance = std::abs(letter - (step - 1));
            const COLORREF expected = distance == 0 ? light : distance == 1 ? mid : dark;
            const RECT& place = splash->Label1[static_cast<std::size_t>(letter)].pixels();
            const auto most =
                std::ranges::max({dark, mid, light}, {}, [&](COLORREF c) { return shown.count(place, c); });
            EXPECT_EQ(most, expected) << "letter " << letter << " at step " << step;
        }
    }
    EXPECT_GT(ShownPixels(splash->window()).count(splash->Label6.pixels(), 0xFFFFFF), 100) << "the motto";
    const std::wstring spoken = L"Version 5.0. " + splash->Label6.caption();
    EXPECT_TRUE(FindWindowExW(splash->window(), nullptr, L"Static", spoken.c_str())) << "for screen readers";
}

TEST_F(AnimationTest, TheButtonUnderThePointerShowsEveryColourInOrder) {
    show_main_screen();
    constexpr COLORREF colours[] = {0xFFC0C0, 0xFF8080, 0xFF0000, 0xC00000, 0x800000, 0x400000,
                                    0x800080, 0xC000C0, 0xFF00FF, 0xFF80FF, 0xFFC0FF};
    for (int tick = 0; shown_on_button() != colours[0] && tick < 20; ++tick) main_screen->Timer6.tick();
    for (int round = 0; round < 2; ++round) {
        for (const COLORREF colour : colours) {
            EXPECT_EQ(shown_on_button(), colour);
            main_screen->Timer6.tick();
        }
        EXPECT_EQ(shown_on_button(), *std::rbegin(colours)) << "the one tick without a colour of its own";
        main_screen->Timer6.tick();
    }
}

TEST_F(AnimationTest, TheExitButtonShrinksForTheAnswersAndGrowsBack) {
    show(main_screen, session, windows);
    const auto shown = [this](const Control& control) {
        RECT place{};
        GetWindowRect(control.window(), &place);
        MapWindowPoints(nullptr, main_screen->window(), reinterpret_cast<POINT*>(&place), 2);
        return place;
    };
    const RECT before = shown(main_screen->Command3);
    main_screen->Command3.click();
    for (int step = 1; step <= 10; ++step) {
        main_screen->Timer2.tick();
        EXPECT_NEAR(shown(main_screen->Command3).right, before.right - std::min(step, 8) * 400 / 15, step);
        EXPECT_NEAR(shown(main_screen->Command1).top, (4588 - step * 100) / 15, step);
    }
    EXPECT_EQ(text_of(main_screen->Command3.window()), L"Are you sure?");
    EXPECT_EQ(text_of(main_screen->window()), L"Exit?");
    main_screen->Command2.click();
    LONG right = shown(main_screen->Command3).right;
    for (int step = 1; step <= 10; ++step) {
        main_screen->Timer3.tick();
        EXPECT_TRUE(shown(main_screen->Command3).right > std::exchange(right, shown(main_screen->Command3).right) ||
                    right == before.right);
    }
    EXPECT_EQ(right, before.right);
    EXPECT_EQ(text_of(main_screen->window()), L"Thanks! You're so kind!");
}

TEST_F(AnimationTest, TheAboutTitleShowsEverySize) {
    show(about, session.pointer, std::int16_t{1});
    EXPECT_TRUE(FindWindowExW(about->window(), nullptr, L"Static", L"You have run Quillomat 1 times."));
    const auto area = about->lblTitle.pixels();
    about->lblTitle.set_visible(false);
    const ShownPixels empty(about->window());
    about->lblTitle.set_visible(true);
    const auto shown_width = [&] {
        const auto text = ShownPixels(about->window()).difference(empty, area);
        return text ? text->right - text->left : 0;
    };
    LONG width = shown_width();
    for (int tick = 1; tick <= 40; ++tick) {
        Timer& timer = tick <= 19 ? about->Timer2 : about->Timer1;
        timer.tick();
        const LONG former = std::exchange(width, shown_width());
        const bool turns = tick == 19 || tick >= 38;
        EXPECT_TRUE(turns       ? tick > 38 || width == former
                    : tick < 19 ? width < former
                                : width > former)
            << tick << ": " << former << " to " << width;
    }
}

TEST_F(AnimationTest, TheAuthorsCoinTurns) {
    show(author, session.pointer);
    const HWND coin = author->picCopy.window();
    RECT box{};
    GetClientRect(coin, &box);
    EXPECT_NE(ShownPixels(coin).at(0, 0), 0xFFFFFFu) << "a thin edge";
    InflateRect(&box, -1, -1);
    const ShownPixels front(coin);
    author->picCopy.set_width_factor(0);
    const ShownPixels from_the_edge(coin);
    EXPECT_EQ(from_the_edge.count(box, 0xFFFFFF), (box.right - box.left) * (box.bottom - box.top));
    const RECT whole = front.difference(from_the_edge, box).value_or(RECT{});
    for (int tick = 1; tick <= 110; ++tick) {
        author->Timer2.tick();
        const double factor = std::cos((tick + 9) % 100 * 0.0628);
        const ShownPixels shown(coin);
        const RECT part = shown.difference(from_the_edge, box).value_or(RECT{box.right / 2, 0, box.right / 2, 0});
        EXPECT_NEAR(part.right - part.left, std::abs(factor) * (whole.right - whole.left), 3) << tick;
        EXPECT_NEAR(part.left + part.right, box.left + box.right, 3) << tick;
        int mirrored = 0;
        for (LONG x = box.left; x < box.right; ++x) mirrored += shown.at(x, 40) == front.at(box.right - x, 40);
        EXPECT_TRUE(tick != 41 || mirrored == box.right - box.left) << "seen from behind";
    }
}

TEST_F(AnimationTest, TheAuthorsCaptionAndIconChange) {
    show(author, session.pointer);
    const std::wstring title = text_of(author->window());
    std::vector<LRESULT> icons;
    for (std::size_t tick = 1; tick <= title.size() + 1; ++tick) {
        author->Timer1.tick();
        author->Timer4.tick();
        std::wstring expected = title;
        wchar_t& letter = expected[(tick - 1) % title.size()];
        letter = static_cast<wchar_t>(std::towupper(letter));
        EXPECT_EQ(text_of(author->window()), expected);
        icons.push_back(SendMessageW(author->window(), WM_GETICON, ICON_BIG, 0));
    }
    EXPECT_EQ(std::set(icons.begin(), icons.begin() + 3).size(), 3u);
    EXPECT_TRUE(std::equal(icons.begin() + 3, icons.end(), icons.begin()));
}

TEST_F(AnimationTest, WithoutAnimationsTheEndIsShownAtOnce) {
    set_animations(false);
    show_splash();
    const auto resting = shown_version();
    ASSERT_TRUE(resting);
    EXPECT_NEAR(resting->left, to_pixels(3955, 96), 3);
    EXPECT_FALSE(splash->Timer1.enabled());

    show(about, session.pointer, std::int16_t{1});
    EXPECT_FALSE(about->Timer1.enabled() || about->Timer2.enabled());

    show(author, session.pointer);
    int sizes = 0;
    author->on_resize = [&] { ++sizes; };
    author->cmdButton[0].click();
    EXPECT_EQ(author->height(), 6795);
    author->cmdButton[1].click();
    EXPECT_EQ(author->height(), 5400);
    EXPECT_EQ(sizes, 2);
    EXPECT_FALSE(author->Timer1.enabled() || author->Timer2.enabled() || author->Timer4.enabled());

    show_main_screen();
    EXPECT_EQ(shown_on_button(), 0xFF8080u);
    EXPECT_FALSE(main_screen->Timer6.enabled()) << "one colour for as long as the pointer stays";
    main_screen->Command3.click();
    EXPECT_EQ(main_screen->Command1.top(), main_screen->Command3.top());
    EXPECT_LT(main_screen->Command3.width(), 2500);
    main_screen->Command2.click();
    EXPECT_EQ(main_screen->Command3.width(), exit_width_resting);
    EXPECT_FALSE(main_screen->Command1.visible());
}

}  // namespace
}  // namespace quillomat
