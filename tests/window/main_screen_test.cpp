// Splash, main screen and loading window, and the program from its first window to its end.

#include <algorithm>

#include "layout_checks.h"
#include "session_support.h"
#include "shell/frmMain.h"
#include "shell/frmSplash.h"
#include "shell/frmWait.h"
#include "shell/shell.h"
#include "viewer/frmCtlView.h"

namespace quillomat {
namespace {

struct ShellTest : SessionTest {
    ShellTest() {
        write("Cheats.dat", "code\r\n$$$$$$$$$$$$$$$$$$$$ Alpha\r\n");
        // The number of runs, which the next one makes the highest there is.
        SaveSetting(registry.application(), L"Settings", L"Counter", L"32766");
    }

    void open() { open_in(form, session, windows); }
    MainWindows windows;
    Shell program{application, session};
    std::unique_ptr<frmMain> form;
    std::unique_ptr<frmWait> wait;
};

TEST_F(ShellTest, TheLoadingWindowStaysPaintedWhileTheViewerLoadsAndGoesWhenThatFails) {
    expect_message(L"Quillomat", L"Out of memory");
    open_in(wait, [&] {
        EXPECT_TRUE(IsWindowVisible(wait->window()) && !GetUpdateRect(wait->window(), nullptr, FALSE));
        throw std::bad_alloc();
    });
    EXPECT_SOON(!wait);
}

TEST_F(ShellTest, TheMainScreenLeadsToTheAuthorAndHisPages) {
    std::wstring led;
    windows.mail_author = [&] { led += L"mail "; };
    windows.link = [&](const std::wstring& address) { led += address + L" "; };
    windows.cheats = [&] { led += L"cheats "; };
    windows.about = [&] { led += L"about "; };
    open();
    MainMenus& menus = form->menus;
    for (Menu* entry : {&menus.mnuMailMe, &menus.mnuLinksSign, &menus.mnuLinksNews, &menus.mnuLinksMail,
                        &menus.mnuFileCheat, &menus.mnuHelpAbout, &menus.mnuLinksSite}) {
        entry->pick();
    }
    form->Image1.on_double_click();
    EXPECT_EQ(led,
              L"mail http://www.tobferrand.example/cgi-bin/guestex.cgi http://lists.allvb.example/subscribe/allvb "
              L"mailto:tob@tobferrand.example cheats about http://www.tobferrand.example mail ");
}

TEST_F(ShellTest, TheExitQuestionGrowsCanBeTakenBackAndIsConfirmedByEnter) {
    bool closing = false;
    windows.close_all = [&] { closing = true; };
    application.force_dpi(144);
    open();
    for (const bool taken_back : {true, true, false}) {
        const double top = form->Command2.top();
        form->menus.mnuFileExit.pick();
        EXPECT_EQ(inputs_of(form->window()).size(), 2u) << "only the answers";
        EXPECT_EQ(text_of(form->window()), L"Exit?");
        for (int step = 1; step <= 9; ++step) {
            form->Timer2.tick();
            EXPECT_NEAR(form->Command3.width(), 5415 - 400 * std::min(step, 8), 15 * step);
            EXPECT_NEAR(form->Command2.top(), std::max(top - 100 * step, 3540.0), 15 * step);
        }
        EXPECT_EQ(form->Command3.caption(), L"Are you sure?");
        EXPECT_SOON(form->Command1.top() == form->Command3.top());
        press_key(taken_back ? VK_ESCAPE : VK_RETURN);
        if (!taken_back) break;
        EXPECT_SOON(inputs_of(form->window()).size() == 5 && text_of(form->window()) == L"Quillomat");
        EXPECT_NEAR(form->Command3.width(), 5415, 15);
        EXPECT_TRUE(form->Command3.has_focus());
    }
    EXPECT_SOON(!form);
    EXPECT_TRUE(std::exchange(closing, false));
}

TEST_F(ShellTest, TheProgramLeadsFromTheSplashToTheCheatsAndOut) {
    program.open_splash();
    ASSERT_SOON(GetFocus() == find_form<frmSplash>()->window());
    press_key(VK_TAB);
    ASSERT_SOON(!find_form<frmSplash>() && find_form<frmMain>() && find_form<frmMain>()->Command4.has_focus());
    frmMain& main_screen = *find_form<frmMain>();
    EXPECT_EQ(GetSetting(registry.application(), L"Settings", L"Counter", L""), L"32767");
    EXPECT_EQ(GetSetting(registry.application(), L"Settings", L"Directory", L""), session.program_folder);
    constexpr LPARAM repeated = 1 << 30;
    PostMessageW(main_screen.Command4.window(), WM_KEYDOWN, VK_RETURN, repeated | 1);
    pump();
    EXPECT_FALSE(find_form<frmCtlView>()) << "a key held down went down in a window that is gone";
    press_key(VK_RETURN);
    press_key('X', {VK_MENU});
    ASSERT_SOON(find_form<frmCtlView>() && find_form<frmCtlView>()->List2.has_focus());
    EXPECT_NE(text_of(main_screen.window()), L"Exit?") << "by a key typed ahead while the loading window was up";
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

TEST_F(ShellTest, ClosesWhileItIsMovedByKeyboardAndBelowItsMenu) {
    for (const WindowState state : {WindowState::Normal, WindowState::Minimised}) {
        program.open_main_screen();
        find_form<frmMain>()->set_window_state(state);
        const HWND window = find_form<frmMain>()->window();
        const UINT_PTR timer = SetTimer(nullptr, 0, 20, [](HWND, UINT, UINT_PTR, DWORD) {
            const GUITHREADINFO state = input_state(GetCurrentThreadId());
            const HWND window = FindWindowW(L"frmMain", nullptr);
            const bool opens_menu = IsIconic(window) && (state.flags & GUI_INMOVESIZE);
            if (opens_menu) PostMessageW(window, WM_SYSCOMMAND, SC_KEYMENU, L' ');
            if (!opens_menu && state.flags) PostMessageW(window, WM_CLOSE, 0, 0);
        });
        SendMessageW(window, WM_SYSCOMMAND, SC_MOVE, 0);
        EXPECT_EQ(application.run(), 0);
        KillTimer(nullptr, timer);
    }
}

TEST_F(ShellTest, TheSecondPressOfADoubleClickOnTheSplashGoesNowhere) {
    const UINT usual_time = GetDoubleClickTime();
    SetDoubleClickTime(5000);
    program.open_splash();
    const RECT& label = find_form<frmSplash>()->Label3.pixels();
    click_on(find_form<frmSplash>()->window(), label.left + 3, label.top + 3);
    ASSERT_SOON(find_form<frmMain>() && session.pointer.PointerWindow == find_form<frmMain>()->Command4.window());
    click();
    press_key(VK_TAB);
    ASSERT_SOON(find_form<frmMain>()->Command6.has_focus()) << "what came before the key has been handled";
    EXPECT_FALSE(find_form<frmWait>() || find_form<frmCtlView>());
    click();
    EXPECT_SOON(find_form<frmCtlView>()) << "a press after the double-click is heard again";
    SetDoubleClickTime(usual_time);
}

TEST_F(ShellTest, EverythingClosesWithTheMainScreenEvenBelowADialog) {
    program.open_main_screen();
    program.open_viewer();
    frmMain& main_screen = *find_form<frmMain>();
    main_screen.set_window_state(WindowState::Minimised);
    find_form<frmCtlView>()->List2.select_index(0);
    Form dialog(application, {.name = L"TestDialog", .caption = L"", .width = 3000, .height = 2000});
    Timer closer(dialog, 1);
    closer.on_timer = [&] {
        closer.set_enabled(false);
        main_screen.close();
        EXPECT_TRUE(IsIconic(main_screen.window())) << "it does not flash up";
    };
    dialog.show_modal(find_form<frmCtlView>());
    EXPECT_EQ(application.run(), 0);
    EXPECT_FALSE(find_form<frmMain>() || find_form<frmCtlView>());
    EXPECT_EQ(session.settings.read(settings::DefaultGame), L"Alpha") << "the viewer saved its settings";
}

}  // namespace
}  // namespace quillomat
