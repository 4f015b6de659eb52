// Adding a game as a player does it: typing, pressing the button, and what the database holds afterwards.

#include <cmath>

#include "output/frmAddNew.h"
#include "shell/windows.h"
#include "shown_viewer.h"
#include "text/error.h"

namespace quillomat {
namespace {

constexpr char database[] = "one\r\n$$$$$$$$$$$$$$$$$$$$ Alpha\r\ntwo\r\n$$$$$$$$$$$$$$$$$$$$ beta\r\n";

class AddGameTest : public ShownViewerTest {
  protected:
    void open(std::string_view content = database) {
        open_viewer(content);
        open_window();
    }
    void open_window() {
        window = std::make_unique<frmAddNew>(application, session, *link);
        window->on_closed = [this] { window.reset(); };
        window->show();
        pump();
    }
    bool closes() {
        return pump_until([this] { return !window; });
    }
    void type(std::wstring_view name, std::wstring_view cheats) {
        window->Text1.set_text(name);
        window->Text2.set_text(cheats);
    }
    void add() { window->cmdButton[0]->click(); }
    void expect_added(const std::wstring& name) {
        expect_message(L"Quillomat", L"The cheat codes for " + name + L" have been successfully added!");
    }

    std::unique_ptr<frmAddNew> window;
};

TEST_F(AddGameTest, AppendsExactlyTheRecordAndShowsTheGame) {
    open();
    type(L"My game ", L" first\r\n\r\nthird \r\n");
    expect_added(L"My game ");
    add();
    EXPECT_TRUE(closes());
    EXPECT_EQ(bytes("Cheats.dat"),
              std::string(database) + " first\r\n\r\nthird \r\n\r\n$$$$$$$$$$$$$$$$$$$$ My game \r\n");
    EXPECT_EQ(session.viewer.game_count, 3);
    EXPECT_EQ(viewer->List2.selected_index(), 2);
    EXPECT_EQ(viewer->caption(), L"My game ");
    EXPECT_EQ(viewer->Text1.text(), L" first\r\n\r\nthird \r\n");
    read_again();
    EXPECT_EQ(session.catalogue.name(2), L"My game ");
    EXPECT_EQ(session.catalogue.cheats(2), L" first\r\n\r\nthird \r\n");
}

TEST_F(AddGameTest, ANameInOtherLettersIsANewGame) {
    open();
    type(L"ALPHA", L"other");
    expect_added(L"ALPHA");
    add();
    EXPECT_TRUE(closes());
    EXPECT_EQ(viewer->List2.selected_index(), 2) << "not the older Alpha";
    EXPECT_EQ(viewer->Text1.text(), L"other");
}

TEST_F(AddGameTest, ANameThatExistsIsShownAndAnotherOneProposed) {
    open();
    type(L"beta", L"mine");
    const auto expect_duplicate = [this](const std::wstring& name) {
        expect_message(name + L" already exists!", L"The cheat codes for " + name +
                                                       L" already exist. Try using a different name.\r\n(You can use "
                                                       L"the name I have provided for you.)");
    };
    expect_duplicate(L"beta");
    add();
    EXPECT_EQ(viewer->List2.selected_index(), 1);
    EXPECT_EQ(window->Text1.text(), L"beta (Custom)");
    EXPECT_EQ(window->Text1.selected_text(), L"beta (Custom)");
    EXPECT_TRUE(window->Text1.has_focus());
    EXPECT_EQ(bytes("Cheats.dat"), database);
    EXPECT_EQ(session.viewer.game_count, 2);

    expect_added(L"beta (Custom)");
    add();
    EXPECT_TRUE(closes());
    open_window();
    type(L"beta (Custom)", L"mine again");
    expect_duplicate(L"beta (Custom)");
    add();
    EXPECT_EQ(window->Text1.text(), L"beta (Custom) (Custom)");
}

TEST_F(AddGameTest, TheButtonNeedsBothTexts) {
    open();
    EXPECT_FALSE(window->cmdButton[0]->enabled());
    window->Text1.set_text(L" ");
    EXPECT_FALSE(window->cmdButton[0]->enabled());
    window->Text2.set_text(L"\r\n");
    EXPECT_TRUE(window->cmdButton[0]->enabled());
    window->Text1.set_text(L"");
    EXPECT_FALSE(window->cmdButton[0]->enabled());
}

TEST_F(AddGameTest, TheToolTipCountsTheLines) {
    open();
    EXPECT_EQ(window->Text2.tool_tip(), L"Total - 1 lines.");
    window->Text2.set_text(L"a\r\nb\r\n");
    EXPECT_EQ(window->Text2.tool_tip(), L"Total - 3 lines.");
    window->Text2.set_focus();
    press_key(VK_RETURN);
    EXPECT_TRUE(pump_until([this] { return window->Text2.tool_tip() == L"Total - 4 lines."; }));
}

TEST_F(AddGameTest, TheLimitIsToldAndNothingIsStored) {
    std::string full;
    for (int i = 0; i < Catalogue::slot_count; ++i) full += "$$$$$$$$$$$$$$$$$$$$ Game\r\n";
    open(full);
    type(L"One more", L"text");
    expect_message(L"Overload!", L"Sorry, you have reached the maximum limit of games!");
    add();
    EXPECT_TRUE(closes());
    EXPECT_EQ(bytes("Cheats.dat"), full);
    EXPECT_EQ(session.viewer.game_count, Catalogue::slot_count);
    EXPECT_EQ(viewer->List2.count(), Catalogue::slot_count);
}

TEST_F(AddGameTest, AFileThatCannotBeWrittenLeavesTheWindowOpenAndTheFileAsItWas) {
    const std::wstring file = (folder.path() / "Cheats.dat").wstring();
    open();
    type(L"First", L"text");
    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY);
    expect_added(L"First");
    expect_message(L"Error!", L"Permission denied");
    add();
    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL);
    EXPECT_EQ(window->Text2.text(), L"text");
    EXPECT_EQ(bytes("Cheats.dat"), database);
    EXPECT_EQ(session.viewer.game_count, 3) << "what was done stays done";
    EXPECT_EQ(viewer->List2.count(), 3);

