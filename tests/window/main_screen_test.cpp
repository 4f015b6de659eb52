// Splash, main screen and loading window, and the program from its first window to its end.

#include <algorithm>

#include "session_support.h"
#include "shell/Dialog1.h"
#include "shell/frmMain.h"
#include "shell/frmSplash.h"
#include "shell/frmWait.h"
#include "shell/windows.h"
#include "viewer/frmCtlView.h"

namespace quillomat {
namespace {

struct SplashTest : WindowTest {
    std::unique_ptr<frmSplash> splash;
    std::unique_ptr<frmWait> wait;
};

TEST_F(SplashTest, AnyKeyAndAClickOnAnythingGoesOn) {
    for (const WORD key : std::initializer_list<WORD>{VK_ESCAPE, VK_TAB, 'Q', 0}) {
        int gone_on = 0;
        open_in(splash, [&] { ++gone_on; });
        ASSERT_SOON(GetFocus() == splash->window());
        if (key) {
            press_key(key);
        } else {
            bool there = false;
            splash->Label3.on_mouse_move = [&](const MouseEvent&) { there = true; };
            const RECT& label = splash->Label3.pixels();
            ASSERT_TRUE(point_until(splash->window(), label.left + 3, label.top + 3, [&] { return there; }));
            click(MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP);
        }
        EXPECT_SOON(!splash);
        EXPECT_EQ(gone_on, 1);
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

struct MainScreenTest : SessionTest {
    void open() { open_in(form, session, windows); }
    MainWindows windows;
    std::unique_ptr<frmMain> form;
};

TEST_F(MainScreenTest, OpensReadyForMouseAndKeyboard) {
    session.settings.write(settings::Counter, 32767);
    open();
    EXPECT_EQ(session.StartUpTimes, 32767) << "there is no higher number of runs";
    EXPECT_SOON(form->Command4.has_focus());
    int cheats = 0;
    windows.cheats = [&] { ++cheats; };
    press_key(VK_RETURN);
    EXPECT_SOON(cheats == 1);
    press_key('C', {VK_MENU});
    EXPECT_SOON(cheats == 2);
    constexpr LPARAM repeated = 1 << 30;
    PostMessageW(form->Command4.window(), WM_KEYDOWN, VK_RETURN, repeated | 1);
    pump();
    EXPECT_EQ(cheats, 2) << "a key held down went down in a window that is gone";
}

TEST_F(MainScreenTest, LeadsEverywhere) {
    std::wstring led;
    windows.cheats = [&] { led = L"cheats"; };
    windows.about = [&] { led = L"about"; };
    windows.about_author = [&] { led = L"author"; };
    windows.mail_author = [&] { led = L"mail"; };
    windows.link = [&](const std::wstring& address) { led = address; };
    open();
    const std::pair<std::function<void()>, const wchar_t*> cases[] = {
        {[this] { form->Command4.click(); }, L"cheats"},
        {[this] { form->Command6.click(); }, L"about"},
        {[this] { form->Command8.click(); }, L"author"},
        {[this] { form->menus.mnuMailMe.pick(); }, L"mail"},
        {[this] { form->Image1.on_double_click(); }, L"mail"},
        {[this] { form->Command5.click(); }, L"http://www.tobferrand.example"},
        {[this] { form->menus.mnuLinksSign.pick(); }, L"http://www.tobferrand.example/cgi-bin/guestex.cgi"},
        {[this] { form->menus.mnuLinksNews.pick(); }, L"http://lists.allvb.example/subscribe/allvb"},
        {[this] { form->menus.mnuLinksMail.pick(); }, L"mailto:tob@tobferrand.example"},
    };
    for (const auto& [act, expected] : cases) {
        led.clear();
        act();
        EXPECT_EQ(led, expected);
    }
}

TEST_F(MainScreenTest, TheExitQuestionGrowsCanBeTakenBackAndIsConfirmedByEnter) {
    bool closing = false;
    windows.close_all = [&] { closing = true; };
    for (const int dpi : {96, 144}) {
        application.force_dpi(dpi);
        open();
        for (const bool taken_back : {true, true, false}) {
            const auto is_enabled = [](const Button* button) { return button->enabled(); };
            const auto disabled = {&form->Command4, &form->Command6, &form->Command8, &form->Command5, &form->Command3};
            const double top = form->Command2.top();
            form->Command3.click();
            EXPECT_TRUE(std::ranges::none_of(disabled, is_enabled) && !form->menus.mnuFileExit.enabled());
            EXPECT_EQ(text_of(form->window()), L"Exit?");
            for (int step = 1; step <= 9; ++step) {
                form->Timer2.tick();
                EXPECT_NEAR(form->Command3.width(), 5415 - 400 * std::min(step, 8), 15 * step) << dpi;
                EXPECT_NEAR(form->Command2.top(), std::max(top - 100 * step, 3540.0), 15 * step) << dpi;
            }
            EXPECT_EQ(form->Command3.caption(), L"Are you sure?");
            EXPECT_SOON(form->Command1.top() == form->Command3.top()) << dpi;
            press_key(taken_back ? VK_ESCAPE : VK_RETURN);
            if (!taken_back) break;
            EXPECT_SOON(std::ranges::all_of(disabled, is_enabled) && form->menus.mnuFileExit.enabled());
            for (int step = 0; form->Timer3.enabled() && step < 20; ++step) form->Timer3.tick();
            EXPECT_NEAR(form->Command3.width(), 5415, 15) << dpi;
            EXPECT_FALSE(form->Command1.visible() || form->Command2.visible());
            EXPECT_TRUE(form->Command3.has_focus());
        }
        EXPECT_SOON(!form);
        EXPECT_TRUE(std::exchange(closing, false));
    }
}

struct WholeProgramTest : SessionTest {
    WholeProgramTest() { write("Cheats.dat", "code\r\n$$$$$$$$$$$$$$$$$$$$ Alpha\r\n"); }

    Windows program{application, session};
};

TEST_F(WholeProgramTest, LeadsFromTheSplashToTheCheatsAndOut) {
    program.open_splash();
    ASSERT_SOON(GetFocus() == find_form<frmSplash>()->window());
    press_key(VK_SPACE);
    ASSERT_SOON(!find_form<frmSplash>() && find_form<frmMain>() && find_form<frmMain>()->Command4.has_focus());
    frmMain& main_screen = *find_form<frmMain>();
    {
        Timer watch(main_screen, 1);
        watch.on_timer = [] {
            auto* dialog = find_form<Dialog1>();
            if (!dialog || dialog->closed()) return;
            ADD_FAILURE() << "the main screen took a key that was typed ahead while the loading window was up";
            dialog->close();
        };
        press_key(VK_RETURN);
        press_key('M', {VK_MENU});
        ASSERT_SOON(find_form<frmCtlView>() && find_form<frmCtlView>()->List2.has_focus());
    }
    const HWND viewer = find_form<frmCtlView>()->window();
    find_form<frmCtlView>()->set_window_state(WindowState::Minimised);
    main_screen.Command4.click();
    EXPECT_SOON(GetForegroundWindow() == viewer && !IsIconic(viewer)) << "the one that is open comes to the front";

    main_screen.set_window_state(WindowState::Minimised);
    find_form<frmCtlView>()->close();
    ASSERT_SOON(!find_form<frmCtlView>());
    EXPECT_EQ(main_screen.window_state(), WindowState::Normal);
    SendMessageW(main_screen.window(), WM_CLOSE, 0, 0);
    EXPECT_EQ(application.run(), 0);
    EXPECT_FALSE(find_form<frmMain>());
}

TEST_F(WholeProgramTest, TheSecondPressOfADoubleClickOnTheSplashGoesNowhere) {
    const UINT usual_time = GetDoubleClickTime();
    SetDoubleClickTime(5000);
    program.open_splash();
    bool there = false;
    find_form<frmSplash>()->on_mouse_move = [&](const MouseEvent&) { there = true; };
    ASSERT_TRUE(point_until(find_form<frmSplash>()->window(), 5, 5, [&] { return there; }));
    click();
    ASSERT_SOON(find_form<frmMain>() && session.pointer.PointerWindow == find_form<frmMain>()->Command4.window());
    click();
    press_key(VK_TAB);
    ASSERT_SOON(find_form<frmMain>()->Command6.has_focus()) << "what came before the key has been handled";
    EXPECT_FALSE(find_form<frmWait>() || find_form<frmCtlView>());
    click();
    EXPECT_SOON(find_form<frmCtlView>()) << "a press after the double-click is heard again";
    SetDoubleClickTime(usual_time);
}

TEST_F(WholeProgramTest, EverythingClosesWithTheMainScreen) {
    program.open_main_screen();
    program.open_viewer();
    frmMain& main_screen = *find_form<frmMain>();
    main_screen.set_window_state(WindowState::Minimised);
    bool stayed_minimised = false;
    find_form<frmCtlView>()->List2.select_index(0);
    Form dialog(application, {.name = L"TestDialog", .caption = L"", .width = 3000, .height = 2000});
    bool dialog_unloaded = false;
    dialog.on_unload = [&] { dialog_unloaded = true; };
    Timer closer(dialog, 1);
    closer.on_timer = [&] {
        closer.set_enabled(false);
        main_screen.close();
        stayed_minimised = IsIconic(main_screen.window());
    };
    dialog.show_modal(find_form<frmCtlView>());
    EXPECT_TRUE(dialog_unloaded);
    EXPECT_TRUE(stayed_minimised) << "it does not flash up";
    EXPECT_EQ(application.run(), 0);
    EXPECT_FALSE(find_form<frmMain>() || find_form<frmCtlView>());
    EXPECT_EQ(session.settings.read(settings::DefaultGame), L"Alpha") << "the viewer saved its settings";
}

}  // namespace
}  // namespace quillomat
