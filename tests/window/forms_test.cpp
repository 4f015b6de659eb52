// The rules that every window of the program relies on, held over every kind of control.

#include <algorithm>
#include <cstdint>
#include <span>

#include "controls/button.h"
#include "controls/frame.h"
#include "controls/graphics.h"
#include "controls/list_box.h"
#include "controls/option_button.h"
#include "controls/text_box.h"
#include "forms/form.h"
#include "forms/menu.h"
#include "forms/timer.h"
#include "output/drop_down_list.h"
#include "resources/pictures.h"
#include "support.h"
#include "text/error.h"
#include "win/gdi.h"
#include "win/picture.h"

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
    const auto expect_one = [&](const std::function<void()>& act) {
        events = 0;
        act();
        EXPECT_SOON(events > 0);
        pump();
        EXPECT_EQ(events, 1);
    };
    for (TextBox* box : {&board.Text1, &board.Text2}) {
        box->on_change = count;
        box->set_focus();
        expect_one([&] { box->set_text(L"a"); });
        expect_one([] { press_key('B'); });
    }

    board.Text1.set_text(std::wstring_view(L"a\0b", 3));
    EXPECT_EQ(board.Text1.text(), L"a b") << "what stands behind a NUL is not lost";

    board.List1.on_click = count;
    for (const wchar_t* item : {L"first", L"second"}) board.List1.add(item);
    board.List1.set_focus();
    expect_one([&] { board.List1.select_index(0); });
    expect_one([] { press_key(VK_DOWN); });

    board.Option2.on_click = count;
    // A choice that is set already does not become set.
    expect_one([&] {
        board.Option2.set_value(true);
        board.Option2.set_value(true);
    });
    board.Option1.set_value(true);
    EXPECT_FALSE(board.Option2.value());
    board.Option1.set_focus();
    expect_one([] { press_key(VK_RIGHT); });

    board.Command1.on_click = count;
    board.Command1.set_focus();
    expect_one([&] { board.Command1.click(); });
    expect_one([] { press_key(VK_SPACE); });
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

TEST_F(FormsTest, GeometryIsKeptInTwipsAndReadBackInWholePixels) {
    for (const int dpi : {96, 120, 144, 192}) {
        const RECT suggested{0, 0, 500, 500};
        SendMessageW(board.window(), WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&suggested));
        board.Command1.set_left(1007);
        EXPECT_DOUBLE_EQ(board.Command1.left(), to_pixels(1007, dpi) * 1440.0 / dpi);
        RECT area{};
        GetWindowRect(board.Command1.window(), &area);
        MapWindowPoints(nullptr, board.window(), reinterpret_cast<POINT*>(&area), 2);
        EXPECT_EQ(area.left, to_pixels(1007, dpi));
        EXPECT_EQ(area.right - area.left, to_pixels(1200, dpi)) << "sizes follow the resolution";
    }
}

TEST_F(FormsTest, AFixedWindowKeepsItsInsideAndIsLaidOutOnceAtEachResolution) {
    Form fixed(application, {.name = L"frmFixed",
                             .caption = L"Fixed",
                             .width = 3000,
                             .height = 1500,
                             .border = FormBorder::Fixed,
                             .measured = FormSize::Inside});
    fixed.show();
    int layouts = 0;
    fixed.on_resize = [&] { ++layouts; };
    for (const int dpi : {144, 96, 192}) {
        layouts = 0;
        const RECT suggested{10, 10, 400, 400};
        SendMessageW(fixed.window(), WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&suggested));
        EXPECT_EQ(layouts, 1);
        EXPECT_TRUE(fixed.inner_width() == 3000 && fixed.inner_height() == 1500) << dpi;
    }
    const auto* start = reinterpret_cast<const BYTE*>(GetModuleHandleW(nullptr));
    const auto* headers =
        reinterpret_cast<const IMAGE_NT_HEADERS*>(start + reinterpret_cast<const IMAGE_DOS_HEADER*>(start)->e_lfanew);
    EXPECT_EQ(headers->OptionalHeader.MajorSubsystemVersion, 10) << "Windows would draw the frames of older versions";
}

