// Saving cheats to a file as a player does it: choosing a place and a name, and what the file holds afterwards.

#include "open_forms.h"
#include "output/frmSave.h"
#include "shell/windows.h"
#include "shown_viewer.h"
#include "text/paths.h"

namespace quillomat {
namespace {

constexpr char database[] =
    "one\r\n\r\nthree\r\n$$$$$$$$$$$$$$$$$$$$ Quake: The Return\r\n$$$$$$$$$$$$$$$$$$$$ Empty\r\n";

class SaveTest : public ShownViewerTest {
  protected:
    void open(int game = 0) {
        std::filesystem::create_directories(place() / "inner");
        if (!viewer) open_viewer(database);
        viewer->List2.select_index(game);
        window = std::make_unique<frmSave>(application, session, *link);
        window->on_closed = [this] { window.reset(); };
        window->show();
        window->Dir1.set_path(place().wstring());
        pump();
    }
    bool closes() {
        return pump_until([this] { return !window; });
    }
    void save() { window->Command1.click(); }
    std::filesystem::path place() const { return folder.path() / "place"; }
    std::wstring full_path(const wchar_t* name) const { return place().wstring() + L"\\" + name; }

    /// The question whether a file is to be overwritten.
    void expect_question(const wchar_t* name, int answer = IDOK) {
        expect_message(L"Overwrite?",
                       L"The cheat codes for " + full_path(name) +
                           L" already exist in this directory.\r\nDo you want to overwrite them?",
                       answer);
    }

    std::vector<std::wstring> items(const ListBox& list) const {
        std::vector<std::wstring> found;
        for (int index = 0; index < list.count(); ++index) found.push_back(list.item(index));
        return found;
    }
    void select(ListBox& list, const wchar_t* name) {
        list.select_text(name);
        ASSERT_EQ(list.text(), name);
    }

    std::unique_ptr<frmSave> window;
};

TEST_F(SaveTest, EscapeLeavesAndEnterWritesExactlyTheNameAndTheCheats) {
    open();
    press_key(VK_ESCAPE);
    EXPECT_TRUE(closes());
    EXPECT_TRUE(std::filesystem::is_empty(place() / "inner"));

    open();
    EXPECT_EQ(window->caption(), L"Save cheat codes of Quake: The Return");
    EXPECT_EQ(window->Text1.selected_text(), L"Quake - The Return.txt");
    press_key(VK_RETURN);
    EXPECT_TRUE(closes());
    EXPECT_EQ(bytes("place/Quake - The Return.txt"), "Quake: The Return\r\n\r\none\r\n\r\nthree\r\n");

    open(1);
    window->Text1.set_text(L"a:b.TXT");
    save();
    EXPECT_TRUE(closes());
    EXPECT_EQ(bytes("place/a -b.TXT.txt"), "Empty\r\n\r\n\r\n");
}

TEST_F(SaveTest, StartsInTheCurrentFolder) {
    const std::filesystem::path former = std::filesystem::current_path();
    std::filesystem::create_directories(place());
    std::filesystem::current_path(place());
    open_viewer(database);
    frmSave dialog(application, session, *link);
    dialog.show();
    EXPECT_EQ(dialog.Dir1.path(), place().wstring());
    EXPECT_EQ(dialog.Label3.caption(), place().wstring());
    EXPECT_EQ(dialog.Drive1.drive(), place().root_path().wstring());
    std::filesystem::current_path(former);
}

TEST_F(SaveTest, AsksBeforeOverwriting) {
    std::filesystem::create_directories(place());
    write("place/old.txt", "a much longer text than the new one, so that a rest of it would be seen");
    open();
    select(window->File1, L"old.txt");
    EXPECT_EQ(window->Text1.text(), L"old.txt");
    expect_question(L"old.txt", IDCANCEL);
    save();
    EXPECT_FALSE(window->closed());
    EXPECT_EQ(bytes("place/old.txt").substr(0, 6), "a much");
    expect_question(L"old.txt");
    SendMessageW(window->window(), WM_COMMAND, MAKEWPARAM(0, LBN_DBLCLK),
                 reinterpret_cast<LPARAM>(window->File1.window()));
    EXPECT_TRUE(closes());
    EXPECT_EQ(bytes("place/old.txt"), "Quake: The Return\r\n\r\none\r\n\r\nthree\r\n");
}

TEST_F(SaveTest, WhatIsNoFileNameIsRefused) {
    open();
    window->Text1.set_text(L"");
    expect_message(L"Error", L"Please give a file name!");
    save();
    window->Text1.set_text(L"..\\up");
    expect_message(L"Error",
                   L"A file name can't contain the character \\\r\nNone of these characters can stand in a "
                   L"file name: \\ / : * ? \" < > |");
    save();
    EXPECT_TRUE(window->Text1.has_focus());
    EXPECT_FALSE(window->closed());
    EXPECT_TRUE(std::filesystem::is_empty(place() / "inner"));
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "up.txt"));
}

TEST_F(SaveTest, AFileThatCannotBeWrittenIsReportedAndTheDialogStays) {
    open();
    write("place/fixed.txt", "old");
    SetFileAttributesW(full_path(L"fixed.txt").c_str(), FILE_ATTRIBUTE_READONLY);
    window->Text1.set_text(L"fixed");
    expect_question(L"fixed.txt");
    expect_message(L"Error!", L"Permission denied");
    save();
    EXPECT_FALSE(window->closed());
    SetFileAttributesW(full_path(L"fixed.txt").c_str(), FILE_ATTRIBUTE_NORMAL);
    EXPECT_EQ(bytes("place/fixed.txt"), "old");
    std::filesystem::remove_all(place());
    window->Text1.set_text(L"gone");
    expect_message(L"Error!", L"Path not found");
    save();
    EXPECT_FALSE(window->closed());
}

