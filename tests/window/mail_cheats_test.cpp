// Mailing cheats to a friend, through the system to a real mail program.

#include <memory>

#include "mail_support.h"
#include "output/frmMailCheats.h"
#include "text/mail.h"
#include "win/code_page.h"

namespace quillomat {
namespace {

constexpr wchar_t message[] = L"Hi \u03A9mega!\r\n\r\n\U0001F600 Bye";

std::string utf8(const std::wstring& text) {
    const std::u8string bytes = std::filesystem::path(text).u8string();
    return {bytes.begin(), bytes.end()};
}

class MailCheatsTest : public MailTest {
  protected:
    /// Sixty games, one of them with letters beyond ASCII.
    MailCheatsTest() {
        std::string bytes;
        for (int number = 0; number < 60; ++number) {
            bytes += cheats(number) + "\r\n$$$$$$$$$$$$$$$$$$$$ " + name(number) + "\r\n";
        }
        session.catalogue.load(decode(bytes), [this](std::wstring_view listed) { games.names.emplace_back(listed); });
    }
    static std::string name(int number) { return (number == 7 ? "\xC9t\xE9 " : "Game ") + std::to_string(number); }
    static std::string cheats(int number) {
        return "Press " + std::to_string(number) + " times\r\n\r\n\tand \xBD & \"quotes\"";
    }

    void open() {
        expect_requirements();
        form = std::make_unique<frmMailCheats>(application, session, games);
        form->on_closed = [this] { form.reset(); };
        form->show();
        pump();
    }
    void fill_in() {
        form->Text1.set_text(L"M\u00FCller \u65E5\u672C");
        form->Text2.set_text(L"\u03A9mega");
        form->Text4.set_text(L"friend@home.example");
        form->Text3.set_text(message);
    }
    void expect_filled_in() const {
        EXPECT_EQ(form->Text1.text(), L"M\u00FCller \u65E5\u672C");
        EXPECT_EQ(form->Text2.text(), L"\u03A9mega");
        EXPECT_EQ(form->Text4.text(), L"friend@home.example");
        EXPECT_EQ(form->Text3.text(), message);
    }
    bool is_closed() {
        return pump_until([this] { return !form; });
    }
    bool left_a_file() const { return std::filesystem::exists(folder.path() / "Cheats.txt"); }

