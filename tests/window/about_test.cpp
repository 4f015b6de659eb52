// The about box and the author dialog.

#include "registry_support.h"
#include "shell/Dialog1.h"
#include "shell/frmAbout.h"
#include "support.h"

namespace quillomat {
namespace {

struct AboutTest : WindowTest {
    void open() {
        open_in(about, pointer, std::int16_t{1});
        ASSERT_SOON(GetFocus());
    }
    void open_author(int dpi = 96) {
        application.force_dpi(dpi);
        open_in(author, pointer);
        ASSERT_SOON(GetFocus());
    }
    std::vector<Link*> links() const {
        return {&author->Label3, &author->Label4, &author->Label5, &author->Label6, &author->Label8};
    }
    /// Waits until an address other than the last one has been opened.
    void expect_opened(const std::string& address) { EXPECT_SOON(links_.last() == address + "\r\n") << address; }

    PointerState pointer;
    std::unique_ptr<frmAbout> about;
    std::unique_ptr<Dialog1> author;

  private:
    const CaughtLinks links_;
};

TEST_F(AboutTest, TheAddressesAndTheMailMenuLeadToTheAuthor) {
    open();
    press_key(VK_ESCAPE);
    EXPECT_SOON(!about);
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
    constexpr wchar_t msinfo[] = L"SOFTWARE\\Microsoft\\Shared Tools\\MSINFO";
    const RegistryOverride no_programs(HKEY_CLASSES_ROOT);
    const RegistryOverride machine(HKEY_LOCAL_MACHINE);
    open();
    expect_message(L"Quillomat",
                   L"An error has occured.\r\nMake sure your internet connection is ON and that your web settings are "
                   L"configured properly.");
    about->Label2.click();
    machine.set(msinfo, L"PATH", L"C:\\no such folder\\MSINFO32.EXE");
    expect_message(L"Quillomat", L"System Information Is Unavailable At This Time");
    about->cmdButton[1].click();

    // Any program with a window of its own shows that it was started.
    wchar_t folder[MAX_PATH];
    GetSystemDirectoryW(folder, MAX_PATH);
    machine.set(msinfo, L"PATH", folder + std::wstring(L"\\notepad.exe"));
    about->cmdButton[1].click();
    HWND tool = nullptr;
    ASSERT_SOON((tool = FindWindowW(L"Notepad", nullptr)) && IsWindowVisible(tool) && !IsIconic(tool));
    PostMessageW(tool, WM_CLOSE, 0, 0);
    EXPECT_SOON(!IsWindow(tool));
}

TEST_F(AboutTest, TheAuthorGrowsToShowLinksAsFarAsTheScreenLetsIt) {
    for (const int dpi : {96, 120, 144}) {
        open_author(dpi);
        RECT free_area{};
        SystemParametersInfoW(SPI_GETWORKAREA, 0, &free_area, 0);
        const double lowest = to_twips(free_area.bottom, dpi);
        const double height = author->height();
        author->move_to(author->left(), lowest - height);
        author->cmdButton[0].click();
        EXPECT_TRUE(author->cmdButton[1].has_focus()) << "the focus goes on to the button that takes its place";
        EXPECT_LE(author->top() + author->height(), lowest) << dpi;
        for (const Link* link : links()) {
            EXPECT_TRUE(link->visible() && link->top() + link->height() < author->inner_height()) << dpi;
        }
        author->cmdButton[1].click();
        EXPECT_TRUE(author->cmdButton[0].has_focus());
        EXPECT_EQ(author->height(), height) << dpi;
        for (const Link* link : links()) EXPECT_FALSE(link->visible()) << "below the edge no key reaches it";
    }
}

TEST_F(AboutTest, EveryLinkOfTheAuthorOpensItsPage) {
    open_author();
    author->Expand();
    const char* const addresses[] = {"http://www.tobferrand.example", "http://lists.allvb.example/subscribe/allvb",
                                     "http://www.tobferrand.example/cgi-bin/guestex.cgi",
                                     "mailto:tob@tobferrand.example", "http://www.tobferrand.example/downloads.htm"};
    for (std::size_t i = 0; i < links().size(); ++i) {
        links()[i]->click();
        expect_opened(addresses[i]);
    }
    // In the box, the address that is double-clicked.
    const HWND box = author->Text1.window();
    for (const std::size_t line : {0u, 1u}) {
        const LRESULT start = SendMessageW(box, EM_LINEINDEX, line, 0);
        const LRESULT place = SendMessageW(box, EM_POSFROMCHAR, static_cast<WPARAM>(start), 0);
        for (const UINT message : {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_LBUTTONUP}) {
            SendMessageW(box, message, 0, MAKELPARAM(40, HIWORD(place) + 5));
        }
        expect_opened(addresses[line == 0 ? 3 : 0]);
    }
}

}  // namespace
}  // namespace quillomat
