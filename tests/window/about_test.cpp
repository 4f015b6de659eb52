// The about box as a user meets it.

#include <memory>

#include "open_forms.h"
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
    void open() {
        about = std::make_unique<frmAbout>(application, pointer, std::int16_t{1});
        about->show();
        ASSERT_TRUE(pump_until([this] { return IsWindowVisible(about->window()) && GetFocus(); }));
    }

    PointerState pointer;
    std::unique_ptr<frmAbout> about;
};

TEST_F(AboutTest, OpensInTheMiddleWithThePointerOnItsButton) {
    open();
    RECT outer{};
    GetWindowRect(about->window(), &outer);
    EXPECT_NEAR(outer.left + outer.right, GetSystemMetrics(SM_CXSCREEN), 2);
    EXPECT_TRUE(about->cmdButton[0].has_focus());
    POINT position{};
    GetCursorPos(&position);
    EXPECT_EQ(WindowFromPoint(position), about->cmdButton[0].window());
}

TEST_F(AboutTest, TheAddressesAndTheMailMenuLeadToTheAuthor) {
    const CaughtLinks links;
    open();
    std::string address;
    const auto opened = [&] { return !(address = links.take()).empty(); };
    press_key('E', {VK_MENU});
    press_key('D');
    EXPECT_TRUE(pump_until(opened));
    EXPECT_EQ(address, "mailto:tob@tobferrand.example");
    about->Label2.click();
    EXPECT_TRUE(pump_until(opened));
    EXPECT_EQ(address, "http://www.tobferrand.example");
    about->mnuMailMe.pick();
    EXPECT_TRUE(about->closed());
    EXPECT_EQ(about->next(), frmAbout::Next::MessageToAuthor);
}

TEST_F(AboutTest, ALinkThatNothingOpensGivesOneMessage) {
    const RegistryOverride no_programs(HKEY_CLASSES_ROOT);
    open();
    expect_message(L"Quillomat",
                   L"An error has occured.\r\nMake sure your internet connection is ON and that your web settings are "
                   L"configured properly.");
    about->Label2.click();
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
    open<frmAbout>(main_screen.Command6,
                   [](const frmAbout& box) { EXPECT_EQ(box.Label4.caption(), L"You have run Quillomat 7 times."); });
    open<Dialog1>(main_screen.Command8, [](const Dialog1&) {});
}

}  // namespace
}  // namespace quillomat
