// Collecting fonts into the viewer's menu and its file, and choosing one.

#include <deque>
#include <filesystem>
#include <fstream>
#include <memory>
#include <set>

#include "common/session.h"
#include "support.h"
#include "temporary.h"
#include "text/error.h"
#include "viewer/frmCtlView.h"

namespace quillomat {
namespace {

using Names = std::vector<std::wstring>;

constexpr wchar_t question[] =
    L"Quillomat will now collect all the available fonts in the System.\r\n"
    L"This may take some time depending upon the speed of your\r\n"
    L"computer and the number of fonts you have on your system.\r\n"
    L"Do you wish to continue?";
constexpr wchar_t success[] =
    L"All fonts have been collected!\r\nYou may now choose any font which you would like from the FONT Menu!";
constexpr wchar_t cancel_question[] = L"Are you sure you want to cancel collecting the fonts?";

class FontsTest : public WindowTest {
  protected:
    FontsTest() {
        session.program_folder = folder.path().wstring();
        session.settings = registry.settings();
        write("Cheats.dat", "text\r\n$$$$$$$$$$$$$$$$$$$$ Game\r\n");
        session.screen_fonts = [this] {
            return ScreenFonts{static_cast<int>(fonts.size()), [this](int position) {
                                   raise(on_asked, position);
                                   const auto index = static_cast<std::size_t>(position);
                                   return index < fonts.size() ? fonts[index] : std::wstring();
                               }};
        };
    }

