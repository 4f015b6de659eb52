// Mails to a friend and to the author, through the system to a real mail program.

#include <array>

#include "output/frmMailCheats.h"
#include "output/frmMailMe.h"
#include "shown_viewer.h"
#include "win/code_page.h"
// Needs what they include.
#include <mapi.h>

namespace quillomat {
namespace {

using Calls = std::vector<std::string>;

constexpr wchar_t message[] = L"Hi \u03A9mega!\r\n\r\n\U0001F600 Bye";

/// What the mail program is asked for. It is this program itself, by the functions at the end of this file.
struct MailProgram {
    /// Records a call and answers the number it is to be refused with, or 0.
    ULONG call(const std::string& function, const std::string& arguments) {
        calls.push_back(function + arguments);
        return function == refused ? refusal : SUCCESS_SUCCESS;
    }
    /// The calls since this was last asked, which tell when their arguments are others than they should be.
    Calls take_calls() { return std::exchange(calls, {}); }

    Calls calls;
    bool in_session = false;
    /// The last mail: address, name and subject, a line each, and the text.
    std::wstring mail;
    /// The file that went with it: the name that the recipient sees, and its bytes.
    std::pair<std::wstring, std::string> file;
    std::string refused;
    /// What happens while it has the mail, on the thread that sends; is given the window above which it shows dialogs.
    std::function<void(HWND)> while_sending;
    ULONG refusal = 0;
};

MailProgram mail_program;

/// A window that sends mails, on a computer whose default mail program is the tests' own.
struct MailTest : ShownViewerTest {
    MailTest() {
        mail_program = {};
        wchar_t path[MAX_PATH];
        GetModuleFileNameW(nullptr, path, MAX_PATH);
        machine.set(L"Software\\Clients\\Mail", nullptr, L"Recorder");
        machine.set(L"Software\\Clients\\Mail\\Recorder", L"DLLPath", path);
    }

    static void refuse(const char* function, ULONG answer) {
        mail_program.refused = function;
        mail_program.refusal = answer;
    }
    RegistryOverride machine{HKEY_LOCAL_MACHINE};
};

struct MailCheatsTest : MailTest {
    /// Twelve games, one of them with letters beyond ASCII.
    MailCheatsTest() {
        std::string database;
        for (int number = 0; number < 12; ++number) {
            database += "Press " + std::to_string(number) + " times\r\n\r\n\tand \xBD & \"quotes\"\r\n";
            database += "$$$$$$$$$$$$$$$$$$$$ ";
            database += (number == 7 ? "\xC9t\xE9 " : "Game ") + std::to_string(number) + "\r\n";
        }
        open_viewer(database);
    }

    void open(std::initializer_list<int> picked = {}) {
        expect_mail_requirements();
        open_in(form, session, *link);
        const auto boxes = inputs();
        for (std::size_t i = 0; i < boxes.size(); ++i) boxes[i]->set_text(typed[i]);
        for (const int number : picked) form->List1.set_picked(number, true);
    }
    /// In the order in which Enter goes through them.
    std::array<TextBox*, 4> inputs() const { return {&form->Text1, &form->Text2, &form->Text4, &form->Text3}; }
    void expect_filled_in() const {
        const auto boxes = inputs();
        for (std::size_t i = 0; i < boxes.size(); ++i) EXPECT_EQ(boxes[i]->text(), typed[i]);
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
        EXPECT_EQ(mail_program.take_calls(), expected_calls);
    }