    GamesToPick games;
    std::unique_ptr<frmMailCheats> form;
};

TEST_F(MailCheatsTest, FiftyGamesArriveToTheByteInTheMailAndInAFile) {
    for (const bool in_file : {false, true}) {
        open();
        fill_in();
        (in_file ? form->Option2 : form->Option1).set_value(true);
        std::vector<MailedGame> picked;
        for (int number = 0; number < 50; ++number) {
            form->List1.set_picked(number, true);
            picked.push_back({session.catalogue.name(number), session.catalogue.cheats(number)});
        }
        expect_message(L"Quillomat", L"The message was sent!");
        press(form->Command1);
        ASSERT_TRUE(is_closed());

        const std::string send = in_file ? "MAPISendMailW to one file" : "MAPISendMailW to one";
        EXPECT_EQ(calls(), (std::vector<std::string>{"MAPILogon dialog", send, "MAPILogoff"}));
        EXPECT_EQ(sent("mail/address"), "friend@home.example");
        EXPECT_EQ(sent("mail/name"), "\xCE\xA9mega");
        EXPECT_EQ(sent("mail/subject"), "Cheat codes sent from M\xC3\xBCller \xE6\x97\xA5\xE6\x9C\xAC to \xCE\xA9mega");
        EXPECT_EQ(sent_a_file(), in_file);
        EXPECT_FALSE(left_a_file());
        const std::wstring text = mailed_cheats(picked);
        if (in_file) {
            EXPECT_EQ(sent("mail/text"), utf8(cheats_mail_body(message)));
            EXPECT_EQ(sent("files/Cheats.txt"), encode(text) + "\r\n") << "the bytes of the database";
        } else {
            EXPECT_EQ(sent("mail/text"), utf8(cheats_mail_body(message, text)));
        }
    }
}

TEST_F(MailCheatsTest, ARefusalAtAnyCallLeavesEverythingAsItWasTyped) {
    const struct {
        const wchar_t* call;
        const wchar_t* told;
        bool signed_on;
    } cases[] = {
        {L"MAPILogon=1", L"The message was not sent: you cancelled it.", false},
        {L"MAPISendMailW=1", L"The message was not sent: you cancelled it.", true},
        {L"MAPISendMailW=14",
         L"The message was not sent: your mail program does not accept the e-mail address. Check how it is written.",
         true},
    };
    open();
    fill_in();
    form->Option2.set_value(true);
    for (const int number : {3, 7, 11}) form->List1.set_picked(number, true);
    form->Command1.set_focus();
    for (const auto& [call, told, signed_on] : cases) {
        refuse(call);
        expect_message(L"Quillomat", told);
        press(form->Command1);
        pump();
        ASSERT_TRUE(form) << "the window stays open";
        EXPECT_EQ(calls().back(), signed_on ? "MAPILogoff" : "MAPILogon dialog");
        EXPECT_FALSE(left_a_file());
        expect_filled_in();
        EXPECT_EQ(form->List1.picked_indexes(), (std::vector{3, 7, 11}));
        EXPECT_FALSE(form->Label6.visible()) << "nothing waits any more";
        EXPECT_TRUE(IsWindowEnabled(form->window()));
        EXPECT_TRUE(form->Command1.has_focus());
    }
    refuse(L"MAPILogoff=2");
    expect_message(L"Quillomat", L"The message was sent!");
    press(form->Command1);
    EXPECT_TRUE(is_closed()) << "what was sent counts as sent, however the session ends";
    EXPECT_FALSE(left_a_file());
}

TEST_F(MailCheatsTest, AFileThatCannotBeWrittenIsNamedAndTheSessionEnds) {
    const std::filesystem::path path = folder.path() / "Cheats.txt";
    std::ofstream(path) << "mine";
    SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY);
    open();
    fill_in();
    form->List1.set_picked(0, true);
    form->Option2.set_value(true);
    expect_message(L"Quillomat",
                   L"The message was not sent, because this file, which goes with it, cannot be written:\n" +
                       path.wstring() + L"\n\nPermission denied\n\nYou can include the cheats in the e-mail instead.");
    press(form->Command1);
    pump();
    ASSERT_TRUE(form);
    EXPECT_EQ(calls(), (std::vector<std::string>{"MAPILogon dialog", "MAPILogoff"}));
    SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
    EXPECT_EQ(content(path), "mine");
}

TEST_F(MailCheatsTest, WithoutAMailProgramTheUserIsToldWhatToDo) {
    machine.remove(L"Software\\Clients");
    open();
    fill_in();
    form->List1.set_picked(0, true);
    expect_message(
        L"Quillomat",
        L"The message was not sent: no mail program is set up on this computer. Install one, such as "
        L"Thunderbird or Outlook, make it the default mail program in the settings of Windows, and try again. "
        L"A mail account that you use in a web browser or the Mail app of Windows cannot be used for this.");
    press(form->Command1);
    pump();
    ASSERT_TRUE(form);
    EXPECT_TRUE(calls().empty());
}

TEST_F(MailCheatsTest, AnOlderMailProgramGetsEveryCharacterOrNothing) {
    refuse(L"MAPISendMailW=27");
    open();
    fill_in();
    form->List1.set_picked(7, true);
    expect_message(L"Quillomat",
                   L"The message was not sent: your mail program cannot send some of the characters in it.");
    press(form->Command1);
    pump();
    ASSERT_TRUE(form);
    EXPECT_EQ(calls().back(), "MAPILogoff");

    form->Text1.set_text(L"M\u00FCller");
    form->Text2.set_text(L"Zo\u00EB");
    form->Text3.set_text(L"Salut");
    form->Option2.set_value(true);
    expect_message(L"Quillomat", L"The message was sent!");
    press(form->Command1);
    ASSERT_TRUE(is_closed());
    EXPECT_EQ(calls(), (std::vector<std::string>{"MAPILogon dialog", "MAPISendMailW to one file",
                                                 "MAPISendMail to one file", "MAPILogoff"}));
    EXPECT_EQ(sent("mail/subject"), "Cheat codes sent from M\xFCller to Zo\xEB");
    EXPECT_TRUE(sent("files/Cheats.txt").find("\xC9t\xE9 7") != std::string::npos);
}

TEST_F(MailCheatsTest, ANameFindsTheFirstGameThatHasIt) {
    session.catalogue.store(20, L"Game 3", L"a second one");
    session.catalogue.store(21, L"Renamed", L"under another name");
    open();
    fill_in();
    for (const int number : {3, 21}) form->List1.set_picked(number, true);
    form->Option2.set_value(true);
    expect_message(L"Quillomat", L"The message was sent!");
    press(form->Command1);
    ASSERT_TRUE(is_closed());
    EXPECT_EQ(sent("files/Cheats.txt"),
              "********************\r\nGame 3\r\n********************\r\n\r\n" + cheats(3) + "\r\n");
}

TEST_F(MailCheatsTest, PicksAreCountedAndNamedAndTheCursorWalksThroughThem) {
    games.selected = 5;
    open();
    EXPECT_TRUE(form->List1.has_focus());
    EXPECT_EQ(form->List1.picked_indexes(), std::vector{5}) << "the viewer's game";
    EXPECT_EQ(form->List1.selected_index(), 5);
    press_key(VK_DOWN);
    press_key(VK_DOWN);
    press_key(VK_SPACE);
    ASSERT_TRUE(pump_until([this] { return form->List2.count() == 2; }));
    EXPECT_EQ(form->List1.tool_tip(), L"You have selected 2 games. These are: Game 5, \u00C9t\u00E9 7");
    EXPECT_EQ(form->List2.item(1), L"\u00C9t\u00E9 7");
    for (const int lands_on : {5, 7, 5}) {
        press_key(VK_UP, {VK_CONTROL});
        EXPECT_TRUE(pump_until([&] { return form->List1.selected_index() == lands_on; })) << lands_on;
        pump();
        EXPECT_EQ(form->List1.selected_index(), lands_on) << "exactly there, and no step further";
    }
    EXPECT_EQ(form->List1.picked_indexes(), (std::vector{5, 7})) << "moving picks nothing";
    press_key(VK_DOWN);
    EXPECT_TRUE(pump_until([this] { return form->List1.selected_index() == 6; })) << "other keys are the list's own";
}

TEST_F(MailCheatsTest, SendingNeedsAPickAndEveryText) {
    open();
    fill_in();
    EXPECT_FALSE(form->Command1.enabled()) << "nothing is picked";
    form->List1.set_picked(0, true);
    EXPECT_TRUE(form->Command1.enabled());
    for (TextBox* box : {&form->Text1, &form->Text2, &form->Text3, &form->Text4}) {
        const std::wstring text = box->text();
        box->set_text(L"");
        EXPECT_FALSE(form->Command1.enabled());
        box->set_text(text);
        EXPECT_TRUE(form->Command1.enabled());
    }
    form->List1.set_picked(0, false);
    EXPECT_FALSE(form->Command1.enabled());
}

TEST_F(MailCheatsTest, TheCaptionNamesTheFriendAndEnterGoesFromTextToText) {
    open();
    EXPECT_EQ(form->caption(), L"Mail Cheat Codes to a friend.");
    form->Text2.set_text(L"Zo\u00EB");
    EXPECT_EQ(form->caption(), L"Mail Cheat Codes to Zo\u00EB");
    form->Text1.set_focus();
    for (TextBox* next : {&form->Text2, &form->Text4, &form->Text3}) {
        press_key(VK_RETURN);
        EXPECT_TRUE(pump_until([next] { return next->has_focus(); }));
    }
    press_key(VK_ESCAPE);
    EXPECT_TRUE(is_closed()) << "Escape cancels, also from the message";
}

TEST_F(MailCheatsTest, EveryFieldIsRemembered) {
    open();
    fill_in();
    form->Option2.set_value(true);
    form->close();
    ASSERT_TRUE(is_closed());
    open();
    expect_filled_in();
    EXPECT_TRUE(form->Option2.value());
    EXPECT_FALSE(form->Option1.value());
}

}  // namespace
}  // namespace quillomat
