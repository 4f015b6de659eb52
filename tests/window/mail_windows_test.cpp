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

constexpr wchar_t message[] = L"Hi \u03A9mega!\r\n\r\n\U0001F600 Bye";
constexpr char all_calls[] = "logon send logoff ";
constexpr LHANDLE only_session = 4711;

// What the mail program is asked for. It is this program itself, by the functions at the end of this file.
struct MailProgram {
    // Records a call and answers the number it is to be refused with, or 0.
    ULONG call(const std::string& function) {
        calls += function + " ";
        return function == refused ? refusal : SUCCESS_SUCCESS;
    }

    std::string calls;
    // The last mail: address, name, subject, text, and the name and the content of a file, each with a line end.
    std::wstring mail;
    std::string refused;
    ULONG refusal = 0;
    // What happens while it has the mail, on the thread that sends; is given the window above which it shows dialogs.
    std::function<void(HWND)> while_sending;
};

MailProgram mail_program;

// A window that sends mails, on a computer whose default mail program is the tests' own.
template <class Window>
struct MailTest : ShownViewerTest {
    MailTest() {
        mail_program = {};
        wchar_t path[MAX_PATH];
        GetModuleFileNameW(nullptr, path, MAX_PATH);
        machine.set(L"Software\\Clients\\Mail", nullptr, L"Recorder");
        machine.set(L"Software\\Clients\\Mail\\Recorder", L"DLLPath", path);
    }

    template <class... Arguments>
    void open_window(Arguments&&... arguments) {
        expect_mail_requirements();
        open_in(form, session, arguments...);
    }
    void expect_answer(const std::wstring& text, const std::string& calls) {
        expect_message(L"Quillomat", text);
        press(form->Command1);
        pump();
        EXPECT_EQ(std::exchange(mail_program.calls, {}), calls);
        EXPECT_FALSE(exists("Cheats.txt")) << "what is sent along goes again";
        EXPECT_EQ(!form, text == L"The message was sent!") << "otherwise the window stays open";
    }

    RegistryOverride machine{HKEY_LOCAL_MACHINE};
    std::unique_ptr<Window> form;
};

struct MailCheatsTest : MailTest<frmMailCheats> {
    // Eight games, one of them with letters beyond ASCII.
    MailCheatsTest() {
        std::string database;
        for (const char* name : {"Game 0", "Game 1", "Game 2", "Game 3", "Game 4", "Game 5", "Game 6", "\xC9t\xE9 7"}) {
            database += std::string(name) + "\r\n\r\n\tand \xBD & \"quotes\"\r\n$$$$$$$$$$$$$$$$$$$$ " + name + "\r\n";
        }
        open_viewer(database);
    }

    void open(std::initializer_list<int> picked = {}) {
        open_window(*link);
        for (const auto& [box, text] : inputs()) box->set_text(text);
        for (const int number : picked) form->List1.set_picked(number, true);
    }
    // The boxes in the order in which Enter goes through them, and what is typed there.
    std::array<std::pair<TextBox*, std::wstring>, 4> inputs() const {
        return {{{&form->Text1, L"M\u00FCller \u65E5\u672C"},
                 {&form->Text2, L"\u03A9mega"},
                 {&form->Text4, L"friend@home.example"},
                 {&form->Text3, message}}};
    }
    void expect_filled_in() const {
        for (const auto& [box, text] : inputs()) EXPECT_EQ(box->text(), text);
    }
};

TEST_F(MailCheatsTest, GamesArriveToTheByteInTheMailAndInAFile) {
    session.catalogue.store(6, L"Game 3", L"a second one, which its name does not find");
    const std::wstring frame = L"********************\r\n";
    const std::wstring separator = L"\r\n\r\n-----------------------------------\r\n\r\n";
    const std::wstring cheats = L"\r\n\r\n\tand \u00BD & \"quotes\"";
    const std::wstring text = frame + L"Game 3\r\n" + frame + L"\r\nGame 3" + cheats + L"\r\n\r\n" + frame +
                              L"\u00C9t\u00E9 7\r\n" + frame + L"\r\n\u00C9t\u00E9 7" + cheats;
    for (const bool in_file : {false, true}) {
        open({3, 7});
        (in_file ? form->Option2 : form->Option1).set_value(true);
        expect_answer(L"The message was sent!", all_calls);
        EXPECT_EQ(mail_program.mail,
                  L"friend@home.example\n\u03A9mega\nCheat codes sent from M\u00FCller \u65E5\u672C to \u03A9mega\n" +
                      (message + separator) + (in_file ? L"" : text + separator) +
                      L"Cheat codes taken from Quillomat.\r\nwww.tobferrand.example\n" +
                      (in_file ? L"Cheats.txt\n" + text + L"\r\n\n" : L""));
    }
}

