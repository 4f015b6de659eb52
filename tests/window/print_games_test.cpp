// The window that prints the list of games, on a printer whose pages are read back.

#include "metafile_printer.h"
#include "output/frmPrintGames.h"
#include "session_support.h"

namespace quillomat {
namespace {

constexpr wchar_t footer[] = L"Made with Quillomat - www.tobferrand.example";

class PrintGamesTest : public SessionTest {
  protected:
    void open(int games) {
        names.clear();
        for (int number = 1; number <= games; ++number) names.push_back(L"Game " + std::to_wstring(number));
        session.open_printer = [this] { return std::make_unique<MetafilePrinter>(printed); };
        open_in(form, session,
                ListedGames{.count = [this] { return static_cast<int>(names.size()); },
                            .name = [this](int index) { return names.at(static_cast<std::size_t>(index)); }});
    }

    std::vector<std::wstring> names;
    Printed printed;
    std::unique_ptr<frmPrintGames> form;
};

TEST_F(PrintGamesTest, AllGamesGoOverAsManyPagesAsTheyNeed) {
    open(2501);
    form->Text2.set_text(L"99999");
    form->Command1.click();
    ASSERT_SOON(!form);
    std::vector<std::wstring> expected{L"List of Games", L""};
    expected.insert(expected.end(), names.begin(), names.end());
    expected.insert(expected.end(), {L"", L"", footer});
    EXPECT_EQ(printed.lines(), expected);
    EXPECT_EQ(printed.documents_ended, 1);

    EXPECT_GT(printed.pages.size(), 10u);
    for (const auto& page : printed.pages) {
        const int line_height = page.texts.size() > 1 ? page.texts[1].top - page.texts[0].top : 0;
        EXPECT_LE(page.texts.back().top + line_height, GetSystemMetrics(SM_CYSCREEN));
    }
    EXPECT_EQ(printed.pages[0].rules.size(), 2u);
    EXPECT_TRUE(printed.pages[1].rules.empty());
}

TEST_F(PrintGamesTest, ARangeIsTypedCheckedPrintedAndRemembered) {
    open(20);
    EXPECT_EQ(form->Text2.text(), L"21") << "one too many, so that the user chooses";
    press_key(VK_DOWN);
    ASSERT_SOON(form->Option2.value());
    press_key(VK_TAB);
    for (const WORD key : std::initializer_list<WORD>{'1', 'X', '8', VK_OEM_MINUS, VK_BACK, '2'}) press_key(key);
    EXPECT_SOON(form->Text1.text() == L"12") << "digits and Backspace only";
    for (const wchar_t* const last : {L"21", L"3"}) {
        form->Text2.set_text(last);
        expect_message(L"Error!", L"Please give a proper number ( 1 -20).");
        form->Command1.click();
    }
    ASSERT_TRUE(form && printed.pages.empty());
    form->Text1.set_focus();
    press_key(VK_RETURN);
    for (const WORD key : std::initializer_list<WORD>{'1', '3'}) press_key(key);
    EXPECT_SOON(form->Text2.text() == L"13" && form->Text3.text() == L"2");
    press_key(VK_RETURN);
    EXPECT_SOON(form->Command1.has_focus());
    press_key(VK_RETURN);
    ASSERT_SOON(!form);
    EXPECT_EQ(printed.lines(), (std::vector<std::wstring>{L"List of Games", L"", L"Game 12", L"Game 13", L"", footer}));

    open(20);
    EXPECT_EQ(form->Text1.text() + form->Text2.text(), L"1213");
    form->Text2.set_text(L"70000");
    press_key(VK_ESCAPE);
    ASSERT_SOON(!form);
    open(20);
    EXPECT_EQ(form->Text2.text(), L"21") << "what is no number of a game gives way to the default";
}

TEST_F(PrintGamesTest, TroubleWithThePrinterIsOneMessageOrNoneAndTheWindowStays) {
    open(200);
    for (const ErrorCode failure : {ErrorCode::PrinterError, ErrorCode::Cancelled}) {
        printed = {};
        printed.fails_at_page = 2;
        printed.failure = failure;
        if (failure != ErrorCode::Cancelled) expect_message(L"Quillomat", L"Printer error");
        press(form->Command1);
        ASSERT_TRUE(form && !form->closed());
        EXPECT_EQ(printed.documents_ended, 0);
        EXPECT_EQ(printed.documents_aborted, 1) << "half a list is not printed";
    }
}

}  // namespace
}  // namespace quillomat
