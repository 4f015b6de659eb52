// Mails to a friend and to the author, through the system to a real mail program.

#include "output/frmMailCheats.h"
#include "output/frmMailMe.h"
#include "session_support.h"
#include "text/mail.h"
#include "win/code_page.h"

namespace quillomat {
namespace {

using Calls = std::vector<std::string>;

constexpr wchar_t message[] = L"Hi \u03A9mega!\r\n\r\n\U0001F600 Bye";

std::string utf8(const std::wstring& text) {
    const std::u8string bytes = std::filesystem::path(text).u8string();
    return {bytes.begin(), bytes.end()};
}

/// A window that sends mails, on a computer whose default mail program is the tests' own.
struct MailTest : SessionTest {
    MailTest() {
        std::filesystem::create_directories(record());
        SetEnvironmentVariableW(L"QUILLOMAT_MAIL_FOLDER", record().c_str());
        refuse(L"");
        machine.set(L"Software\\Clients\\Mail", nullptr, L"Recorder");
        machine.set(L"Software\\Clients\\Mail\\Recorder", L"DLLPath", recorder_path());
    }

    /// Has the mail program refuse a call, as in "MAPILogon=3"; an empty text has it refuse none.
    static void refuse(const wchar_t* call) { SetEnvironmentVariableW(L"QUILLOMAT_MAIL_REFUSE", call); }

    /// The calls the mail program has received since this was last asked.
    std::vector<std::string> calls() const {
        std::ifstream file(record() / "calls.txt");
        std::vector<std::string> lines;
        for (std::string line; std::getline(file, line);) lines.push_back(line);
        file.close();
        std::filesystem::remove(record() / "calls.txt");
        return lines;
    }
    /// A part of the last mail, or a file that went with it.
    std::string sent(const char* part) const { return bytes(record() / part); }
    bool sent_a_file() const { return !std::filesystem::is_empty(record() / "files"); }

    void expect_requirements() {
        expect_message(
            L"Message",
            L"To send messages from Quillomat, you need an e-mail client such as Outlook Express, MS Outlook, "
            L"Netscape, Eudora, etc. You also need to have a POP3 e-mail account on one of these clients. You "
            L"cannot send e-mail from Quillomat if you use Hotmail or any other web based e-mail.");
    }

    RegistryOverride machine{HKEY_LOCAL_MACHINE};

  private:
    std::filesystem::path record() const { return folder.path() / "record"; }

    static std::wstring recorder_path() {
        wchar_t path[MAX_PATH];
        GetModuleFileNameW(nullptr, path, MAX_PATH);
        return std::filesystem::path(path).replace_filename(L"mapi_recorder.dll").wstring();
    }
};

struct MailCheatsTest : MailTest {
    /// Sixty games, one of them with letters beyond ASCII.
    MailCheatsTest() {
        std::string database;
        for (int number = 0; number < 60; ++number) {
            database += cheats(number) + "\r\n$$$$$$$$$$$$$$$$$$$$ ";
            database += (number == 7 ? "\xC9t\xE9 " : "Game ") + std::to_string(number) + "\r\n";
        }
        session.catalogue.load(decode(database), [this](std::wstring_view name) { games.names.emplace_back(name); });
    }
    static std::string cheats(int number) {
        return "Press " + std::to_string(number) + " times\r\n\r\n\tand \xBD & \"quotes\"";
    }

    void open(std::initializer_list<int> picked = {}) {
        expect_requirements();
        open_in(form, session, games);
        form->Text1.set_text(L"M\u00FCller \u65E5\u672C");
        form->Text2.set_text(L"\u03A9mega");
        form->Text4.set_text(L"friend@home.example");
        form->Text3.set_text(message);
        for (const int number : picked) form->List1.set_picked(number, true);
    }
    void expect_filled_in() const {
        EXPECT_EQ(form->Text1.text(), L"M\u00FCller \u65E5\u672C");
        EXPECT_EQ(form->Text2.text(), L"\u03A9mega");
        EXPECT_EQ(form->Text4.text(), L"friend@home.example");
        EXPECT_EQ(form->Text3.text(), message);
    }
    void expect_sent() {
        expect_message(L"Quillomat", L"The message was sent!");
        press(form->Command1);
        ASSERT_SOON(!form);
        EXPECT_FALSE(exists("Cheats.txt")) << "what was sent along is gone";
    }
    void expect_not_sent(const std::wstring& why, const Calls& expected_calls) {
        expect_message(L"Quillomat", L"The message was not sent" + why);
        press(form->Command1);
        pump();
        ASSERT_TRUE(form) << "the window stays open";
        EXPECT_EQ(calls(), expected_calls);
    }

