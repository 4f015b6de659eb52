// The find dialog over a text box, by mouse and by keyboard.

#include "session_support.h"
#include "shell/windows.h"
#include "viewer/frmCtlView.h"
#include "viewer/frmFind.h"

namespace quillomat {
namespace {

struct Page : Form {
    explicit Page(Application& application)
        : Form(application, {.name = L"frmPage", .caption = L"Page", .width = 6600, .height = 5400}) {
        // Away from the middle of the screen, where the virtual screen's own pointer is: windows that change their
        // order under it would move the pointer there.
        move_to(0, 0);
    }

    TextBox Text1{*this, {120, 120, 6000, 3500}, TextBoxKind::Reading};
};

struct FindTest : SessionTest {
    FindTest() {
        open_in(page);
        page->Text1.set_text(L"a key, A KEY and\r\na key\r\n");
    }

    void open() {
        open_in(dialog, state, *page, page->Text1);
        ASSERT_SOON(dialog->txtFind.has_focus());
    }
    void expect_selected(std::size_t start) {
        EXPECT_SOON(page->Text1.has_focus() && page->Text1.selection_start() == start &&
                    page->Text1.selection_length() == 3);
    }

    FindState state;
    std::unique_ptr<Page> page;
    std::unique_ptr<frmFind> dialog;
};

TEST_F(FindTest, StepsThroughTheTextByKeyboard) {
    open();
    EXPECT_FALSE(dialog->cmdFind.enabled()) << "there is nothing to find yet";
    press_key('D', {VK_MENU});
    EXPECT_SOON(state.gFindDirection);
    press_key('N', {VK_MENU});
    ASSERT_SOON(dialog->txtFind.has_focus());
    for (const WORD key : std::initializer_list<WORD>{'K', 'E', 'Y'}) press_key(key);
    ASSERT_SOON(dialog->txtFind.text() == L"key");
    for (const std::size_t found : {2u, 9u, 20u}) {
        press_key(VK_RETURN);
        expect_selected(found);
        EXPECT_EQ(GetWindow(dialog->window(), GW_OWNER), page->window()) << "which keeps it in front";
        dialog->bring_to_foreground();
        ASSERT_SOON(dialog->txtFind.has_focus());
    }
    expect_message(L"Find", L"Search completed");
    press_key(VK_RETURN);
    EXPECT_SOON(!state.gFirstTime && dialog->txtFind.has_focus());
    EXPECT_EQ(dialog->txtFind.selected_text(), L"key") << "what is in the box is typed over";
    press_key('U', {VK_MENU});
    EXPECT_SOON(!state.gFindDirection);
    press_key(VK_RETURN);
    expect_selected(9);
    press_key(VK_ESCAPE);
    pump();
    ASSERT_TRUE(dialog) << "the key went to the text";
    dialog->bring_to_foreground();
    press_key(VK_ESCAPE);
    EXPECT_SOON(!dialog);
}

TEST_F(FindTest, GoesOnWhereItWasWhenOpenedAgain) {
    open();
    dialog->txtFind.set_text(L"KEY");
    dialog->optDirection[1].set_value(true);
    dialog->chkCase.set_value(true);
    dialog->cmdFind.click();
    expect_selected(9);
    dialog->txtFind.set_text(L"key");
    // As if the step had ended at the first place: edited since, so the place itself counts; then the next one.
    page->Text1.select(2, 0);
    state.gCurPos = 2;
    for (const std::size_t found : {2u, 20u}) {
        dialog->cmdcancel.click();
        ASSERT_SOON(!dialog);
        open();
        EXPECT_EQ(dialog->txtFind.selected_text(), L"key");
        EXPECT_TRUE(dialog->optDirection[1].value() && dialog->chkCase.value());
        dialog->cmdFind.click();
        expect_selected(found);
    }
}

TEST_F(FindTest, ClosesWithItsWindowOnceItsHandlersAreDone) {
    open();
    dialog->txtFind.set_text(L"typed");
    dialog->chkCase.on_click = [this] {
        page->close();
        pump();
        EXPECT_TRUE(page && dialog) << "a handler of the dialog is still running";
    };
    press(dialog->chkCase);
    EXPECT_SOON(!dialog && !page);
    EXPECT_EQ(state.gFindString, L"typed");
}

TEST_F(FindTest, TheViewerHasOneAndAsksItAgain) {
    write("Cheats.dat", "text");
    Windows windows(application, session);
    windows.open_viewer();
    auto* const viewer = find_form<frmCtlView>();
    viewer->menus.mnuSelectedFind.pick();
    auto* const first = find_form<frmFind>();
    ASSERT_TRUE(first);
    RECT dialog{};
    RECT text{};
    GetWindowRect(first->window(), &dialog);
    GetWindowRect(viewer->Text1.window(), &text);
    EXPECT_LE(dialog.bottom, text.top) << "what is found is not covered";
    EXPECT_LE(dialog.bottom - dialog.top, 92);
    viewer->Text1.set_focus();
    viewer->menus.mnuTextBoxFind.pick();
    EXPECT_EQ(find_form<frmFind>(), first);
    EXPECT_SOON(first->txtFind.has_focus());
}

}  // namespace
}  // namespace quillomat
