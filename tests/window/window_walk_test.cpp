// A walk over every window of the program in every one of its states: what the player sees, what the keyboard and a
// screen reader reach, and what stays behind when the window has closed.

#include <algorithm>

#include "layout_checks.h"
#include "object_counts.h"
#include "output/frmAddNew.h"
#include "output/frmMailCheats.h"
#include "output/frmMailMe.h"
#include "output/frmPrintGames.h"
#include "output/frmSave.h"
#include "session_support.h"
#include "shell/Dialog1.h"
#include "shell/frmMain.h"
#include "shell/frmWait.h"
#include "shell/shell.h"
#include "viewer/frmCtlView.h"
#include "viewer/frmStatus.h"

namespace quillomat {
namespace {

struct WindowWalk;

// A window in one of its states.
struct State {
    const char* name;
    // The window's class.
    const wchar_t* window;
    // Opens the window. For a dialog the call returns only once the dialog has closed.
    void (*open)(WindowWalk& walk);
    // Brings the open window into its state.
    void (*arrange)(WindowWalk& walk) = nullptr;
    // The caption of the button that Enter presses.
    const wchar_t* default_button = L"";
    enum Kind { Modeless, Dialog, NotClosedByEscape } kind = Modeless;
    // At a higher resolution the screen of the tests is too small for the window.
    int highest_dpi = 192;
};

std::ostream& operator<<(std::ostream& stream, const State& state) {
    return stream << state.name;
}

struct WindowWalk : SessionTest, ::testing::WithParamInterface<State> {
    WindowWalk() {
        write_database(30);
        // Each state is reached at once.
        set_animations(false);
    }
    ~WindowWalk() override { application.close_all_forms(); }

    frmMain& main_screen() {
        program.open_main_screen();
        return *find_form<frmMain>();
    }
    frmCtlView& viewer() {
        if (!find_form<frmCtlView>()) {
            program.open_main_screen();
            program.open_viewer();
            find_form<frmCtlView>()->List2.select_index(0);
        }
        return *find_form<frmCtlView>();
    }
    void write_database(int games) {
        std::string database;
        for (int i = 0; i < games; ++i) database += "Type IDDQD.\r\n$$$$$$$$$$$$$$$$$$$$ Game\r\n";
        write("Cheats.dat", database);
    }

    // Opens the window, looks at it once it takes input, and closes it.
    void visit(int dpi, const std::function<void(HWND)>& look);
    void look_now();

    void look_at_layout(HWND window);
    void look_at_everything(HWND window);
    void walk_by_tab(HWND window);
    void expect_nothing_left();

    Shell program{application, session};
    std::unique_ptr<frmWait> wait;
    std::unique_ptr<frmStatus> status;

