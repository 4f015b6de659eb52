// The about box as a user meets it.

#include <memory>

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
    open(32767);
    EXPECT_EQ(about->Label4.caption(), L"You have run Quillomat 32767 times.");
    RECT outer{};
    GetWindowRect(about->window(), &outer);
    EXPECT_NEAR(outer.left + outer.right, GetSystemMetrics(SM_CXSCREEN), 2);
    EXPECT_TRUE(about->cmdButton[0].has_focus());
    POINT position{};
    GetCursorPos(&position);
    EXPECT_EQ(WindowFromPoint(position), about->cmdButton[0].window());
}

TEST_F(AboutTest, TheRunCountIsPressedInByTheMouseAndAClickAsksWhy) {
    for (const int dpi : {96, 144}) {
        application.force_dpi(dpi);
        open();
        const LPARAM place = MAKELPARAM(pixels(about->Label4.left() + 2700), pixels(about->Label4.top() + 150));
        EXPECT_EQ(offset(about->Label3), 1);
        EXPECT_EQ(offset(about->Label1), -1);
        SendMessageW(about->window(), WM_LBUTTONDOWN, MK_LBUTTON, place);
        EXPECT_EQ(offset(about->Label3), -1);
        EXPECT_EQ(offset(about->Label1), 1);
        expect_message(L"Quillomat", L"Why did you click me?");
        SendMessageW(about->window(), WM_LBUTTONUP, 0, place);
        EXPECT_EQ(offset(about->Label3), 1);
    }
}

TEST_F(AboutTest, ALinkIsRedWhileItIsPressed) {
    open();
    const HWND link = about->Label2.window();
    int clicks = 0;
    about->Label2.on_click = [&] { ++clicks; };
    const auto is_red_after = [link](UINT message, WPARAM button, int y) {
        SendMessageW(link, message, button, MAKELPARAM(20, y));
        UpdateWindow(link);
        return shows_colour(link, 0x0000FF);
    };
    EXPECT_TRUE(is_red_after(WM_LBUTTONDOWN, MK_LBUTTON, 8));
    EXPECT_FALSE(is_red_after(WM_LBUTTONUP, 0, 8));
    EXPECT_EQ(clicks, 1);
    EXPECT_TRUE(is_red_after(WM_LBUTTONDOWN, MK_LBUTTON, 8));
    EXPECT_TRUE(is_red_after(WM_MOUSEMOVE, MK_LBUTTON, 60)) << "the button is still held, only the pointer has gone";
    EXPECT_FALSE(is_red_after(WM_LBUTTONUP, 0, 60));
    EXPECT_EQ(clicks, 1) << "released elsewhere";
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
    const std::wstring key = L"SOFTWARE\\Microsoft\\Shared Tools\\MSINFO";
    machine.set(key, L"PATH", L"C:\\no such folder\\MSINFO32.EXE");
    expect_message(L"Quillomat", L"System Information Is Unavailable At This Time");
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

TEST_F(AboutTest, EscapeAndEnterCloseIt) {
    for (const WORD key : {VK_ESCAPE, VK_RETURN}) {
        open();
        press_key(key);
        EXPECT_TRUE(pump_until([this] { return about->closed(); }));
    }
}

/// A dialog of the main screen, as the program opens it.
class AboutFromMainScreenTest : public WindowTest {
  protected:
    AboutFromMainScreenTest() {
        session.settings = registry.settings();
        session.settings.write(settings::Counter, 6);
        windows.open_main_screen();
    }
    /// Opens it with a button, looks at it and closes it again.
    template <class Dialog>
    void open(Button& button, const std::function<void(const Dialog&)>& look) {
        const Form& main_screen = button.form();
        Timer closer(button.form(), 10);
        closer.on_timer = [&] {
            auto* dialog = find_form<Dialog>();
            if (!dialog || !IsWindowVisible(dialog->window())) return;
            closer.set_enabled(false);
            EXPECT_FALSE(IsWindowEnabled(main_screen.window()));
            EXPECT_EQ(GetWindow(dialog->window(), GW_OWNER), main_screen.window());
            look(*dialog);
            dialog->close();
        };
        button.click();
        EXPECT_FALSE(closer.enabled()) << "it was seen";
        EXPECT_EQ(find_form<Dialog>(), nullptr);
        EXPECT_TRUE(IsWindowEnabled(main_screen.window()));
    }

    TemporarySettings registry;
    Session session;
    Windows windows{application, session};
};

TEST_F(AboutFromMainScreenTest, OpensInFrontOfItWithTheNumberOfThisRun) {
    auto& main_screen = *find_form<frmMain>();
    open<frmAbout>(main_screen.Command6, [](const frmAbout& box) {
        EXPECT_EQ(box.Label4.caption(), L"You have run Quillomat 7 times.");
    });
    open<Dialog1>(main_screen.Command8, [](const Dialog1&) {});
}

}  // namespace
}  // namespace quillomat
