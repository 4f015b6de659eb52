// Collecting fonts into the viewer's menu and its file, and choosing one.

#include "shown_pixels.h"
#include "shown_viewer.h"
#include "text/error.h"
#include "viewer/frmStatus.h"

namespace quillomat {
namespace {

using Names = std::vector<std::wstring>;

struct FontsTest : ShownViewerTest {
    FontsTest() {
        write("Cheats.dat", "text\r\n$$$$$$$$$$$$$$$$$$$$ Game\r\n");
        session.screen_fonts = [this] {
            return ScreenFonts{static_cast<int>(fonts.size()), [this](int position) {
                                   raise(on_asked, position);
                                   const auto index = static_cast<std::size_t>(position);
                                   return index < fonts.size() ? fonts[index] : std::wstring();
                               }};
        };
    }

    // The captions that Windows shows in the font menu behind its first entry.
    Names listed() const {
        const HMENU menu = viewer->menus.mnuFont.handle();
        Names names(static_cast<std::size_t>(GetMenuItemCount(menu)) - 1);
        for (UINT entry = 1; entry <= names.size(); ++entry) {
            wchar_t caption[40]{};
            GetMenuStringW(menu, entry, caption, 40, MF_BYPOSITION);
            names[entry - 1] = caption;
        }
        return names;
    }
    void expect_question(int answer = IDOK) {
        expect_message(L"Continue?",
                       L"Quillomat will now collect all the available fonts in the System.\r\nThis may take some time "
                       L"depending upon the speed of your\r\ncomputer and the number of fonts you have on your "
                       L"system.\r\nDo you wish to continue?",
                       answer);
    }
    // Collects to the end, where a menu pops up; the answers are those to whether to cancel meanwhile.
    void collect_all(std::initializer_list<int> answers = {}, std::deque<WORD> keys_in_menu = {VK_ESCAPE}) {
        expect_question();
        for (const int answer : answers) {
            expect_message(L"Sure?", L"Are you sure you want to cancel collecting the fonts?", answer);
        }
        expect_message(
            L"Success!",
            L"All fonts have been collected!\r\nYou may now choose any font which you would like from the FONT Menu!");
        press_in_menus(std::move(keys_in_menu), [this] { collect(); });
    }
    // As a message, like the user's: while it is handled, the viewer is not destroyed.
    void collect() const {
        SendMessageW(viewer->window(), WM_COMMAND, static_cast<WPARAM>(viewer->menus.mnuFontName[0]->id()), 0);
    }
    static frmStatus* status() { return find_form<frmStatus>(); }
    // The width of the bar that the progress window shows, in twips.
    static double bar_shown() {
        const RECT& frame = status()->Shape2.pixels();
        const RECT row{frame.left, frame.top + 5, frame.right, frame.top + 6};
        return to_twips(ShownPixels(status()->window()).count(row, resolve(colours::highlight)), status()->dpi());
    }

    Names fonts;
    std::function<void(int position)> on_asked;
};

TEST_F(FontsTest, CollectsAllButTheFirstSortedIntoMenuAndFile) {
    fonts = {L"First", L"Zeta & Sons", L"arial", L"no code page has \xD83D"};
    open_viewer();
    std::wstring captions;
    on_asked = [&](int position) {
        ASSERT_TRUE(status() && IsWindowVisible(status()->window()));
        EXPECT_FALSE(IsWindowEnabled(viewer->window()));
        EXPECT_NEAR(bar_shown(), 8775 * (position - 1) / 4, 30) << position;
        captions += status()->caption().substr(0, status()->caption().find(L'%')) + L"|";
    };
    collect_all({}, {VK_DOWN, VK_DOWN, VK_RETURN});
    EXPECT_EQ(captions, L"Progress...|Please wait... 25|Please wait... 50|Please wait... 75|");
    EXPECT_EQ(listed(), (Names{L"", L"Zeta && Sons", L"arial", L"no code page has \xD83D"})) << "no access keys";
    EXPECT_EQ(bytes("Fonts.dat"), "Zeta & Sons\r\narial\r\n");
    EXPECT_EQ(viewer->Text1.font().name, L"Zeta & Sons") << "picked in the menu that popped up";
    EXPECT_SOON(!status());
    EXPECT_TRUE(IsWindowEnabled(viewer->window()));

    close_viewer();
    open_viewer();
    EXPECT_EQ(listed(), (Names{L"Zeta && Sons", L"arial"}));
    EXPECT_EQ(viewer->Text1.font().name, L"Zeta & Sons");
}

TEST_F(FontsTest, KeepsWhatWasCollectedUntilF10) {
    write("Fonts.dat", "Old\r\n");
    fonts = Names(400, L"Gamma");
    open_viewer();
    expect_question(IDCANCEL);
    collect();
    EXPECT_EQ(listed(), Names{L"Old"});
    EXPECT_EQ(bytes("Fonts.dat"), "Old\r\n");
    int asked = 0;
    on_asked = [&](int) {
        if (++asked == 3 || asked == 9) press_key(VK_F10);
    };
    collect_all({IDNO, IDYES});
    EXPECT_TRUE(asked >= 9 && asked < 20) << asked;
    EXPECT_EQ(listed(), Names(static_cast<std::size_t>(asked), L"Gamma"));
    EXPECT_TRUE(bytes("Fonts.dat").starts_with("Gamma\r\nGamma\r\n"));
}

TEST_F(FontsTest, AFailureIsReportedAndTheNextTryCanSucceed) {
    fonts = {L"First", L"Beta", L"Alpha"};
    open_viewer();
    on_asked = [](int position) {
        if (position == 2) throw Error(ErrorCode::OutOfMemory);
    };
    expect_question();
    expect_message(L"Error!", L"Out of memory");
    collect();
    EXPECT_EQ(listed(), Names{L"Beta"}) << "what was done stays done";
    EXPECT_FALSE(exists("Fonts.dat"));
    ASSERT_TRUE(status()) << "stays open, and can be closed";
    status()->close();
    on_asked = nullptr;
    collect_all();
    EXPECT_EQ(bytes("Fonts.dat"), "Alpha\r\nBeta\r\n");
}

TEST_F(FontsTest, ClosingTheViewerMeanwhileEndsTheCollection) {
    fonts = Names(100, L"Same");
    open_viewer();
    int asked = 0;
    on_asked = [&](int) {
        if (++asked == 3) PostMessageW(viewer->window(), WM_CLOSE, 0, 0);
    };
    expect_question();
    collect();
    EXPECT_EQ(asked, 3) << "events run before every font";
    EXPECT_SOON(!viewer && !status());
    EXPECT_FALSE(exists("Fonts.dat"));
}

}  // namespace
}  // namespace quillomat
