// The viewer's commands: menus, image bar, alphabet bar, clipboard and printer.

#include "metafile_printer.h"
#include "shown_viewer.h"

namespace quillomat {
namespace {

constexpr char database[] =
    "IDDQD\r\n\r\nIDKFA\r\n$$$$$$$$$$$$$$$$$$$$ Alpha\r\n"
    "$$$$$$$$$$$$$$$$$$$$ Beta & Co\r\n"
    "code\r\n$$$$$$$$$$$$$$$$$$$$ aleph\r\n"
    "last\r\n$$$$$$$$$$$$$$$$$$$$ Zeta\r\n";

struct ViewerCommandsTest : ShownViewerTest {
    ViewerCommandsTest() {
        session.open_printer = [this] { return std::make_unique<MetafilePrinter>(printed); };
        viewer_windows.save = [this] { opened += L"save "; };
        viewer_windows.add_game = [this] { opened += L"add "; };
        viewer_windows.mail_cheats = [this] { opened += L"mail "; };
        viewer_windows.print_list = [this] { opened += L"list "; };
        open_viewer(database);
        viewer->List2.select_index(0);
    }

    /// A mouse message at a place of an item that the viewer paints, in pixels from the item's left and top.
    void mouse(int message, const Graphic& item, WPARAM buttons = 0, int inside = 8) {
        SendMessageW(viewer->window(), static_cast<UINT>(message), buttons,
                     MAKELPARAM(item.pixels().left + inside, item.pixels().top + inside));
    }
    void click_on(const Graphic& item) {
        mouse(WM_LBUTTONDOWN, item, MK_LBUTTON);
        mouse(WM_LBUTTONUP, item);
    }

