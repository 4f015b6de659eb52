// The rules that every window of the program relies on, held over every kind of control.

#include "board.h"
#include "forms/timer.h"
#include "support.h"
#include "text/error.h"

namespace quillomat {
namespace {

struct FormsTest : WindowTest {
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
    board.Text1.on_change = board.Text2.on_change = count;
    board.List1.on_click = board.Option2.on_click = board.Button1.on_click = count;
    for (const wchar_t* item : {L"first", L"second"}) board.List1.add(item);
    const std::tuple<Control*, WORD, std::function<void()>> changes[] = {
        {&board.Text1, 'B', [this] { board.Text1.set_text(L"a"); }},
        {&board.Text2, 'B', [this] { board.Text2.set_text(L"a"); }},
        {&board.List1, VK_DOWN, [this] { board.List1.select_index(0); }},
        {&board.Option1, VK_RIGHT,
         [this] {
             // A choice that is set already does not become set.
             for (int i = 0; i < 2; ++i) board.Option2.set_value(true);
             board.Option1.set_value(true);
         }},
        {&board.Button1, VK_SPACE, [this] { board.Button1.click(); }},
    };
    for (const auto& [control, key, change] : changes) {
        for (const bool by_user : {false, true}) {
            events = 0;
            control->set_focus();
            if (by_user) {
                press_key(key);
            } else {
                change();
            }
            EXPECT_SOON(events > 0);
            pump();
            EXPECT_EQ(events, 1) << key;
        }
    }
}

// Changes the resolution as Windows does; it suggests a size in proportion, which the window may correct.
void change_resolution(Form& form, int dpi) {
    SIZE size{MulDiv(to_pixels(form.width(), form.dpi()), dpi, form.dpi()),
              MulDiv(to_pixels(form.height(), form.dpi()), dpi, form.dpi())};
    SendMessageW(form.window(), WM_GETDPISCALEDSIZE, static_cast<WPARAM>(dpi), reinterpret_cast<LPARAM>(&size));
    const RECT suggested{10, 10, 10 + size.cx, 10 + size.cy};
    SendMessageW(form.window(), WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&suggested));
}

TEST_F(FormsTest, AWindowKeepsItsSizeAndIsLaidOutOnceAtEachResolution) {
    Form fixed(application, {.name = L"frmFixed", .caption = L"", .border = FormBorder::Fixed});
    fixed.set_inner_size(3000, 3000);
    Form sizable(application, {.name = L"frmSizable", .caption = L"", .width = 3600, .height = 3600});
    int layouts = 0;
    for (Form* form : {&fixed, &sizable}) {
        form->show();
        form->on_resize = [&] { ++layouts; };
    }
    const auto expect_sizes = [&](int dpi) {
        EXPECT_TRUE(fixed.inner_width() == 3000 && fixed.inner_height() == 3000) << dpi;
        EXPECT_NEAR(sizable.width(), 3610, 7.5) << dpi;
        EXPECT_NEAR(sizable.height(), 3610, 7.5) << dpi;
    };
    change_resolution(sizable, 144);
    sizable.set_size(3610, 3610);
    layouts = 0;
    for (const int dpi : {96, 144, 96, 144, 96, 192}) {
        for (Form* form : {&fixed, &sizable}) change_resolution(*form, dpi);
        EXPECT_EQ(std::exchange(layouts, 0), 2);
        expect_sizes(dpi);
        RECT outer{};
        GetWindowRect(fixed.window(), &outer);
        EXPECT_TRUE(outer.left == 10 && outer.top == 10);
    }
    for (const auto state : {WindowState::Minimised, WindowState::Maximised}) {
        for (Form* form : {&fixed, &sizable}) {
            form->set_window_state(state);
            change_resolution(*form, state == WindowState::Minimised ? 96 : 144);
            form->set_window_state(WindowState::Normal);
        }
        expect_sizes(0);
    }
}

TEST_F(FormsTest, KeysReachTheHandlerFirstThenTheDialogThenTheControl) {
    show();
    int defaults = 0;
    int seen = 0;
    board.set_default_button(&board.Button1);
    board.Button1.on_click = [&] { ++defaults; };
    board.Text1.on_key_down = [&](KeyEvent& event) { event.handled = event.key == keys::enter && ++seen == 1; };
    board.Text1.on_key_press = [&](CharacterEvent& event) { event.handled = event.character == L'x'; };
    board.Text1.set_focus();
    for (const WORD key : std::initializer_list<WORD>{VK_RETURN, VK_RETURN, 'X', 'Y'}) press_key(key);
    EXPECT_SOON(board.Text1.text() == L"y");
    EXPECT_TRUE(defaults == 1 && seen == 2) << "each press is one event";

    SetFocus(board.Text2.window());
    for (const WORD key : std::initializer_list<WORD>{VK_ESCAPE, 'Z'}) press_key(key);
    EXPECT_SOON(board.Text2.text() == L"z") << "Escape in a long text closes nothing";
    for (const WPARAM command : {SC_MINIMIZE, SC_RESTORE}) SendMessageW(board.window(), WM_SYSCOMMAND, command, 0);
    EXPECT_SOON(board.Text2.has_focus()) << "it goes back to where it was";
}

TEST_F(FormsTest, ATimerDoesNotTickIntoItsOwnHandlerNorAfterItWasStopped) {
    int ticks = 0;
    Timer timer(board, 1);
    show();
    expect_message(L"Tick", L"tick");
    timer.on_timer = [&] {
        ++ticks;
        timer.tick();
        show_message(board, {.text = L"tick", .title = L"Tick"});
        EXPECT_EQ(ticks, 1) << "ticked below its own message";
        timer.set_enabled(false);
    };
    EXPECT_SOON(!timer.enabled());
    timer.on_timer = [] { FAIL() << "ticked after it was stopped"; };
    timer.tick();
    Timer other(board, 1);
    other.on_timer = [&] { ++ticks; };
    EXPECT_SOON(ticks == 5);
}

TEST_F(FormsTest, AFormClosedWhileItLoadsHasNothingToSave) {
    board.on_unload = [] { FAIL() << "what is stored would give way to what was not read yet"; };
    board.on_load = [&] {
        // The system closes every window when the user signs off, whatever is still being asked, unless another program
        // has called it off.
        SendMessageW(board.window(), WM_ENDSESSION, FALSE, 0);
        EXPECT_FALSE(board.closed());
        SendMessageW(board.window(), WM_ENDSESSION, TRUE, 0);
        board.Text1.set_text(L"what was stored");
    };
    board.show();
    EXPECT_TRUE(board.closed() && !board.shown());
}

TEST_F(FormsTest, ADialogKeepsTheUserFromAllOtherWindowsUntilItClosesEvenInAMenu) {
    show();
    Board other(application);
    other.show();
    std::unique_ptr<Board> late;
    Timer opener(other, 1);
    opener.on_timer = [&] {
        opener.set_enabled(false);
        open_in(late);
        EXPECT_FALSE(IsWindowEnabled(late->window())) << "it was not opened from the dialog";
        expect_message(L"Late", L"late");
        show_message(*late, {.text = L"late", .title = L"Late"});
    };
    Board dialog(application);
    Timer closer(dialog, 10);
    bool opened = false;
    closer.on_timer = [&] {
        if (!late || !IsWindowEnabled(dialog.window())) return;
        EXPECT_FALSE(IsWindowEnabled(late->window())) << "nor after a message of its own";
        if (in_menu() && FindWindowW(L"#32768", nullptr)) {
            SendMessageW(dialog.window(), WM_CLOSE, 0, 0);
        } else if (!opened) {
            EXPECT_EQ(GetActiveWindow(), dialog.window());
            opened = PostMessageW(dialog.window(), WM_SYSCOMMAND, SC_KEYMENU, ' ');
        }
    };
    dialog.show_modal(&board);
    EXPECT_TRUE(opened && !in_menu());
    EXPECT_TRUE(IsWindowEnabled(late->window()));
    EXPECT_EQ(GetActiveWindow(), board.window());
    EXPECT_EQ(application.modality().owner_for_message(nullptr), board.window()) << "no message is without an owner";
}

TEST_F(FormsTest, AClickOnAWaitingWindowBringsTheDialogToTheFront) {
    show();
    Board dialog(application);
    dialog.on_load = [&] { dialog.set_size(2000, 2000); };
    Timer clicker(dialog, 10);
    clicker.on_timer = [&] {
        clicker.set_enabled(false);
        for (Board* window : {&board, &dialog}) window->move_to(0, 0);
        // Coming from another program: a window that has the keys already may stay where it is.
        SetForegroundWindow(GetDesktopWindow());
        move_pointer(board.window(), 300, 300);
        click();
        EXPECT_SOON(GetForegroundWindow() == dialog.window());
        dialog.set_window_state(WindowState::Minimised);
        board.bring_to_foreground();
        EXPECT_EQ(dialog.window_state(), WindowState::Normal);
        dialog.close();
    };
    dialog.show_modal(nullptr);
}

TEST_F(FormsTest, AFaultOfPaintingOrOfATimerIsReportedOnceAndLater) {
    struct Faulty : Label {
        using Label::Label;
        void draw(HDC) const override { throw Error(ErrorCode::DiskFull); }
    };
    const Faulty label(board, L"", {3000, 600, 600, 600});
    expect_message(L"Quillomat", L"Disk full");
    show();
    pump();
    label.invalidate();
    board.paint_changes();
    EXPECT_FALSE(GetUpdateRect(board.window(), nullptr, FALSE)) << "painting has ended";
    expect_message(L"Quillomat", L"Unknown error");
    Timer timer(board, 1);
    int ticks = 0;
    timer.on_timer = [&] { throw ++ticks; };
    EXPECT_SOON(ticks > 5);
    timer.set_enabled(false);
}

}  // namespace
}  // namespace quillomat
