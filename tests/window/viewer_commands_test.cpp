// The viewer's commands: menus, image bar, alphabet bar, clipboard and printer.

#include <fstream>
#include <memory>

#include "common/session.h"
#include "metafile_printer.h"
#include "support.h"
#include "temporary.h"
#include "text/error.h"
#include "viewer/frmCtlView.h"

namespace quillomat {
namespace {

constexpr char database[] =
    "IDDQD\r\n\r\nIDKFA\r\n$$$$$$$$$$$$$$$$$$$$ Alpha\r\n"
    "$$$$$$$$$$$$$$$$$$$$ Beta & Co\r\n"
    "code\r\n$$$$$$$$$$$$$$$$$$$$ aleph\r\n"
    "last\r\n$$$$$$$$$$$$$$$$$$$$ Zeta\r\n";

class ViewerCommandsTest : public WindowTest {
  protected:
    ViewerCommandsTest() {
        session.program_folder = folder.path().wstring();
        session.settings = registry.settings();
        session.open_printer = [this] { return std::make_unique<MetafilePrinter>(printed); };
        std::ofstream(folder.path() / "Cheats.dat", std::ios::binary) << database;
        windows.save = [this] { opened += L"save "; };
        windows.add_game = [this] { opened += L"add "; };
        windows.mail_cheats = [this] { opened += L"mail "; };
        windows.print_list = [this] { opened += L"list "; };
        viewer = std::make_unique<frmCtlView>(application, session, windows);
        viewer->on_closed = [this] { viewer.reset(); };
        viewer->show();
        pump();
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

    TemporaryFolder folder;
    TemporarySettings registry;
    Session session;
    ViewerWindows windows;
    Printed printed;
    std::wstring opened;
    std::unique_ptr<frmCtlView> viewer;
};

TEST_F(ViewerCommandsTest, CopiesTheNameAndTheCheats) {
    const struct {
        int game;
        const wchar_t* message;
        const wchar_t* text;
    } cases[] = {
        {0, L"The cheat codes for Alpha have been copied to the clipboard.", L"Alpha\r\n\r\nIDDQD\r\n\r\nIDKFA"},
        {1, L"The cheat codes for Beta & Co have been copied to the clipboard.", L"Beta & Co\r\n\r\n"},
    };
    for (const auto& [game, message, text] : cases) {
        viewer->List2.select_index(game);
        expect_message(L"Quillomat", message);
        viewer->menus.mnuCopy.pick();
        EXPECT_EQ(clipboard_text(), text);
    }
}

TEST_F(ViewerCommandsTest, PrintsTheCheatsInOrder) {
    viewer->List2.select_index(0);
    viewer->menus.mnuPrint.pick();
    EXPECT_EQ(printed.document, L"Alpha");
    EXPECT_EQ(printed.lines(), (std::vector<std::wstring>{L"Alpha", L"", L"IDDQD", L"", L"IDKFA", L"", L"",
                                                          L"Made with Quillomat - www.tobferrand.example"}));
    EXPECT_EQ(printed.pages.at(0).texts.at(0).left, 7) << "100 twips";
    EXPECT_EQ(printed.pages.at(0).texts.at(0).top, 7);
    EXPECT_EQ(printed.documents_ended, 1);
}

TEST_F(ViewerCommandsTest, WhatIsTooWideOrTooLongForAPageGoesOn) {
    std::wstring words;
    for (int i = 0; i < 2000; ++i) words += L"word" + std::to_wstring(i) + (i % 500 == 499 ? L"\r\n" : L" ");
    viewer->Text1.set_text(words);
    viewer->menus.mnuPrint.pick();
    EXPECT_GE(printed.pages.size(), 2u);
    std::wstring read_back;
    for (const auto& page : printed.pages) {
        for (const auto& [left, top, text] : page.texts) {
            EXPECT_LT(text.size() * 4, static_cast<std::size_t>(GetSystemMetrics(SM_CXSCREEN)))
                << "characters are at least four dots wide";
            if (text.starts_with(L"word")) read_back += text + L' ';
        }
    }
    std::wstring expected;
    for (int i = 0; i < 2000; ++i) expected += L"word" + std::to_wstring(i) + L' ';
    EXPECT_EQ(read_back, expected);
}

TEST_F(ViewerCommandsTest, APrinterThatIsNotThereIsOneMessage) {
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
    for (int i = 0; i < 2; ++i) {
        expect_message(L"Quillomat", L"The cheat codes for Alpha have been copied to the clipboard.");
        i == 0 ? menus.mnuSelectedCopy.pick() : click_on(viewer->Image2[5]);
    }
    click_on(viewer->Image2[0]);
    EXPECT_TRUE(pump_until([this] { return !viewer; })) << "the first image leads home";
}

TEST_F(ViewerCommandsTest, TheColourMarkAndTheImagesBorderStayInStep) {
    for (int i = 0; i < 4; ++i) {
        i % 2 ? viewer->menus.mnuColour.pick() : click_on(viewer->Image1);
        const bool coloured = viewer->menus.mnuColour.checked();
        EXPECT_EQ(coloured, i % 2 == 1);
        EXPECT_EQ(viewer->Image1.border(), coloured ? ImageBorder::Single : ImageBorder::None);
        EXPECT_EQ(viewer->Text1.back_colour(), coloured ? rgb(255, 192, 255) : colours::white);
        EXPECT_EQ(viewer->List1.fore_colour(), coloured ? rgb(0, 0, 255) : colours::black);
    }
}

TEST_F(ViewerCommandsTest, AnImageIsPressedAndComesBack) {
    for (const int dpi : {96, 120, 144}) {
        application.force_dpi(dpi);
        const RECT place{0, 0, 1000, 700};
        SendMessageW(viewer->window(), WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&place));
        Image& image = viewer->Image2[2];
        const RECT resting = image.pixels();
        const auto is_at_rest = [&] { return EqualRect(&image.pixels(), &resting) != FALSE; };
        for (const auto& [down, up, held] : {std::tuple{WM_LBUTTONDOWN, WM_LBUTTONUP, MK_LBUTTON},
                                             {WM_LBUTTONDBLCLK, WM_LBUTTONUP, MK_LBUTTON},
                                             {WM_RBUTTONDOWN, WM_RBUTTONUP, MK_RBUTTON},
                                             {WM_RBUTTONDBLCLK, WM_RBUTTONUP, MK_RBUTTON}}) {
            mouse(static_cast<UINT>(down), image, held, 0, 0);
            EXPECT_EQ(image.pixels().left - resting.left, to_pixels(image.left(), dpi) - resting.left);
            EXPECT_NEAR(image.left() - to_twips(resting.left, dpi), 30, 12);
            if (down == WM_LBUTTONDOWN) {
                EXPECT_EQ(viewer->Shape1.border_colour(), rgb(0, 255, 0));
                EXPECT_EQ(viewer->Shape1.left(), image.left());
            }
            // The place where it was pressed is no longer on the image.
            SendMessageW(viewer->window(), static_cast<UINT>(up), 0, MAKELPARAM(resting.left, resting.top));
            EXPECT_TRUE(is_at_rest()) << dpi;
            EXPECT_EQ(viewer->Shape1.border_colour(), colours::highlight);
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
    application.force_dpi(0);
}

TEST_F(ViewerCommandsTest, HelpForTheImages) {
    const struct {
        const wchar_t* text;
        double width;
    } help[] = {{L"Click here to go back to the main screen", 3015},
                {L"Click here to save the cheats for the selected game", 3735},
                {L"Click here to add a new game!", 2295},
                {L"Click here to e-mail the cheat codes to someone!", 3615},
                {L"Click here to print the cheat codes for the selected game", 4095},
                {L"Click here to copy the cheat codes for the selected game", 4215},
                {L"Click here to change the font", 2175},
                {L"Click here to toggle the colour of the text boxes", 3495}};
    viewer->set_width(5970);
    for (std::size_t i = 0; i < std::size(help); ++i) {
        const bool is_colour = i == 7;
        const Image& image = is_colour ? viewer->Image1 : viewer->Image2[i];
        mouse(WM_MOUSEMOVE, image);
        EXPECT_EQ(viewer->Text4.text(), help[i].text);
        EXPECT_TRUE(viewer->Text4.visible());
        EXPECT_EQ(viewer->Text4.width(), help[i].width);
        EXPECT_EQ(viewer->Text4.left(), i < 2 ? 0 : std::lrint((image.left() + 120 - help[i].width / 2) / 15) * 15);
        EXPECT_NEAR(viewer->Text4.top(), image.top() + 120 + 500, 8);
        EXPECT_GE(viewer->Text4.left(), 0) << "all of it can be read, also in the smallest window";
        EXPECT_LE(viewer->Text4.left() + viewer->Text4.width(), viewer->inner_width());
        EXPECT_EQ(viewer->Shape1.visible(), !is_colour);
        if (!is_colour) {
            EXPECT_EQ(viewer->Shape1.left(), image.left());
        }

        RECT room{};
        SendMessageW(viewer->Text4.window(), EM_GETRECT, 0, reinterpret_cast<LPARAM>(&room));
        const HFONT font = application.fonts().get(viewer->Text4.font(), viewer->dpi());
        EXPECT_LE(text_extent(font, help[i].text).cx, room.right - room.left) << "nothing is cut off";
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
        return viewer->Text4.visible() && viewer->Text4.text() == L"Click here to search for a specific game";
    }));
    EXPECT_FALSE(viewer->Shape1.visible());
    EXPECT_TRUE(point_until(viewer->window(), image.left + 9, image.top + 9, is_shown));
    EXPECT_EQ(viewer->Text4.text(), L"Click here to change the font");
    SendMessageW(viewer->window(), WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(viewer->menus.mnuOptions.handle()), 1);
    EXPECT_TRUE(is_tidy()) << "an open menu stands alone";