TEST_F(FormsTest, ANewThemeReachesTheControlsInFrames) {
    show();
    board.refresh();
    ASSERT_FALSE(GetUpdateRect(board.Option1.window(), nullptr, FALSE));
    SendMessageW(board.window(), WM_THEMECHANGED, 0, 0);
    EXPECT_TRUE(GetUpdateRect(board.Option1.window(), nullptr, FALSE));
}

TEST_F(FormsTest, AMenuPictureIsSeeThroughWhereNothingIsDrawn) {
    const GdiObject<HBITMAP> bitmap = Picture(PICTURE_GAME_PAD).bitmap(32);
    DIBSECTION section{};
    ASSERT_EQ(GetObjectW(bitmap.get(), sizeof section, &section), static_cast<int>(sizeof section));
    const std::span pixels(static_cast<const std::uint32_t*>(section.dsBm.bmBits), 32 * 32);
    EXPECT_EQ(pixels[0], 0U) << "a corner";
    EXPECT_TRUE(std::ranges::any_of(pixels, [](std::uint32_t pixel) { return pixel >> 24 == 0xFF; }));
    for (const std::uint32_t pixel : pixels) {
        const std::uint32_t alpha = pixel >> 24;
        EXPECT_TRUE((pixel & 0xFF) <= alpha && (pixel >> 8 & 0xFF) <= alpha && (pixel >> 16 & 0xFF) <= alpha);
    }
}

TEST_F(FormsTest, ADropDownListFollowsTheResolution) {
    const auto dropped_height = [](const DropDownList& list) {
        RECT area{};
        SendMessageW(list.window(), CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&area));
        return area.bottom - area.top;
    };
    const DropDownList moved(board, {120, 120, 2000, 315});
    const RECT suggested{0, 0, 500, 500};
    SendMessageW(board.window(), WM_DPICHANGED, MAKEWPARAM(192, 192), reinterpret_cast<LPARAM>(&suggested));
    const DropDownList made(board, {120, 120, 2000, 315});
    EXPECT_EQ(dropped_height(moved), dropped_height(made));
}

TEST_F(FormsTest, TabWalksInTheOrderOfReadingWhateverComesToTheFront) {
    board.Option2.set_value(true);
    EXPECT_FALSE(GetWindowLongW(board.Option1.window(), GWL_STYLE) & WS_TABSTOP) << "the group is one stop";
    board.Option1.set_value(true);
    show();
    board.Command2.bring_to_front();
    board.List1.set_enabled(false);
    board.Text1.set_focus();
    for (const Control* next : std::initializer_list<const Control*>{&board.Text2, &board.Option1, &board.Command1,
                                                                     &board.Command2, &board.Text1, &board.Text2}) {
        press_key(VK_TAB);
        EXPECT_SOON(next->has_focus());
    }
    press_key(VK_TAB, {VK_SHIFT});
    EXPECT_SOON(board.Text1.has_focus());

    board.Text2.set_focus();
    SetFocus(nullptr);  // as the system does before it minimises a window
    SendMessageW(board.window(), WM_ACTIVATE, WA_INACTIVE, 0);
    SetFocus(board.window());
    EXPECT_EQ(GetFocus(), board.Text2.window());
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
    bool other = false;
    board.Command2.on_click = [&] { other = true; };
    press_key('L', {VK_MENU});
    EXPECT_SOON(other) << "access keys press buttons";
}

