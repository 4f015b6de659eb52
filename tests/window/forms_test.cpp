// The rules that every window of the program relies on, held over every kind of control.

#include <memory>

#include "forms/button.h"
#include "forms/form.h"
#include "forms/frame.h"
#include "forms/graphics.h"
#include "forms/list_box.h"
#include "forms/option_button.h"
#include "forms/text_box.h"
#include "forms/timer.h"
#include "support.h"
#include "text/error.h"

namespace quillomat {
namespace {

struct Board : Form {
    explicit Board(Application& application)
        : Form(application, {.name = L"frmBoard", .caption = L"Board", .width = 6000, .height = 6000}) {
        // A tool tip hooks itself into its control; nothing of the contract may change by that.
        for (Control* control : controls()) control->set_tool_tip(L"tip");
    }

    Label Label1{*this, L"Label", {3000, 3000, 1500, 300}};
    Image Image1{*this, Picture(), {3000, 3600, 600, 600}};
    TextBox Text1{*this, {120, 120, 2000, 315}};
    TextBox Text2{*this, {120, 600, 2000, 900}, TextBoxKind::MultiLine};
    ListBox List1{*this, {120, 1600, 2000, 900}};
    Frame Frame1{*this, L"Frame", {120, 2600, 2500, 900}, FrameBorder::Captioned};
    OptionButton Option1{Frame1, L"&One", {60, 300, 1000, 255}, OptionButton::Group::Starts};
    OptionButton Option2{Frame1, L"&Two", {1200, 300, 1000, 255}, OptionButton::Group::Continues};
    Button Command1{*this, L"&Press", {120, 3600, 1200, 375}};
    Button Command2{*this, L"&Later", {120, 4100, 1200, 375}};
};

class FormsTest : public WindowTest {
  protected:
    void show() {
        board.show();
        ASSERT_SOON(IsWindowVisible(board.window()) && GetFocus());
    }

