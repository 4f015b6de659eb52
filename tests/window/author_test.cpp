// The dialog about the author as a user meets it.

#include <memory>

#include "object_counts.h"
#include "pixels.h"
#include "registry_override.h"
#include "shell/Dialog1.h"
#include "support.h"

namespace quillomat {
namespace {

constexpr int all_ticks = 100;

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
    HICON icon() const { return reinterpret_cast<HICON>(SendMessageW(author->window(), WM_GETICON, ICON_SMALL, 0)); }

    PointerState pointer;
    std::unique_ptr<Dialog1> author;
};

TEST_F(AuthorTest, GrowsToShowItsLinksAndShrinksToHideThem) {
    for (const int dpi : {96, 120, 144}) {
        open(dpi);
        const double height_before = author->height();
        EXPECT_NEAR(height_before, 5400, 8);
        EXPECT_TRUE(author->cmdButton[0].has_focus());
        for (int round = 0; round < 2; ++round) {
            author->cmdButton[0].click();
            EXPECT_GE(author->height(), 6705) << dpi;
            EXPECT_LT(author->height(), 6815) << dpi;
            EXPECT_FALSE(author->cmdButton[0].visible());
            EXPECT_TRUE(author->cmdButton[1].has_focus()) << "the focus goes on to the button that takes its place";
            for (const Link* link : links()) {
                EXPECT_TRUE(IsWindowVisible(link->window()));
                EXPECT_LT(link->top() + link->height(), author->inner_height()) << dpi;
                EXPECT_LT(link->left() + link->width(), author->inner_width()) << dpi;
            }
            author->cmdButton[1].click();
            EXPECT_DOUBLE_EQ(author->height(), height_before) << dpi;
            EXPECT_FALSE(author->cmdButton[1].visible());
            EXPECT_TRUE(author->cmdButton[0].has_focus());
            for (const Link* link : links()) EXPECT_FALSE(link->visible()) << "below the edge no key reaches it";
        }
        const Button& back = author->cmdButton[2];
        EXPECT_LT(back.top() + back.height(), author->inner_height()) << dpi;
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

TEST_F(AuthorTest, ACapitalRunsAlongItsCaption) {
    open();
    EXPECT_EQ(author->caption(), L"about the author - tobin ferrand");
    const struct {
        int tick;
        const wchar_t* caption;
    } cases[] = {
        {1, L"About the author - tobin ferrand"},  {2, L"aBout the author - tobin ferrand"},
        {20, L"about the author - Tobin ferrand"}, {32, L"about the author - tobin ferranD"},
        {33, L"About the author - tobin ferrand"},
    };
    int tick = 0;
    for (const auto& expected : cases) {
        for (; tick < expected.tick; ++tick) author->Timer1.tick();
        EXPECT_EQ(author->caption(), expected.caption) << tick;
    }
}

TEST_F(AuthorTest, ItsIconShowsThreePicturesInTurn) {
    open();
    // The numbers of icons are used again, so what is compared is how they look.
    const auto look = [this] {
        const GdiObject<HBITMAP> none;
        const HDC screen = GetDC(nullptr);
        std::vector<COLORREF> pixels;
        {
            const RECT area{0, 0, 16, 16};
            const BufferedCanvas canvas(screen, area);
            fill(canvas.canvas(), area, colours::white);
            DrawIconEx(canvas.canvas(), 0, 0, icon(), 16, 16, 0, nullptr, DI_NORMAL);
            for (int i = 0; i < 16 * 16; ++i) pixels.push_back(GetPixel(canvas.canvas(), i % 16, i / 16));
        }
        ReleaseDC(nullptr, screen);
        return pixels;
    };
    std::vector<std::vector<COLORREF>> looks{look()};
    for (int tick = 0; tick < 3; ++tick) {
        author->Timer4.tick();
        looks.push_back(look());
    }
    EXPECT_NE(looks[0], looks[1]);
    EXPECT_NE(looks[1], looks[2]);
    EXPECT_NE(looks[2], looks[0]);
    EXPECT_EQ(looks[0], looks[3]);
}

TEST_F(AuthorTest, TheCoinTurns) {
    open(144);
    constexpr COLORREF white = 0xFFFFFF;
    const auto columns_with_coin = [this] {
        author->picCopy.refresh();
        RECT client{};
        GetClientRect(author->picCopy.window(), &client);
        const HDC shown = GetDC(author->picCopy.window());
        std::vector<int> columns;
        for (int x = 0; x < client.right; ++x) {
            if (GetPixel(shown, x, client.bottom / 2) != white) columns.push_back(x);
        }
        ReleaseDC(author->picCopy.window(), shown);
        return columns;
    };
    EXPECT_EQ(author->picCopy.tool_tip(), L"Cool, eh?");
    const std::vector<int> facing = columns_with_coin();
    const double width = to_pixels(author->picCopy.width(), 144);
    EXPECT_GT(static_cast<double>(facing.size()), 0.9 * width);
    author->Timer2.tick();
    const std::vector<int> turned = columns_with_coin();
    EXPECT_NEAR(static_cast<double>(turned.size()), 0.809 * static_cast<double>(facing.size()), 4);
    EXPECT_NEAR(turned.front() + turned.back(), width, 3) << "it turns about its middle";
    for (int tick = 2; tick <= 16; ++tick) author->Timer2.tick();
    EXPECT_LE(columns_with_coin().size(), 2U) << "from its edge next to nothing is to be seen";
    for (int tick = 17; tick <= 41; ++tick) author->Timer2.tick();
    EXPECT_LT(author->picCopy.width_factor(), -0.99) << "then it shows its other side";
    EXPECT_NEAR(static_cast<double>(columns_with_coin().size()), static_cast<double>(facing.size()), 2);
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
    const auto double_click = [this](int x, int line) {
        const LRESULT start = SendMessageW(author->Text1.window(), EM_LINEINDEX, static_cast<WPARAM>(line), 0);
        const LRESULT place = SendMessageW(author->Text1.window(), EM_POSFROMCHAR, static_cast<WPARAM>(start), 0);
        const LPARAM point = MAKELPARAM(x, HIWORD(place) + 5);
        SendMessageW(author->Text1.window(), WM_LBUTTONDOWN, MK_LBUTTON, point);
        SendMessageW(author->Text1.window(), WM_LBUTTONUP, 0, point);
        SendMessageW(author->Text1.window(), WM_LBUTTONDBLCLK, MK_LBUTTON, point);
        SendMessageW(author->Text1.window(), WM_LBUTTONUP, 0, point);
    };
    std::string address;
    const auto opened = [&] { return !(address = caught.take()).empty(); };
    double_click(40, 0);
    EXPECT_TRUE(pump_until(opened));
    EXPECT_EQ(address, "mailto:tob@tobferrand.example");
    double_click(40, 1);
    EXPECT_TRUE(pump_until(opened));
    EXPECT_EQ(address, "http://www.tobferrand.example");
}

TEST_F(AuthorTest, AnyOtherSelectionOpensNothing) {
    // Whatever would be opened now gives a message that nobody announced.
    const RegistryOverride no_programs(HKEY_CLASSES_ROOT);
    open();
    const std::size_t length = author->Text1.text().size();
    for (const auto& [start, count] : {std::pair<std::size_t, std::size_t>{0, 0}, {0, 3}, {1, 21}, {0, length}}) {
        author->Text1.select(start, count);
        author->Text1.on_double_click();
    }
    expect_message(L"Quillomat",
                   L"An error has occured.\r\nMake sure your internet connection is ON and that your web settings are "
                   L"configured properly.");
    author->Label6.click();
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

TEST_F(AuthorTest, HoveringShowsWhatItsButtonsDo) {
    open();
    const auto shown = [this](const wchar_t* text) {
        return [this, text] { return author->HelpBox.visible() && author->HelpBox.text() == text; };
    };
    EXPECT_TRUE(point_until(author->cmdButton[0].window(), 10, 10, shown(L"Click here to see the links to my pages")));
    author->cmdButton[0].click();
    EXPECT_TRUE(pump_until(shown(L"Click here to hide the links again")))
        << "another button has come under the resting pointer";
    EXPECT_GE(author->HelpBox.left(), 0);
    EXPECT_TRUE(point_until(author->cmdButton[2].window(), 10, 10, shown(L"Click here to go back to the main screen")));
}

TEST_F(AuthorTest, ItsAnimationsLeaveNothingBehind) {
    open();
    const auto animate = [this](int ticks) {
        for (int i = 0; i < ticks; ++i) {
            for (Timer* timer : {&author->Timer1, &author->Timer2, &author->Timer3, &author->Timer4}) timer->tick();
            UpdateWindow(author->picCopy.window());
        }
    };
    animate(all_ticks);
    const ObjectCounts before = count_objects();
    const std::size_t bytes = allocated_bytes();
    animate(10 * all_ticks);
    EXPECT_EQ(count_objects(), before);
    EXPECT_LT(allocated_bytes(), bytes + 100'000);
}

}  // namespace
}  // namespace quillomat
