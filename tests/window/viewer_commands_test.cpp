// The viewer's commands: menus, image bar, alphabet bar, clipboard and printer.

#include "metafile_printer.h"
#include "shown_viewer.h"
#include "text/error.h"

namespace quillomat {
namespace {

constexpr char database[] =
    "IDDQD\r\n\r\nIDKFA\r\n$$$$$$$$$$$$$$$$$$$$ Alpha\r\n"
    "$$$$$$$$$$$$$$$$$$$$ Beta & Co\r\n"
    "code\r\n$$$$$$$$$$$$$$$$$$$$ aleph\r\n"
    "last\r\n$$$$$$$$$$$$$$$$$$$$ Zeta\r\n";

class ViewerCommandsTest : public ShownViewerTest {
  protected:
    ViewerCommandsTest() {
        session.open_printer = [this] { return std::make_unique<MetafilePrinter>(printed); };
        viewer_windows.save = [this] { opened += L"save "; };
        viewer_windows.add_game = [this] { opened += L"add "; };
        viewer_windows.mail_cheats = [this] { opened += L"mail "; };
        viewer_windows.print_list = [this] { opened += L"list "; };
        open_viewer(database);
    }

    /// A mouse message at a place of an item that the viewer paints, in pixels from the item's left and top.
    void mouse(UINT message, const Graphic& item, WPARAM buttons = 0, int x = 8, int y = 8) {
        SendMessageW(viewer->window(), message, buttons, MAKELPARAM(item.pixels().left + x, item.pixels().top + y));
    }
    void click_on(const Graphic& item) {
        mouse(WM_LBUTTONDOWN, item, MK_LBUTTON);
        mouse(WM_LBUTTONUP, item);
    }
    std::wstring clipboard_text() {
        if (!OpenClipboard(nullptr)) return L"(not opened)";
        std::wstring text = L"(no text)";
        if (const HANDLE memory = GetClipboardData(CF_UNICODETEXT)) {
            text = static_cast<const wchar_t*>(GlobalLock(memory));
            GlobalUnlock(memory);
        }
        CloseClipboard();
        return text;
    }

