// Adding a game as a player does it: typing, pressing the button, and what the database holds afterwards.

#include "output/frmAddNew.h"
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
    type(L"ALPHA ", L" first\r\n\r\nthird \r\n");
    expect_added(L"ALPHA ");
    add();
    EXPECT_TRUE(closes());
    EXPECT_EQ(bytes("Cheats.dat"),
              std::string(database) + " first\r\n\r\nthird \r\n\r\n$$$$$$$$$$$$$$$$$$$$ ALPHA \r\n");
    EXPECT_EQ(session.viewer.game_count, 3);
    EXPECT_EQ(viewer->List2.selected_index(), 2) << "not the older Alpha";
    EXPECT_EQ(viewer->Text1.text(), L" first\r\n\r\nthird \r\n");
    read_again();
    EXPECT_EQ(session.catalogue.name(2), L"ALPHA ");
    EXPECT_EQ(session.catalogue.cheats(2), L" first\r\n\r\nthird \r\n");
}

TEST_F(AddGameTest, ANameThatExistsIsShownAndAnotherOneProposed) {
    open();
    type(L"beta", L"mine");
    expect_message(L"beta already exists!",
                   L"The cheat codes for beta already exist. Try using a different name.\r\n(You can use the name I "
                   L"have provided for you.)");
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
}

TEST_F(AddGameTest, TheButtonNeedsBothTexts) {
    open();
    const struct {
        const wchar_t* name;
        const wchar_t* cheats;
        bool enabled;
    } cases[] = {{L" ", L"", false}, {L" ", L"\r\n", true}, {L"", L"\r\n", false}};
    for (const auto& [name, cheats, enabled] : cases) {
        type(name, cheats);
        EXPECT_EQ(window->cmdButton[0]->enabled(), enabled);
    }
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
    EXPECT_FALSE(window->closed());
}

TEST_F(AddGameTest, WhatTheCodePageLacksIsRefusedBeforeTheGameIsAnywhere) {
    open();
    type(L"Half", L"a pair \xD83D");
    expect_message(L"Error!", [] {
        try {
            encode(L"\xD83D");
        } catch (const Error& error) {
            return error.description();
        }
        return std::wstring();
    }());
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
    while (cheats.size() < 200'000) cheats += L"\r\nUP DOWN LEFT RIGHT START";
    open();
    type(name, cheats);
    expect_added(name);
    add();
    EXPECT_TRUE(closes());
    EXPECT_TRUE(viewer->caption() == name);
    EXPECT_TRUE(viewer->Text1.text() == cheats);
    read_again();
    EXPECT_TRUE(session.catalogue.name(2) == name);
    EXPECT_TRUE(session.catalogue.cheats(2) == cheats);
}

TEST_F(AddGameTest, OpensOnAScreenThatIsTooLowForIt) {
    application.force_dpi(384);
    open();
    EXPECT_TRUE(IsWindowVisible(window->window()));
}

TEST_F(AddGameTest, RemembersItsSizeOnlyWhenNormal) {
    open();
    EXPECT_NEAR(window->width(), 5715, 15) << "the default is below the minimum";
    window->set_width(6600);
    window->set_height(5100);
    window->cmdButton[1]->click();
    EXPECT_TRUE(closes());
    open_window();
    EXPECT_NEAR(window->width(), 6600, 15);
    EXPECT_NEAR(window->height(), 5100, 15);
    window->set_window_state(WindowState::Maximised);
    window->close();
    EXPECT_TRUE(closes());
    EXPECT_EQ(session.settings.read(settings::frmAddNewWidth), 6600);
    open_window();
    EXPECT_EQ(window->window_state(), WindowState::Maximised);
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

}  // namespace
}  // namespace quillomat