TEST_F(FormsTest, ATimerDoesNotTickIntoItsOwnHandlerNorAfterItWasStopped) {
    int ticks = 0;
    Timer timer(board, 1);
    show();
    expect_message(L"Tick", L"tick");
    timer.on_timer = [&] {
        ++ticks;
        timer.tick();
        show_message(board.window(), {.text = L"tick", .title = L"Tick"});
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
    bool unloaded = false;
    board.on_unload = [&] { unloaded = true; };
    board.on_load = [&] {
        // The system closes every window when the user signs off, whatever is still being asked.
        SendMessageW(board.window(), WM_ENDSESSION, TRUE, 0);
        board.Text1.set_text(L"what was stored");
    };
    board.show();
    EXPECT_TRUE(board.closed() && !board.shown());
    EXPECT_FALSE(unloaded) << "what is stored would give way to what was not read yet";
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
        show_message(late->window(), {.text = L"late", .title = L"Late"});
    };
    Board dialog(application);
    Timer closer(dialog, 10);
    bool opened = false;
    closer.on_timer = [&] {
        EXPECT_FALSE(IsWindowEnabled(board.window()) || IsWindowEnabled(other.window()));
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
    for (const Board* form : {&board, &other, late.get()}) EXPECT_TRUE(IsWindowEnabled(form->window()));
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
        SetWindowPos(dialog.window(), board.window(), 0, 0, 0, 0, SWP_NOSIZE | SWP_NOACTIVATE);
        board.move_to(0, 0);
        ASSERT_EQ(GetWindow(board.window(), GW_HWNDNEXT), dialog.window());
        move_pointer(board.window(), 300, 300);
        click();
        EXPECT_SOON(GetWindow(dialog.window(), GW_HWNDNEXT) == board.window());
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
    board.refresh();
    EXPECT_FALSE(GetUpdateRect(board.window(), nullptr, FALSE)) << "painting has ended";
    expect_message(L"Quillomat", L"Unknown error");
    Timer timer(board, 1);
    int ticks = 0;
    timer.on_timer = [&] {
        ++ticks;
        throw 1;
    };
    EXPECT_SOON(ticks > 5);
    timer.set_enabled(false);
    for (int press = 0; press < 2; ++press) {
        expect_message(L"Quillomat", L"Unknown error");
        board.Command1.on_click = [] { throw 1; };
        SendMessageW(board.Command1.window(), BM_CLICK, 0, 0);
        pump();
    }
}

TEST_F(FormsTest, AWindowThatHasClosedLeavesItsMenusToTheirOwners) {
    auto form = std::make_unique<Form>(application, FormDesign{.name = L"frmBar", .caption = L"Bar"});
    auto bar = std::make_unique<MenuBar>(*form);
    const Menu menu(*bar, L"Menu");
    form->on_closed = [] { throw 1; };
    expect_message(L"Quillomat", L"Unknown error");
    form->close();
    EXPECT_SOON(!form->window());
    pump();
    EXPECT_TRUE(IsMenu(bar->handle()) && IsMenu(menu.handle()));
    const HMENU handle = bar->handle();
    bar.reset();
    EXPECT_FALSE(IsMenu(handle));
}

TEST_F(FormsTest, ATextKeepsItsColourWhereItCanBeRead) {
    constexpr Colour link{0xFF0000};
    constexpr Colour pointed_at{0xFF8080};
    const std::tuple<Colour, Colour, Colour> cases[] = {
        {link, rgb(244, 244, 244), link},
        {colours::black, pointed_at, colours::black},
        {{0x800080}, {0xFFC0FF}, {0x800080}},
        // A theme of white on black.
        {link, colours::black, colours::white},
        {colours::white, pointed_at, colours::black},
        // A button whose colour runs through the rainbow.
        {colours::black, {0x800000}, colours::white},
        {colours::black, {0xFF00FF}, colours::white},
        // The theme's own pair is the user's choice.
        {colours::grey_text, colours::button_face, {resolve(colours::grey_text)}},
    };
    for (const auto& [text, background, expected] : cases) {
        EXPECT_EQ(legible(text, background), expected.value) << std::hex << text.value << " on " << background.value;
    }
}

}  // namespace
}  // namespace quillomat
