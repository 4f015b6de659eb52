// Adding a game as a player does it: typing, pressing the button, and what the database holds afterwards.

#include "output/frmAddNew.h"
#include "shown_viewer.h"
#include "win/code_page.h"

namespace quillomat {
namespace {

constexpr char database[] = "one\r\n$$$$$$$$$$$$$$$$$$$$ Alpha\r\ntwo\r\n$$$$$$$$$$$$$$$$$$$$ beta\r\n";

struct AddGameTest : ShownViewerTest {
    void open(std::string_view content = database) {
        open_viewer(content);
        open_in(window, session, *link);
    }
    /// Adds what is typed, and expects that the window closes.
    void expect_added(const std::wstring& name, const std::wstring& cheats) {
        type(name, cheats);
        expect_message(L"Quillomat", L"The cheat codes for " + name + L" have been successfully added!");
        add();
        EXPECT_SOON(!window);
        EXPECT_TRUE(viewer->caption() == name && viewer->Text1.text() == cheats) << "the viewer shows it";
        // As the next run of the program reads it.
        viewer.reset();
        session.catalogue.load(decode(bytes("Cheats.dat")), [](std::wstring_view) {});
        const int number = session.viewer.game_count - 1;
        EXPECT_TRUE(session.catalogue.name(number) == name && session.catalogue.cheats(number) == cheats);
    }
    void expect_unchanged(int games) {
        EXPECT_EQ(bytes("Cheats.dat"), database);
        EXPECT_EQ(session.viewer.game_count, games);
        EXPECT_EQ(viewer->List2.count(), games);
        EXPECT_FALSE(window->closed());
    }
    void type(const std::wstring& name, const std::wstring& cheats) {
        window->Text1.set_text(name);
        window->Text2.set_text(cheats);
    }
    void add() { window->cmdButton[0]->click(); }

    std::unique_ptr<frmAddNew> window;
};

TEST_F(AddGameTest, AppendsExactlyTheRecordAndShowsTheGameHoweverLong) {
    open();
    expect_added(L"ALPHA ", L" first\r\n\r\nthird \r\n");
    EXPECT_EQ(bytes("Cheats.dat"),
              std::string(database) + " first\r\n\r\nthird \r\n\r\n$$$$$$$$$$$$$$$$$$$$ ALPHA \r\n");
    std::wstring cheats(100'000, L'x');
    while (cheats.size() < 200'000) cheats += L"\r\nUP DOWN LEFT RIGHT START";
    session.viewer = {};
    open();
    expect_added(std::wstring(10'000, L'N'), cheats);
}

TEST_F(AddGameTest, ANameThatExistsIsShownAndAnotherOneProposed) {
    open();
    type(L"beta", L"mine");
    expect_message(L"beta already exists!",
                   L"The cheat codes for beta already exist. Try using a different name.\r\n(You can use the name I "
                   L"have provided for you.)");
    add();
    EXPECT_EQ(viewer->List2.selected_index(), 1);
    EXPECT_EQ(window->Text1.selected_text(), L"beta (Custom)");
    EXPECT_TRUE(window->Text1.has_focus());
    expect_unchanged(2);
}

TEST_F(AddGameTest, TheHelpOfTheDisabledButtonStaysOnlyWhileThePointerIsOnIt) {
    open();
    const auto shown = [this] { return window->Text3.visible(); };
    EXPECT_TRUE(point_until(window->cmdButton[0]->window(), 9, 9, shown));
    window->Text3.set_focus();
    EXPECT_TRUE(window->cmdButton[1]->has_focus()) << "never on the box, which hides";
    EXPECT_TRUE(point_until(window->Text2.window(), 9, 9, [&] { return !shown(); }));
}

TEST_F(AddGameTest, TheLimitIsToldAndNothingIsStored) {
    std::string full;
    for (int i = 0; i < Catalogue::slot_count; ++i) full += "$$$$$$$$$$$$$$$$$$$$ Game\r\n";
    open(full);
    type(L"One more", L"text");
    expect_message(L"Overload!", L"Sorry, you have reached the maximum limit of games!");
    add();
    EXPECT_SOON(!window);
    EXPECT_EQ(bytes("Cheats.dat"), full);
    EXPECT_EQ(viewer->List2.count(), Catalogue::slot_count);
}

TEST_F(AddGameTest, AFailureLeavesTheFileAsItWasAndWhatWasTyped) {
    const std::wstring file = (folder.path() / "Cheats.dat").wstring();
    open();
    // What the code page lacks is refused before the game is anywhere.
    type(L"Half", L"a pair \xD83D");
    expect_message(L"Error!",
                   L"The character \"\xD83D\" (U+D83D) cannot be written to a text file in this system's "
                   L"character set. Please replace it and try again.");
    add();
    EXPECT_EQ(window->Text2.text(), L"a pair \xD83D");
    expect_unchanged(2);
    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY);
    type(L"First", L"text");
    expect_message(L"Quillomat", L"The cheat codes for First have been successfully added!");
    expect_message(L"Error!", L"Permission denied");
    add();
    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL);
    EXPECT_EQ(window->Text2.text(), L"text");
    expect_unchanged(3);  // what was done stays done
}

TEST_F(AddGameTest, KeysLeadThroughTheWindow) {
    open();
    EXPECT_TRUE(window->Text1.has_focus());
    window->Text1.set_text(L"name");
    press_key(VK_RETURN);
    EXPECT_SOON(window->Text2.has_focus());
    EXPECT_FALSE(window->cmdButton[0]->enabled()) << "there are no cheats yet";
    press_key(VK_RETURN);
    EXPECT_SOON(window->Text2.text() == L"\r\n" && window->cmdButton[0]->enabled());
    press_key(VK_ESCAPE);
    EXPECT_SOON(window->cmdButton[1]->has_focus()) << "what was typed is not lost yet";
    press_key(VK_ESCAPE);
    EXPECT_SOON(!window);
    EXPECT_EQ(bytes("Cheats.dat"), database);
}

}  // namespace
}  // namespace quillomat
