// The main screen as a player meets it: where it leads, how it is left, and what closes with it.

#include <fstream>
#include <memory>

#include "open_forms.h"
#include "shell/frmMain.h"
#include "shell/frmSplash.h"
#include "shell/windows.h"
#include "support.h"
#include "temporary.h"
#include "viewer/frmCtlView.h"

namespace quillomat {
namespace {

class MainScreenTest : public WindowTest {
  protected:
    MainScreenTest() {
        session.program_folder = folder.path().wstring();
        session.settings = registry.settings();
    }

    void open() {
        form = std::make_unique<frmMain>(application, session, windows);
        form->on_closed = [this] { form.reset(); };
        form->show();
        pump();
    }
    void ask_to_exit() {
        form->Command3.click();
        ASSERT_TRUE(pump_until([this] { return form->Command1.top() < 3614.896 && form->Command3.width() <= 2500; }));
    }
    std::vector<Button*> buttons() const {
        return {&form->Command4, &form->Command6, &form->Command8, &form->Command5,
                &form->Command3, &form->Command1, &form->Command2};
    }

    TemporaryFolder folder;
    TemporarySettings registry;
    Session session;
    MainWindows windows;
    std::unique_ptr<frmMain> form;
};

TEST_F(MainScreenTest, CountsRunsAndRemembersTheFolder) {
    const struct {
        const wchar_t* stored;
        std::int16_t count;
    } cases[] = {{L"", 1}, {L"41", 42}, {L"-1", 0}, {L"32766", 32767}, {L"32767", 32767}, {L"99999", 1}};
    for (const auto& [stored, count] : cases) {
        const Setting<std::wstring_view> counter{{settings::Counter.key}, L""};
        if (*stored) session.settings.write(counter, stored);
        open();
        EXPECT_EQ(session.StartUpTimes, count);
        EXPECT_EQ(session.settings.read(counter), std::to_wstring(count));
        EXPECT_EQ(session.settings.read(settings::Directory, L""), session.program_folder);
        form.reset();
    }
}

TEST_F(MainScreenTest, OpensReadyForMouseAndKeyboard) {
    open();
    EXPECT_TRUE(pump_until([this] {
        POINT pointer{};
        GetCursorPos(&pointer);
        return WindowFromPoint(pointer) == form->Command4.window();
    }));
    EXPECT_TRUE(pump_until([this] { return form->Command4.has_focus(); }));
    for (const Button* next : {&form->Command6, &form->Command8, &form->Command5, &form->Command3, &form->Command4}) {
        press_key(VK_TAB);
        EXPECT_TRUE(pump_until([&] { return next->has_focus(); })) << "hidden answers are passed by";
    }
    int cheats = 0;
    windows.cheats = [&] { ++cheats; };
    press_key(VK_RETURN);
    EXPECT_TRUE(pump_until([&] { return cheats == 1; }));
    press_key('C', {VK_MENU});
    EXPECT_TRUE(pump_until([&] { return cheats == 2; }));
}

TEST_F(MainScreenTest, AKeyHeldDownPressesOneButtonOnly) {
    int cheats = 0;
    windows.cheats = [&] { ++cheats; };
    open();
    ASSERT_TRUE(pump_until([this] { return form->Command4.has_focus(); }));
    constexpr LPARAM repeated = 1 << 30;
    PostMessageW(form->Command4.window(), WM_KEYDOWN, VK_RETURN, repeated | 1);
    pump();
    EXPECT_EQ(cheats, 0) << "it went down in a window that is gone";
}

/// Counts how often the user takes hold of a window by its title bar, or seems to, and keeps the window where it is.
class TitleBarPresses {
  public:
    explicit TitleBarPresses(HWND window) : window_(window) {
        count_ = 0;
        former_ = reinterpret_cast<WNDPROC>(
            SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&TitleBarPresses::procedure)));
    }
    ~TitleBarPresses() { SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(former_)); }
    TitleBarPresses(const TitleBarPresses&) = delete;
    TitleBarPresses& operator=(const TitleBarPresses&) = delete;

    int count() const { return count_; }

  private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
        if (message != WM_NCLBUTTONDOWN) return CallWindowProcW(former_, window, message, wparam, lparam);
        if (wparam == HTCAPTION) ++count_;
        return 0;
    }

    static inline WNDPROC former_ = nullptr;
    static inline int count_ = 0;
    HWND window_;
};

TEST_F(MainScreenTest, IsDraggedByItsSurfaceAndByItsBand) {
    open();
    const TitleBarPresses presses(form->window());
    int expected = 0;
    const LPARAM margin = MAKELPARAM(4, 4);
    const LPARAM on_name = MAKELPARAM(100, 20);
    const LPARAM between_buttons = MAKELPARAM(4, 140);
    for (const auto& [window, place] : {std::pair{form->Frame1.window(), margin},
                                        {form->Frame1.window(), on_name},
                                        {form->window(), between_buttons}}) {
        SendMessageW(window, WM_RBUTTONDOWN, MK_RBUTTON, place);
        SendMessageW(window, WM_RBUTTONUP, 0, place);
        EXPECT_EQ(presses.count(), expected) << "the right button drags nothing";
        SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, place);
        EXPECT_EQ(presses.count(), ++expected);
        SendMessageW(window, WM_LBUTTONUP, 0, place);
    }
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

TEST_F(MainScreenTest, EnterConfirmsTheExit) {
    bool closing = false;
    windows.close_all = [&] { closing = true; };
    open();
    ask_to_exit();
    for (const Button* button : buttons()) {
        EXPECT_EQ(button->enabled(), button == &form->Command1 || button == &form->Command2);
    }
    EXPECT_FALSE(form->menus.mnuFileExit.enabled());
    press_key(VK_RETURN);
    EXPECT_TRUE(pump_until([this] { return !form; }));
    EXPECT_TRUE(closing);
}