    const RECT& letter = viewer->Label1[5].pixels();
    EXPECT_TRUE(point_until(viewer->window(), letter.left + 4, letter.top + 5, [this] {
        return viewer->Label1[5].back_colour() == colours::black && viewer->Label1[5].fore_colour() == rgb(0, 255, 0);
    }));
    EXPECT_EQ(viewer->Label1[4].back_colour(), rgb(0, 255, 255));
    EXPECT_TRUE(point_until(viewer->Text1.window(), 50, 50, is_tidy));
}

TEST_F(ViewerCommandsTest, TheAlphabetBarJumps) {
    const auto label = [this](char letter) -> Label& {
        return viewer->Label1[letter == '#' ? 0 : static_cast<std::size_t>(letter - 'A' + 1)];
    };
    const std::pair<char, int> cases[] = {{'Z', 3}, {'Q', 3}, {'B', 1}, {'A', 0}, {'Z', 3}, {'#', 0}};
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

/// Reads where the menu that is open now stands, and closes it.
class OpenMenu {
  public:
    OpenMenu() {
        found_ = {};
        timer_ = SetTimer(nullptr, 0, 10, [](HWND, UINT, UINT_PTR, DWORD) {
            const HWND menu = FindWindowW(L"#32768", nullptr);
            if (!menu || !IsWindowVisible(menu)) return;
            GetWindowRect(menu, &found_);
            EndMenu();
        });
    }
    ~OpenMenu() { KillTimer(nullptr, timer_); }

    const RECT& place() const { return found_; }

  private:
    static RECT found_;
    UINT_PTR timer_;
};

RECT OpenMenu::found_;

TEST_F(ViewerCommandsTest, MenusOpenBelowTheirImages) {
    for (const std::size_t index : {4u, 6u}) {
        const Image& image = viewer->Image2[index];
        const OpenMenu menu;
        click_on(image);
        POINT corner{image.pixels().left, image.pixels().bottom};
        ClientToScreen(viewer->window(), &corner);
        EXPECT_EQ(menu.place().left, corner.x);
        EXPECT_EQ(menu.place().top, corner.y);
    }
}

}  // namespace
}  // namespace quillomat