    Printed printed;
    std::wstring opened;
};

TEST_F(ViewerCommandsTest, CopiesTheNameAndTheCheats) {
    viewer->List2.select_index(0);
    expect_message(L"Quillomat", L"The cheat codes for Alpha have been copied to the clipboard.");
    viewer->menus.mnuCopy.pick();
    EXPECT_EQ(clipboard_text(), L"Alpha\r\n\r\nIDDQD\r\n\r\nIDKFA");
}

TEST_F(ViewerCommandsTest, PrintsTheCheatsInOrder) {
    viewer->List2.select_index(0);
    viewer->menus.mnuPrint.pick();
    EXPECT_EQ(printed.document, L"Alpha");
    EXPECT_EQ(printed.lines(), (std::vector<std::wstring>{L"Alpha", L"", L"IDDQD", L"", L"IDKFA", L"", L"",
                                                          L"Made with Quillomat - www.tobferrand.example"}));
    EXPECT_EQ(printed.documents_ended, 1);

    session.open_printer = []() -> std::unique_ptr<PrintDevice> {
        throw Error(ErrorCode::PrinterError, L"No printer.");
    };
    expect_message(L"Quillomat", L"No printer.");
    SendMessageW(viewer->window(), WM_COMMAND, static_cast<WPARAM>(viewer->menus.mnuPrint.id()), 0);
    EXPECT_FALSE(viewer->closed());
}

TEST_F(ViewerCommandsTest, MenusAndImagesShareTheirCommands) {
    viewer->List2.select_index(0);
    auto& menus = viewer->menus;
    const struct {
        const wchar_t* window;
        Menu* entries[2];
        std::size_t image;
    } cases[] = {{L"save ", {&menus.mnuSave, &menus.mnuSelectedSave}, 1},
                 {L"add ", {&menus.mnuAddNew, &menus.mnuSelectedAddNew}, 2},
                 {L"mail ", {&menus.mnuMailCheats, &menus.mnuSelectedMailCheats}, 3}};
    for (const auto& [window, entries, image] : cases) {
        opened.clear();
        for (Menu* entry : entries) entry->pick();
        click_on(viewer->Image2[image]);
        const std::wstring once(window);
        EXPECT_EQ(opened, once + once + once);
    }
    opened.clear();
    menus.mnuPrintGames.pick();
    menus.mnuSelectedPrintList.pick();
    EXPECT_EQ(opened, L"list list ");
    menus.mnuSelectedPrint.pick();
    EXPECT_EQ(printed.documents_ended, 1);
    expect_message(L"Quillomat", L"The cheat codes for Alpha have been copied to the clipboard.");
    click_on(viewer->Image2[5]);
    click_on(viewer->Image2[0]);
    EXPECT_TRUE(viewer_closes()) << "the first image leads home";
}

TEST_F(ViewerCommandsTest, TheColourMarkAndTheImagesBorderStayInStep) {
    for (int i = 0; i < 4; ++i) {
        i % 2 ? viewer->menus.mnuColour.pick() : click_on(viewer->Image1);
        const bool coloured = viewer->menus.mnuColour.checked();
        EXPECT_EQ(coloured, i % 2 == 1);
        EXPECT_EQ(viewer->Image1.border(), coloured ? ImageBorder::Single : ImageBorder::None);
        EXPECT_EQ(viewer->Text1.back_colour(), coloured ? rgb(255, 192, 255) : colours::white);
    }
}

TEST_F(ViewerCommandsTest, AnImageIsPressedAndComesBack) {
    Image& image = viewer->Image2[2];
    const RECT resting = image.pixels();
    const auto is_at_rest = [&] { return EqualRect(&image.pixels(), &resting) != FALSE; };
    for (const auto& [down, up, held] : {std::tuple{WM_LBUTTONDOWN, WM_LBUTTONUP, MK_LBUTTON},
                                         {WM_LBUTTONDBLCLK, WM_LBUTTONUP, MK_LBUTTON},
                                         {WM_RBUTTONDOWN, WM_RBUTTONUP, MK_RBUTTON}}) {
        mouse(static_cast<UINT>(down), image, held, 0, 0);
        EXPECT_FALSE(is_at_rest());
        // The place where it was pressed is no longer on the image.
        SendMessageW(viewer->window(), static_cast<UINT>(up), 0, MAKELPARAM(resting.left, resting.top));
        EXPECT_TRUE(is_at_rest());
    }
    mouse(WM_LBUTTONDOWN, image, MK_LBUTTON);
    mouse(WM_RBUTTONDOWN, image, MK_LBUTTON | MK_RBUTTON);
    mouse(WM_LBUTTONUP, image, MK_RBUTTON);
    EXPECT_FALSE(is_at_rest()) << "the other button still holds it";
    mouse(WM_RBUTTONUP, image);
    EXPECT_TRUE(is_at_rest());
    mouse(WM_LBUTTONDOWN, image, MK_LBUTTON);
    ReleaseCapture();
    EXPECT_TRUE(is_at_rest()) << "another window has taken the mouse away";
    mouse(WM_LBUTTONUP, image);
    EXPECT_TRUE(is_at_rest()) << "a release without its press changes nothing";
}

TEST_F(ViewerCommandsTest, HelpForTheImagesCanBeReadAlsoInTheSmallestWindow) {
    viewer->set_width(5970);
    for (std::size_t i = 0; i < 8; ++i) {
        mouse(WM_MOUSEMOVE, i == 7 ? viewer->Image1 : viewer->Image2[i]);
        const TextBox& help = viewer->Text4;
        EXPECT_TRUE(help.visible());
        EXPECT_GE(help.left(), 0);
        EXPECT_LE(help.left() + help.width(), viewer->inner_width());
        RECT room{};
        SendMessageW(help.window(), EM_GETRECT, 0, reinterpret_cast<LPARAM>(&room));
        const HFONT font = application.fonts().get(help.font(), viewer->dpi());
        EXPECT_LE(text_extent(font, help.text()).cx, room.right - room.left) << "nothing is cut off";
    }
    mouse(WM_MOUSEMOVE, viewer->Image2[3]);
    click_on(viewer->Image2[3]);
    EXPECT_FALSE(viewer->Text4.visible() || viewer->Shape1.visible()) << "a click takes it away";
}

TEST_F(ViewerCommandsTest, HelpGoesWithThePointerWhereverItGoes) {
    const RECT& image = viewer->Image2[6].pixels();
    const auto is_shown = [this] { return viewer->Shape1.visible() && viewer->Text4.visible(); };
    const auto is_tidy = [this] {
        return !viewer->Shape1.visible() && !viewer->Text4.visible() &&
               viewer->Label1[5].back_colour() == rgb(0, 255, 255);
    };
    EXPECT_TRUE(point_until(viewer->window(), image.left + 9, image.top + 9, is_shown));
    EXPECT_TRUE(point_until(viewer->window(), image.left + 9, -10, is_tidy)) << "up into the menu bar";
    EXPECT_TRUE(point_until(viewer->window(), image.left + 9, image.top + 9, is_shown));
    // Straight onto a control that has a help text too, and back.
    EXPECT_TRUE(point_until(viewer->Option2.window(), 10, 8, [this] {
        return viewer->Text4.text() == L"Click here to search for a specific game" && viewer->Option2.font().underline;
    }));
    EXPECT_FALSE(viewer->Shape1.visible());
    EXPECT_TRUE(point_until(viewer->window(), image.left + 9, image.top + 9, is_shown));
    EXPECT_FALSE(viewer->Option2.font().underline);
    SendMessageW(viewer->window(), WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(viewer->menus.mnuOptions.handle()), 1);
    EXPECT_TRUE(is_tidy()) << "an open menu stands alone";

    const RECT& letter = viewer->Label1[5].pixels();
    EXPECT_TRUE(point_until(viewer->window(), letter.left + 4, letter.top + 5, [this] {
        return viewer->Label1[5].back_colour() == colours::black && viewer->Label1[5].fore_colour() == rgb(0, 255, 0);
    }));
    EXPECT_TRUE(point_until(viewer->Text1.window(), 50, 50, is_tidy));
}

TEST_F(ViewerCommandsTest, TheAlphabetBarJumps) {
    const auto label = [this](char letter) -> Label& {
        return viewer->Label1[letter == '#' ? 0 : static_cast<std::size_t>(letter - 'A' + 1)];
    };
    const std::pair<char, int> cases[] = {{'Z', 3}, {'Q', 3}, {'B', 1}, {'#', 0}};
    for (const auto& [letter, selected] : cases) {
        click_on(label(letter));
        EXPECT_EQ(viewer->List2.selected_index(), selected) << letter;
        EXPECT_EQ(session.viewer.last_jump, std::wstring(1, static_cast<wchar_t>(letter)));
    }
    viewer->Option2.set_value(true);
    click_on(label('Q'));
    EXPECT_TRUE(viewer->Option2.value()) << "nowhere to go";
    click_on(label('B'));
    EXPECT_TRUE(viewer->Option1.value());
    EXPECT_EQ(viewer->caption(), L"Beta & Co");
    viewer->List2.clear();
    click_on(label('#'));
    EXPECT_FALSE(viewer->List2.selected_index()) << "an empty list has no first game";
}

TEST_F(ViewerCommandsTest, MenusOpenByTheirImages) {
    static int menus;
    menus = 0;
    const UINT_PTR timer = SetTimer(nullptr, 0, 10, [](HWND, UINT, UINT_PTR, DWORD) {
        const HWND menu = FindWindowW(L"#32768", nullptr);
        if (menu && IsWindowVisible(menu) && EndMenu()) ++menus;
    });
    for (const std::size_t index : {4u, 6u}) click_on(viewer->Image2[index]);
    KillTimer(nullptr, timer);
    EXPECT_EQ(menus, 2);
}

}  // namespace
}  // namespace quillomat