    Printed printed;
    std::wstring opened;
};

TEST_F(ViewerCommandsTest, CopiesAndPrintsTheNameAndTheCheats) {
    expect_message(L"Quillomat", L"The cheat codes for Alpha have been copied to the clipboard.");
    viewer->menus.mnuCopy.pick();
    EXPECT_EQ(clipboard_text(), L"Alpha\r\n\r\nIDDQD\r\n\r\nIDKFA");

    viewer->menus.mnuPrint.pick();
    EXPECT_EQ(printed.document, L"Alpha");
    ASSERT_EQ(printed.pages.size(), 1u);
    EXPECT_EQ(printed.pages[0], (std::vector<std::wstring>{L"Alpha", L"", L"IDDQD", L"", L"IDKFA", L"", L"",
                                                           L"Made with Quillomat - www.tobferrand.example"}));
    EXPECT_EQ(printed.documents_ended, 1);
}

TEST_F(ViewerCommandsTest, MenusAndImagesShareTheirCommands) {
    ViewerMenus& menus = viewer->menus;
    for (Menu* entry : {&menus.mnuSelectedSave, &menus.mnuSelectedAddNew, &menus.mnuSelectedMailCheats,
                        &menus.mnuSelectedPrintList, &menus.mnuSelectedPrint}) {
        entry->pick();
    }
    EXPECT_EQ(opened, L"save add mail list ");
    EXPECT_EQ(printed.documents_ended, 1);
    opened.clear();
    for (const std::size_t image : {1u, 2u, 3u}) click_on(viewer->Image2[image]);
    EXPECT_EQ(opened, L"save add mail ");
    expect_message(L"Quillomat", L"The cheat codes for Alpha have been copied to the clipboard.");
    click_on(viewer->Image2[5]);

    click_on(viewer->Image1);
    EXPECT_TRUE(!menus.mnuColour.checked() && viewer->Image1.border() == ImageBorder::None);
    EXPECT_EQ(viewer->Text1.back_colour(), colours::white);
    menus.mnuColour.pick();
    EXPECT_TRUE(menus.mnuColour.checked() && viewer->Image1.border() == ImageBorder::Single);
    EXPECT_EQ(viewer->Text1.back_colour(), rgb(255, 192, 255));

    int finds = 0;
    viewer_windows.find = [&] { ++finds; };
    press_in_menus({VK_ESCAPE, VK_ESCAPE, 'S', 'F', VK_ESCAPE}, [this] {
        for (const std::size_t image : {4u, 6u}) click_on(viewer->Image2[image]);
        SendMessageW(viewer->Text1.window(), WM_CONTEXTMENU, 0, 0);  // nothing is selected to be searched for
        // A word that is double-clicked names the entry of a menu as it is: its ampersand is no access key.
        viewer->Text1.set_text(L"R&D code");
        viewer->Text1.select(0, 4);
        viewer->Text1.on_double_click();
    });
    wchar_t shown[40]{};
    GetMenuStringW(menus.mnuTextBox.handle(), 0, shown, 40, MF_BYPOSITION);
    EXPECT_STREQ(shown, L"Search for R&&D ");
    EXPECT_EQ(finds, 1);

    click_on(viewer->Image2[0]);
    EXPECT_SOON(!viewer) << "the first image leads home";
}

TEST_F(ViewerCommandsTest, AnImageIsPressedAndComesBack) {
    Image& image = viewer->Image2[2];
    const RECT resting = image.pixels();
    const auto is_at_rest = [&] { return EqualRect(&image.pixels(), &resting) != FALSE; };
    for (const auto& [down, up, held] : {std::tuple{WM_LBUTTONDOWN, WM_LBUTTONUP, MK_LBUTTON},
                                         {WM_LBUTTONDBLCLK, WM_LBUTTONUP, MK_LBUTTON},
                                         {WM_RBUTTONDOWN, WM_RBUTTONUP, MK_RBUTTON}}) {
        mouse(down, image, held, 0);
        EXPECT_FALSE(is_at_rest());
        // The place where it was pressed is no longer on the image.
        SendMessageW(viewer->window(), static_cast<UINT>(up), 0, MAKELPARAM(resting.left, resting.top));
        EXPECT_TRUE(is_at_rest());
    }
}

TEST_F(ViewerCommandsTest, HelpGoesWithThePointerWhereverItGoes) {
    const RECT& image = viewer->Image2[6].pixels();
    const auto is_shown = [this] { return viewer && viewer->Shape1.visible() && viewer->Text4.visible(); };
    const auto is_tidy = [this] {
        return viewer && !viewer->Shape1.visible() && !viewer->Text4.visible() &&
               viewer->Label1[5].back_colour() == rgb(0, 255, 255);
    };
    ASSERT_TRUE(point_until(viewer->window(), image.left + 9, image.top + 9, is_shown));
    // Straight onto a control that has a help text too, and back.
    ASSERT_TRUE(point_until(viewer->Option2.window(), 10, 8, [this] {
        return viewer && viewer->Text4.text() == L"Click here to search for a specific game" &&
               viewer->Option2.font().underline;
    }));
    EXPECT_FALSE(viewer->Shape1.visible());
    press_key(VK_SHIFT);
    EXPECT_SOON(!viewer->Text4.visible() && !viewer->Option2.font().underline) << "the user types";
    ASSERT_TRUE(point_until(viewer->window(), image.left + 9, image.top + 9, is_shown));
    EXPECT_SOON(!viewer->Option2.font().underline);
    SendMessageW(viewer->window(), WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(viewer->menus.mnuOptions.handle()), 1);
    EXPECT_TRUE(is_tidy()) << "an open menu stands alone";

    const RECT& letter = viewer->Label1[5].pixels();
    ASSERT_TRUE(point_until(viewer->window(), letter.left + 4, letter.top + 5,
                            [this] { return viewer && viewer->Label1[5].back_colour() == colours::black; }));
    mouse(WM_MOUSEMOVE, viewer->Image2[6]);
    EXPECT_EQ(viewer->Label1[5].back_colour(), rgb(0, 255, 255)) << "the pointer has jumped to an image";
    ASSERT_TRUE(point_until(viewer->Text1.window(), 50, 50, is_tidy));
}

TEST_F(ViewerCommandsTest, TheAlphabetBarJumps) {
    const auto label = [this](char letter) -> Label& {
        return viewer->Label1[letter == '#' ? 0 : static_cast<std::size_t>(letter - 'A' + 1)];
    };
    for (const auto& [letter, selected] : {std::pair{'Z', 3}, {'Q', 3}, {'B', 1}, {'#', 0}}) {
        click_on(label(letter));
        EXPECT_EQ(viewer->List2.selected_index(), selected) << letter;
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

}  // namespace
}  // namespace quillomat
