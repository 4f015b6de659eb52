// The about box as a user meets it.

#include <memory>

#include "object_counts.h"
#include "open_forms.h"
#include "pixels.h"
#include "registry_override.h"
#include "shell/Dialog1.h"
#include "shell/frmAbout.h"
#include "shell/frmMain.h"
#include "shell/windows.h"
#include "support.h"

namespace quillomat {
namespace {

class AboutTest : public WindowTest {
  protected:
    void open(std::int16_t start_up_times = 3) {
        about = std::make_unique<frmAbout>(application, pointer, start_up_times);
        about->show();
        ASSERT_TRUE(pump_until([this] { return IsWindowVisible(about->window()) && GetFocus(); }));
    }
    int pixels(double twips) const { return to_pixels(twips, about->dpi()); }
    /// How far the copy stands to the right of and below the run count, in pixels; 99 when these differ.
    int offset(const Label& copy) const {
        const int across = pixels(copy.left()) - pixels(about->Label4.left());
        const int down = pixels(copy.top()) - pixels(about->Label4.top());
        return across == down ? across : 99;
    }

    PointerState pointer;
    std::unique_ptr<frmAbout> about;
};

TEST_F(AboutTest, OpensInTheMiddleWithTheRunCountAndThePointerOnItsButton) {
    for (const auto& [count, text] :
         {std::pair(1, L"You have run Quillomat 1 times."), std::pair(32767, L"You have run Quillomat 32767 times.")}) {
        open(static_cast<std::int16_t>(count));
        for (const Label* label : {&about->Label4, &about->Label3, &about->Label1}) EXPECT_EQ(label->caption(), text);
    }
    EXPECT_EQ(about->lblTitle.caption(), L"Quillomat");
    EXPECT_EQ(about->picIcon.tool_tip(), L"Double-click to start the Easter egg!");
    RECT outer{};
    GetWindowRect(about->window(), &outer);
    EXPECT_NEAR(outer.left + outer.right, GetSystemMetrics(SM_CXSCREEN), 2);
    EXPECT_TRUE(about->cmdButton[0].has_focus());
    POINT position{};
    GetCursorPos(&position);
    EXPECT_EQ(WindowFromPoint(position), about->cmdButton[0].window());
}

TEST_F(AboutTest, TheRunCountIsRaisedAndPressedInByTheMouse) {
    for (const int dpi : {96, 144}) {
        application.force_dpi(dpi);
        open();
        Label& label = about->Label4;
        EXPECT_EQ(offset(about->Label3), 1);
        EXPECT_EQ(offset(about->Label1), -1);
        EXPECT_EQ(about->Label3.fore_colour(), Colour{0x808080});
        EXPECT_EQ(about->Label1.fore_colour(), Colour{0xFFFFFF});
        EXPECT_EQ(label.fore_colour(), Colour{1});

        const MouseEvent press{.button = MouseButton::Left, .modifiers = {}};
        raise(label.on_mouse_down, press);
        EXPECT_EQ(offset(about->Label3), -1);
        EXPECT_EQ(offset(about->Label1), 1);
        raise(label.on_mouse_up, press);
        EXPECT_EQ(offset(about->Label3), 1);
        EXPECT_EQ(offset(about->Label1), -1);
    }
}

TEST_F(AboutTest, AClickOnTheRunCountAsksWhy) {
    open();
    const LPARAM place = MAKELPARAM(pixels(about->Label4.left() + 2700), pixels(about->Label4.top() + 150));
    SendMessageW(about->window(), WM_LBUTTONDOWN, MK_LBUTTON, place);
    EXPECT_EQ(offset(about->Label3), -1);
    expect_message(L"Quillomat", L"Why did you click me?");
    SendMessageW(about->window(), WM_LBUTTONUP, 0, place);
    EXPECT_EQ(offset(about->Label3), 1);
}

TEST_F(AboutTest, TheTitlePulsesBetweenTwentyAndTwoPoints) {
    open();
    const auto ink = [this] { return pixels_unlike(*about, about->lblTitle.pixels(), about->back_colour()); };
    const auto run = [this](Timer& timer) {
        int ticks = 0;
        for (; timer.enabled() && ticks < 100; ++ticks) timer.tick();
        about->FrameTimer.tick();
        return ticks;
    };
    run(about->Timer2);
    EXPECT_TRUE(about->Timer1.enabled());
    const int smallest = ink();
    EXPECT_EQ(run(about->Timer1), 19) << "eighteen points more, and the tick that turns it round";
    EXPECT_TRUE(about->Timer2.enabled());
    EXPECT_GT(ink(), 20 * smallest);
    EXPECT_EQ(run(about->Timer2), 19);
    EXPECT_EQ(ink(), smallest);
}

TEST_F(AboutTest, LinksHaveRoomForTheirTexts) {
    for (const int dpi : {96, 120, 144, 192}) {
        application.force_dpi(dpi);
        open();
        for (const Link* link : {&about->Label2, &about->lblDisclaimer}) {
            const SIZE text = text_extent(application.fonts().get(link->font(), dpi), link->caption().substr(1));
            EXPECT_GT(pixels(link->width()), text.cx) << dpi;
            EXPECT_GT(pixels(link->height()), text.cy) << dpi;
        }
    }
}

TEST_F(AboutTest, ALinkIsRedWhileItIsPressed) {
    open();
    const HWND link = about->Label2.window();
    const auto shows = [link](COLORREF colour) { return shows_colour(link, colour); };
    constexpr COLORREF red = 0x0000FF;
    constexpr COLORREF blue = 0xFF0000;
    ASSERT_TRUE(pump_until([&] { return shows(blue); }));
    int clicks = 0;
    about->Label2.on_click = [&] { ++clicks; };
    const auto mouse = [link](UINT message, WPARAM button, int y) {
        SendMessageW(link, message, button, MAKELPARAM(20, y));
        UpdateWindow(link);
    };
    mouse(WM_LBUTTONDOWN, MK_LBUTTON, 8);
    EXPECT_TRUE(shows(red) && !shows(blue));
    mouse(WM_LBUTTONUP, 0, 8);
    EXPECT_TRUE(shows(blue) && !shows(red));
    mouse(WM_LBUTTONDOWN, MK_LBUTTON, 8);
    mouse(WM_MOUSEMOVE, MK_LBUTTON, 60);
    EXPECT_TRUE(shows(red)) << "the button is still held, only the pointer has gone";
    mouse(WM_LBUTTONUP, 0, 60);
    EXPECT_TRUE(shows(blue) && !shows(red));
    EXPECT_EQ(clicks, 1);
}

TEST_F(AboutTest, TheAddressesAreOpened) {
    const CaughtLinks links;
    open();
    std::string address;
    const auto opened = [&] { return !(address = links.take()).empty(); };
    about->lblDisclaimer.set_focus();
    press_key(VK_RETURN);
    press_key('D');
    EXPECT_TRUE(pump_until(opened));
    EXPECT_EQ(address, "mailto:tob@tobferrand.example");
    about->Label2.click();
    EXPECT_TRUE(pump_until(opened));
    EXPECT_EQ(address, "http://www.tobferrand.example");
    EXPECT_FALSE(about->closed());
}

TEST_F(AboutTest, ALinkThatNothingOpensGivesOneMessage) {
    const RegistryOverride no_programs(HKEY_CLASSES_ROOT);
    open();
    expect_message(L"Quillomat",
                   L"An error has occured.\r\nMake sure your internet connection is ON and that your web settings are "
                   L"configured properly.");
    about->Label2.click();
}

TEST_F(AboutTest, TheMailMenuLeadsToTheMessageToTheAuthor) {
    open();
    EXPECT_EQ(about->next(), frmAbout::Next::MainScreen);
    press_key('E', {VK_MENU});
    press_key('Q');
    EXPECT_TRUE(pump_until([this] { return about->closed(); }));
    EXPECT_EQ(about->next(), frmAbout::Next::MessageToAuthor);
}

TEST_F(AboutTest, TheSystemInformationToolIsStarted) {
    const RegistryOverride machine(HKEY_LOCAL_MACHINE);
    open();
    constexpr wchar_t unavailable[] = L"System Information Is Unavailable At This Time";
    expect_message(L"Quillomat", unavailable);
    about->cmdButton[1].click();

    const std::wstring key = L"SOFTWARE\\Microsoft\\Shared Tools\\MSINFO";
    machine.set(key, L"PATH", L"C:\\no such folder\\MSINFO32.EXE");
    expect_message(L"Quillomat", unavailable);
    about->cmdButton[1].click();

    // Any program with a window of its own shows that it was started.
    wchar_t folder[MAX_PATH];
    GetSystemDirectoryW(folder, MAX_PATH);
    machine.set(key, L"PATH", folder + std::wstring(L"\\notepad.exe"));
    about->cmdButton[1].click();
    HWND tool = nullptr;
    ASSERT_TRUE(pump_until([&] { return (tool = FindWindowW(L"Notepad", nullptr)) != nullptr; }));
    EXPECT_TRUE(pump_until([&] { return IsWindowVisible(tool) && !IsIconic(tool); }));
    PostMessageW(tool, WM_CLOSE, 0, 0);
    EXPECT_TRUE(pump_until([&] { return !IsWindow(tool); }));
}

TEST_F(AboutTest, HoveringShowsWhatTheButtonsDo) {
    open();
    const auto shown = [this](const wchar_t* text) {
        return [this, text] { return about->Text1.visible() && about->Text1.text() == text; };
    };
    EXPECT_TRUE(pump_until(shown(L"Click here to go back to the main screen")))
        << "the pointer was put on the button without a movement of the mouse";
    EXPECT_TRUE(point_until(about->cmdButton[1].window(), 10, 10, shown(L"Click here to start MS System Info")));
    about->Text1.set_focus();
    EXPECT_FALSE(about->Text1.visible());
    EXPECT_TRUE(about->cmdButton[0].has_focus());
}

TEST_F(AboutTest, ManyWaysCloseItAndADoubleClickOnItsIconDoesNot) {
    const auto closes = [this] { return pump_until([this] { return about->closed(); }); };
    open();
    SendMessageW(about->picIcon.window(), WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, 5));
    pump();
    EXPECT_FALSE(about->closed());
    press_key(VK_ESCAPE);
    EXPECT_TRUE(closes());
    open();
    press_key(VK_RETURN);
    EXPECT_TRUE(closes());
    open();
    about->cmdButton[0].click();
    EXPECT_TRUE(about->closed());
    open();
    about->mnuOK.on_click();
    EXPECT_TRUE(about->closed());
}

TEST_F(AboutTest, ThePulseLeavesNothingBehind) {
    open();
    const auto pulse = [this](int ticks) {
        for (int i = 0; i < ticks; ++i) {
            about->Timer1.tick();
            about->Timer2.tick();
            about->FrameTimer.tick();
            UpdateWindow(about->window());
        }
    };
    pulse(40);  // every size of the title's font has been made
    const ObjectCounts before = count_objects();
    pulse(3000);
    EXPECT_EQ(count_objects(), before);
}

/// The main screen as the program opens it.
class AboutFromMainScreenTest : public WindowTest {
  protected:
    AboutFromMainScreenTest() {
        session.settings = registry.settings();
        session.settings.write(settings::Counter, 6);
        windows.open_main_screen();
    }
    /// Opens a dialog with a button and closes it again; whether the main screen had to wait meanwhile.
    template <class Dialog>
    bool opens(Button& button, const std::function<void(const Dialog&)>& look) {
        Form& main_screen = button.form();
        bool main_screen_waited = false;
        Timer closer(main_screen, 10);
        closer.on_timer = [&] {
            auto* dialog = find_form<Dialog>();
            if (!dialog || !IsWindowVisible(dialog->window())) return;
            main_screen_waited = !IsWindowEnabled(main_screen.window());
            look(*dialog);
            closer.set_enabled(false);
            dialog->close();
        };
        button.click();
        EXPECT_EQ(find_form<Dialog>(), nullptr);
        EXPECT_TRUE(IsWindowEnabled(main_screen.window()));
        return main_screen_waited;
    }

    TemporarySettings registry;
    Session session;
    Windows windows{application, session};
};

TEST_F(AboutFromMainScreenTest, OpensInFrontOfItWithTheNumberOfThisRun) {
    auto& main_screen = *find_form<frmMain>();
    const auto has_count = [](const frmAbout& box) {
        EXPECT_EQ(box.Label4.caption(), L"You have run Quillomat 7 times.");
    };
    EXPECT_TRUE(opens<frmAbout>(main_screen.Command6, has_count));
    EXPECT_TRUE(opens<Dialog1>(main_screen.Command8, [&](const Dialog1& dialog) {
        EXPECT_EQ(GetWindow(dialog.window(), GW_OWNER), main_screen.window());
    }));
}

}  // namespace
}  // namespace quillomat
