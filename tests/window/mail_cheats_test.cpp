// Mailing cheats to a friend, through the system to a real mail program.

#include <memory>
#include <sstream>

#include "mail_support.h"
#include "output/frmMailCheats.h"
#include "win/code_page.h"

namespace quillomat {
namespace {

class MailCheatsTest : public MailTest {
  protected:
    MailCheatsTest() { fill_database(60); }

    /// Games 0 to count - 1, one of them with letters beyond ASCII. What is expected of them is written in bytes.
    void fill_database(int count) {
        std::string bytes;
        for (int number = 0; number < count; ++number) {
            bytes += cheats(number) + "\r\n$$$$$$$$$$$$$$$$$$$$ " + name(number) + "\r\n";
        }
        games.names.clear();
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
        form->Text3.set_text(L"Hi \u03A9mega!\r\n\r\n\U0001F600 Bye");
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
        for (int number = 0; number < 50; ++number) form->List1.set_picked(number, true);
        ASSERT_TRUE(form->Command1.enabled());
        expect_message(L"Quillomat", L"The message was sent!");
        press(form->Command1);
        ASSERT_TRUE(is_closed());

        const std::string send = in_file ? "MAPISendMailW to one file" : "MAPISendMailW to one";
        EXPECT_EQ(calls(), (std::vector<std::string>{"MAPILogon dialog", send, "MAPILogoff"}));
        EXPECT_EQ(sent("mail/address"), "friend@home.example");
        EXPECT_EQ(sent("mail/name"), "\xCE\xA9mega");
        EXPECT_EQ(sent("mail/subject"), "Cheat codes sent from M\xC3\xBCller \xE6\x97\xA5\xE6\x9C\xAC to \xCE\xA9mega");

        std::ostringstream blocks;
        for (int number = 0; number < 50; ++number) {
            const std::string stars(20, '*');
            if (number > 0) blocks << "\r\n\r\n";
            blocks << stars << "\r\n" << name(number) << "\r\n" << stars << "\r\n\r\n" << cheats(number);
        }
        const std::string line = "\r\n\r\n" + std::string(35, '-') + "\r\n\r\n";
        const std::string beginning = "Hi \xCE\xA9mega!\r\n\r\n\xF0\x9F\x98\x80 Bye" + line;
        const std::string footer = "Cheat codes taken from Quillomat.\r\nwww.tobferrand.example";
        if (in_file) {
            EXPECT_EQ(sent("mail/text"), beginning + footer);
            EXPECT_EQ(sent("files/Cheats.txt"), blocks.str() + "\r\n") << "the bytes of the database";
        } else {
            std::string wide_blocks = blocks.str();
            for (const auto& [narrow, utf8] :
                 {std::pair{"\xC9", "\xC3\x89"}, {"\xE9", "\xC3\xA9"}, {"\xBD", "\xC2\xBD"}}) {
                std::size_t at = 0;
                while ((at = wide_blocks.find(narrow, at)) != std::string::npos) {
                    wide_blocks.replace(at, 1, utf8);
                    at += 2;
                }
            }
            EXPECT_EQ(sent("mail/text"), beginning + wide_blocks + line + footer);
            EXPECT_FALSE(sent_a_file());
        }
        EXPECT_FALSE(left_a_file());
    }
}

TEST_F(MailCheatsTest, ARefusalAtAnyCallLeavesEverythingAsItWasTyped) {
    const struct {
        const wchar_t* call;
        const wchar_t* told;
        bool signed_on;
    } cases[] = {
        {L"MAPILogon=1", L"The message was not sent: you cancelled it.", false},
        {L"MAPILogon=3",
         L"The message was not sent: signing on to your mail program failed. Start the mail program, check that an "
         L"account is set up in it, and try again.",
         false},
        {L"MAPISendMailW=1", L"The message was not sent: you cancelled it.", true},
        {L"MAPISendMailW=14",
         L"The message was not sent: your mail program does not accept the e-mail address. Check how it is written.",
         true},
        {L"MAPISendMailW=12",
         L"The message was not sent: your mail program could not take over the attached file. Include the text in the "
         L"message instead.",
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
        EXPECT_EQ(form->Text1.text(), L"M\u00FCller \u65E5\u672C");
        EXPECT_EQ(form->Text2.text(), L"\u03A9mega");
        EXPECT_EQ(form->Text4.text(), L"friend@home.example");
        EXPECT_EQ(form->Text3.text(), L"Hi \u03A9mega!\r\n\r\n\U0001F600 Bye");
        EXPECT_EQ(form->List1.picked_indexes(), (std::vector{3, 7, 11}));
        EXPECT_TRUE(form->Option2.value());
        EXPECT_FALSE(form->Label6.visible()) << "nothing waits any more";
        EXPECT_TRUE(IsWindowEnabled(form->window()));
        EXPECT_TRUE(form->Command1.has_focus());
    }
    refuse(L"");
    expect_message(L"Quillomat", L"The message was sent!");
    press(form->Command1);
    EXPECT_TRUE(is_closed()) << "the next attempt is as good as the first";
}

TEST_F(MailCheatsTest, AMessageThatWasSentCountsAsSentHoweverTheSessionEnds) {
    open();
    fill_in();
    form->Option2.set_value(true);
    form->List1.set_picked(0, true);
    refuse(L"MAPILogoff=2");
    expect_message(L"Quillomat", L"The message was sent!");
    press(form->Command1);
    EXPECT_TRUE(is_closed());
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
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, L"Software\\Clients");
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
    form->List1.set_picked(59, true);
    form->List1.select_index(7);

    const struct {
        WORD key;
        int lands_on;
    } moves[] = {{VK_DOWN, 59}, {VK_DOWN, 5}, {VK_DOWN, 7}, {VK_UP, 5}, {VK_UP, 59}, {VK_UP, 7}};
    for (const auto& [key, lands_on] : moves) {
        press_key(key, {VK_CONTROL});
        EXPECT_TRUE(pump_until([&] { return form->List1.selected_index() == lands_on; })) << lands_on;
        pump();
        EXPECT_EQ(form->List1.selected_index(), lands_on) << "exactly there, and no step further";
    }
    EXPECT_EQ(form->List1.picked_indexes(), (std::vector{5, 7, 59})) << "moving picks nothing";
    press_key(VK_DOWN);
    EXPECT_TRUE(pump_until([this] { return form->List1.selected_index() == 8; })) << "other keys are the list's own";
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

TEST_F(MailCheatsTest, ADoubleClickSelectsAWholePlaceholder) {
    open();
    EXPECT_TRUE(form->Text3.text().starts_with(L"Hi [FRIEND'S NAME] !"));
    const struct { const wchar_t* placeholder; } cases[] = {{L"[FRIEND'S NAME]"}, {L"[YOUR NAME]"}};
    for (const auto& [placeholder] : cases) {
        const std::size_t at = form->Text3.text().find(placeholder) + 3;
        const auto place = SendMessageW(form->Text3.window(), EM_POSFROMCHAR, at, 0);
        move_pointer(form->Text3.window(), LOWORD(place), HIWORD(place) + 4);
        pump();
        click();
        click();
        EXPECT_TRUE(pump_until([&] { return form->Text3.selected_text() == placeholder; }));
    }
    EXPECT_TRUE(form->Text3.tool_tip().starts_with(L"Total - ")) << "the box still tells its lines";
}

TEST_F(MailCheatsTest, EveryFieldIsRemembered) {
    open();
    EXPECT_TRUE(form->Option1.value());
    fill_in();
    form->Option2.set_value(true);
    form->close();
    ASSERT_TRUE(is_closed());
    open();
    EXPECT_TRUE(form->Option2.value());
    EXPECT_FALSE(form->Option1.value());
    EXPECT_EQ(form->Text1.text(), L"M\u00FCller \u65E5\u672C");
    EXPECT_EQ(form->Text2.text(), L"\u03A9mega");
    EXPECT_EQ(form->Text3.text(), L"Hi \u03A9mega!\r\n\r\n\U0001F600 Bye");
    EXPECT_EQ(form->Text4.text(), L"friend@home.example");
    EXPECT_TRUE(form->List1.picked_indexes().empty());
}

TEST_F(MailCheatsTest, AllGamesTheCatalogueHoldsCanBePicked) {
    fill_database(Catalogue::slot_count);
    open();
    SendMessageW(form->List1.window(), LB_SETSEL, TRUE, -1);
    form->List1.set_picked(0, true);
    EXPECT_EQ(form->List2.count(), Catalogue::slot_count);
    EXPECT_TRUE(form->List1.tool_tip().starts_with(L"You have selected 2501 games. These are: Game 0, Game 1, "));
    EXPECT_TRUE(form->List1.tool_tip().ends_with(L", Game 2500"));
    // The tooltip is really shown, however long its text.
    const auto tip_is_shown = [] {
        for (HWND tip = nullptr; (tip = FindWindowExW(nullptr, tip, TOOLTIPS_CLASSW, nullptr));) {
            if (IsWindowVisible(tip)) return true;
        }
        return false;
    };
    EXPECT_TRUE(point_until(form->List1.window(), 20, 20, tip_is_shown));
}

}  // namespace
}  // namespace quillomat