TEST_F(MainScreenTest, TheExitCanBeTakenBackAndAskedForAgain) {
    for (const int dpi : {96, 144}) {
        application.force_dpi(dpi);
        open();
        for (int round = 0; round < 2; ++round) {
            ask_to_exit();
            EXPECT_TRUE(pump_until([this] { return form->Command1.top() == form->Command3.top(); })) << dpi;
            EXPECT_LE(form->Command3.left() + form->Command3.width(), form->Command1.left()) << dpi;
            EXPECT_FALSE(form->Timer4.enabled()) << "Timer5 stops it";
            press_key(VK_ESCAPE);
            ASSERT_TRUE(pump_until([this] { return form->caption() == L"Thanks! You're so kind!"; }));
            EXPECT_TRUE(form->Command4.enabled() && form->menus.mnuFileExit.enabled());
            EXPECT_TRUE(pump_until([this] { return !form->Command1.visible() && !form->Command2.visible(); }));
            EXPECT_NEAR(form->Command3.width(), 5415, 15) << dpi;
            EXPECT_TRUE(form->Command3.has_focus());
        }
        form.reset();
    }
}

TEST_F(MainScreenTest, NothingIsCutOffAtAnyResolution) {
    for (const int dpi : {96, 144}) {
        application.force_dpi(dpi);
        open();
        std::wstring help;
        for (Button* button : buttons()) {
            if (button == &form->Command1) ask_to_exit();
            const SIZE caption = text_extent(application.fonts().get(button->font(), dpi), button->caption());
            EXPECT_GE(to_pixels(button->width(), dpi), caption.cx) << dpi;
            EXPECT_LE(button->left() + button->width(), form->inner_width()) << dpi;
            RECT face{};
            GetClientRect(button->window(), &face);
            ASSERT_TRUE(point_until(button->window(), face.right - 5, face.bottom / 2,
                                    [&] { return form->Text1.visible() && button->font().underline; }));
            EXPECT_NE(form->Text1.text(), help) << "each has its own help text";
            help = form->Text1.text();
            RECT room{};
            SendMessageW(form->Text1.window(), EM_GETRECT, 0, reinterpret_cast<LPARAM>(&room));
            const SIZE text = text_extent(application.fonts().get(form->Text1.font(), dpi), help);
            EXPECT_GE(room.right - room.left, text.cx) << dpi;
            EXPECT_GE(room.bottom - room.top, text.cy) << dpi;
            EXPECT_LE(form->Text1.left() + form->Text1.width(), form->inner_width()) << dpi;
        }
        form.reset();
    }
}

class WholeProgramTest : public MainScreenTest {
  protected:
    WholeProgramTest() {
        std::ofstream(folder.path() / "Cheats.dat", std::ios::binary) << "code\r\n$$$$$$$$$$$$$$$$$$$$ Alpha\r\n";
    }
    Windows program{application, session};
};

TEST_F(WholeProgramTest, LeadsFromTheSplashToTheCheatsAndOut) {
    program.open_splash();
    ASSERT_TRUE(pump_until([] { return GetFocus() == find_form<frmSplash>()->window(); }));
    press_key(VK_SPACE);
    ASSERT_TRUE(pump_until([] { return !find_form<frmSplash>() && find_form<frmMain>(); }));
    ASSERT_TRUE(pump_until([] { return find_form<frmMain>()->Command4.has_focus(); }));
    press_key(VK_RETURN);
    ASSERT_TRUE(pump_until([] { return find_form<frmCtlView>() && find_form<frmCtlView>()->List2.has_focus(); }));
    find_form<frmCtlView>()->List2.select_index(0);

    find_form<frmMain>()->set_window_state(WindowState::Minimised);
    find_form<frmCtlView>()->close();
    ASSERT_TRUE(pump_until([] { return !find_form<frmCtlView>(); }));
    EXPECT_EQ(find_form<frmMain>()->window_state(), WindowState::Normal);
    SendMessageW(find_form<frmMain>()->window(), WM_CLOSE, 0, 0);
    EXPECT_EQ(application.run(), 0);
    EXPECT_FALSE(find_form<frmMain>());
}

TEST_F(WholeProgramTest, TheViewerThatIsOpenComesToTheFront) {
    program.open_main_screen();
    program.open_viewer();
    auto* const viewer = find_form<frmCtlView>();
    viewer->set_window_state(WindowState::Minimised);
    find_form<frmMain>()->Command4.click();
    EXPECT_TRUE(pump_until([&] { return GetForegroundWindow() == viewer->window() && !IsIconic(viewer->window()); }));
    find_form<frmMain>()->close();
    EXPECT_EQ(application.run(), 0);
}

TEST_F(WholeProgramTest, EverythingClosesWithTheMainScreen) {
    program.open_main_screen();
    program.open_viewer();
    find_form<frmCtlView>()->List2.select_index(0);
    Form dialog(application, {.name = L"TestDialog", .caption = L"", .width = 3000, .height = 2000});
    bool dialog_unloaded = false;
    dialog.on_unload = [&] { dialog_unloaded = true; };
    Timer closer(dialog, 1);
    closer.on_timer = [&] {
        closer.set_enabled(false);
        find_form<frmMain>()->close();
    };
    dialog.show_modal(find_form<frmCtlView>());
    EXPECT_TRUE(dialog_unloaded);
    EXPECT_EQ(application.run(), 0);
    EXPECT_FALSE(find_form<frmMain>() || find_form<frmCtlView>());
    EXPECT_EQ(session.settings.read(settings::DefaultGame), L"Alpha") << "the viewer saved its settings";
}

}  // namespace
}  // namespace quillomat