TEST_F(SaveTest, TheFoldersAreReachedByDoubleClickAndKeys) {
    std::filesystem::create_directories(place() / ".." / "place" / "inner" / "deep");
    std::filesystem::create_directories(place() / "hidden");
    SetFileAttributesW((place() / "hidden").c_str(), FILE_ATTRIBUTE_HIDDEN);
    write("place/secret.txt", "");
    SetFileAttributesW((place() / "secret.txt").c_str(), FILE_ATTRIBUTE_HIDDEN);
    for (const char* name : {"place/b10.txt", "place/B9.TXT", "place/a.doc", "place/c.txtx"}) write(name, "");
    open();
    EXPECT_EQ(items(window->File1), (std::vector<std::wstring>{L"B9.TXT", L"b10.txt"}));
    const auto steps = folder_steps(place().wstring());
    EXPECT_EQ(items(window->Dir1).size(), steps.size() + 1) << "the way here, and the one folder that is not hidden";

    select(window->Dir1, L"inner");
    EXPECT_EQ(window->Dir1.path(), place().wstring()) << "selecting opens nothing";
    SendMessageW(window->window(), WM_COMMAND, MAKEWPARAM(0, LBN_DBLCLK),
                 reinterpret_cast<LPARAM>(window->Dir1.window()));
    EXPECT_EQ(window->Label3.caption(), (place() / "inner").wstring());

    window->Dir1.set_focus();
    select(window->Dir1, L"deep");
    press_key(VK_RETURN);
    EXPECT_TRUE(pump_until([this] { return window->Dir1.path().ends_with(L"inner\\deep"); }));
    EXPECT_FALSE(window->closed()) << "Enter is the folder's here, not the default button's";
    for (std::size_t i = 0; i <= steps.size() + 2; ++i) press_key(VK_BACK);
    EXPECT_TRUE(pump_until([&] { return window->Dir1.path() == steps.front().path; }));

    window->Dir1.set_path(place().wstring());
    std::filesystem::remove_all(place() / "inner");
    select(window->Dir1, L"inner");
    expect_message(L"Quillomat", L"Path not found");
    press_key(VK_RETURN);
    pump();
    EXPECT_EQ(window->Dir1.path(), place().wstring()) << "a folder that has vanished is not entered";
}

/// A drive whose disk is gone, while it lives.
class GoneDrive {
  public:
    GoneDrive() { EXPECT_TRUE(DefineDosDeviceW(DDD_RAW_TARGET_PATH, L"Q:", L"\\??\\Z:\\no such folder at all")); }
    ~GoneDrive() { DefineDosDeviceW(DDD_REMOVE_DEFINITION, L"Q:", nullptr); }
};

TEST_F(SaveTest, ADriveThatIsGoneIsToldAndNotChosen) {
    const GoneDrive gone;
    open();
    const std::wstring former = window->Drive1.drive();
    expect_message(L"Error!", L"Path not found");
    window->Drive1.select_drive_of(L"Q:\\");
    EXPECT_EQ(window->Drive1.drive(), former);
    EXPECT_EQ(window->Dir1.path(), place().wstring());
    const wchar_t* const other = former == L"C:\\" ? L"Z:\\" : L"C:\\";
    window->Drive1.select_drive_of(other);
    EXPECT_EQ(window->Dir1.path(), other);
    EXPECT_EQ(window->Label3.caption(), other);
}

TEST_F(SaveTest, ADriveInASmallLetterIsTheSameDrive) {
    open();
    std::wstring path = (place() / "inner").wstring();
    path[0] = static_cast<wchar_t>(path[0] - L'A' + L'a');
    const std::wstring own = window->Drive1.drive();
    window->Dir1.set_path(own == L"C:\\" ? L"Z:\\" : L"C:\\");
    ASSERT_NE(window->Drive1.drive(), own);
    window->Dir1.set_path(path);
    EXPECT_EQ(window->Dir1.path(), path) << "the folder, not the root of its drive";
    EXPECT_EQ(window->Drive1.drive(), own);
}

TEST_F(SaveTest, EscapeClosesAnOpenListFirst) {
    open();
    window->Combo1.set_focus();
    SendMessageW(window->Combo1.window(), CB_SHOWDROPDOWN, TRUE, 0);
    press_key(VK_ESCAPE);
    EXPECT_TRUE(pump_until([this] { return !SendMessageW(window->Combo1.window(), CB_GETDROPPEDSTATE, 0, 0); }));
    EXPECT_FALSE(window->closed());
}

TEST_F(SaveTest, OpensModallyWithoutAnOwner) {
    write("Cheats.dat", database);
    Windows windows(application, session);
    windows.open_viewer();
    auto* const opened = find_form<frmCtlView>();
    ASSERT_TRUE(opened);
    opened->List2.select_index(0);
    bool seen = false;
    Timer probe(*opened, 10);
    probe.on_timer = [&] {
        auto* const dialog = find_form<frmSave>();
        if (!dialog || !IsWindowVisible(dialog->window())) return;
        seen = true;
        EXPECT_FALSE(IsWindowEnabled(opened->window()));
        EXPECT_EQ(GetWindow(dialog->window(), GW_OWNER), nullptr);
        dialog->close();
    };
    opened->menus.mnuSelectedSave.pick();
    EXPECT_TRUE(seen);
    EXPECT_TRUE(pump_until([&] { return GetForegroundWindow() == opened->window(); }));
}

}  // namespace
}  // namespace quillomat
