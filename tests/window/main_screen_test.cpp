// The way into the program and out of it: splash, main screen and loading window, and what closes with them.

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

struct MainScreenTest : SessionTest {
    void open() { open_in(form, session, windows); }
    void ask_to_exit() {
        form->Command3.click();
        ASSERT_SOON(form->Command1.top() < 3614.896 && form->Command3.width() <= 2500);
    }

    MainWindows windows;
    std::unique_ptr<frmMain> form;
};

TEST_F(MainScreenTest, OpensReadyForMouseAndKeyboard) {
    session.settings.write(settings::Counter, 32767);
    open();
    EXPECT_EQ(session.StartUpTimes, 32767) << "there is no higher number of runs";
    EXPECT_SOON(form->Command4.has_focus());
    for (const Button* next : {&form->Command6, &form->Command8, &form->Command5, &form->Command3, &form->Command4}) {
        press_key(VK_TAB);
        EXPECT_SOON(next->has_focus()) << "hidden answers are passed by";
    }
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

TEST_F(MainScreenTest, TheExitCanBeTakenBackAndIsConfirmedByEnter) {
    bool closing = false;
    windows.close_all = [&] { closing = true; };
    for (const int dpi : {96, 144}) {
        application.force_dpi(dpi);
        open();
        for (int round = 0; round < 2; ++round) {
            ask_to_exit();
            for (const Button* button :
                 {&form->Command4, &form->Command6, &form->Command8, &form->Command5, &form->Command3}) {
                EXPECT_FALSE(button->enabled());
            }
            EXPECT_TRUE(form->Command1.enabled() && form->Command2.enabled());
            EXPECT_FALSE(form->menus.mnuFileExit.enabled());
            EXPECT_SOON(form->Command1.top() == form->Command3.top()) << dpi;
            EXPECT_LE(form->Command3.left() + form->Command3.width(), form->Command1.left()) << dpi;
            press_key(VK_ESCAPE);
            EXPECT_SOON(form->Command4.enabled() && form->menus.mnuFileExit.enabled());
            EXPECT_SOON(!form->Command1.visible() && !form->Command2.visible());
            EXPECT_NEAR(form->Command3.width(), 5415, 15) << dpi;
            EXPECT_TRUE(form->Command3.has_focus());
        }
        ask_to_exit();
        press_key(VK_RETURN);
        EXPECT_SOON(!form);
        EXPECT_TRUE(closing);
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