    const std::array<std::wstring, 4> typed{L"M\u00FCller \u65E5\u672C", L"\u03A9mega", L"friend@home.example",
                                            message};
    std::unique_ptr<frmMailCheats> form;
};

TEST_F(MailCheatsTest, GamesArriveToTheByteInTheMailAndInAFile) {
    // A name finds the first game that has it.
    session.catalogue.store(10, L"Game 3", L"a second one");
    session.catalogue.store(11, L"Renamed", L"under another name");
    const std::wstring frame = L"********************\r\n";
    const std::wstring separator = L"\r\n\r\n-----------------------------------\r\n\r\n";
    const std::wstring text = frame + L"Game 3\r\n" + frame +
                              L"\r\nPress 3 times\r\n\r\n\tand \u00BD & \"quotes\"\r\n\r\n" + frame +
                              L"\u00C9t\u00E9 7\r\n" + frame + L"\r\nPress 7 times\r\n\r\n\tand \u00BD & \"quotes\"";
    for (const bool in_file : {false, true}) {
        open({3, 7, 11});
        (in_file ? form->Option2 : form->Option1).set_value(true);
        expect_sent();
        const char* const send = in_file ? "MAPISendMailW with file" : "MAPISendMailW";
        EXPECT_EQ(mail_program.take_calls(), (Calls{"MAPILogon", send, "MAPILogoff"}));
        EXPECT_EQ(mail_program.mail,
                  L"friend@home.example\n\u03A9mega\nCheat codes sent from M\u00FCller \u65E5\u672C to \u03A9mega\n" +
                      (message + separator) + (in_file ? L"" : text + separator) +
                      L"Cheat codes taken from Quillomat.\r\nwww.tobferrand.example");
        EXPECT_EQ(mail_program.file.first, in_file ? L"Cheats.txt" : L"");
        EXPECT_EQ(mail_program.file.second, in_file ? encode(text) + "\r\n" : "") << "the bytes of the database";
    }
}

TEST_F(MailCheatsTest, ARefusalAtAnyCallLeavesEverythingAsItWasTyped) {
    const Calls all{"MAPILogon", "MAPISendMailW with file", "MAPILogoff"};
    const std::tuple<const char*, ULONG, const wchar_t*, Calls> cases[] = {
        {"MAPILogon", 1, L": you cancelled it.", {"MAPILogon"}},
        {"MAPISendMailW", 1, L": you cancelled it.", all},
        {"MAPISendMailW", 14, L": your mail program does not accept the e-mail address. Check how it is written.", all},
        // An older mail program gets every character or nothing.
        {"MAPISendMailW", 27, L": your mail program cannot send some of the characters in it.", all},
    };
    open({3, 7, 11});
    form->Option2.set_value(true);
    form->Command1.set_focus();
    for (const auto& [function, answer, why, expected_calls] : cases) {
        refuse(function, answer);
        expect_not_sent(why, expected_calls);
        EXPECT_FALSE(exists("Cheats.txt"));
        expect_filled_in();
        EXPECT_EQ(form->List1.picked_indexes(), (std::vector{3, 7, 11}));
        EXPECT_FALSE(form->Label6.visible()) << "nothing waits any more";
        EXPECT_TRUE(IsWindowEnabled(form->window()) && form->Command1.has_focus());
    }
    refuse("MAPILogoff", 2);
    expect_message(L"Quillomat",
                   L"Your mail program took the message, but could not end the connection (number 2). "
                   L"Look into its outbox before you send the message again.");
    press(form->Command1);
    EXPECT_TRUE(form && mail_program.take_calls() == all && !exists("Cheats.txt"));
}

TEST_F(MailCheatsTest, AFileThatCannotBeWrittenAndAMailProgramThatCrashesOrIsMissingAreExplained) {
    const std::filesystem::path path = folder.path() / "Cheats.txt";
    write("Cheats.txt", "mine");
    SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY);
    open({0});
    form->Option2.set_value(true);
    expect_not_sent(L", because this file, which goes with it, cannot be written:\n" + path.wstring() +
                        L"\n\nPermission denied\n\nYou can include the cheats in the e-mail instead.",
                    {"MAPILogon", "MAPILogoff"});
    SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
    EXPECT_EQ(bytes("Cheats.txt"), "mine");
    mail_program.while_sending = [](HWND) { RaiseException(EXCEPTION_ACCESS_VIOLATION, 0, 0, nullptr); };
    expect_message(L"Quillomat",
                   L"Your mail program has stopped working, so that it is not known whether the message was sent. Look "
                   L"into its outbox before you send the message again.");
    press(form->Command1);
    pump();
    EXPECT_TRUE(form && IsWindowEnabled(form->window()) && !exists("Cheats.txt"));
    mail_program.take_calls();
    machine.remove(L"Software\\Clients");
    expect_not_sent(
        L": no mail program is set up on this computer. Install one, such as Thunderbird or Outlook, make it the "
        L"default mail program in the settings of Windows, and try again. A mail account that you use in a web "
        L"browser or the Mail app of Windows cannot be used for this.",
        {});
}

TEST_F(MailCheatsTest, WindowsRepaintAndTakeNoInputWhileTheMailProgramIsSlow) {
    open({3});
    mail_program.while_sending = [button = form->Command1.window(), box = form->Text1.window()](HWND owner) {
        EnableWindow(owner, TRUE);  // as mail programs do behind their dialogs
        PostMessageW(button, BM_CLICK, 0, 0);
        PostMessageW(box, WM_CHAR, 'x', 1);
        EXPECT_TRUE(is_repainted(owner));
        EXPECT_FALSE(IsWindowEnabled(owner));
        EXPECT_EQ(text_of(box), L"M\u00FCller \u65E5\u672C");
    };
    expect_sent();
    EXPECT_EQ(mail_program.take_calls(), (Calls{"MAPILogon", "MAPISendMailW", "MAPILogoff"})) << "sent once";
}

TEST_F(MailCheatsTest, AMailIsSentToItsEndThoughItsWindowsAreClosed) {
    for (const auto& key : {settings::MailYourName, settings::MailFriendsName, settings::MailFriendsEmail}) {
        session.settings.write(key, L"somebody");
    }
    viewer->List2.select_index(0);
    expect_mail_requirements();
    frmMailCheats dialog(application, session, *link);
    dialog.Timer1.on_timer = [&] {
        if (dialog.shown() && mail_program.calls.empty()) press(dialog.Command1);
    };
    mail_program.while_sending = [&](HWND owner) {
        PostMessageW(viewer->window(), WM_CLOSE, 0, 0);
        EXPECT_TRUE(is_repainted(owner));
    };
    dialog.show_modal(viewer.get());
    EXPECT_EQ(mail_program.take_calls(), (Calls{"MAPILogon", "MAPISendMailW", "MAPILogoff"}));
    EXPECT_SOON(!viewer);
}

TEST_F(MailCheatsTest, PicksAreCountedAndNamedAndTheCursorWalksThroughThem) {
    viewer->List2.select_index(5);
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
    for (TextBox* box : inputs()) {
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
    expect_mail_requirements();
    open_in(form, session, *link);
    expect_filled_in();
}

struct MailMeTest : MailTest {
    void open() {
        expect_mail_requirements();
        open_in(form, session);
    }

    std::unique_ptr<frmMailMe> form;
};

TEST_F(MailMeTest, APickedSubjectAndATypedMessageReachTheAuthor) {
    open();
    EXPECT_TRUE(form->Combo1.has_focus() && !form->Command1.enabled());
    for (int i = 0; i < 5; ++i) press_key(VK_DOWN);
    ASSERT_SOON(form->Combo1.text() == L"Quillomat sucks!");
    EXPECT_FALSE(form->Command1.enabled()) << "there is no message yet";
    press_key(VK_RETURN);
    ASSERT_SOON(form->Text1.has_focus());
    for (const WORD key : std::initializer_list<WORD>{'N', 'O', VK_RETURN}) press_key(key);
    ASSERT_SOON(form->Text1.text() == L"no\r\n");
    EXPECT_EQ(form->Text1.tool_tip(), L"Total - 2 lines.");

    for (const WORD key : {VK_TAB, VK_TAB, VK_SPACE}) press_key(key);
    expect_message(L"Quillomat", L"The message was sent!");
    ASSERT_SOON(!form);
    EXPECT_EQ(mail_program.take_calls(), (Calls{"MAPILogon", "MAPISendMailW", "MAPILogoff"}));
    EXPECT_EQ(mail_program.mail, L"tob@tobferrand.example\nTobin Ferrand\nQuillomat sucks! (sent from QLM)\nno\r\n");
    EXPECT_EQ(mail_program.file.first, L"");
}

TEST_F(MailMeTest, EscapeClosesTheListThenTheWindowAndThrowsAwayAProposal) {
    open();
    const auto is_dropped = [this] { return SendMessageW(form->Combo1.window(), CB_GETDROPPEDSTATE, 0, 0) != 0; };
    press_key(VK_DOWN, {VK_MENU});
    ASSERT_SOON(is_dropped());
    pump();
    EXPECT_FALSE(in_menu()) << "letting go of Alt is no request for the menu";
    press_key(VK_ESCAPE);
    ASSERT_SOON(!is_dropped());
    form->Text1.set_text(L"written");
    form->propose_message(L"[Question]");
    EXPECT_EQ(form->Text1.text(), L"written") << "what is written is never replaced";
    form->Text1.set_text(L"");
    form->propose_message(L"[Question]");
    press_key(VK_TAB);
    press_key('W');
    ASSERT_SOON(form->Text1.text() == L"w") << "the proposal is typed over";
    form->Text1.set_text(L"");
    form->propose_message(L"[Question]");
    press_key(VK_ESCAPE);
    EXPECT_SOON(!form) << "nothing but the proposal is thrown away";
}

constexpr LHANDLE only_session = 4711;

/// A text of the wide functions' structures, which only newer headers have: they differ in their characters alone.
const wchar_t* wide(const char* text) {
    return reinterpret_cast<const wchar_t*>(text);
}

}  // namespace

extern "C" {

__declspec(dllexport) ULONG WINAPI MAPILogon(ULONG_PTR, LPSTR profile, LPSTR, FLAGS flags, ULONG, LPLHANDLE session) {
    const ULONG refusal = mail_program.call("MAPILogon", flags == MAPI_LOGON_UI && !profile ? "" : " wrongly");
    if (refusal != 0) return refusal;
    mail_program.in_session = true;
    *session = only_session;
    return SUCCESS_SUCCESS;
}

__declspec(dllexport) ULONG WINAPI MAPILogoff(LHANDLE session, ULONG_PTR, FLAGS, ULONG) {
    const bool rightly = session == only_session && std::exchange(mail_program.in_session, false);
    return mail_program.call("MAPILogoff", rightly ? "" : " wrongly");
}

__declspec(dllexport) ULONG WINAPI
    MAPISendMailW(LHANDLE session, ULONG_PTR owner, lpMapiMessage mail, FLAGS flags, ULONG) {
    const MapiRecipDesc& recipient = mail->lpRecips[0];
    const bool with_file = mail->nFileCount == 1;
    const bool rightly = session == only_session && mail_program.in_session && mail->nRecipCount == 1 &&
                         recipient.ulRecipClass == MAPI_TO && !(flags & MAPI_DIALOG) &&
                         IsWindow(reinterpret_cast<HWND>(owner)) &&
                         (!with_file || mail->lpFiles[0].nPosition == 0xFFFFFFFF);
    if (mail_program.while_sending) mail_program.while_sending(reinterpret_cast<HWND>(owner));
    const ULONG refusal =
        mail_program.call("MAPISendMailW", std::string(with_file ? " with file" : "") + (rightly ? "" : " wrongly"));
    if (refusal != 0) return refusal;
    mail_program.mail.clear();
    for (const char* part : {recipient.lpszAddress, recipient.lpszName, mail->lpszSubject}) {
        mail_program.mail.append(wide(part)).append(L"\n");
    }
    mail_program.mail += wide(mail->lpszNoteText);
    mail_program.file = {};
    if (with_file) {
        const MapiFileDesc& file = mail->lpFiles[0];
        const std::filesystem::path path = wide(file.lpszPathName);
        mail_program.file = {file.lpszFileName ? wide(file.lpszFileName) : path.filename().wstring(), bytes_of(path)};
    }
    return SUCCESS_SUCCESS;
}

}  // extern "C"
}  // namespace quillomat
