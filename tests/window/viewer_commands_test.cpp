// The viewer's commands: menus, image bar, alphabet bar, clipboard and printer.

#include "metafile_printer.h"
#include "object_counts.h"
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

    // A mouse message at a place of an item that the viewer paints, in pixels from the item's left and top.
    void mouse(int message, const Graphic& item) {
        SendMessageW(viewer->window(), static_cast<UINT>(message), 0,
                     MAKELPARAM(item.pixels().left + 8, item.pixels().top + 8));
    }
    void click_on(const Graphic& item) {
        for (const int message : {WM_LBUTTONDOWN, WM_LBUTTONUP}) mouse(message, item);
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
    const std::vector<std::wstring> page{L"Alpha", L"", L"IDDQD", L"",
                                         L"IDKFA", L"", L"",      L"Made with Quillomat - www.tobferrand.example"};
    EXPECT_EQ(printed.pages, (std::vector<std::vector<std::wstring>>{page}));
    EXPECT_EQ(printed.documents_ended, 1);
}

TEST_F(ViewerCommandsTest, MenusAndImagesShareTheirCommands) {
    ViewerMenus& menus = viewer->menus;
    for (Menu* entry : {&menus.mnuSelectedSave, &menus.mnuSelectedAddNew, &menus.mnuSelectedMailCheats,
                        &menus.mnuSelectedPrintList, &menus.mnuSelectedPrint}) {
        entry->pick();
    }
    EXPECT_EQ(printed.documents_ended, 1);
    SendMessageW(viewer->window(), WM_COMMAND, MAKEWPARAM(0, LBN_DBLCLK),
                 reinterpret_cast<LPARAM>(viewer->List2.window()));
    viewer_windows.find = [this] { opened += L"find "; };
    expect_message(L"Quillomat", L"The cheat codes for Alpha have been copied to the clipboard.");
    for (const std::size_t number : {1u, 2u, 3u, 5u}) {
        const Image& image = viewer->Image2[number];
        const RECT resting = image.pixels();
        for (const auto& [down, up] : {std::pair{WM_RBUTTONDOWN, WM_RBUTTONUP},
                                       {WM_LBUTTONDBLCLK, WM_LBUTTONUP},
                                       {WM_LBUTTONDOWN, WM_LBUTTONUP}}) {
            mouse(down, image);
            EXPECT_FALSE(EqualRect(&image.pixels(), &resting)) << "pressed";
            mouse(up, image);
            EXPECT_TRUE(EqualRect(&image.pixels(), &resting));
        }
    }
    EXPECT_EQ(opened, L"save add mail list save save add mail ");
    for (const bool coloured : {false, true}) {
        click_on(viewer->Image1);
        EXPECT_TRUE(menus.mnuColour.checked() == coloured &&
                    viewer->Image1.border() == (coloured ? ImageBorder::Single : ImageBorder::None));
    }
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
    EXPECT_TRUE(opened.ends_with(L" mail find "));
    click_on(viewer->Image2[0]);
    EXPECT_SOON(!viewer) << "the first image leads home";
}

TEST_F(ViewerCommandsTest, HelpGoesWithThePointerWhereverItGoes) {
    const RECT& image = viewer->Image2[6].pixels();
    const auto is_tidy = [this] {
        return !viewer->Shape1.visible() && !viewer->Text4.visible() && !viewer->Option2.font().underline &&
               viewer->Label1[5].back_colour() == rgb(0, 255, 255);
    };
    const auto point_at_image = [&] {
        return point_until(viewer->window(), image.left + 9, image.top + 9, [this] {
            return viewer->Shape1.visible() && viewer->Text4.visible() &&
                   viewer->Text4.text() == L"Click here to change the font";
        });
    };
    ASSERT_TRUE(point_at_image());
    // Straight onto a control that has a help text too, and back.
    ASSERT_TRUE(point_until(viewer->Option2.window(), 10, 8, [this] {
        return viewer->Text4.text() == L"Click here to search for a specific game" && viewer->Option2.font().underline;
    }));
    EXPECT_FALSE(viewer->Shape1.visible());
    // The user types, also after a movement that comes late.
    EXPECT_TRUE(pump_until([&] { return press_key(VK_SHIFT), is_tidy(); }));
    ASSERT_TRUE(point_at_image());
    SendMessageW(viewer->window(), WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(viewer->menus.mnuOptions.handle()), 1);
    EXPECT_TRUE(is_tidy()) << "an open menu stands alone";

    const RECT& letter = viewer->Label1[5].pixels();
    ASSERT_TRUE(point_until(viewer->window(), letter.left + 4, letter.top + 5,
                            [this] { return viewer->Label1[5].back_colour() == colours::black; }));
    mouse(WM_MOUSEMOVE, viewer->Image2[6]);
    EXPECT_EQ(viewer->Label1[5].back_colour(), rgb(0, 255, 255)) << "the pointer has jumped to an image";
    ASSERT_TRUE(point_until(viewer->Text1.window(), 50, 50, is_tidy));
}

TEST_F(ViewerCommandsTest, WhatIsDoneForHoursLeavesNothingBehind) {
    constexpr int warm_up = 40;
    ObjectCounts before;
    for (int i = 0; i < 2 * warm_up; ++i) {
        if (i == warm_up) before = count_objects();
        viewer->menus.mnuColour.pick();
        viewer->menus.mnuPrint.pick();
        for (const Control* control : {&viewer->Option1, &viewer->Option2}) {
            move_pointer(control->window(), 5, 5);
            pump();
            viewer->Timer1.tick();
        }
    }
    EXPECT_EQ(count_objects(), before);
    constexpr int kept = 100;  // some of the fonts that are tried again soon, and what the system draws with
    for (int i = 1; i <= 2 * kept; ++i) {
        viewer->menus.add_font(L"Font " + std::to_wstring(i));
        viewer->menus.mnuFontName.back()->pick();
    }
    EXPECT_LT(count_objects().gdi, before.gdi + kept);
}

TEST_F(ViewerCommandsTest, TheAlphabetBarJumps) {
    // The number sign, then the letters.
    for (const auto& [label, selected] : {std::pair{26u, 3}, {17u, 3}, {2u, 1}, {0u, 0}}) {
        click_on(viewer->Label1[label]);
        EXPECT_EQ(viewer->List2.selected_index(), selected) << label;
    }
    for (const auto& [label, listed] : {std::pair{17u, false}, {2u, true}}) {
        viewer->Option2.set_value(true);
        click_on(viewer->Label1[label]);
        EXPECT_EQ(viewer->Option1.value(), listed) << "the search stays where there is nowhere to go";
    }
    viewer->List2.clear();
    click_on(viewer->Label1[0]);
    EXPECT_FALSE(viewer->List2.selected_index()) << "an empty list has no first game";
}

}  // namespace
}  // namespace quillomat