TEST_F(MailCheatsTest, AFailureIsExplainedAndLeavesEverythingAsItWasTyped) {
    const std::wstring not_sent = L"The message was not sent: ";
    const std::tuple<const char*, ULONG, std::wstring, const char*> cases[] = {
        {"logon", 1, not_sent + L"you cancelled it.", "logon "},
        {"send", 14, not_sent + L"your mail program does not accept the e-mail address. Check how it is written.",
         all_calls},
        // An older mail program gets every character or nothing.
        {"send", 27, not_sent + L"your mail program cannot send some of the characters in it.", all_calls},
        {"logoff", 2,
         L"Your mail program took the message, but could not end the connection (number 2). Look into its outbox "
         L"before you send the message again.",
         all_calls},
    };
    open({3, 7});
    form->Option2.set_value(true);
    form->Command1.set_focus();
    for (const auto& [function, answer, why, calls] : cases) {
        mail_program.refused = function;
        mail_program.refusal = answer;
        expect_answer(why, calls);
        ASSERT_TRUE(form);
        expect_filled_in();
        EXPECT_EQ(form->List1.picked_indexes(), (std::vector{3, 7}));
        EXPECT_TRUE(!form->Label6.visible() && form->Command1.has_focus()) << "nothing waits any more";
    }
    mail_program.while_sending = [](HWND) { RaiseException(EXCEPTION_ACCESS_VIOLATION, 0, 0, nullptr); };
    expect_answer(
        L"Your mail program has stopped working, so that it is not known whether the message was sent. Look into its "
        L"outbox before you send the message again.",
        "logon ");
    const std::filesystem::path path = folder.path() / "Cheats.txt";
    std::filesystem::create_directory(path);
    expect_message(L"Quillomat",
                   L"The message was not sent, because this file, which goes with it, cannot be written:\n" +
                       path.wstring() + L"\n\nPermission denied\n\nYou can include the cheats in the e-mail instead.");
    press(form->Command1);
    EXPECT_EQ(std::exchange(mail_program.calls, {}), "logon logoff ");
    EXPECT_TRUE(std::filesystem::remove(path)) << "it was not there by the program";
    machine.remove(L"Software\\Clients");
    expect_answer(
        L"The message was not sent: no mail program is set up on this computer. Install one, such as Thunderbird or "
        L"Outlook, make it the default mail program in the settings of Windows, and try again. A mail account that you "
        L"use in a web browser or the Mail app of Windows cannot be used for this.",
        "");
}

TEST_F(MailCheatsTest, WindowsRepaintTakeNoInputAndMayCloseWhileTheMailProgramIsSlow) {
    open({3});
    form->set_owner(*viewer);
    mail_program.while_sending = [&](HWND owner) {
        ASSERT_TRUE(is_repainted(owner)) << "the calls below would wait for ever";
        EnableWindow(owner, TRUE);  // as mail programs do behind their dialogs
        PostMessageW(form->Command1.window(), BM_CLICK, 0, 0);
        PostMessageW(form->Text1.window(), WM_CHAR, 'x', 1);
        EXPECT_TRUE(is_repainted(owner));
        EXPECT_FALSE(IsWindowEnabled(owner));
        EXPECT_EQ(text_of(form->Text1.window()), inputs()[0].second);
        PostMessageW(viewer->window(), WM_CLOSE, 0, 0);
        EXPECT_TRUE(is_repainted(owner));
    };
    press(form->Command1);
    EXPECT_EQ(mail_program.calls, all_calls) << "it is sent to its end, and once";
    EXPECT_SOON(!form && !viewer);
}

TEST_F(MailCheatsTest, SendingNeedsPicksWhichAreCountedAndWalkedThroughAndEveryText) {
    viewer->List2.select_index(5);
    open();
    EXPECT_TRUE(form->List1.has_focus());
    for (const WORD key : {VK_DOWN, VK_DOWN, VK_SPACE}) press_key(key);
    ASSERT_SOON(form->List2.count() == 2);
    EXPECT_EQ(form->List1.tool_tip(), L"You have selected 2 games. These are: Game 5, \u00C9t\u00E9 7");
    for (const auto& [key, modifiers, lands_on] : {std::tuple{VK_UP, std::vector<WORD>{VK_CONTROL}, 5},
                                                   {VK_UP, {VK_CONTROL}, 7},
                                                   {VK_UP, {}, 6},
                                                   {VK_DOWN, {VK_CONTROL}, 7},
                                                   {VK_DOWN, {VK_CONTROL}, 5}}) {
        press_key(static_cast<WORD>(key), modifiers);
        EXPECT_SOON(form->List1.selected_index() == lands_on);
        pump();
        EXPECT_EQ(form->List1.selected_index(), lands_on) << "exactly there, and no step further";
    }
    EXPECT_EQ(form->List1.picked_indexes(), (std::vector{5, 7})) << "moving picks nothing";
    for (const int index : {5, 7}) {
        EXPECT_TRUE(form->Command1.enabled());
        form->List1.set_picked(index, false);
    }
    EXPECT_FALSE(form->Command1.enabled()) << "nothing is picked";
    form->List1.set_picked(0, true);
    form->Text1.set_focus();
    for (const auto& [box, text] : inputs()) {
        EXPECT_SOON(box->has_focus()) << "Enter goes from text to text";
        EXPECT_TRUE(form->Command1.enabled());
        box->set_text(L"");
        EXPECT_FALSE(form->Command1.enabled());
        box->set_text(text);
        if (box != &form->Text3) press_key(VK_RETURN);
    }
    form->Option2.set_value(true);
    press_key(VK_ESCAPE);
    ASSERT_SOON(!form) << "Escape cancels, also from the message";
    open_window(*link);
    expect_filled_in();
    EXPECT_TRUE(form->Option2.value());
    EXPECT_EQ(form->caption(), L"Mail Cheat Codes to \u03A9mega");
}

