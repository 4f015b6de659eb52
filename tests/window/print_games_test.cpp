// The window that prints the list of games, on a printer whose pages are read back.

#include <memory>

#include "metafile_printer.h"
#include "output/frmPrintGames.h"
#include "support.h"
#include "temporary.h"

namespace quillomat {
namespace {

constexpr wchar_t footer[] = L"Made with Quillomat - www.tobferrand.example";

class PrintGamesTest : public WindowTest {
  protected:
    PrintGamesTest() {
        session.settings = registry.settings();
        session.open_printer = [this] { return std::make_unique<MetafilePrinter>(printed); };
    }
    void open() {
        form = std::make_unique<frmPrintGames>(
            application, session,
            ListedGames{.count = [this] { return static_cast<int>(names.size()); },
                        .name = [this](int index) { return names.at(static_cast<std::size_t>(index)); }});
        form->on_closed = [this] { form.reset(); };
        form->show();
        pump();
    }
    void list_games(int count) {
        for (int number = 1; number <= count; ++number) names.push_back(L"Game " + std::to_wstring(number));
    }
    bool closes() {
        return pump_until([this] { return !form; });
    }

    TemporarySettings registry;
    Session session;
    std::vector<std::wstring> names;
    Printed printed;
    std::unique_ptr<frmPrintGames> form;
};

TEST_F(PrintGamesTest, AllGamesGoOverAsManyPagesAsTheyNeed) {
    list_games(2501);
    open();
    form->Text1.set_text(L"");
    form->Text2.set_text(L"99999");
    form->Command1.click();
    ASSERT_TRUE(closes());

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

TEST_F(PrintGamesTest, ARangeIsCheckedAndPrinted) {
    list_games(20);
    open();
    EXPECT_EQ(form->Text1.text(), L"1");
    EXPECT_EQ(form->Text2.text(), L"21") << "one too many, so that the user chooses";
    EXPECT_FALSE(form->Text1.enabled() || form->Text2.enabled());
    form->Option2.set_value(true);
    EXPECT_TRUE(form->Text1.enabled() && form->Text2.enabled());
    for (const auto& [first, last] : {std::pair{L"1", L"21"}, {L"5", L"3"}}) {
        form->Text1.set_text(first);
        form->Text2.set_text(last);
        expect_message(L"Error!", L"Please give a proper number ( 1 -20).");
        form->Command1.click();
    }
    EXPECT_EQ(form->Text3.text(), L"-1") << "five to three";
    ASSERT_TRUE(form && printed.pages.empty());
    form->Text1.set_text(L"19");
    form->Text2.set_text(L"20");
    form->Command1.click();
    ASSERT_TRUE(closes());
    EXPECT_EQ(printed.lines(), (std::vector<std::wstring>{L"List of Games", L"", L"Game 19", L"Game 20", L"", footer}));

    open();
    EXPECT_EQ(form->Text1.text(), L"19") << "the range is remembered";
    EXPECT_EQ(form->Text2.text(), L"20");
    form->Text1.set_text(L"");
    form->Text2.set_text(L"70000");
    form->Command2.click();
    ASSERT_TRUE(closes());
    open();
    EXPECT_EQ(form->Text1.text(), L"");
    EXPECT_EQ(form->Text2.text(), L"21") << "what is no number of a game gives way to the default";
}

TEST_F(PrintGamesTest, TheKeyboardDoesItAll) {
    list_games(20);
    open();
    press_key(VK_DOWN);
    ASSERT_TRUE(pump_until([this] { return form->Option2.value(); }));
    press_key(VK_TAB);
    for (const WORD key : std::initializer_list<WORD>{'1', 'X', '8', VK_OEM_MINUS, VK_BACK, '2'}) press_key(key);
    EXPECT_TRUE(pump_until([this] { return form->Text1.text() == L"12"; })) << "digits and Backspace only";
    press_key(VK_RETURN);
    for (const WORD key : std::initializer_list<WORD>{'1', '3'}) press_key(key);
    EXPECT_TRUE(pump_until([this] { return form->Text2.text() == L"13" && form->Text3.text() == L"2"; }));
    press_key(VK_RETURN);
    EXPECT_TRUE(pump_until([this] { return form->Command1.has_focus(); }));
    press_key(VK_RETURN);
    ASSERT_TRUE(closes());
    EXPECT_EQ(printed.lines().size(), 6u);
    open();
    press_key(VK_ESCAPE);
    ASSERT_TRUE(closes());
    EXPECT_EQ(printed.documents_ended, 1);
}

TEST_F(PrintGamesTest, TroubleWithThePrinterIsOneMessageOrNoneAndTheWindowStays) {
    list_games(200);
    open();
    for (const ErrorCode failure : {ErrorCode::PrinterError, ErrorCode::Cancelled}) {
        printed = {};
        printed.fails_at_page = 2;
        printed.failure = failure;
        if (failure != ErrorCode::Cancelled) expect_message(L"Quillomat", L"Printer error");
        SendMessageW(form->Command1.window(), BM_CLICK, 0, 0);
        ASSERT_TRUE(form);
        EXPECT_FALSE(form->closed());
        EXPECT_EQ(printed.documents_ended, 0);
        EXPECT_EQ(printed.documents_aborted, 1) << "half a list is not printed";
    }
}

TEST_F(PrintGamesTest, HelpStandsBelowAButtonThatComesToLieUnderTheRestingPointer) {
    open();
    ASSERT_TRUE(point_until(form->window(), 4, 4, [this] { return !form->Text4.visible(); }));
    form->Text4.move({0, 0, 1500, 270});
    // The window moves under the pointer, which is no movement of the mouse.
    form->Command1.on_mouse_move = nullptr;
    POINT pointer{};
    GetCursorPos(&pointer);
    RECT button{};
    GetWindowRect(form->Command1.window(), &button);
    form->move_to(form->left() + to_twips(pointer.x - button.left - 5, form->dpi()),
                  form->top() + to_twips(pointer.y - button.top - 5, form->dpi()));
    EXPECT_TRUE(pump_until([this] { return form->Text4.visible(); }));
    EXPECT_GE(form->Text4.top(), form->Command1.top() + form->Command1.height());
}

}  // namespace
}  // namespace quillomat
