// Adding a game as a player does it: typing, pressing the button, and what the database holds afterwards.

#include "output/frmAddNew.h"
#include "shown_viewer.h"
#include "win/code_page.h"

namespace quillomat {
namespace {

constexpr char database[] = "one\r\n$$$$$$$$$$$$$$$$$$$$ Alpha\r\ntwo\r\n$$$$$$$$$$$$$$$$$$$$ beta\r\n";

struct AddGameTest : ShownViewerTest {
    void open() {
        open_viewer(database);
        open_in(window, session, *link);
    }
    void add(const std::wstring& name, const std::wstring& cheats) {
        window->Text1.set_text(name);
        window->Text2.set_text(cheats);
        window->cmdButton[0]->click();
    }
    void expect_unchanged(int games) {
        EXPECT_EQ(bytes("Cheats.dat"), database);
        EXPECT_TRUE(session.viewer.game_count == games && viewer->List2.count() == games);
        EXPECT_FALSE(window->closed());
    }

    std::unique_ptr<frmAddNew> window;
};

TEST_F(AddGameTest, AppendsExactlyTheRecordAndShowsTheGameHoweverLong) {
    open();
    const std::wstring name = L"ALPHA " + std::wstring(10'000, L'N');
    const std::wstring cheats = L" first\r\n\r\n" + std::wstring(200'000, L'x') + L" \r\n";
    expect_message(L"Quillomat", L"The cheat codes for " + name + L" have been successfully added!");
    add(name, cheats);
    EXPECT_SOON(!window);
    EXPECT_TRUE(viewer->caption() == name && viewer->Text1.text() == cheats) << "the viewer shows it";
    EXPECT_TRUE(bytes("Cheats.dat") == database + encode(cheats + L"\r\n$$$$$$$$$$$$$$$$$$$$ " + name + L"\r\n"));
}

TEST_F(AddGameTest, ARefusalIsExplainedAndLeavesTheFileAsItWasAndWhatWasTyped) {
    open();
    expect_message(L"beta already exists!",
                   L"The cheat codes for beta already exist. Try using a different name.\r\n(You can use the name I "
                   L"have provided for you.)");
    add(L"beta", L"mine");
    EXPECT_EQ(viewer->List2.selected_index(), 1);
    EXPECT_EQ(window->Text1.selected_text(), L"beta (Custom)");
    EXPECT_TRUE(window->Text1.has_focus());
    expect_unchanged(2);
    // What the code page lacks is refused before the game is anywhere.
    expect_message(L"Error!",
                   L"The character \"\xD83D\" (U+D83D) cannot be written to a text file in this system's "
                   L"character set. Please replace it and try again.");
    add(L"Half", L"a pair \xD83D");
    EXPECT_EQ(window->Text2.text(), L"a pair \xD83D");
    expect_unchanged(2);
    const std::filesystem::path file = folder.path() / "Cheats.dat";
    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY);
    expect_message(L"Quillomat", L"The cheat codes for First have been successfully added!");
    expect_message(L"Error!", L"Permission denied");
    add(L"First", L"text");
    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL);
    EXPECT_EQ(window->Text2.text(), L"text");
    expect_unchanged(3);  // what was done stays done
    session.viewer.game_count = Catalogue::slot_count;
    expect_message(L"Overload!", L"Sorry, you have reached the maximum limit of games!");
    add(L"One more", L"text");
    EXPECT_SOON(!window);
    EXPECT_TRUE(bytes("Cheats.dat") == database && viewer->List2.count() == 3);
}

TEST_F(AddGameTest, KeysLeadThroughTheWindow) {
    open();
    press_key('N');
    press_key(VK_RETURN);
    EXPECT_SOON(window->Text2.has_focus());
    EXPECT_FALSE(window->cmdButton[0]->enabled()) << "there are no cheats yet";
    // The help of a disabled button stays only while the pointer is on it, and never gets the focus.
    const auto shown = [this] { return window->Text3.visible(); };
    EXPECT_TRUE(point_until(window->cmdButton[0]->window(), 60, 9, shown));
    EXPECT_LE(window->Text3.left() + window->Text3.width(), window->inner_width());
    window->set_size(6000, 4500);
    window->Text3.set_focus();
    EXPECT_TRUE(window->cmdButton[1]->has_focus());
    EXPECT_TRUE(point_until(window->Text2.window(), 9, 9, [&] { return !shown(); }));
    window->Text2.set_focus();
    press_key(VK_RETURN);
    EXPECT_SOON(window->Text2.text() == L"\r\n" && window->cmdButton[0]->enabled());
    press_key(VK_ESCAPE);
    EXPECT_SOON(window->cmdButton[1]->has_focus()) << "what was typed is not lost yet";
    press_key(VK_ESCAPE);
    EXPECT_SOON(!window);
    EXPECT_EQ(bytes("Cheats.dat"), database);
    open_in(window, session, *link);
    EXPECT_EQ(std::pair(window->width(), window->height()), std::pair(6000.0, 4500.0));
}

}  // namespace
}  // namespace quillomat