  private:
    static inline WindowWalk* visitor_ = nullptr;
    std::function<void(HWND)> look_;
};

void open_viewer(WindowWalk& walk) {
    walk.program.open_viewer();
}

const State states[] = {
    {"Splash", L"frmSplash", [](WindowWalk& walk) { walk.program.open_splash(); }},
    {"MainScreen", L"frmMain", [](WindowWalk& walk) { walk.main_screen(); }, nullptr, L"", State::NotClosedByEscape},
    {"ExitQuestion", L"frmMain", [](WindowWalk& walk) { walk.main_screen(); },
     [](WindowWalk& walk) { walk.main_screen().Command3.click(); }, L"&Yes", State::NotClosedByEscape},
    {"ExitTakenBack", L"frmMain", [](WindowWalk& walk) { walk.main_screen(); },
     [](WindowWalk& walk) {
         walk.main_screen().Command3.click();
         walk.main_screen().Command2.click();
     },
     L"&Yes", State::NotClosedByEscape},
    {"LoadingWindow", L"frmWait", [](WindowWalk& walk) { walk.open_in(walk.wait, [&walk] { walk.look_now(); }); },
     nullptr, L"", State::NotClosedByEscape},
    {"Viewer", L"frmCtlView", open_viewer},
    {"ViewerWithoutGames", L"frmCtlView",
     [](WindowWalk& walk) {
         walk.write_database(0);
         walk.session.viewer = {};
         open_viewer(walk);
     }},
    {"ViewerAfterAFailedLoad", L"frmCtlView",
     [](WindowWalk& walk) {
         walk.write("Cheats.dat", "a\r\n$$$$$$$$$$$$$$$$$$$$ One\r\n$$$$$$$$$$$$$$$$$$$$\r\n");
         walk.session.viewer = {};
         walk.session.text_file = {};
         walk.expect_message(L"Error!", L"Invalid procedure call or argument");
         open_viewer(walk);
     }},
    {"Search", L"frmCtlView", open_viewer, [](WindowWalk& walk) { walk.viewer().Option2.set_value(true); }, L"&Go!"},
    {"ListAfterSearch", L"frmCtlView", open_viewer,
     [](WindowWalk& walk) {
         walk.viewer().Option2.set_value(true);
         walk.viewer().Option1.set_value(true);
     },
     L"&Go!"},
    {"FontProgress", L"frmStatus", [](WindowWalk& walk) { walk.open_in(walk.status, walk.viewer()); },
     [](WindowWalk& walk) { walk.status->show_progress(1, 2); }, L"", State::NotClosedByEscape, 144},
    {"Find", L"frmFind", [](WindowWalk& walk) { walk.viewer().menus.mnuTextBoxFind.pick(); }, nullptr, L"&Find"},
    {"Save", L"frmSave", [](WindowWalk& walk) { walk.viewer().menus.mnuSave.pick(); },
     [](WindowWalk&) { find_form<frmSave>()->Label6.set_visible(true); }, L"&OK", State::Dialog},
    {"PrintAll", L"frmPrintGames", [](WindowWalk& walk) { walk.viewer().menus.mnuPrintGames.pick(); },
     [](WindowWalk&) { EXPECT_FALSE(find_form<frmPrintGames>()->Text1.enabled()); }, L"&OK", State::Dialog},
    {"PrintRange", L"frmPrintGames", [](WindowWalk& walk) { walk.viewer().menus.mnuPrintGames.pick(); },
     [](WindowWalk&) { find_form<frmPrintGames>()->Option2.set_value(true); }, L"&OK", State::Dialog},
    {"MailCheats", L"frmMailCheats",
     [](WindowWalk& walk) {
         walk.expect_mail_requirements();
         walk.viewer().menus.mnuMailCheats.pick();
     },
     nullptr, L"", State::Dialog},
    {"AuthorMail", L"frmMailMe",
     [](WindowWalk& walk) {
         walk.expect_mail_requirements();
         walk.program.open_author_mail();
     }},
    {"AddGame", L"frmAddNew", [](WindowWalk& walk) { walk.viewer().menus.mnuAddNew.pick(); }, nullptr, L"",
     State::Dialog},
    {"About", L"frmAbout", [](WindowWalk& walk) { walk.main_screen().Command6.click(); }, nullptr, L"OK",
     State::Dialog},
    {"Author", L"Dialog1", [](WindowWalk& walk) { walk.main_screen().Command8.click(); }, nullptr,
     L"&Take me back to the main screen!", State::Dialog},
    {"AuthorWithLinks", L"Dialog1", [](WindowWalk& walk) { walk.main_screen().Command8.click(); },
     [](WindowWalk&) { find_form<Dialog1>()->Expand(); }, L"&Take me back to the main screen!", State::Dialog, 144},
};

void WindowWalk::visit(int dpi, const std::function<void(HWND)>& look) {
    SCOPED_TRACE(dpi);
    application.force_dpi(dpi);
    look_ = look;
    visitor_ = this;
    const HWND before = GetForegroundWindow();
    const UINT_PTR timer = SetTimer(nullptr, 0, USER_TIMER_MINIMUM, [](HWND, UINT, UINT_PTR, DWORD) {
        const HWND window = FindWindowW(GetParam().window, nullptr);
        if (visitor_->look_ && window && window == GetForegroundWindow() && GetFocus()) visitor_->look_now();
    });
    GetParam().open(*this);
    EXPECT_SOON(!look_ && !FindWindowW(GetParam().window, nullptr));
    KillTimer(nullptr, timer);
    // The program ends with its last window; the walk goes on.
    MSG quit{};
    PeekMessageW(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
    EXPECT_EQ(forms_and_messages(FALSE), "") << "still wait for the window";
    if (GetParam().kind != State::Dialog || !Form::from(before)) return;
    EXPECT_EQ(GetForegroundWindow(), before) << "another window than before takes the keys";
}

void WindowWalk::look_now() {
    const HWND window = FindWindowW(GetParam().window, nullptr);
    const auto look = std::exchange(look_, nullptr);
    if (GetParam().arrange) GetParam().arrange(*this);
    look(window);
    const auto closed = [window] { return !Form::from(window) || Form::from(window)->closed(); };
    if (GetParam().kind != State::NotClosedByEscape) {
        press_key(VK_ESCAPE);
        EXPECT_SOON(closed()) << "Escape does not close the window";
    }
    if (!closed()) SendMessageW(window, WM_CLOSE, 0, 0);
}

void WindowWalk::look_at_layout(HWND window) {
    expect_whole_layout(window);
    if (!(GetWindowLongPtrW(window, GWL_STYLE) & WS_THICKFRAME)) return;
    SCOPED_TRACE("as small as the user can make it");
    RECT former{};
    GetWindowRect(window, &former);
    MoveWindow(window, former.left, former.top, 1, 1, TRUE);
    expect_whole_layout(window);
    MoveWindow(window, former.left, former.top, former.right - former.left, former.bottom - former.top, TRUE);
}

void WindowWalk::look_at_everything(HWND window) {
    RECT area{};
    GetWindowRect(window, &area);
    EXPECT_TRUE(std::min(area.left, area.top) >= 0 && area.right <= 1024 && area.bottom <= 768)
        << "the window does not fit on the screen";
    look_at_layout(window);
    expect_access_keys_and_names(window);
    walk_by_tab(window);
    const Control* pressed_by_enter = Form::from(window)->default_button();
    EXPECT_EQ(pressed_by_enter ? text_of(pressed_by_enter->window()) : L"", GetParam().default_button);
    if (GetParam().kind != State::Dialog) return;
    EXPECT_EQ(forms_and_messages(TRUE, window), "") << "take input beside it";
}

void WindowWalk::walk_by_tab(HWND window) {
    const std::vector<HWND> inputs = inputs_of(window);
    if (inputs.size() < 2) return;
    std::vector<HWND> walked;
    const auto walk = [&](bool backwards) {
        walked.clear();
        for (std::size_t i = 0; i < inputs.size(); ++i) {
            const HWND former = GetFocus();
            press_key(VK_TAB, backwards ? std::vector<WORD>{VK_SHIFT} : std::vector<WORD>());
            if (!pump_until([former] { return GetFocus() != former; })) break;
            // In a box whose list drops down, the part that is typed into has the focus.
            const Control* control = Control::from(GetFocus());
            walked.push_back(control ? control->window() : GetFocus());
        }
        const bool reached = std::is_permutation(walked.begin(), walked.end(), inputs.begin(), inputs.end());
        EXPECT_TRUE(reached) << "Tab does not reach every input once";
        return reached;
    };
    if (!walk(true)) return;
    // Both walks end where they began.
    std::reverse(walked.begin(), std::prev(walked.end()));
    const std::vector<HWND> reversed = walked;
    if (!walk(false)) return;
    EXPECT_EQ(walked, reversed) << "Shift and Tab do not walk the other way";
    expect_reading_order(walked);
}

void WindowWalk::expect_nothing_left() {
    constexpr int times = 20;
    const ObjectCounts before = count_objects();
    for (int i = 0; i < times; ++i) visit(96, [](HWND) {});
    const ObjectCounts after = count_objects();
    // The system keeps a few objects of its own; what a window keeps comes once with each opening.
    EXPECT_LT(after.gdi, before.gdi + times);
    EXPECT_LT(after.user, before.user + times);
}

TEST_P(WindowWalk, IsWholeAndReachableAndLeavesNothing) {
    const auto look_at_layout = [this](HWND window) { this->look_at_layout(window); };
    visit(96, [this](HWND window) { look_at_everything(window); });
    for (const int dpi : {120, 144, 192}) {
        if (dpi <= GetParam().highest_dpi) visit(dpi, look_at_layout);
    }
    NONCLIENTMETRICSW frames{};
    frames.cbSize = sizeof frames;
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof frames, &frames, 0);
    // Frames as wide as those of Windows 10 and 11. Wine: ignores the width of the padding, so the border has it.
    NONCLIENTMETRICSW wide = frames;
    wide.iBorderWidth = 5;
    wide.iCaptionHeight = 22;
    wide.iMenuHeight = 19;
    wide.iScrollWidth = wide.iScrollHeight = 17;
    SystemParametersInfoW(SPI_SETNONCLIENTMETRICS, sizeof wide, &wide, 0);
    for (const int dpi : {96, 144}) visit(dpi, look_at_layout);
    SystemParametersInfoW(SPI_SETNONCLIENTMETRICS, sizeof frames, &frames, 0);
    // Each window in the last of its states, to which the way is the longest.
    const auto is_same_window = [](const State& it) { return it.window == std::wstring_view(GetParam().window); };
    const auto last = std::find_if(std::rbegin(states), std::rend(states), is_same_window);
    if (last->name == GetParam().name) expect_nothing_left();
}

INSTANTIATE_TEST_SUITE_P(Every, WindowWalk, ::testing::ValuesIn(states),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace quillomat
