// The window that prints the list of games, on a printer whose pages are read back.

#include "metafile_printer.h"
#include "output/frmPrintGames.h"
#include "session_support.h"

namespace quillomat {
namespace {

using Lines = std::vector<std::wstring>;

struct PrintGamesTest : SessionTest {
    void open(int games) {
        names.clear();
        for (int number = 1; number <= games; ++number) names.push_back(L"Game " + std::to_wstring(number));
        session.open_printer = [this] { return std::make_unique<MetafilePrinter>(printed); };
        open_in(form, session,
                ListedGames{.count = [this] { return static_cast<int>(names.size()); },
                            .name = [this](int index) { return names.at(static_cast<std::size_t>(index)); }});
    }

    Lines names;
    Printed printed;
    std::unique_ptr<frmPrintGames> form;
};

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
    ASSERT_EQ(printed.pages.size(), 1u);
    EXPECT_EQ(printed.pages[0], (Lines{L"List of Games", L"", L"Game 12", L"Game 13", L"",
                                       L"Made with Quillomat - www.tobferrand.example"}));

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