using MailMeTest = MailTest<frmMailMe>;

TEST_F(MailMeTest, APickedSubjectAndATypedMessageReachTheAuthor) {
    open_window();
    EXPECT_TRUE(form->Combo1.has_focus() && !form->Command1.enabled());
    for (int i = 0; i < 5; ++i) press_key(VK_DOWN);
    ASSERT_SOON(form->Combo1.text() == L"Quillomat sucks!");
    EXPECT_FALSE(form->Command1.enabled()) << "there is no message yet";
    press_key(VK_RETURN);
    ASSERT_SOON(form->Text1.has_focus());
    for (const WORD key : std::initializer_list<WORD>{'N', 'O', VK_RETURN}) press_key(key);
    ASSERT_SOON(form->Text1.text() == L"no\r\n");
    EXPECT_EQ(form->Text1.tool_tip(), L"Total - 2 lines.");
    expect_answer(L"The message was sent!", all_calls);
    EXPECT_EQ(mail_program.mail, L"tob@tobferrand.example\nTobin Ferrand\nQuillomat sucks! (sent from QLM)\nno\r\n\n");
}

TEST_F(MailMeTest, EscapeClosesTheListThenTheWindowAndThrowsAwayAProposal) {
    open_window();
    const auto is_dropped = [this] { return SendMessageW(form->Combo1.window(), CB_GETDROPPEDSTATE, 0, 0) != 0; };
    press_key(VK_DOWN, {VK_MENU});
    ASSERT_SOON(is_dropped());
    pump();
    EXPECT_FALSE(in_menu()) << "letting go of Alt is no request for the menu";
    press_key(VK_ESCAPE);
    ASSERT_SOON(!is_dropped());
    form->propose_message(L"[Question]");
    press_key(VK_TAB);
    press_key('W');
    ASSERT_SOON(form->Text1.text() == L"w") << "the proposal is typed over";
    press_key(VK_ESCAPE);
    press_key('W');
    ASSERT_SOON(form && form->Text1.text() == L"ww") << "a written message is not thrown away";
    press_key(VK_TAB, {VK_SHIFT});
    press_key('S');
    EXPECT_SOON(form->Command1.enabled()) << "with a subject of one's own";
    for (const wchar_t* written : {L"w", L""}) {
        form->Text1.set_text(written);
        form->propose_message(L"[Question]");
        EXPECT_EQ(form->Text1.text() == written, *written != 0) << "what is written is never replaced";
    }
    press_key(VK_ESCAPE);
    EXPECT_SOON(!form) << "nothing but the proposal is thrown away";
}

}  // namespace

extern "C" {

__declspec(dllexport) ULONG WINAPI MAPILogon(ULONG_PTR, LPSTR profile, LPSTR, FLAGS flags, ULONG, LPLHANDLE session) {
    EXPECT_TRUE(flags == MAPI_LOGON_UI && !profile);
    *session = only_session;
    return mail_program.call("logon");
}

__declspec(dllexport) ULONG WINAPI MAPILogoff(LHANDLE session, ULONG_PTR, FLAGS, ULONG) {
    EXPECT_EQ(session, only_session);
    return mail_program.call("logoff");
}

__declspec(dllexport) ULONG WINAPI
    MAPISendMailW(LHANDLE session, ULONG_PTR owner, lpMapiMessage mail, FLAGS flags, ULONG) {
    const MapiRecipDesc& recipient = mail->lpRecips[0];
    EXPECT_TRUE(session == only_session && mail->nRecipCount == 1 && recipient.ulRecipClass == MAPI_TO &&
                !(flags & MAPI_DIALOG) && IsWindow(reinterpret_cast<HWND>(owner)));
    if (mail_program.while_sending) mail_program.while_sending(reinterpret_cast<HWND>(owner));
    // The structures of the wide function, which only newer headers have, differ in their characters alone.
    mail_program.mail.clear();
    for (const char* part : {recipient.lpszAddress, recipient.lpszName, mail->lpszSubject, mail->lpszNoteText}) {
        mail_program.mail.append(reinterpret_cast<const wchar_t*>(part)) += L"\n";
    }
    if (mail->nFileCount == 1) {
        const MapiFileDesc& file = mail->lpFiles[0];
        EXPECT_TRUE(file.nPosition == 0xFFFFFFFF && !file.lpszFileName);
        const std::filesystem::path path = reinterpret_cast<const wchar_t*>(file.lpszPathName);
        mail_program.mail += path.filename().wstring() + L"\n" + decode(bytes_of(path)) + L"\n";
    }
    return mail_program.call("send");
}

}  // extern "C"
}  // namespace quillomat
