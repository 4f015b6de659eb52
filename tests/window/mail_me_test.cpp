// The message to the author.

#include <memory>

#include "mail_support.h"
#include "output/frmMailMe.h"

namespace quillomat {
namespace {

class MailMeTest : public MailTest {
  protected:
    void open() {
        expect_requirements();
        form = std::make_unique<frmMailMe>(application, session);
        form->on_closed = [this] { form.reset(); };
        form->show();
        pump();
    }
    bool is_closed() {
        return pump_until([this] { return !form; });
    }

    std::unique_ptr<frmMailMe> form;
};

TEST_F(MailMeTest, APickedSubjectAndATypedMessageReachTheAuthor) {
    open();
    EXPECT_TRUE(form->Combo1.has_focus());
    for (int i = 0; i < 5; ++i) press_key(VK_DOWN);
    ASSERT_TRUE(pump_until([this] { return form->Combo1.text() == L"Quillomat sucks!"; }));
    EXPECT_FALSE(form->Command1.enabled()) << "there is no message yet";
    press_key(VK_RETURN);
    ASSERT_TRUE(pump_until([this] { return form->Text1.has_focus(); }));
    press_key('N');
    press_key('O');
    press_key(VK_RETURN);
    ASSERT_TRUE(pump_until([this] { return form->Text1.text() == L"no\r\n"; }));
    EXPECT_EQ(form->Text1.tool_tip(), L"Total - 2 lines.");
    EXPECT_TRUE(form->Command1.enabled());
    press_key(VK_TAB);
    press_key(VK_SPACE);
    expect_message(L"Quillomat", L"The message was sent!");
    ASSERT_TRUE(is_closed());
    EXPECT_EQ(calls(), (std::vector<std::string>{"MAPILogon dialog", "MAPISendMailW to one", "MAPILogoff"}));
    EXPECT_EQ(sent("mail/address"), "tob@tobferrand.example");
    EXPECT_EQ(sent("mail/name"), "Tobin Ferrand");
    EXPECT_EQ(sent("mail/subject"), "Quillomat sucks! (sent from QLM)");
    EXPECT_EQ(sent("mail/text"), "no\r\n");
    EXPECT_FALSE(sent_a_file());
}

TEST_F(MailMeTest, ARefusalKeepsWhatWasTyped) {
    open();
    form->Combo1.set_text(L"\u65E5\u672C");
    form->Text1.set_text(L"a\r\nb");
    refuse(L"MAPISendMailW=1");
    expect_message(L"Quillomat", L"The message was not sent: you cancelled it.");
    press(form->Command1);
    pump();
    ASSERT_TRUE(form);
    EXPECT_EQ(form->Combo1.text(), L"\u65E5\u672C");
    EXPECT_EQ(form->Text1.text(), L"a\r\nb");
    EXPECT_EQ(calls().back(), "MAPILogoff");
}

TEST_F(MailMeTest, TheWidthIsRememberedAndTheHeightIsNot) {
    open();
    form->set_height(4500);
    form->set_width(6600);
    form->close();
    ASSERT_TRUE(is_closed());
    open();
    EXPECT_NEAR(form->height(), 6045, 15) << "always as high as it was designed";
    EXPECT_NEAR(form->width(), 6600, 15);
    form->set_window_state(WindowState::Maximised);
    form->close();
    ASSERT_TRUE(is_closed());
    EXPECT_EQ(session.settings.read(settings::frmMailMeWindowState), 2);
    EXPECT_EQ(session.settings.read(settings::frmMailMeWidth), 6600) << "a maximised window keeps the size it had";
}

TEST_F(MailMeTest, AProposedMessageNeverReplacesAWrittenOne) {
    open();
    form->propose_message(L"[Type your question here]");
    EXPECT_EQ(form->Text1.text(), L"[Type your question here]");
    form->Text1.set_text(L"mine");
    form->propose_message(L"[Type your question here]");
    EXPECT_EQ(form->Text1.text(), L"mine");
}

TEST_F(MailMeTest, EscapeClosesTheListThenTheWindowUnlessSomethingIsWritten) {
    open();
    const auto is_dropped = [this] { return SendMessageW(form->Combo1.window(), CB_GETDROPPEDSTATE, 0, 0) != 0; };
    press_key(VK_DOWN, {VK_MENU});
    ASSERT_TRUE(pump_until(is_dropped));
    pump();
    GUITHREADINFO thread{};
    thread.cbSize = sizeof thread;
    GetGUIThreadInfo(GetCurrentThreadId(), &thread);
    EXPECT_FALSE(thread.flags & GUI_INMENUMODE) << "letting go of Alt is no request for the menu";
    press_key(VK_ESCAPE);
    ASSERT_TRUE(pump_until([&] { return !is_dropped(); }));
    ASSERT_FALSE(form->closed());
    form->Text1.set_text(L"written");
    press_key(VK_ESCAPE);
    pump();
    ASSERT_FALSE(form->closed());
    form->Text1.set_text(L"");
    press_key(VK_ESCAPE);
    EXPECT_TRUE(is_closed());
}

}  // namespace
}  // namespace quillomat
