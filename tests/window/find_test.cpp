// The find dialog over a text box, by mouse and by keyboard.

#include <fstream>
#include <memory>

#include "shell/windows.h"
#include "support.h"
#include "temporary.h"
#include "viewer/frmCtlView.h"
#include "viewer/frmFind.h"

namespace quillomat {
namespace {

struct Page : Form {
    explicit Page(Application& application)
        : Form(application, {.name = L"frmPage", .caption = L"Page", .width = 6600, .height = 5400}) {}

    TextBox Text1{*this, {120, 120, 6000, 3500}, TextBoxKind::Reading};
};

class FindTest : public WindowTest {
  protected:
    FindTest() {
        page->on_closed = [this] { page.reset(); };
        // Away from the middle of the screen, where the virtual screen's own pointer is: windows that change their
        // order under it would move the pointer there.
        page->move_to(0, 0);
        page->show();
        page->Text1.set_text(L"a key, A KEY and\r\na key\r\n");
    }

    void open() {
        dialog = std::make_unique<frmFind>(application, state, *page, page->Text1);
        dialog->on_closed = [this] { dialog.reset(); };
        dialog->show();
        ASSERT_TRUE(pump_until([this] { return dialog->txtFind.has_focus(); }));
    }
    bool selected(std::size_t start, std::size_t length) {
        return pump_until([&] {
            return page->Text1.has_focus() && page->Text1.selection_start() == start &&
                   page->Text1.selection_length() == length;
        });
    }
    /// Whether the dialog is before its page in the order of the windows from the front to the back.
    bool is_in_front() const {
        HWND window = page->window();
        while (window && window != dialog->window()) window = GetWindow(window, GW_HWNDPREV);
        return window;
    }

    FindState state;
    std::unique_ptr<Page> page = std::make_unique<Page>(application);
    std::unique_ptr<frmFind> dialog;
};

TEST_F(FindTest, StepsThroughTheTextByKeyboard) {
    open();
    EXPECT_FALSE(dialog->cmdFind.enabled()) << "there is nothing to find yet";
    press_key('D', {VK_MENU});
    EXPECT_TRUE(pump_until([this] { return state.gFindDirection; }));
    press_key('N', {VK_MENU});
    ASSERT_TRUE(pump_until([this] { return dialog->txtFind.has_focus(); }));
    for (const char key : {'K', 'E', 'Y'}) press_key(static_cast<WORD>(key));
    ASSERT_TRUE(pump_until([this] { return dialog->txtFind.text() == L"key"; }));
    for (const std::size_t found : {2u, 9u, 20u}) {
        press_key(VK_RETURN);
        EXPECT_TRUE(selected(found, 3));
        EXPECT_TRUE(pump_until([this] { return is_in_front(); }));
        dialog->bring_to_foreground();
        ASSERT_TRUE(pump_until([this] { return dialog->txtFind.has_focus(); }));
    }
    expect_message(L"Find", L"Search completed");
    press_key(VK_RETURN);
    EXPECT_TRUE(pump_until([this] { return !state.gFirstTime && dialog->txtFind.has_focus(); }));
    EXPECT_EQ(dialog->txtFind.selected_text(), L"key") << "what is in the box is typed over";
    press_key('U', {VK_MENU});
    EXPECT_TRUE(pump_until([this] { return !state.gFindDirection; }));
    press_key(VK_RETURN);
    EXPECT_TRUE(selected(9, 3));
    press_key(VK_ESCAPE);
    pump();
    EXPECT_TRUE(dialog) << "the key went to the text";
    dialog->bring_to_foreground();
    press_key(VK_ESCAPE);
    EXPECT_TRUE(pump_until([this] { return !dialog; }));
}

TEST_F(FindTest, GoesOnWhereItWasWhenOpenedAgain) {
    open();
    dialog->txtFind.set_text(L"KEY");
    dialog->optDirection[1].set_value(true);
    dialog->chkCase.set_value(true);
    dialog->cmdFind.click();
    ASSERT_TRUE(selected(9, 3));
    dialog->txtFind.set_text(L"key");
    const auto reopen = [this] {
        dialog->cmdcancel.click();
        ASSERT_TRUE(pump_until([this] { return !dialog; }));
        open();
        EXPECT_EQ(dialog->txtFind.selected_text(), L"key");
        EXPECT_TRUE(dialog->optDirection[1].value());
        EXPECT_TRUE(dialog->chkCase.value());
    };
    // As if the step had ended at the first place.
    page->Text1.select(2, 0);
    state.gCurPos = 2;
    reopen();
    EXPECT_TRUE(state.gFirstTime) << "edited since the last step, as it was when the dialog closed";
    dialog->cmdFind.click();
    EXPECT_TRUE(selected(2, 3));
    reopen();
    dialog->cmdFind.click();
    EXPECT_TRUE(selected(20, 3)) << "not edited since: the next one";
}

TEST_F(FindTest, ClosesWithItsWindowAndRemembersWhatWasTyped) {
    open();
    dialog->txtFind.set_text(L"typed");
    page->close();
    EXPECT_TRUE(pump_until([this] { return !dialog && !page; }));
    EXPECT_EQ(state.gFindString, L"typed");
}

TEST_F(FindTest, AWindowThatClosesWaitsForADialogAtWork) {
    open();
    dialog->chkCase.on_click = [this] {
        page->close();
        pump();
        EXPECT_TRUE(page && dialog) << "a handler of the dialog is still running";
    };
    SendMessageW(dialog->chkCase.window(), BM_CLICK, 0, 0);
    EXPECT_TRUE(pump_until([this] { return !dialog && !page; }));
}

TEST_F(FindTest, TheViewerHasOneAndAsksItAgain) {
    const TemporaryFolder folder;
    const TemporarySettings registry;
    Session session;
    session.program_folder = folder.path().wstring();
    session.settings = registry.settings();
    std::ofstream(folder.path() / "Cheats.dat") << "text";
    Windows windows(application, session);
    windows.open_viewer();
    auto* viewer = dynamic_cast<frmCtlView*>(Form::from(FindWindowW(L"frmCtlView", nullptr)));
    ASSERT_TRUE(viewer);
    const auto find_window = [] { return FindWindowW(L"frmFind", L"Find"); };
    viewer->menus.mnuSelectedFind.pick();
    const HWND first = find_window();
    ASSERT_TRUE(first);
    viewer->Text1.set_focus();
    viewer->menus.mnuTextBoxFind.pick();
    EXPECT_EQ(find_window(), first);
    EXPECT_TRUE(pump_until([first] { return GetParent(GetFocus()) == first; })) << "it asks again";
}

}  // namespace
}  // namespace quillomat
