// The dialog about the author as a user meets it.

#include <memory>

#include "registry_override.h"
#include "shell/Dialog1.h"
#include "support.h"

namespace quillomat {
namespace {

class AuthorTest : public WindowTest {
  protected:
    void open(int dpi = 96) {
        application.force_dpi(dpi);
        author = std::make_unique<Dialog1>(application, pointer);
        author->show();
        ASSERT_TRUE(pump_until([this] { return IsWindowVisible(author->window()) && GetFocus(); }));
    }
    std::vector<Link*> links() const {
        return {&author->Label3, &author->Label4, &author->Label5, &author->Label6, &author->Label8};
    }

    PointerState pointer;
    std::unique_ptr<Dialog1> author;
};

TEST_F(AuthorTest, GrowsToShowItsLinksAndShrinksToHideThem) {
    for (const int dpi : {96, 120, 144}) {
        open(dpi);
        const double height_before = author->height();
        const Button& back = author->cmdButton[2];
        EXPECT_LT(back.top() + back.height(), author->inner_height()) << dpi;
        for (int round = 0; round < 2; ++round) {
            author->cmdButton[0].click();
            EXPECT_TRUE(author->cmdButton[1].has_focus()) << "the focus goes on to the button that takes its place";
            for (const Link* link : links()) {
                EXPECT_TRUE(IsWindowVisible(link->window()));
                EXPECT_LT(link->top() + link->height(), author->inner_height()) << dpi;
                EXPECT_LT(link->left() + link->width(), author->inner_width()) << dpi;
            }
            author->cmdButton[1].click();
            EXPECT_DOUBLE_EQ(author->height(), height_before) << dpi;
            EXPECT_TRUE(author->cmdButton[0].has_focus());
            for (const Link* link : links()) EXPECT_FALSE(link->visible()) << "below the edge no key reaches it";
        }
    }
}

TEST_F(AuthorTest, GrowingMovesItUpWhenTheScreenEnds) {
    open();
    const double left = author->left();
    author->move_to(left, to_twips(GetSystemMetrics(SM_CYSCREEN), 96) - author->height());
    author->Expand();
    EXPECT_LE(author->top() + author->height(), to_twips(GetSystemMetrics(SM_CYSCREEN), 96));
    EXPECT_DOUBLE_EQ(author->left(), left);
    const double top = author->top();
    author->Contract();
    EXPECT_DOUBLE_EQ(author->top(), top);
}

TEST_F(AuthorTest, GrowsAsFarAsTheScreenLetsIt) {
    open(288);
    author->Expand();
    const LONG screen_height = GetSystemMetrics(SM_CYSCREEN);
    RECT area{};
    GetWindowRect(author->window(), &area);
    EXPECT_NEAR(area.bottom - area.top, screen_height, screen_height / 10);
    for (const Link* link : links()) EXPECT_TRUE(link->visible());
}

TEST_F(AuthorTest, EveryLinkOpensItsPage) {
    const CaughtLinks caught;
    open();
    author->Expand();
    const struct {
        Link& link;
        const char* address;
    } cases[] = {
        {author->Label3, "http://www.tobferrand.example"},
        {author->Label4, "http://lists.allvb.example/subscribe/allvb"},
        {author->Label5, "http://www.tobferrand.example/cgi-bin/guestex.cgi"},
        {author->Label6, "mailto:tob@tobferrand.example"},
        {author->Label8, "http://www.tobferrand.example/downloads.htm"},
    };
    for (const auto& [link, expected] : cases) {
        link.click();
        std::string address;
        EXPECT_TRUE(pump_until([&] { return !(address = caught.take()).empty(); }));
        EXPECT_EQ(address, expected);
    }
}

TEST_F(AuthorTest, ADoubleClickOpensTheAddressUnderThePointer) {
    const CaughtLinks caught;
    open();
    const HWND box = author->Text1.window();
    for (const auto& [line, expected] :
         {std::pair(0, "mailto:tob@tobferrand.example"), std::pair(1, "http://www.tobferrand.example")}) {
        const LRESULT start = SendMessageW(box, EM_LINEINDEX, static_cast<WPARAM>(line), 0);
        const LRESULT place = SendMessageW(box, EM_POSFROMCHAR, static_cast<WPARAM>(start), 0);
        const LPARAM point = MAKELPARAM(40, HIWORD(place) + 5);
        for (const UINT message : {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_LBUTTONUP}) {
            SendMessageW(box, message, 0, point);
        }
        std::string address;
        EXPECT_TRUE(pump_until([&] { return !(address = caught.take()).empty(); }));
        EXPECT_EQ(address, expected);
    }
}

TEST_F(AuthorTest, TheKeyboardReachesEverything) {
    open();
    press_key('O', {VK_MENU});
    ASSERT_TRUE(pump_until([this] { return author->cmdButton[1].visible(); }));
    std::vector<HWND> reached;
    for (int tab = 0; tab < 8; ++tab) {
        const HWND before = GetFocus();
        press_key(VK_TAB);
        ASSERT_TRUE(pump_until([before] { return GetFocus() != before; }));
        reached.push_back(GetFocus());
    }
    const std::vector<HWND> expected = {
        author->cmdButton[2].window(), author->Label3.window(), author->Label4.window(), author->Label5.window(),
        author->Label6.window(),       author->Label8.window(), author->Text1.window(),  author->cmdButton[1].window()};
    EXPECT_EQ(reached, expected);
    press_key('C', {VK_MENU});
    ASSERT_TRUE(pump_until([this] { return author->cmdButton[0].visible(); }));
    author->Text1.set_focus();
    press_key(VK_ESCAPE);
    EXPECT_TRUE(pump_until([this] { return author->closed(); }));
    open();
    press_key('T', {VK_MENU});
    EXPECT_TRUE(pump_until([this] { return author->closed(); }));
}

}  // namespace
}  // namespace quillomat
