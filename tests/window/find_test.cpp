// The find dialog over the viewer's text, by mouse and by keyboard.

#include "output/frmMailMe.h"
#include "session_support.h"
#include "shell/shell.h"
#include "viewer/frmCtlView.h"
#include "viewer/frmFind.h"

namespace quillomat {
namespace {

struct FindTest : SessionTest {
    FindTest() {
        write("Cheats.dat", "");
        shell.open_viewer();
        viewer = find_form<frmCtlView>();
        viewer->Text1.set_text(L"a key, A KEY and\r\na key\r\n");
    }

    void open() {
        viewer->menus.mnuSelectedFind.pick();
        dialog = find_form<frmFind>();
        ASSERT_TRUE(dialog);
        ASSERT_SOON(dialog->txtFind.has_focus());
    }
    void expect_selected(std::size_t start) {
        EXPECT_SOON(viewer->Text1.has_focus() && viewer->Text1.selection_start() == start &&
                    viewer->Text1.selection_length() == 3);
    }

    Shell shell{application, session};
    FindState& state = session.find;
    frmCtlView* viewer = nullptr;
    frmFind* dialog = nullptr;
};

TEST_F(FindTest, StepsThroughTheTextByKeyboardAlsoWhenOpenedAgain) {
    open();
    EXPECT_FALSE(dialog->cmdFind.enabled()) << "there is nothing to find yet";
    for (const char key : {'D', 'N'}) press_key(static_cast<WORD>(key), {VK_MENU});
    ASSERT_SOON(state.gFindDirection && dialog->txtFind.has_focus());
    for (const char key : {'K', 'E', 'Y'}) press_key(static_cast<WORD>(key));
    ASSERT_SOON(dialog->txtFind.text() == L"key");
    for (const std::size_t found : {2u, 9u, 20u}) {
        press_key(VK_RETURN);
        expect_selected(found);
        viewer->menus.mnuTextBoxFind.pick();
        EXPECT_EQ(find_form<frmFind>(), dialog) << "the viewer has only one";
        ASSERT_SOON(dialog->txtFind.has_focus());
        dialog->close();
        ASSERT_SOON(!find_form<frmFind>());
        open();
    }
    expect_message(L"Find", L"Search completed");
    press_key(VK_RETURN);
    EXPECT_SOON(!state.gFirstTime && dialog->txtFind.has_focus());
    EXPECT_EQ(dialog->txtFind.selected_text(), L"key") << "what is in the box is typed over";
    press_key('U', {VK_MENU});
    EXPECT_SOON(!state.gFindDirection);
    dialog->chkCase.set_value(true);
    dialog->cmdcancel.click();
    ASSERT_SOON(!find_form<frmFind>());
    open();
    EXPECT_EQ(dialog->txtFind.selected_text(), L"key");
    EXPECT_TRUE(dialog->optDirection[0].value() && dialog->chkCase.value());
    press_key(VK_RETURN);
    expect_selected(2);
}

TEST_F(FindTest, CoversNoneOfTheTextAndClosesWithTheViewer) {
    open();
    RECT place{};
    RECT text{};
    GetWindowRect(dialog->window(), &place);
    GetWindowRect(viewer->Text1.window(), &text);
    EXPECT_LE(place.bottom, text.top);
    dialog->txtFind.set_text(L"typed");
    expect_mail_requirements();
    shell.open_author_mail();
    viewer->close();
    EXPECT_SOON(!find_form<frmFind>() && !find_form<frmCtlView>());
    EXPECT_EQ(state.gFindString, L"typed");
    MSG quit{};
    EXPECT_FALSE(PeekMessageW(&quit, nullptr, WM_QUIT, WM_QUIT, PM_NOREMOVE)) << "a message is being written";
    find_form<frmMailMe>()->close();
    EXPECT_SOON(!find_form<frmMailMe>());
    // The last window has asked the program to end.
    EXPECT_TRUE(PeekMessageW(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
}

}  // namespace
}  // namespace quillomat
