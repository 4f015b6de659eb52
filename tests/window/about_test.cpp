// The about box and the author dialog.

#include "registry_support.h"
#include "shell/Dialog1.h"
#include "shell/frmAbout.h"
#include "support.h"
#include "win/system_information.h"

namespace quillomat {
namespace {

struct AboutTest : WindowTest {
    void open() {
        open_in(about, pointer, std::int16_t{1});
        ASSERT_SOON(GetFocus());
    }
    // Waits until an address other than the last one has been opened.
    void expect_opened(const std::string& address) { EXPECT_SOON(links_.last() == address + "\r\n") << address; }

    PointerState pointer;
    std::unique_ptr<frmAbout> about;
    std::unique_ptr<Dialog1> author;

  private:
    const CaughtLinks links_;
};

TEST_F(AboutTest, TheAddressesAndTheMailMenuLeadToTheAuthor) {
    open();
    press_key('E', {VK_MENU});
    press_key('D');
    expect_opened("mailto:tob@tobferrand.example");
    about->Label2.click();
    expect_opened("http://www.tobferrand.example");
    about->mnuMailMe.pick();
    EXPECT_EQ(about->next(), frmAbout::Next::MessageToAuthor);
}

TEST_F(AboutTest, StartsTheSystemInformationAndTellsWhatCannotBeStarted) {
    const RegistryOverride no_programs(HKEY_CLASSES_ROOT);
    const RegistryOverride machine(HKEY_LOCAL_MACHINE);
    const TemporaryFolder shared_tools;
    machine.set(L"SOFTWARE\\Microsoft\\Shared Tools Location", L"MSINFO", shared_tools.path().wstring());
    EXPECT_EQ(system_information_tool(), std::nullopt) << "the folder does not hold the tool";
    shared_tools.write("MSINFO32.EXE", "tool");
    EXPECT_EQ(system_information_tool(), shared_tools.path().wstring() + L"\\MSINFO32.EXE");
    const auto start = [&](const std::wstring& path) {
        machine.set(L"SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", L"PATH", path);
        about->cmdButton[1].click();
    };
    open();
    expect_message(L"Quillomat",
                   L"An error has occured.\r\nMake sure your internet connection is ON and that your web settings are "
                   L"configured properly.");
    about->Label2.click();
    expect_message(L"Quillomat", L"System Information Is Unavailable At This Time");
    start(L"C:\\no such folder\\MSINFO32.EXE");

    // Any program with a window of its own shows that it was started.
    start(_wgetenv(L"WINDIR") + std::wstring(L"\\notepad.exe"));
    HWND tool = nullptr;
    ASSERT_SOON((tool = FindWindowW(L"Notepad", nullptr)) && IsWindowVisible(tool) && !IsIconic(tool));
    PostMessageW(tool, WM_CLOSE, 0, 0);
    EXPECT_SOON(!IsWindow(tool));
}

TEST_F(AboutTest, TheAuthorGrowsUpwardsAtTheEdgeOfTheScreen) {
    for (const int dpi : {96, 120, 144}) {
        application.force_dpi(dpi);
        open_in(author, pointer);
        RECT free_area{};
        SystemParametersInfoW(SPI_GETWORKAREA, 0, &free_area, 0);
        const double lowest = to_twips(free_area.bottom, dpi);
        author->move_to(author->left(), lowest - author->height());
        for (const std::size_t next : {1u, 0u}) {
            author->cmdButton[1 - next].click();
            EXPECT_TRUE(author->cmdButton[next].has_focus()) << "the button that takes the place of the other";
            EXPECT_EQ(author->Label8.visible(), next == 1) << "below the edge no key reaches it";
            EXPECT_LE(author->top() + author->height(), lowest) << dpi;
        }
    }
}

TEST_F(AboutTest, EveryLinkOfTheAuthorOpensItsPage) {
    open_in(author, pointer);
    author->Expand();
    const std::pair<Link*, const char*> links[] = {
        {&author->Label3, "http://www.tobferrand.example"},
        {&author->Label4, "http://lists.allvb.example/subscribe/allvb"},
        {&author->Label5, "http://www.tobferrand.example/cgi-bin/guestex.cgi"},
        {&author->Label6, "mailto:tob@tobferrand.example"},
        {&author->Label8, "http://www.tobferrand.example/downloads.htm"}};
    for (const auto& [link, address] : links) {
        link->click();
        expect_opened(address);
    }
    // In the box, the address that is double-clicked.
    const HWND box = author->Text1.window();
    for (const std::size_t line : {0u, 1u}) {
        const LRESULT start = SendMessageW(box, EM_LINEINDEX, line, 0);
        const LRESULT place = SendMessageW(box, EM_POSFROMCHAR, static_cast<WPARAM>(start), 0);
        for (const UINT message : {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_LBUTTONUP}) {
            SendMessageW(box, message, 0, MAKELPARAM(40, HIWORD(place) + 5));
        }
        expect_opened(links[line == 0 ? 3 : 0].second);
    }
}

}  // namespace
}  // namespace quillomat
