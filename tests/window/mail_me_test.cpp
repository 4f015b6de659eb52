// The message to the author.

#include "mail_support.h"
#include "output/frmMailMe.h"

namespace quillomat {
namespace {

class MailMeTest : public MailTest {
  protected:
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
    EXPECT_EQ(calls(), (std::vector<std::string>{"MAPILogon dialog", "MAPISendMailW to one", "MAPILogoff"}));
    const std::pair<const char*, const char*> parts[] = {{"mail/address", "tob@tobferrand.example"},
                                                         {"mail/name", "Tobin Ferrand"},
                                                         {"mail/subject", "Quillomat sucks! (sent from QLM)"},
                                                         {"mail/text", "no\r\n"}};
    for (const auto& [part, expected] : parts) EXPECT_EQ(sent(part), expected);
    EXPECT_FALSE(sent_a_file());
}

TEST_F(MailMeTest, AProposedMessageNeverReplacesAWrittenOne) {
    open();
    for (const wchar_t* const written : {L"", L"mine"}) {
        form->Text1.set_text(written);
        form->propose_message(L"[Type your question here]");
        EXPECT_EQ(form->Text1.text(), *written ? written : L"[Type your question here]");
    }
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
        press_key(VK_ESCAPE);
        pump();
    }
    EXPECT_SOON(!form);
}

}  // namespace
}  // namespace quillomat
