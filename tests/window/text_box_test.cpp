// The lines of a real text box with the two shortcuts it gets by them, and the clipboard as another program meets it.

#include "common/clsTextBox.h"

#include <future>
#include <thread>

#include "common/copy_text.h"
#include "controls/text_box.h"
#include "forms/form.h"
#include "support.h"
#include "text/error.h"
#include "win/clipboard.h"

namespace quillomat {
namespace {

struct ClsTextBoxTest : WindowTest {
    ClsTextBoxTest() { page.show(); }

    Form page{application, {.name = L"frmPage", .caption = L"Page", .width = 6000, .height = 6000}};
    TextBox box{page, {120, 120, 4000, 1500}, TextBoxKind::MultiLine};
    clsTextBox lines{box};
};

TEST_F(ClsTextBoxTest, ShortcutsSelectAllAndCutTheLineOfTheCaret) {
    ASSERT_SOON(box.has_focus());
    for (const auto& line : {std::wstring(L"tw\u00f6"), std::wstring(69'999, L'x') + L"y"}) {
        const std::wstring text = L"one\r\n" + line + L"\r\nthree";
        box.set_text(text);
        box.select(5, 1);
        press_key('Y', {VK_CONTROL});
        EXPECT_SOON(box.text() == L"one\r\n\r\nthree");
        EXPECT_TRUE(clipboard_text() == line) << line.size();
        lines.Undo();
        EXPECT_TRUE(box.text() == text);
    }
    press_key('A', {VK_CONTROL});
    EXPECT_SOON(box.selected_text() == box.text());

    int passed_on = 0;
    box.on_key_down = [&](KeyEvent& event) { passed_on += event.key == 'Y' || event.key == 'A'; };
    press_key('Y', {VK_CONTROL, VK_SHIFT});
    press_key('A', {VK_CONTROL, VK_MENU});
    EXPECT_SOON(passed_on == 2) << "with another key held they are no shortcuts";
}

TEST_F(ClsTextBoxTest, TheClipboardHoldsAllThatWasCopiedAlsoAfterAWindowKeptItOpen) {
    const std::wstring text = std::wstring(L"a\0b\u65E5\r\n", 6) + std::wstring(100'000, L'x') + L"end";
    put_on_clipboard(page.window(), text);
    ASSERT_TRUE(OpenClipboard(nullptr));
    EXPECT_THROW(put_on_clipboard(page.window(), L"after"), Error);
    EXPECT_TRUE(CloseClipboard()) << "it is still open for the window";
    EXPECT_EQ(clipboard_text(), L"a b" + text.substr(3)) << "nothing behind a NUL is lost";
}

TEST_F(ClsTextBoxTest, WindowsRepaintWhileAnotherProgramKeepsTheClipboardOpen) {
    std::promise<void> opened;
    std::jthread other_program([&] {
        const HWND window = CreateWindowW(L"STATIC", L"", 0, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
        EXPECT_TRUE(OpenClipboard(window));
        opened.set_value();
        EXPECT_TRUE(is_repainted(page.window()));
        CloseClipboard();
        DestroyWindow(window);
    });
    opened.get_future().wait();
    CopyText(page, L"copied");
    other_program.join();
    EXPECT_EQ(clipboard_text(), L"copied");
}

}  // namespace
}  // namespace quillomat
