// What each kind of item paints, by what its window shows.

#include <algorithm>
#include <cstdint>
#include <set>
#include <span>

#include "board.h"
#include "common/hover_help.h"
#include "shell/emboss_label.h"
#include "shown_pixels.h"
#include "shown_viewer.h"
// Needs the above.
#include <commctrl.h>
#include <uxtheme.h>

namespace quillomat {
namespace {

constexpr Colour red = rgb(255, 0, 0);
constexpr Colour green = rgb(0, 128, 0);
int count(const Control& control, Colour colour) {
    const ShownPixels shown(control.window());
    return shown.count(shown.area(), resolve(colour));
}

struct PaintingTest : SessionTest {
    PaintingTest() {
        board.show();
        pump();
    }

    ShownPixels shown() const { return ShownPixels(board.window()); }
    int count_on(const Graphic& graphic, Colour colour) const {
        return shown().count(graphic.pixels(), resolve(colour));
    }

    const COLORREF face = resolve(colours::button_face);
    Board board{application};
};

TEST_F(PaintingTest, EveryStateLooksLikeNoOtherAndLeavesNoTrace) {
    const auto send = [](const Control& control, UINT message) {
        return [&control, message](bool on) { SendMessageW(control.window(), message, WPARAM{on}, 0); };
    };
    const auto hover = [](const Control& control) {
        return [&control](bool on) {
            SendMessageW(control.window(), on ? WM_MOUSEMOVE : WM_MOUSELEAVE, 0, MAKELPARAM(3, 3));
        };
    };
    const auto enable = [](Item& item) { return [&item](bool on) { item.set_enabled(!on); }; };
    const auto focus = [](Control& control) {
        return [&control](bool on) { SetFocus(on ? control.window() : nullptr); };
    };
    SendMessageW(board.window(), WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS), 0);
    board.Text1.set_text(L"Text");
    SetFocus(nullptr);
    const HWND list = board.List1.window();
    const std::pair<const char*, std::function<void(bool)>> changes[] = {
        {"disabled label", enable(board.Label1)},
        {"other caption", [&](bool on) { board.Label1.set_caption(on ? L"Other" : L"Label"); }},
        {"italic label", [&](bool on) { board.Label1.set_font({.points = 20, .italic = on}); }},
        {"disabled image", enable(board.Image1)},
        {"bordered image", [&](bool on) { board.Image1.set_border(static_cast<ImageBorder>(on)); }},
        {"disabled button", enable(board.Button1)},
        {"pressed button", send(board.Button2, BM_SETSTATE)},
        {"hovered button", hover(board.Button1)},
        {"default button", [&](bool on) { board.set_default_button(on ? &board.Button1 : nullptr); }},
        {"focused button", focus(board.Button2)},
        {"disabled option", enable(board.Option1)},
        {"set option", [&](bool on) { board.Option1.set_value(on); }},
        {"disabled check box", enable(board.Check1)},
        {"set check box", [&](bool on) { board.Check1.set_value(on); }},
        {"disabled frame", enable(board.Frame1)},
        {"hovered link", hover(board.Link1)},
        {"focused link", focus(board.Link1)},
        {"pressed link", send(board.Link1, BM_SETSTATE)},
        {"mirrored picture", [&](bool on) { board.Picture1.set_width_factor(on ? -1 : 1); }},
        {"help box",
         [&](bool on) {
             HideTip(board.Button1, board.Help);
             if (on) ShowTip(board.Button1, board.Help, L"Help");
         }},
        {"selected item", [list](bool on) { SendMessageW(list, LB_SETCURSEL, WPARAM{on} - 1, 0); }},
        {"disabled text", enable(board.Text1)},
    };
    for (const bool classic : {false, true}) {
        const wchar_t* const theme = classic ? L" " : nullptr;
        for (const Control* control : board.controls()) SetWindowTheme(control->window(), theme, theme);
        for (const auto& [what, set] : changes) {
            const bool is_shown = !classic || what != std::string_view("hovered button");
            set(false);
            const ShownPixels before = shown();
            for (const bool on : {true, false}) {
                set(on);
                const RECT changed = shown().difference(before, before.area());
                EXPECT_EQ(!IsRectEmpty(&changed), on && is_shown) << what << (classic ? ", classic" : "");
            }
        }
    }
}

TEST_F(PaintingTest, ALabelHasItsColoursAndItsPlaceAndLeavesWhatLiesBehindIt) {
    const RECT& place = board.Label1.pixels();
    board.Label1.set_fore_colour(red);
    EXPECT_GT(count_on(board.Label1, red), 20);
    EXPECT_EQ(shown().at(place.left, place.bottom - 1), face) << "transparent";
    // All spare room is right of the text, on both sides alike, or left of it.
    for (const auto& [alignment, side] :
         {std::pair{Alignment::Left, -1}, {Alignment::Centre, 0}, {Alignment::Right, 1}}) {
        board.Label1.set_alignment(alignment);
        const RECT ink = shown().ink(place, face);
        const LONG spare = place.right - place.left - (ink.right - ink.left);
        EXPECT_NEAR((ink.left - place.left) - (place.right - ink.right), side * spare, side ? 8 : 4);
    }
    board.Label1.set_back_style(BackStyle::Opaque);
    board.Label1.set_back_colour(green);
    EXPECT_EQ(shown().at(place.left, place.bottom - 1), green.value);
}

// Expects a picture in the middle of an area, and over this share of its width.
void expect_centred(const RECT& ink, const RECT& area, double share) {
    EXPECT_NEAR(ink.left + ink.right, area.left + area.right, 5);
    EXPECT_NEAR(ink.top + ink.bottom, area.top + area.bottom, 7);
    const double most = share * (area.right - area.left);
    EXPECT_NEAR(ink.right - ink.left, most * 7 / 8, most / 8);
}

TEST_F(PaintingTest, ImagesShapesAndLinesStandWhereTheyShould) {
    const RECT& image = board.Image1.pixels();
    RECT around = image;
    InflateRect(&around, 3, 3);
    expect_centred(shown().ink(around, face), image, 1);
    board.Image1.set_picture_size(450);
    expect_centred(shown().ink(around, face), image, 0.5);
    board.Picture1.set_back_colour(colours::white);
    board.Picture1.set_width_factor(0.5);
    const ShownPixels coin(board.Picture1.window());
    expect_centred(coin.ink(coin.area(), 0xFFFFFF), coin.area(), 0.5);

    const RECT& shape = board.Shape1.pixels();
    board.Shape1.set_border_colour(red);
    EXPECT_EQ(shown().at(shape.left, shape.top), red.value);
    EXPECT_EQ(shown().at(shape.right - 1, shape.bottom - 1), red.value);
    EXPECT_EQ(shown().at(shape.left + 5, shape.top + 5), face) << "what lies behind is seen";
    board.Shape1.set_fill_colour(green);
    EXPECT_EQ(shown().at(shape.left + 5, shape.top + 5), green.value);

    const RECT& line = board.Line1.pixels();
    const RECT row{line.left, line.top, line.right + 1, line.top + 1};
    EXPECT_EQ(shown().count(row, face), 1) << "only what follows the line is empty";
    EXPECT_EQ(shown().at(line.right, line.top), face);
}

TEST_F(PaintingTest, AnEmbossedTextStandsBetweenItsEdges) {
    RECT around = board.Raised.pixels();
    InflateRect(&around, 3, 3);
    for (const auto style : {EmbossStyle::Raised, EmbossStyle::PressedIn}) {
        EmbossLabel(board.Raised, board.Shadow, board.Highlight, {}, style, {1}, 2);
        const ShownPixels painted = shown();
        RECT top = painted.ink(around, face);
        top.bottom = top.top + 3;
        EXPECT_EQ(painted.count(top, 0xFFFFFF) > 0, style == EmbossStyle::Raised);
        EXPECT_EQ(painted.count(top, 0x808080) > 0, style == EmbossStyle::PressedIn);
        EXPECT_GT(count_on(board.Raised, {1}), 20);
    }
}

TEST_F(PaintingTest, ControlsHaveTheirColoursAndTextsThatCanBeRead) {
    EXPECT_GT(count(board.Link1, {0xFF0000}), 20);
    for (const auto& [back, text] : {std::pair{green, colours::white}, {rgb(255, 255, 0), colours::black}}) {
        board.Button1.set_back_colour(back);
        EXPECT_GT(count(board.Button1, back), 500);
        EXPECT_GT(count(board.Button1, text), 20);
    }
    board.List1.set_back_colour(green);
    ShowTip(board.Button1, board.Help, L"Help");
    EXPECT_LT(board.Help.width(), 1300) << "as wide as the text";
    RECT place{};
    GetWindowRect(board.Help.window(), &place);
    MapWindowPoints(nullptr, board.window(), reinterpret_cast<POINT*>(&place), 2);
    EXPECT_GT(shown().count(place, resolve(colours::tip_background)), 100) << "in front of the list";
}

TEST_F(PaintingTest, TheFolderListShowsStepsWithTheirIconsAndTheSelectedOneLit) {
    std::filesystem::create_directories(folder.path() / "inner");
    board.Folders.set_path(folder.path().wstring());
    const int last = board.Folders.count() - 1;
    ASSERT_EQ(board.Folders.item(last), L"inner");
    board.Folders.set_top_index(last - 1);
    const HWND list = board.Folders.window();
    const ShownPixels shown(list);
    RECT selected{};
    SendMessageW(list, LB_GETITEMRECT, static_cast<WPARAM>(last) - 1, reinterpret_cast<LPARAM>(&selected));
    RECT plain = selected;
    OffsetRect(&plain, 0, selected.bottom - selected.top);
    EXPECT_GT(shown.count(selected, resolve(colours::highlight)), 500);
    EXPECT_GT(shown.count(selected, resolve(colours::highlight_text)), 20);
    EXPECT_GT(shown.count(plain, resolve(colours::window_text)), 20);
    // The icon stands before the name.
    RECT icon = shown.ink(plain, resolve(colours::window));
    icon.right = icon.left + 14;
    EXPECT_LT(shown.ink(selected, resolve(colours::highlight)).left, icon.left) << "indented";
    EXPECT_EQ(shown.count(icon, resolve(colours::window_text)), 0);
    board.Drives.select_drive_of(L"C:\\");
    EXPECT_GT(count(board.Drives, colours::window_text), 5);
}

TEST_F(PaintingTest, TheUsersColoursReachEverything) {
    // The user's own colours of Windows: white on black, with what is disabled in green.
    constexpr int elements[] = {COLOR_BTNFACE, COLOR_BTNTEXT, COLOR_WINDOW, COLOR_WINDOWTEXT, COLOR_GRAYTEXT};
    constexpr COLORREF contrasting[] = {0x000000, 0xFFFFFF, 0x000000, 0xFFFFFF, 0x00FF00};
    COLORREF former[std::size(elements)];
    std::ranges::transform(elements, former, GetSysColor);
    SetSysColors(static_cast<int>(std::size(elements)), elements, contrasting);
    pump();
    EXPECT_EQ(shown().at(5, 5), colours::black.value) << "between the items";
    EXPECT_GT(count_on(board.Label1, colours::white), 20);
    board.Label1.set_enabled(false);
    EXPECT_GT(count_on(board.Label1, rgb(0, 255, 0)), 20);
    for (const Control* control : std::initializer_list<const Control*>{&board.Option1, &board.Check1, &board.List1,
                                                                        &board.Frame1, &board.Link1}) {
        EXPECT_GT(count(*control, colours::white), 10) << text_of(control->window()).c_str();
        EXPECT_GT(count(*control, colours::black), 500) << text_of(control->window()).c_str();
    }
    SetSysColors(static_cast<int>(std::size(elements)), elements, former);
}

struct ViewerPaintingTest : ShownViewerTest {
    ViewerPaintingTest() {
        open_viewer("Type IDDQD.\r\n$$$$$$$$$$$$$$$$$$$$ Doom\r\n");
        viewer->List2.select_index(0);
    }
};

TEST_F(ViewerPaintingTest, BothColourSchemesReachTextAndLists) {
    for (Control* control : std::initializer_list<Control*>{&viewer->Text1, &viewer->List1, &viewer->List2}) {
        control->set_font({.points = 20});
    }
    viewer->List1.add(L"Doom");
    SendMessageW(viewer->List2.window(), LB_SETCURSEL, static_cast<WPARAM>(-1), 0);
    for (int scheme = 0; scheme < 2; ++scheme, viewer->menus.mnuColour.pick()) {
        const bool coloured = viewer->menus.mnuColour.checked();
        const Colour text = coloured ? rgb(128, 0, 128) : colours::black;
        const Colour names = coloured ? rgb(0, 0, 255) : colours::black;
        EXPECT_GT(count(viewer->Text1, text), 20);
        EXPECT_GT(count(viewer->Text1, coloured ? rgb(255, 192, 255) : colours::white), 5000);
        EXPECT_GT(count(viewer->List2, names), 20);
        EXPECT_GT(count(viewer->List2, coloured ? rgb(192, 192, 255) : colours::white), 5000);
        viewer->Option2.set_value(true);
        EXPECT_GT(count(viewer->List1, names), 20) << "the results too";
        viewer->Option1.set_value(true);
    }
    viewer->List2.select_index(0);
    EXPECT_GT(count(viewer->List2, colours::highlight), 500);
}

TEST_F(ViewerPaintingTest, MenuEntriesHavePicturesThatAreSeeThroughWhereNothingIsDrawn) {
    const auto pixels_of = [](HBITMAP bitmap) {
        BITMAP header{};
        EXPECT_TRUE(GetObjectW(bitmap, sizeof header, &header));
        const auto count = static_cast<std::size_t>(header.bmWidth * header.bmHeight);
        return std::span(static_cast<const std::uint32_t*>(header.bmBits), count);
    };
    const ViewerMenus& menus = viewer->menus;
    for (const Menu* entry : {&menus.mnuSave, &menus.mnuAddNew, &menus.mnuMailCheats, &menus.mnuExit, &menus.mnuCopy}) {
        MENUITEMINFOW info{};
        info.cbSize = sizeof info;
        info.fMask = MIIM_CHECKMARKS;
        ASSERT_TRUE(GetMenuItemInfoW(GetMenu(viewer->window()), static_cast<UINT>(entry->id()), FALSE, &info));
        for (const HBITMAP bitmap : {info.hbmpUnchecked, info.hbmpChecked}) {
            const std::span pixels = pixels_of(bitmap);
            EXPECT_GT(std::set(pixels.begin(), pixels.end()).size(), 2u);
        }
    }
    // Wine: the menus' own are not.
    const GdiObject<HBITMAP> see_through = Picture(PICTURE_GAME_PAD).bitmap(32);
    EXPECT_EQ(pixels_of(see_through.get())[0], 0u) << "a corner";
}

TEST_F(ViewerPaintingTest, AControlHasItsToolTip) {
    HWND tips = nullptr;
    do {
        tips = FindWindowExW(nullptr, tips, TOOLTIPS_CLASSW, nullptr);
    } while (tips && GetWindow(tips, GW_OWNER) != viewer->window());
    TTTOOLINFOW tool{};
    tool.cbSize = sizeof tool;
    tool.hwnd = viewer->window();
    tool.uId = reinterpret_cast<UINT_PTR>(viewer->Text1.window());
    for (const wchar_t* tip : {L"Another", L"", L"Double-click a word to search for it"}) {
        wchar_t text[200]{};
        tool.lpszText = text;
        SendMessageW(tips, TTM_GETTEXTW, std::size(text), reinterpret_cast<LPARAM>(&tool));
        EXPECT_EQ(text, viewer->Text1.tool_tip());
        viewer->Text1.set_tool_tip(tip);
    }
}

}  // namespace
}  // namespace quillomat