    GamesToPick games;
    std::unique_ptr<frmMailCheats> form;
};

TEST_F(MailCheatsTest, FiftyGamesArriveToTheByteInTheMailAndInAFile) {
    for (const bool in_file : {false, true}) {
        open();
        (in_file ? form->Option2 : form->Option1).set_value(true);
        std::vector<MailedGame> picked;
        for (int number = 0; number < 50; ++number) {
            form->List1.set_picked(number, true);
            picked.push_back({session.catalogue.name(number), session.catalogue.cheats(number)});
        }
        expect_sent();
        const std::string send = in_file ? "MAPISendMailW to one file" : "MAPISendMailW to one";
        EXPECT_EQ(calls(), (Calls{"MAPILogon dialog", send, "MAPILogoff"}));
        EXPECT_EQ(sent("mail/address"), "friend@home.example");
        EXPECT_EQ(sent("mail/name"), "\xCE\xA9mega");
        EXPECT_EQ(sent("mail/subject"), "Cheat codes sent from M\xC3\xBCller \xE6\x97\xA5\xE6\x9C\xAC to \xCE\xA9mega");
        EXPECT_EQ(sent_a_file(), in_file);
        const std::wstring text = mailed_cheats(picked);
        EXPECT_EQ(sent("mail/text"), utf8(in_file ? cheats_mail_body(message) : cheats_mail_body(message, text)));
        if (in_file) {
            EXPECT_EQ(sent("files/Cheats.txt"), encode(text) + "\r\n") << "the bytes of the database";
        }
    }
}

TEST_F(MailCheatsTest, ANameFindsTheFirstGameThatHasIt) {
    session.catalogue.store(20, L"Game 3", L"a second one");
    session.catalogue.store(21, L"Renamed", L"under another name");
    open({3, 21});
    form->Option1.set_value(true);
    expect_sent();
    const std::string separator = "\r\n\r\n-----------------------------------\r\n\r\n";
    EXPECT_EQ(sent("mail/text"), utf8(message) + separator +
                                     "********************\r\nGame 3\r\n********************\r\n\r\n" +
                                     "Press 3 times\r\n\r\n\tand \xC2\xBD & \"quotes\"" + separator +
                                     "Cheat codes taken from Quillomat.\r\nwww.tobferrand.example");
}

TEST_F(MailCheatsTest, ARefusalAtAnyCallLeavesEverythingAsItWasTyped) {
    const Calls all{"MAPILogon dialog", "MAPISendMailW to one file", "MAPILogoff"};
    const std::tuple<const wchar_t*, const wchar_t*, Calls> cases[] = {
        {L"MAPILogon=1", L": you cancelled it.", {"MAPILogon dialog"}},
        {L"MAPISendMailW=1", L": you cancelled it.", all},
        {L"MAPISendMailW=14", L": your mail program does not accept the e-mail address. Check how it is written.", all},
        // An older mail program gets every character or nothing.
        {L"MAPISendMailW=27", L": your mail program cannot send some of the characters in it.", all},
    };
    open({3, 7, 11});
    form->Option2.set_value(true);
    form->Command1.set_focus();
    for (const auto& [call, why, expected_calls] : cases) {
        refuse(call);
        expect_not_sent(why, expected_calls);
        EXPECT_FALSE(exists("Cheats.txt"));
        expect_filled_in();
        EXPECT_EQ(form->List1.picked_indexes(), (std::vector{3, 7, 11}));
        EXPECT_FALSE(form->Label6.visible()) << "nothing waits any more";
        EXPECT_TRUE(IsWindowEnabled(form->window()) && form->Command1.has_focus());
    }
    refuse(L"MAPILogoff=2");
    expect_sent();  // however the session ends
}

TEST_F(MailCheatsTest, AFileThatCannotBeWrittenAndAMissingMailProgramAreExplained) {
    const std::filesystem::path path = folder.path() / "Cheats.txt";
    write("Cheats.txt", "mine");
    SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY);
    open({0});
    form->Option2.set_value(true);
    expect_not_sent(L", because this file, which goes with it, cannot be written:\n" + path.wstring() +
                        L"\n\nPermission denied\n\nYou can include the cheats in the e-mail instead.",
                    {"MAPILogon dialog", "MAPILogoff"});
    SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
    EXPECT_EQ(bytes("Cheats.txt"), "mine");
    machine.remove(L"Software\\Clients");
    expect_not_sent(
        L": no mail program is set up on this computer. Install one, such as Thunderbird or Outlook, make it the "
        L"default mail program in the settings of Windows, and try again. A mail account that you use in a web "
        L"browser or the Mail app of Windows cannot be used for this.",
        {});
}

TEST_F(MailCheatsTest, PicksAreCountedAndNamedAndTheCursorWalksThroughThem) {
    games.selected = 5;
    open();
    EXPECT_TRUE(form->List1.has_focus());
    EXPECT_EQ(form->List1.picked_indexes(), std::vector{5}) << "the viewer's game";
    press_key(VK_DOWN);
    press_key(VK_DOWN);
    press_key(VK_SPACE);
    ASSERT_SOON(form->List2.count() == 2);
    EXPECT_EQ(form->List1.tool_tip(), L"You have selected 2 games. These are: Game 5, \u00C9t\u00E9 7");
    for (const int lands_on : {5, 7, 5}) {
        press_key(VK_UP, {VK_CONTROL});
        EXPECT_SOON(form->List1.selected_index() == lands_on);
        pump();
        EXPECT_EQ(form->List1.selected_index(), lands_on) << "exactly there, and no step further";
    }
    EXPECT_EQ(form->List1.picked_indexes(), (std::vector{5, 7})) << "moving picks nothing";
    press_key(VK_DOWN);
    EXPECT_SOON(form->List1.selected_index() == 6) << "other keys are the list's own";
}

TEST_F(MailCheatsTest, SendingNeedsAPickAndEveryTextWhichIsRemembered) {
    open();
    EXPECT_FALSE(form->Command1.enabled()) << "nothing is picked";
    form->List1.set_picked(0, true);
    form->Text1.set_focus();
    for (TextBox* box : {&form->Text1, &form->Text2, &form->Text4, &form->Text3}) {
        EXPECT_SOON(box->has_focus()) << "Enter goes from text to text";
        const std::wstring text = box->text();
        EXPECT_TRUE(form->Command1.enabled());
        box->set_text(L"");
        EXPECT_FALSE(form->Command1.enabled());
        box->set_text(text);
        if (box != &form->Text3) press_key(VK_RETURN);
    }
    press_key(VK_ESCAPE);
    ASSERT_SOON(!form) << "Escape cancels, also from the message";
    expect_requirements();
    open_in(form, session, games);
    expect_filled_in();
}

struct MailMeTest : MailTest {
    void open() {
        expect_requirements();
        open_in(form, session);
    }