    void write(const char* name, std::string_view bytes) const {
        std::ofstream(folder.path() / name, std::ios::binary)
            .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    }
    std::string file() const {
        std::ifstream stream(folder.path() / "Fonts.dat", std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    void open() {
        viewer = std::make_unique<frmCtlView>(application, session, windows);
        viewer->on_closed = [this] { viewer.reset(); };
        viewer->show();
        pump();
    }
    void reopen() {
        viewer->close();
        ASSERT_TRUE(pump_until([this] { return !viewer; }));
        open();
    }
    /// The font menu's captions behind its first entry.
    Names listed() const {
        Names names;
        for (const auto& entry : viewer->menus.mnuFontName) names.push_back(entry->caption());
        EXPECT_EQ(names.front(), L"Click &here to get font list...");
        names.erase(names.begin());
        EXPECT_EQ(GetMenuItemCount(viewer->menus.mnuFont.handle()), static_cast<int>(names.size()) + 1);
        return names;
    }
    void pick(std::size_t index) { viewer->menus.mnuFontName[index]->pick(); }
    /// Collects to the end, where a menu pops up; the answers are those to whether to cancel meanwhile.
    void collect_all(std::initializer_list<int> answers = {}, std::deque<WORD> keys_in_menu = {VK_ESCAPE}) {
        expect_message(L"Continue?", question);
        for (const int answer : answers) expect_message(L"Sure?", cancel_question, answer);
        expect_message(L"Success!", success);
        collect(std::move(keys_in_menu));
        EXPECT_TRUE(menu_keys_.empty()) << "the menu has popped up";
    }
    /// Picks the entry that collects, and presses `keys` in the menu that pops up at the end.
    void collect(std::deque<WORD> keys = {VK_ESCAPE}) {
        menu_keys_ = std::move(keys);
        const UINT_PTR timer = SetTimer(nullptr, 0, 20, press_key_in_menu);
        pick(0);
        KillTimer(nullptr, timer);
    }
    Form* status() const { return Form::from(FindWindowW(L"frmStatus", nullptr)); }

    TemporaryFolder folder;
    TemporarySettings registry;
    Session session;
    ViewerWindows windows;
    Names fonts;
    std::function<void(int position)> on_asked;
    std::unique_ptr<frmCtlView> viewer;

  private:
    static void CALLBACK press_key_in_menu(HWND, UINT, UINT_PTR, DWORD) {
        GUITHREADINFO state{};
        state.cbSize = sizeof state;
        GetGUIThreadInfo(GetCurrentThreadId(), &state);
        if (!(state.flags & GUI_INMENUMODE) || menu_keys_.empty()) return;
        press_key(menu_keys_.front());
        menu_keys_.pop_front();
    }

    static inline std::deque<WORD> menu_keys_;
};

TEST_F(FontsTest, CollectsAllButTheFirstSortedIntoMenuAndFile) {
    fonts = {L"First", L"Tahoma", L"Zeta & Sons", L"arial", L"Beta", L"Courier"};
    open();
    std::set<int> positions;
    on_asked = [&](int position) {
        positions.insert(position);
        ASSERT_TRUE(status());
        EXPECT_TRUE(status()->caption().starts_with(L"Please wait... "));
        EXPECT_TRUE(IsWindowVisible(status()->window()));
        EXPECT_FALSE(IsWindowEnabled(viewer->window()));
    };
    collect_all({}, {VK_UP, VK_UP, VK_RETURN});
    EXPECT_EQ(positions, (std::set<int>{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(listed(), (Names{L"", L"Beta", L"Courier", L"Tahoma", L"Zeta & Sons", L"arial"}));
    EXPECT_EQ(file(), "Beta\r\nCourier\r\nTahoma\r\nZeta & Sons\r\narial\r\n");
    EXPECT_EQ(viewer->Text1.font().name, L"Zeta & Sons") << "picked in the menu that popped up";
    EXPECT_TRUE(pump_until([this] { return !status(); }));
    EXPECT_TRUE(IsWindowEnabled(viewer->window()));

    reopen();
    EXPECT_EQ(listed(), (Names{L"Beta", L"Courier", L"Tahoma", L"Zeta & Sons", L"arial"}));
    EXPECT_EQ(viewer->Text1.font().name, L"Zeta & Sons");
}

TEST_F(FontsTest, LeavesEverythingAsItWasWhenTheUserDoesNotWantIt) {
    write("Fonts.dat", "Old\r\n");
    fonts = {L"First", L"New"};
    open();
    expect_message(L"Continue?", question, IDCANCEL);
    pick(0);
    EXPECT_EQ(listed(), Names{L"Old"});
    EXPECT_EQ(file(), "Old\r\n");
}

TEST_F(FontsTest, KeepsWhatWasCollectedUntilF10) {
    write("Fonts.dat", "Old\r\n");
    fonts = {L"First", L"Beta", L"Alpha"};
    fonts.insert(fonts.end(), 400, L"Gamma");
    open();
    int asked = 0;
    on_asked = [&](int position) {
        ++asked;
        if (position == 3 || position == 9) press_key(VK_F10);
        // A slow machine: every font takes longer than events are made to wait.
        Sleep(12);
    };
    collect_all({IDNO, IDYES});
    EXPECT_GE(asked, 9);
    EXPECT_LT(asked, 400);
    Names expected{L"Alpha", L"Beta"};
    expected.resize(static_cast<std::size_t>(asked), L"Gamma");
    EXPECT_EQ(listed(), expected);
    EXPECT_TRUE(file().starts_with("Alpha\r\nBeta\r\nGamma\r\n"));
}

TEST_F(FontsTest, AFileThatCannotBeWrittenIsReportedAndTheNextTryCanSucceed) {
    std::filesystem::create_directory(folder.path() / "Fonts.dat");
    fonts = {L"First", L"Beta", L"Alpha"};
    open();
    expect_message(L"Continue?", question);
    expect_message(L"Error!", L"Permission denied");
    collect();
    EXPECT_EQ(listed(), (Names{L"", L"Alpha", L"Beta"}));
    ASSERT_TRUE(status()) << "stays open";
    EXPECT_TRUE(IsWindowEnabled(viewer->window()));

    std::filesystem::remove(folder.path() / "Fonts.dat");
    collect_all();
    EXPECT_EQ(file(), "Alpha\r\nBeta\r\n");
    EXPECT_TRUE(pump_until([this] { return !status(); }));
}

TEST_F(FontsTest, AfterAFailureTheUserCanCloseTheProgressWindow) {
    fonts = {L"First", L"Beta", L"Alpha"};
    open();
    on_asked = [](int position) {
        if (position == 2) throw Error(ErrorCode::OutOfMemory);
    };
    expect_message(L"Continue?", question);
    expect_message(L"Error!", L"Out of memory");
    collect();
    EXPECT_EQ(listed(), Names{L"Beta"}) << "what was done stays done";
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "Fonts.dat"));
    ASSERT_TRUE(status());
    const UINT close_button = GetMenuState(GetSystemMenu(status()->window(), FALSE), SC_CLOSE, MF_BYCOMMAND);
    EXPECT_EQ(close_button & (MF_GRAYED | MF_DISABLED), 0u);
    status()->close();
    EXPECT_TRUE(pump_until([this] { return !status(); }));
}

TEST_F(FontsTest, AFontThatTheFileCannotNameIsOfferedAllTheSame) {
    fonts = {L"First", L"\u4e2d\u6587 \U0001F3AE", L"Caf\u00e9"};
    open();
    collect_all();
    EXPECT_EQ(listed(), (Names{L"", L"Caf\u00e9", L"\u4e2d\u6587 \U0001F3AE"}));
}

TEST_F(FontsTest, ClosingTheViewerMeanwhileEndsTheCollection) {
    fonts = Names(100, L"Same");
    open();
    on_asked = [this](int position) {
        if (position == 3) PostMessageW(viewer->window(), WM_CLOSE, 0, 0);
        Sleep(12);
    };
    expect_message(L"Continue?", question);
    collect();
    EXPECT_TRUE(pump_until([this] { return !viewer && !status(); }));
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "Fonts.dat"));
}

TEST_F(FontsTest, OpensUsableWhateverIsInTheFile) {
    std::string bytes;
    for (int i = 0; i < 70'000; ++i) bytes += static_cast<char>(i * 7 + i / 256);
    write("Fonts.dat", bytes + "\r\nTahoma\r\n");
    open();
    viewer->List2.select_index(0);
    EXPECT_EQ(viewer->caption(), L"Game");
    EXPECT_EQ(viewer->Label1.size(), 27u) << "the start-up went to its end";
    EXPECT_EQ(listed().back(), L"Tahoma");
}

TEST_F(FontsTest, CommandsKeepTheirNumbersHoweverOftenFontsAreCollected) {
    open();
    // More entries in all than there are numbers.
    for (int round = 0; round < 8; ++round) {
        viewer->menus.remove_fonts();
        for (int i = 0; i < 9'000; ++i) viewer->menus.add_font(L"x");
    }
    EXPECT_LE(viewer->menus.mnuFontName.back()->id(), 0xEFFF);
    viewer->menus.mnuFontName[5]->set_caption(L"Tahoma");
    SendMessageW(viewer->window(), WM_COMMAND, static_cast<WPARAM>(viewer->menus.mnuFontName[5]->id()), 0);
    EXPECT_EQ(viewer->Text1.font().name, L"Tahoma");
    const bool colour = viewer->menus.mnuColour.checked();
    SendMessageW(viewer->window(), WM_COMMAND, static_cast<WPARAM>(viewer->menus.mnuColour.id()), 0);
    EXPECT_NE(viewer->menus.mnuColour.checked(), colour);
}

}  // namespace
}  // namespace quillomat