    Board board{application};
};

TEST_F(FormsTest, AChangeByTheProgramRaisesOneEventAsOneByTheUser) {
    show();
    int events = 0;
    const auto count = [&events] { ++events; };
    const auto raises_one = [&](const std::function<void()>& act) {
        events = 0;
        act();
        EXPECT_SOON(events > 0);
        pump();
        return events == 1;
    };
    for (TextBox* box : {&board.Text1, &board.Text2}) {
        box->on_change = count;
        box->set_focus();
        EXPECT_TRUE(raises_one([&] { box->set_text(L"a"); }));
        EXPECT_TRUE(raises_one([] { press_key('B'); }));
    }

    board.List1.on_click = count;
    board.List1.add(L"first");
    board.List1.add(L"second");
    board.List1.set_focus();
    EXPECT_TRUE(raises_one([&] { board.List1.select_index(0); }));
    EXPECT_TRUE(raises_one([] { press_key(VK_DOWN); }));

    board.Option2.on_click = count;
    EXPECT_TRUE(raises_one([&] {
        board.Option2.set_value(true);
        board.Option2.set_value(true);
    })) << "a choice that is set already does not become set";
    board.Option1.set_value(true);
    EXPECT_FALSE(board.Option2.value());
    board.Option1.set_focus();
    EXPECT_TRUE(raises_one([] { press_key(VK_RIGHT); }));

    board.Command1.on_click = count;
    board.Command1.set_focus();
    EXPECT_TRUE(raises_one([&] { board.Command1.click(); }));
    EXPECT_TRUE(raises_one([] { press_key(VK_SPACE); }));
}

TEST_F(FormsTest, TextsOfEveryLengthAndCharacterComeBackUnchanged) {
    std::wstring lines(100'000, L'x');
    for (int i = 0; i < 20; ++i) lines += L"\r\n" + std::wstring(50'000, static_cast<wchar_t>(L'a' + i));
    board.Text2.set_text(lines);
    EXPECT_TRUE(board.Text2.text() == lines);
    board.Text1.set_text(std::wstring_view(L"a\0b", 3));
    EXPECT_EQ(board.Text1.text(), L"a b") << "what stands behind a NUL is not lost";
}

TEST_F(FormsTest, TheMouseMeetsPaintedItemsAsItMeetsControls) {
    show();
    std::wstring events;
    board.Image1.on_mouse_down = [&](const MouseEvent& event) {
        EXPECT_NEAR(event.x, 300, 15);
        events += L"down ";
    };
    board.Image1.on_mouse_up = [&](const MouseEvent&) { events += L"up "; };
    board.Image1.on_click = [&] { events += L"click "; };
    board.Image1.on_double_click = [&] { events += L"double "; };
    const RECT& image = board.Image1.pixels();
    move_pointer(board.window(), (image.left + image.right) / 2, (image.top + image.bottom) / 2);
    click();
    click();
    EXPECT_SOON(events.ends_with(L"double up "));
    EXPECT_EQ(events, L"down up click double up ") << "a double-click is released twice but pressed once";
}

TEST_F(FormsTest, AnErrorNoHandlerCaughtIsReportedOnceAndTheProgramGoesOn) {
    show();
    int presses = 0;
    board.Command1.on_click = [&] {
        ++presses;
        throw Error(ErrorCode::PermissionDenied);
    };
    expect_message(L"Quillomat", L"Permission denied");
    board.Command1.set_focus();
    press_key(VK_SPACE);
    EXPECT_SOON(presses == 1 && IsWindowEnabled(board.window()));
    press_key(VK_SPACE);
    expect_message(L"Quillomat", L"Permission denied");
    EXPECT_SOON(presses == 2);
}

TEST_F(FormsTest, GeometryIsKeptInTwipsAndReadBackInWholePixels) {
    for (const int dpi : {96, 120, 144, 192}) {
        const double pixel = 1440.0 / dpi;
        const RECT suggested{0, 0, 500, 500};
        SendMessageW(board.window(), WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&suggested));
        EXPECT_EQ(board.dpi(), dpi);
        board.Command1.set_left(1007);
        EXPECT_NEAR(board.Command1.left(), 1007, pixel / 2);
        EXPECT_DOUBLE_EQ(std::remainder(board.Command1.left(), pixel), 0);
        RECT area{};
        GetWindowRect(board.Command1.window(), &area);
        MapWindowPoints(nullptr, board.window(), reinterpret_cast<POINT*>(&area), 2);
        EXPECT_EQ(area.left, to_pixels(1007, dpi));
        EXPECT_EQ(area.right - area.left, to_pixels(1200, dpi)) << "sizes follow the resolution";
    }
}

TEST_F(FormsTest, TabWalksInTheOrderOfReadingWhateverComesToTheFront) {
    board.Option1.set_value(true);
    show();
    board.Command2.bring_to_front();
    board.List1.set_enabled(false);
    HWND const order[] = {board.Text1.window(),    board.Text2.window(),    board.Option1.window(),
                          board.Command1.window(), board.Command2.window(), board.Text1.window()};
    board.Text1.set_focus();
    for (const HWND expected : order) {
        EXPECT_SOON(GetFocus() == expected);
        press_key(VK_TAB);
    }
    EXPECT_SOON(GetFocus() == board.Text2.window());
    press_key(VK_TAB, {VK_SHIFT});
    EXPECT_SOON(GetFocus() == board.Text1.window());
}

TEST_F(FormsTest, KeysReachTheHandlerFirstThenTheDialogThenTheControl) {
    show();
    int defaults = 0;
    int seen = 0;
    board.set_default_button(&board.Command1);
    board.Command1.on_click = [&] { ++defaults; };
    board.Text1.on_key_down = [&](KeyEvent& event) {
        if (event.key != keys::enter) return;
        ++seen;
        event.handled = seen == 1;
    };
    board.Text1.set_focus();
    press_key(VK_RETURN);
    press_key(VK_RETURN);
    EXPECT_SOON(defaults == 1);
    EXPECT_EQ(seen, 2) << "each press is one event";

    board.Text1.on_key_press = [&](CharacterEvent& event) { event.handled = event.character == L'x'; };
    press_key('X');
    press_key('Y');
    EXPECT_SOON(board.Text1.text() == L"y");

    board.Text2.set_focus();
    press_key(VK_ESCAPE);
    press_key('Z');
    EXPECT_SOON(board.Text2.text() == L"z") << "Escape in a long text closes nothing";
    press_key('L', {VK_MENU});
    bool other = false;
    board.Command2.on_click = [&] { other = true; };
    EXPECT_SOON(other) << "access keys press buttons";
}

TEST_F(FormsTest, TheDefaultButtonIsNotPaintedAgainForStayingTheDefault) {
    show();
    for (const auto& [button, painted] :
         {std::pair{&board.Command1, true}, {&board.Command1, false}, {nullptr, true}}) {
        board.refresh();
        board.set_default_button(button);
        EXPECT_EQ(GetUpdateRect(board.Command1.window(), nullptr, FALSE) != FALSE, painted);
    }
}

TEST_F(FormsTest, ATimerDoesNotTickIntoItsOwnHandlerNorAfterItWasStopped) {
    int ticks = 0;
    Timer timer(board, 1);
    show();
    expect_message(L"Tick", L"tick");
    timer.on_timer = [&] {
        ++ticks;
        show_message(board.window(), {.text = L"tick", .title = L"Tick"});
        EXPECT_EQ(ticks, 1) << "ticked below its own message";
        timer.set_enabled(false);
    };
    EXPECT_SOON(!timer.enabled());
    timer.on_timer = [] { FAIL() << "ticked after it was stopped"; };
    Timer other(board, 1);
    other.on_timer = [&] { ++ticks; };
    EXPECT_SOON(ticks == 5);
}

TEST_F(FormsTest, AFormClosedInItsOwnHandlerLivesUntilTheHandlerIsDone) {
    std::unique_ptr<Board> form;
    open_in(form);
    bool handler_done = false;
    form->Command1.on_click = [&] {
        form->close();
        pump();
        EXPECT_TRUE(form) << "destroyed below a running handler";
        handler_done = true;
    };
    press(form->Command1);
    EXPECT_TRUE(handler_done);
    EXPECT_SOON(!form);
}

TEST_F(FormsTest, AFormClosedWhileItLoadsHasNothingToSave) {
    Board form(application);
    bool unloaded = false;
    form.on_unload = [&] { unloaded = true; };
    form.on_load = [&] {
        // The system closes every window when the user signs off, whatever is still being asked.
        SendMessageW(form.window(), WM_ENDSESSION, TRUE, 0);
        form.Text1.set_text(L"what was stored");
    };
    form.show();
    EXPECT_TRUE(form.closed());
    EXPECT_FALSE(unloaded) << "what is stored would give way to what was not read yet";
    EXPECT_FALSE(form.shown());
}

TEST_F(FormsTest, ADialogKeepsTheUserFromAllOtherWindowsUntilItCloses) {
    show();
    Board other(application);
    other.show();
    Board dialog(application);
    Timer closer(dialog, 1);
    closer.on_timer = [&] {
        EXPECT_FALSE(IsWindowEnabled(board.window()));
        EXPECT_FALSE(IsWindowEnabled(other.window()));
        dialog.close();
    };
    dialog.show_modal(&board);
    EXPECT_TRUE(IsWindowEnabled(board.window()));
    EXPECT_TRUE(IsWindowEnabled(other.window()));
    EXPECT_EQ(GetActiveWindow(), board.window());
}

}  // namespace
}  // namespace quillomat
