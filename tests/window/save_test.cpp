// Saving cheats to a file as a player does it: choosing a place and a name, and what the file holds afterwards.

#include "output/frmSave.h"
#include "shown_viewer.h"
#include "text/paths.h"
#include "win/handle.h"

namespace quillomat {
namespace {

constexpr char database[] =
    "one\r\n\r\nthree\r\n$$$$$$$$$$$$$$$$$$$$ Quake: The Return\r\n$$$$$$$$$$$$$$$$$$$$ Empty\r\n";

constexpr char saved[] = "Quake: The Return\r\n\r\none\r\n\r\nthree\r\n";

struct SaveTest : ShownViewerTest {
    SaveTest() { std::filesystem::create_directories(place / "inner"); }

    void open(int game = 0) {
        if (!viewer) open_viewer(database);
        viewer->List2.select_index(game);
        open_in(window, session, *link);
        window->Dir1.set_path(place.wstring());
    }
    void save(const wchar_t* name) {
        window->Text1.set_text(name);
        window->Command1.set_focus();
        window->Command1.click();
    }
    void expect_question(const wchar_t* name, int answer = IDOK) {
        expect_message(L"Overwrite?",
                       L"The cheat codes for " + (place / name).wstring() +
                           L" already exist in this directory.\r\nDo you want to overwrite them?",
                       answer);
    }
    void double_click(const ListBox& list) {
        SendMessageW(window->window(), WM_COMMAND, MAKEWPARAM(0, LBN_DBLCLK), reinterpret_cast<LPARAM>(list.window()));
    }

    const std::filesystem::path place = folder.path() / "place";
    std::unique_ptr<frmSave> window;
};

TEST_F(SaveTest, EnterWritesExactlyTheNameAndTheCheats) {
    open();
    EXPECT_EQ(window->caption() + L": " + window->Text1.selected_text(),
              L"Save cheat codes of Quake: The Return: Quake - The Return.txt");
    press_key(VK_RETURN);
    EXPECT_SOON(!window);
    EXPECT_EQ(bytes("place/Quake - The Return.txt"), saved);
    open(1);
    save(L"a:b.TXT");
    EXPECT_EQ(bytes("place/a -b.TXT.txt"), "Empty\r\n\r\n\r\n");
}

TEST_F(SaveTest, AsksBeforeOverwritingAndTellsThatItWaitsForAnotherProgramThatHoldsTheFile) {
    write("place/old.txt", "a much longer text than the new one, so that a rest of it would be seen");
    open();
    window->File1.select_text(L"old.txt");
    expect_question(L"old.txt", IDCANCEL);
    window->Command1.click();
    EXPECT_FALSE(window->closed());
    EXPECT_TRUE(bytes("place/old.txt").starts_with("a much longer"));
    FileHandle held(CreateFileW((place / "old.txt").c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
    int ticks = 0;
    window->Timer1.on_timer = [&] {
        // Once the new text is in a file beside the old one and the folder.
        const auto files = std::distance(std::filesystem::directory_iterator(place), {});
        ticks += window->Label6.visible() && files > 2;
        if (ticks > 4) held.close();
    };
    expect_question(L"old.txt");
    double_click(window->File1);
    EXPECT_SOON(!window);
    EXPECT_FALSE(held) << "the timer goes on, like everything else";
    EXPECT_EQ(bytes("place/old.txt"), saved);
}

TEST_F(SaveTest, WhatCannotBeWrittenIsReportedAndTheDialogStays) {
    open();
    EXPECT_FALSE(frmSave(application, session, *link).Command1.enabled()) << "no folder is open yet";
    expect_message(L"Error", L"Please give a file name!");
    save(L"");
    EXPECT_TRUE(window->Text1.has_focus());
    expect_message(L"Error",
                   L"A file name can't contain the character \\\r\nNone of these characters can stand in a "
                   L"file name: \\ / : * ? \" < > |");
    save(L"..\\up");
    EXPECT_TRUE(window->Text1.has_focus());
    EXPECT_FALSE(exists("up.txt"));
    std::filesystem::remove_all(place);
    expect_message(L"Error!", L"Path not found");
    save(L"gone");
    EXPECT_FALSE(window->closed());
}

TEST_F(SaveTest, TheFoldersAreReachedByDoubleClickAndKeys) {
    for (const char* name : {"inner/deep", "hidden"}) std::filesystem::create_directories(place / name);
    for (const char* name : {"secret.txt", "b10.txt", "B9.TXT", "a.doc", "c.txtx"}) folder.write(place / name, "");
    for (const char* name : {"hidden", "secret.txt"}) SetFileAttributesW((place / name).c_str(), FILE_ATTRIBUTE_HIDDEN);
    open();
    ASSERT_EQ(window->File1.count(), 2);
    EXPECT_EQ(window->File1.item(0) + L" " + window->File1.item(1), L"B9.TXT b10.txt");
    const auto steps = folder_steps(place.wstring());
    EXPECT_EQ(window->Dir1.count(), static_cast<int>(steps.size()) + 1) << "the one folder that is not hidden";

    window->Dir1.select_text(L"inner");
    EXPECT_EQ(window->Dir1.path(), place.wstring()) << "selecting opens nothing";
    double_click(window->Dir1);
    EXPECT_EQ(window->Label3.caption(), (place / "inner").wstring());
    window->Dir1.set_focus();
    window->Dir1.select_text(L"deep");
    EXPECT_EQ(window->default_button(), nullptr) << "Enter opens the folder";
    press_key(VK_RETURN);
    EXPECT_SOON(window->Dir1.path().ends_with(L"inner\\deep"));
    EXPECT_EQ(window->default_button(), &window->Command1) << "the next Enter saves";
    for (std::size_t i = 0; i <= steps.size() + 2; ++i) press_key(VK_BACK);
    EXPECT_SOON(window->Dir1.path() == steps.front().path);

    window->Dir1.set_path(place.wstring());
    std::filesystem::remove_all(place / "inner");
    window->Dir1.select_text(L"inner");
    expect_message(L"Quillomat", L"Path not found");
    press_key(VK_RETURN);
    pump();
    EXPECT_EQ(window->Dir1.path(), place.wstring()) << "a folder that has vanished is not entered";
}

TEST_F(SaveTest, ADriveThatIsGoneIsToldAndNotChosen) {
    ASSERT_TRUE(DefineDosDeviceW(DDD_RAW_TARGET_PATH, L"Q:", L"\\??\\Z:\\no such folder at all"));
    open();
    const std::wstring own = window->Drive1.drive();
    expect_message(L"Error!", L"Path not found");
    window->Drive1.select_drive_of(L"Q:\\");
    DefineDosDeviceW(DDD_REMOVE_DEFINITION, L"Q:", nullptr);
    EXPECT_EQ(window->Drive1.drive(), own);
    EXPECT_EQ(window->Dir1.path(), place.wstring());
    const wchar_t* const other = own == L"C:\\" ? L"Z:\\" : L"C:\\";
    window->Drive1.select_drive_of(other);
    EXPECT_EQ(window->Dir1.path(), other);

    std::wstring in_small_letter = (place / "inner").wstring();
    in_small_letter[0] = static_cast<wchar_t>(in_small_letter[0] - L'A' + L'a');
    window->Dir1.set_path(in_small_letter);
    EXPECT_EQ(window->Dir1.path(), in_small_letter) << "the folder, not the root of its drive";
    EXPECT_EQ(window->Drive1.drive(), own);
}

}  // namespace
}  // namespace quillomat
