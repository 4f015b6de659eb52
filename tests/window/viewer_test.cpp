// The cheat viewer as a player meets it: opening, selecting, searching, closing.

#include <algorithm>

#include "shown_pixels.h"
#include "shown_viewer.h"

namespace quillomat {
namespace {

constexpr char database[] =
    "Type in the game.\r\nIDDQD - no harm\r\n$$$$$$$$$$$$$$$$$$$$ Alpha\r\n"
    "MARIO warps\r\n$$$$$$$$$$$$$$$$$$$$ Amber & Ash\r\n"
    "mario once\r\n$$$$$$$$$$$$$$$$$$$$ Beta\r\n"
    "\xC9t\xE9 code\r\n$$$$$$$$$$$$$$$$$$$$ Super MARIO\r\n"
    "last\r\n$$$$$$$$$$$$$$$$$$$$ beta\r\n";

struct ViewerTest : ShownViewerTest {
    ViewerTest() { write("Cheats.dat", database); }

    // The MF_ flags with which Windows shows an entry of the menu bar.
    UINT state_of(const Menu& entry) const {
        return GetMenuState(GetMenu(viewer->window()), static_cast<UINT>(entry.id()), MF_BYCOMMAND);
    }
};

TEST_F(ViewerTest, ShowsTheCheatsOfTheGameThatIsClicked) {
    session.settings.write(settings::FrmCtlViewWidth, 32000);
    open_viewer();
    EXPECT_LE(viewer->left() + viewer->width(), to_twips(GetSystemMetrics(SM_CXSCREEN), 96)) << "on a smaller screen";
    EXPECT_TRUE(state_of(viewer->menus.mnuSave) & MF_GRAYED);
    EXPECT_FALSE(viewer->Image2[1].enabled());
    EXPECT_EQ(viewer->caption() + viewer->Text1.text(),
              L"(Click a game on the opposite side to see it's cheat codes in this box.)")
        << "the stored caption gives way to the game that is shown, here none";
    ASSERT_TRUE(point_until(viewer->List2.window(), 20, 20,
                            [this] { return viewer->List2.tool_tip() == L"Amber & Ash (Game No. 2 of 5 games.)"; }));
    click();
    ASSERT_SOON(viewer->Text1.text() == L"MARIO warps");
    EXPECT_EQ(viewer->caption(), L"Amber & Ash");
    EXPECT_EQ(viewer->menus.mnuSave.caption(), L"&Save Amber && Ash") << "the name's own ampersand is no access key";
    EXPECT_TRUE(viewer->menus.mnuSave.enabled() && viewer->Image2[1].enabled());
    viewer->menus.mnuAutoSelect.set_checked(true);
    EXPECT_TRUE(point_until(viewer->List2.window(), 25, 8, [this] { return viewer->caption() == L"Alpha"; }));
}

TEST_F(ViewerTest, RemembersItsSettingsFromOneRunToTheNext) {
    open_viewer();
    viewer->List2.select_index(2);
    viewer->Text3.set_text(L"keyword");
    viewer->menus.mnuColour.on_click();
    viewer->menus.mnuAutoSelect.on_click();
    viewer->set_size(9000, 7200);
    close_viewer();

    session.viewer = {};
    open_viewer();
    EXPECT_EQ(viewer->caption() + viewer->Text1.text(), L"Betamario once");
    EXPECT_TRUE(viewer->Text1.back_colour() == colours::white && (state_of(viewer->menus.mnuAutoSelect) & MF_CHECKED));
    EXPECT_EQ(std::pair(viewer->width(), viewer->height()), std::pair(9000.0, 7200.0));
    viewer->set_window_state(WindowState::Minimised);
    close_viewer();
    open_viewer();
    viewer->set_window_state(WindowState::Maximised);
    EXPECT_SOON(viewer->caption() == L"Beta") << "the game's name, not the caption of the minimised window";
    close_viewer();
    EXPECT_EQ(session.settings.read(settings::FrmCtlViewWindowState), 2);
    EXPECT_EQ(session.settings.read(settings::FrmCtlViewWidth), 9000) << "a maximised window keeps the size it had";

    std::filesystem::remove(folder.path() / "Cheats.dat");
    session.catalogue.store(5, L"Added", L"in between");
    open_viewer();
    EXPECT_EQ(viewer->List2.item(5), L"Added") << "later openings list from memory";
    EXPECT_TRUE(viewer->Text3.text() == L"keyword" && viewer->Command1.enabled());
    EXPECT_EQ(viewer->window_state(), WindowState::Maximised);
}

TEST_F(ViewerTest, AFailedLoadShowsWhyAndOffersNothing) {
    std::filesystem::remove(folder.path() / "Cheats.dat");
    expect_message(L"Error!", L"File not found\r\n" + (folder.path() / "Cheats.dat").wstring());
    open_viewer();
    EXPECT_FALSE(exists("Cheats.dat")) << "reading makes no file";
    EXPECT_FALSE(viewer->Shape1.visible() || viewer->Label1[0].visible()) << "what has no meaning yet";
    EXPECT_FALSE(viewer->Image2[1].enabled() || viewer->menus.mnuSave.enabled() || viewer->Command1.enabled());
}

TEST_F(ViewerTest, KeysWalkTheListAndLeave) {
    open_viewer();
    viewer->List2.set_focus();
    const std::tuple<WORD, WORD, int> cases[] = {{VK_DOWN, VK_CONTROL, 4}, {VK_UP, VK_MENU, 3},
                                                 {VK_UP, VK_MENU, 2},      {VK_UP, VK_MENU, 1},
                                                 {VK_UP, VK_CONTROL, 0},   {VK_DOWN, VK_MENU, 2}};
    for (const auto& [key, held, selected] : cases) {
        press_key(key, {held});
        EXPECT_SOON(viewer->List2.selected_index() == selected);
        EXPECT_FALSE(in_menu()) << "the release of Alt has nothing to do with the menu bar";
    }
    EXPECT_EQ(viewer->caption(), L"Beta");
    press_in_menus({VK_ESCAPE}, [] { press_key(VK_MENU); });  // by itself Alt leads to the menu bar

    int finds = 0;
    viewer_windows.find = [&] { ++finds; };
    for (Control* focused : std::initializer_list<Control*>{&viewer->Option1, &viewer->Text1}) {
        focused->set_focus();
        press_key('F', {VK_CONTROL});
        EXPECT_SOON(std::exchange(finds, 0) == 1) << "wherever the focus is";
    }
    viewer->List2.set_focus();
    for (const auto& [key, held] : {std::pair{VK_F10, std::vector<WORD>{VK_SHIFT}}, {VK_APPS, {}}}) {
        press_key(static_cast<WORD>(key), held);
        press_key('F');
        EXPECT_SOON(std::exchange(finds, 0) == 1) << "the menu of the right button comes up by keyboard too";
    }

    std::wstring asked;
    viewer_windows.mail_author = [&](const std::wstring& text) { asked += text; };
    viewer_windows.restore_main_screen = [&] { asked += L" and back"; };
    for (const int answer : {IDNO, IDYES}) {
        expect_message(L"Help!",
                       L"You pressed the F1 Key for help.\r\nYou can e-mail me for help.\r\nDo you want to do so?",
                       answer);
    }
    for (const WORD key : {VK_F1, VK_F1, VK_ESCAPE}) press_key(key);
    EXPECT_SOON(!viewer && asked == L"[Type your question here] and back");
}

TEST_F(ViewerTest, FindsInNamesAndTextsWhateverTheCase) {
    session.settings.write(settings::SearchText, L"before");
    open_viewer();
    const auto is_typed_over = [this](const wchar_t* keyword) {
        return viewer->Text3.has_focus() && viewer->Text3.selected_text() == keyword;
    };
    viewer->Option1.set_focus();
    press_key(VK_UP);
    EXPECT_SOON(viewer->Frame2.visible() && !viewer->List2.visible()) << "the arrow keys stay among the options";
    ASSERT_TRUE(viewer->Option3.value());
    viewer->Command1.set_focus();
    click_on(viewer->Option3.window());
    EXPECT_SOON(is_typed_over(L"before")) << "also after a click on the scope that is set already";
    const auto search = [&](const wchar_t* keyword, const wchar_t* expected) {
        viewer->Text3.set_text(keyword);
        viewer->Command1.click();
        std::wstring names;
        for (int i = 0; i < viewer->List1.count(); ++i) names += viewer->List1.item(i) + L"|";
        EXPECT_EQ(names, expected);
        EXPECT_TRUE(is_typed_over(keyword)) << "by the next one";
    };
    search(L"bETA", L"Beta|beta|");
    const auto mouse = [this](UINT message) { SendMessageW(viewer->List1.window(), message, 0, MAKELPARAM(20, 20)); };
    mouse(WM_MOUSEMOVE);
    EXPECT_EQ(viewer->List1.tool_tip(), L"beta (Game No. 2 of 2 games found for the search keyword - 'BETA'.)");
    press_in_menus({VK_ESCAPE}, [&] { mouse(WM_RBUTTONDOWN); });
    EXPECT_TRUE(viewer->caption() == L"beta" && !viewer->Text1.has_focus()) << "what the menu is for is shown";
    viewer->Option4.set_value(true);
    expect_message(L"Nothing there.", L"Nothing was found! Try searching for something else.");
    search(L"mario  ", L"");
    search(L"\u00e9T\u00c9 CODE", L"Super MARIO|");
    viewer->List1.select_index(0);
    EXPECT_EQ(viewer->caption() + viewer->Text1.selected_text(), L"Super MARIO\u00c9t\u00e9 code");
    viewer->List1.set_focus();
    viewer->menus.mnuSelectedSearch.pick();
    EXPECT_TRUE(is_typed_over(L"\u00e9T\u00c9 CODE")) << "from the menu of the results, with the panel open already";
    viewer->Option1.set_value(true);
    EXPECT_TRUE(!viewer->Frame2.visible() && viewer->List2.has_focus());
    viewer->Option3.set_value(true);
    viewer->Text1.set_text(L" warps mario ");
    viewer->Text1.select(0, 7);
    viewer->menus.mnuTextBoxInCheats.pick();
    EXPECT_TRUE(is_typed_over(L"warps") && viewer->Option2.value() && viewer->Option4.value()) << "from the text";
    POINT pointer{};
    EXPECT_SOON(GetCursorPos(&pointer) && WindowFromPoint(pointer) == viewer->Command1.window())
        << "the pointer is on the button that starts the search";
}

// Before each step of a panel: where it goes, and where the list is shown to end, in pixels.
using Steps = std::vector<std::pair<LONG, LONG>>;

LRESULT CALLBACK watch(HWND window, UINT message, WPARAM wparam, LPARAM lparam, UINT_PTR, DWORD_PTR steps) {
    const auto* place = reinterpret_cast<const WINDOWPOS*>(lparam);
    if (message == WM_WINDOWPOSCHANGING && !(place->flags & SWP_NOMOVE)) {
        // On a line on which the list is empty and the search panel bare.
        const WindowCanvas shown(GetParent(window));
        LONG edge = 10;
        while (edge < 170 && GetPixel(shown.get(), edge, 117) != resolve(colours::button_face)) ++edge;
        reinterpret_cast<Steps*>(steps)->emplace_back(place->x, edge);
    }
    return DefSubclassProc(window, message, wparam, lparam);
}

TEST_F(ViewerTest, ThePanelsSlideInEqualStepsThatAreAllShown) {
    open_viewer();
    viewer->List2.clear();
    viewer->paint_changes();
    Steps steps;
    for (const HWND panel : {viewer->Frame2.window(), viewer->List2.window()}) {
        SetWindowSubclass(panel, watch, 1, reinterpret_cast<DWORD_PTR>(&steps));
    }
    viewer->Option2.set_value(true);
    ASSERT_EQ(steps.size(), 27u);
    for (std::size_t i = 0; i < 26; ++i) {
        EXPECT_EQ(steps[i].first, to_pixels(2555 - 100.0 * static_cast<double>(i), 96));
        EXPECT_TRUE(i < 2 || steps[i].second == std::max(10L, steps[i - 1].first)) << i;
    }
    for (const bool animated : {true, false}) {
        set_animations(animated);
        steps.clear();
        viewer->Option1.set_value(true);
        viewer->Option2.set_value(true);
        EXPECT_EQ(steps.size(), animated ? 29u + 28u : 2u + 2u) << "first to its start, then on to its rest";
    }
}

TEST_F(ViewerTest, ShowsTheEndsOfLongNamesAndNoRowInPart) {
    std::string games;
    for (int i = 0; i < 60; ++i) {
        games += "$$$$$$$$$$$$$$$$$$$$ A name that is a lot wider than the list, part " + std::to_string(i) + "\r\n";
    }
    open_viewer(games);
    viewer->set_size(viewer->width(), 6750);
    const HWND list = viewer->List2.window();
    for (const WPARAM top : {0u, 3u}) {
        SendMessageW(list, LB_SETTOPINDEX, top, 0);
        const ShownPixels shown(list);
        const auto row_height = static_cast<LONG>(SendMessageW(list, LB_GETITEMHEIGHT, 0, 0));
        int differences = 0;
        for (LONG x = 0; x < 140; ++x) differences += shown.at(x, 6) != shown.at(x, 6 + row_height);
        EXPECT_GT(differences, 0);
        const LONG last = shown.area().bottom - 1;
        EXPECT_EQ(shown.count({0, last, 140, last + 1}, shown.at(0, last)), 140) << "a row is not cut, but left out";
    }
}

TEST_F(ViewerTest, TheCheatTextCanBeMadeLarger) {
    open_viewer();
    const auto points = [this] { return viewer->Text1.font().points; };
    const double usual = points();
    for (const int key : {VK_OEM_PLUS, VK_ADD, VK_OEM_MINUS}) press_key(static_cast<WORD>(key), {VK_CONTROL});
    EXPECT_SOON(points() == usual + 1);
    const auto turn_wheel = [this](int held, int distance) {
        SendMessageW(viewer->Text1.window(), WM_MOUSEWHEEL, MAKEWPARAM(held, distance), 0);
    };
    // Half a notch at a time; the last two scroll.
    for (const int held : {MK_CONTROL, MK_CONTROL, MK_CONTROL, MK_CONTROL, 0, 0}) turn_wheel(held, WHEEL_DELTA / 2);
    close_viewer();
    open_viewer();
    EXPECT_EQ(points(), usual + 3) << "for as long as the program runs";
    turn_wheel(MK_CONTROL, -99 * WHEEL_DELTA);
    EXPECT_EQ(points(), usual - 2) << "never too small to be read";
    press_key('0', {VK_CONTROL});
    EXPECT_SOON(points() == usual);
}

TEST_F(ViewerTest, NamesTheResultWhileMinimisedAndIsLaidOutAnewAfterwards) {
    open_viewer();
    viewer->List2.select_index(0);
    viewer->List1.add(L"Result");
    SendMessageW(viewer->List1.window(), LB_SETCURSEL, 0, 0);
    viewer->set_window_state(WindowState::Minimised);
    EXPECT_SOON(viewer->caption() == L"Quillomat - Result");
    application.force_dpi(120);
    const RECT place{0, 0, 900, 600};
    SendMessageW(viewer->window(), WM_DPICHANGED, MAKEWPARAM(120, 120), reinterpret_cast<LPARAM>(&place));
    viewer->set_window_state(WindowState::Normal);
    EXPECT_SOON(viewer->caption() == L"Alpha");
    EXPECT_DOUBLE_EQ(viewer->Text1.left(), to_twips(to_pixels(2680, 120), 120)) << "and not as 96 dpi has rounded it";
    EXPECT_GT(SendMessageW(viewer->List2.window(), LB_GETITEMHEIGHT, 0, 0), 14) << "the rows fit the larger text";
}

}  // namespace
}  // namespace quillomat
