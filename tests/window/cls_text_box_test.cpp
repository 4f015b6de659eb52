// The lines of a text box, and the two shortcuts it gets by them, in a real box.

#include "common/clsTextBox.h"

#include <optional>

#include "forms/form.h"
#include "forms/text_box.h"
#include "support.h"

namespace quillomat {
namespace {

class ClsTextBoxTest : public WindowTest {
  protected:
    ClsTextBoxTest() { page.show(); }

    Form page{application, {.name = L"frmPage", .caption = L"Page", .width = 6000, .height = 6000}};
    TextBox box{page, {120, 120, 4000, 1500}, TextBoxKind::MultiLine};
    clsTextBox lines{box};
};

TEST_F(ClsTextBoxTest, KnowsTheLines) {
    box.set_text(L"first\r\n\r\nthe \u00e9\u4e2d third\r\n");
    EXPECT_EQ(lines.LineCount(), 4);
    const struct {
        int line;
        std::optional<int> start;
        int length;
        const wchar_t* text;
    } cases[] = {{0, 0, 5, L"first"},
                 {1, 7, 0, L""},
                 {2, 9, 12, L"the \u00e9\u4e2d third"},
                 {3, 23, 0, L""},
                 {4, std::nullopt, 0, L""}};
    for (const auto& [line, start, length, text] : cases) {
        EXPECT_EQ(lines.GetCharFromLine(line), start) << line;
        EXPECT_EQ(lines.GetLine(line), text) << line;
        if (!start) continue;
        EXPECT_EQ(lines.LineLen(*start), length) << line;
        EXPECT_EQ(lines.GetLineFromChar(*start), line) << line;
    }

    const std::wstring line = std::wstring(69'999, L'x') + L"y";
    box.set_text(L"a\r\n" + line + L"\r\nb");
    EXPECT_TRUE(lines.GetLine(1) == line) << "longer than the system hands over";
}

TEST_F(ClsTextBoxTest, EmptiesALineAndLetsTheUserTakeItBack) {
    box.set_text(L"one\r\ntwo\r\nthree");
    EXPECT_FALSE(lines.IsDirty() || lines.CanUndo());
    lines.DelLine(1);
    lines.DelLine(3);
    EXPECT_EQ(box.text(), L"one\r\n\r\nthree") << "behind the last line there is nothing to empty";
    EXPECT_TRUE(lines.IsDirty() && lines.CanUndo());
    lines.Undo();
    EXPECT_EQ(box.text(), L"one\r\ntwo\r\nthree");
}

TEST_F(ClsTextBoxTest, ShortcutsSelectAllAndCutTheLineOfTheCaret) {
    ASSERT_SOON(box.has_focus());
    box.set_text(L"one\r\ntw\u00f6\r\nthree");
    box.select(5, 1);
    press_key('Y', {VK_CONTROL});
    EXPECT_SOON(box.text() == L"one\r\n\r\nthree");
    EXPECT_EQ(clipboard_text(), L"tw\u00f6");
    press_key('A', {VK_CONTROL});
    EXPECT_SOON(box.selected_text() == box.text());

    int passed_on = 0;
    box.on_key_down = [&](KeyEvent& event) { passed_on += event.key == 'Y' || event.key == 'A'; };
    press_key('Y', {VK_CONTROL, VK_SHIFT});
    press_key('A', {VK_CONTROL, VK_MENU});
    EXPECT_SOON(passed_on == 2) << "with another key held they are no shortcuts";
}

}  // namespace
}  // namespace quillomat