    std::unique_ptr<frmMailMe> form;
};

TEST_F(MailMeTest, APickedSubjectAndATypedMessageReachTheAuthor) {
    open();
    EXPECT_TRUE(form->Combo1.has_focus());
    for (int i = 0; i < 5; ++i) press_key(VK_DOWN);
    ASSERT_SOON(form->Combo1.text() == L"Quillomat sucks!");
    EXPECT_FALSE(form->Command1.enabled()) << "there is no message yet";
    press_key(VK_RETURN);
    ASSERT_SOON(form->Text1.has_focus());
    for (const WORD key : std::initializer_list<WORD>{'N', 'O', VK_RETURN}) press_key(key);
    ASSERT_SOON(form->Text1.text() == L"no\r\n");
    EXPECT_EQ(form->Text1.tool_tip(), L"Total - 2 lines.");

    refuse(L"MAPISendMailW=1");
    expect_message(L"Quillomat", L"The message was not sent: you cancelled it.");
    press(form->Command1);
    ASSERT_TRUE(form);
    EXPECT_EQ(calls().back(), "MAPILogoff");
    refuse(L"");
    form->Text1.set_focus();
    press_key(VK_TAB);
    press_key(VK_SPACE);
    expect_message(L"Quillomat", L"The message was sent!");
    ASSERT_SOON(!form);
    EXPECT_EQ(calls(), (Calls{"MAPILogon dialog", "MAPISendMailW to one", "MAPILogoff"}));
    const std::pair<const char*, const char*> parts[] = {{"mail/address", "tob@tobferrand.example"},
                                                         {"mail/name", "Tobin Ferrand"},
                                                         {"mail/subject", "Quillomat sucks! (sent from QLM)"},
                                                         {"mail/text", "no\r\n"}};
    for (const auto& [part, expected] : parts) EXPECT_EQ(sent(part), expected);
    EXPECT_FALSE(sent_a_file());
}

TEST_F(MailMeTest, EscapeClosesTheListThenTheWindowUnlessSomethingIsWritten) {
    open();
    const auto is_dropped = [this] { return SendMessageW(form->Combo1.window(), CB_GETDROPPEDSTATE, 0, 0) != 0; };
    press_key(VK_DOWN, {VK_MENU});
    ASSERT_SOON(is_dropped());
    pump();
    EXPECT_FALSE(in_menu()) << "letting go of Alt is no request for the menu";
    press_key(VK_ESCAPE);
    ASSERT_SOON(!is_dropped());
    for (const wchar_t* const written : {L"written", L""}) {
        ASSERT_FALSE(form->closed());
        form->Text1.set_text(written);
        form->propose_message(L"[Question]");
        EXPECT_EQ(form->Text1.text(), *written ? written : L"[Question]") << "what is written is never replaced";
        form->Text1.set_text(written);
        press_key(VK_ESCAPE);
        pump();
    }
    EXPECT_SOON(!form);
}

}  // namespace
}  // namespace quillomat