    std::filesystem::remove_all(folder.path());
    type(L"Second", L"text");
    expect_added(L"Second");
    expect_message(L"Error!", L"Path not found");
    add();
    EXPECT_FALSE(window->closed());
}

TEST_F(AddGameTest, WhatTheCodePageLacksIsRefusedBeforeTheGameIsAnywhere) {
    open();
    type(L"Half", L"a pair \xD83D");
    std::wstring reason;
    try {
        encode(L"a pair \xD83D");
    } catch (const Error& error) {
        reason = error.description();
    }
    ASSERT_NE(reason.find(L"U+D83D"), std::wstring::npos);
    expect_message(L"Error!", reason);
    add();
    EXPECT_EQ(window->Text2.text(), L"a pair \xD83D");
    EXPECT_EQ(session.viewer.game_count, 2);
    EXPECT_EQ(bytes("Cheats.dat"), database);
    window->Text2.set_text(L"mended");
    expect_added(L"Half");
    add();
    EXPECT_TRUE(closes());
}

TEST_F(AddGameTest, VeryLongTextsStayWhole) {
    const std::wstring name(10'000, L'N');
    std::wstring cheats(100'000, L'x');
    while (cheats.size() < (1 << 20)) cheats += L"\r\nUP DOWN LEFT RIGHT START";
    open();
    type(name, cheats);
    expect_added(name);
    add();
    EXPECT_TRUE(closes());
    EXPECT_TRUE(viewer->caption() == name);
    EXPECT_TRUE(viewer->Text1.text() == cheats);
    EXPECT_TRUE(viewer->List2.text() == name);
    read_again();
    EXPECT_TRUE(session.catalogue.name(2) == name);
    EXPECT_TRUE(session.catalogue.cheats(2) == cheats);
}

TEST_F(AddGameTest, NothingTypedByKeyIsLimited) {
    open();
    SendMessageW(window->Text1.window(), EM_REPLACESEL, FALSE,
                 reinterpret_cast<LPARAM>(std::wstring(100'000, L'x').c_str()));
    SendMessageW(window->Text2.window(), EM_REPLACESEL, FALSE,
                 reinterpret_cast<LPARAM>(std::wstring(100'000, L'y').c_str()));
    for (const TextBox* box : {&window->Text1, &window->Text2}) {
        SendMessageW(box->window(), EM_SETSEL, static_cast<WPARAM>(-1), -1);
        SendMessageW(box->window(), WM_CHAR, L'z', 1);
        EXPECT_EQ(box->text().size(), 100'001u);
    }
}

TEST_F(AddGameTest, LayoutFollowsTheSizeWithinItsLimits) {
    open();
    EXPECT_NEAR(window->width(), 5715, 15) << "the default is below the minimum";
    EXPECT_NEAR(window->height(), 4320, 15);
    EXPECT_NEAR(window->left() + window->width() / 2, viewer->left() + viewer->width() / 2, 15);
    EXPECT_NEAR(window->top() + window->height() / 2, viewer->top() + viewer->height() / 2, 15);
    SetWindowPos(window->window(), nullptr, 0, 0, 10, 10, SWP_NOMOVE);
    EXPECT_NEAR(window->width(), 5715, 15);
    EXPECT_NEAR(window->height(), 3960, 15);
    window->set_width(7500);
    window->set_height(6000);
    const double width = window->width();
    const double height = window->height();
    EXPECT_NEAR(window->Text1.width(), width - 360, 15);
    EXPECT_NEAR(window->Text2.width(), width - 360, 15);
    EXPECT_NEAR(window->Text2.height(), height - 1905, 15);
    EXPECT_NEAR(window->cmdButton[0]->left(), width - 1455, 15);
    EXPECT_NEAR(window->cmdButton[1]->left(), width - 2775, 15);
    EXPECT_NEAR(window->cmdButton[0]->top(), height - 840, 15);
    EXPECT_NEAR(window->cmdButton[1]->top(), height - 840, 15);
}

TEST_F(AddGameTest, RemembersItsSizeOnlyWhenNormal) {
    open();
    window->set_width(6600);
    window->set_height(5100);
    window->cmdButton[1]->click();
    EXPECT_TRUE(closes());
    EXPECT_EQ(session.settings.read(settings::frmAddNewWindowState), 0);
    open_window();
    EXPECT_NEAR(window->width(), 6600, 15);
    EXPECT_NEAR(window->height(), 5100, 15);
    window->set_window_state(WindowState::Maximised);
    window->close();
    EXPECT_TRUE(closes());
    EXPECT_EQ(session.settings.read(settings::frmAddNewWindowState), 2);
    EXPECT_EQ(session.settings.read(settings::frmAddNewWidth), 6600);
    open_window();
    EXPECT_EQ(window->window_state(), WindowState::Maximised);
    EXPECT_NEAR(window->Text2.height(), window->height() - 1905, 15);
}

TEST_F(AddGameTest, KeysLeadThroughTheWindow) {
    open();
    EXPECT_TRUE(window->Text1.has_focus());
    window->Text1.set_text(L"name");
    press_key(VK_RETURN);
    EXPECT_TRUE(pump_until([this] { return window->Text2.has_focus(); }));
    press_key(VK_RETURN);
    EXPECT_TRUE(pump_until([this] { return window->Text2.text() == L"\r\n"; }));
    press_key(VK_TAB);
    EXPECT_TRUE(pump_until([this] { return window->cmdButton[1]->has_focus(); }));
    press_key(VK_TAB);
    EXPECT_TRUE(pump_until([this] { return window->cmdButton[0]->has_focus(); }));
    press_key(VK_ESCAPE);
    EXPECT_TRUE(pump_until([this] { return window->cmdButton[1]->has_focus(); })) << "what was typed is not lost yet";
    press_key(VK_ESCAPE);
    EXPECT_TRUE(closes());
    EXPECT_EQ(bytes("Cheats.dat"), database);
}

TEST_F(AddGameTest, TheHelpBoxFollowsThePointerOverBothButtons) {
    open();
    const Button& add_button = *window->cmdButton[0];
    EXPECT_TRUE(pump_until([this] {
        return window->Text3.visible() && window->Text3.text() == L"Click here to add the game!";
    })) << "the pointer starts on the button, which is not yet enabled";
    EXPECT_LE(window->Text3.left() + window->Text3.width(), window->inner_width() + 15);
    type(L"a", L"b");
    const auto stands_at = [this](double middle, double top) {
        const TextBox& box = window->Text3;
        return box.visible() && std::abs(box.left() + box.width() / 2 - middle) < 40 && std::abs(box.top() - top) < 16;
    };
    EXPECT_TRUE(point_until(add_button.window(), 10, 8, [&] {
        return stands_at(add_button.left() + 10 * 15, add_button.top() + 8 * 15 - 500);
    })) << "near the left edge it is centred on the pointer";
    EXPECT_TRUE(point_until(add_button.window(), 40, 20, [&] {
        return stands_at(window->inner_width() - window->Text3.width() / 2, add_button.top() + 20 * 15 - 500);
    })) << "further right it ends at the window's edge";
    EXPECT_TRUE(point_until(window->cmdButton[1]->window(), 40, 8, [&] {
        return window->Text3.text() == L"Click here to leave without adding the game!" && window->Text3.visible();
    }));
    EXPECT_TRUE(point_until(window->Text2.window(), 40, 8, [&] { return !window->Text3.visible(); }));
    SetFocus(window->Text3.window());
    EXPECT_TRUE(add_button.has_focus());
}

TEST_F(AddGameTest, OpensModallyFromTheViewersMenu) {
    write("Cheats.dat", database);
    session.program_folder = folder.path().wstring();
    session.settings = registry.settings();
    Windows windows(application, session);
    windows.open_viewer();
    auto* opened = dynamic_cast<frmCtlView*>(Form::from(FindWindowW(L"frmCtlView", nullptr)));
    ASSERT_TRUE(opened);
    for (Menu* entry : {&opened->menus.mnuAddNew, &opened->menus.mnuSelectedAddNew}) {
        bool seen = false;
        Timer probe(*opened, 10);
        probe.on_timer = [&] {
            Form* dialog = Form::from(FindWindowW(L"frmAddNew", nullptr));
            if (!dialog || !IsWindowVisible(dialog->window())) return;
            seen = true;
            EXPECT_FALSE(IsWindowEnabled(opened->window()));
            EXPECT_EQ(GetWindow(dialog->window(), GW_OWNER), opened->window());
            dialog->close();
        };
        entry->pick();
        EXPECT_TRUE(seen);
        EXPECT_TRUE(IsWindowEnabled(opened->window()));
        EXPECT_EQ(GetForegroundWindow(), opened->window());
    }
}

}  // namespace
}  // namespace quillomat
