#include "forms/form.h"

#include <algorithm>
#include <utility>

#include "forms/application.h"
#include "forms/control.h"
#include "forms/message_box.h"
#include "forms/timer.h"
#include "resources/pictures.h"
#include "win/errors.h"
#include "win/thread_windows.h"

namespace quillomat {
namespace {

constexpr UINT destroy_message = WM_APP;
// Windows uses the lower four bits of a system command itself.
constexpr WPARAM system_command_mask = 0xFFF0;

Occasion occasion_of(UINT message) {
    switch (message) {
        case WM_PAINT:
        case WM_NCPAINT:
        case WM_ERASEBKGND:
        case WM_PRINTCLIENT:
        case WM_DRAWITEM:
        case WM_CTLCOLOREDIT:
        case WM_CTLCOLORLISTBOX:
        case WM_CTLCOLORSTATIC:
        case WM_CTLCOLORBTN:
        case WM_TIMER:
            return Occasion::Repeating;
        default:
            return Occasion::Action;
    }
}

bool is_button_press(WORD message) {
    return message == WM_LBUTTONDOWN || message == WM_RBUTTONDOWN || message == WM_MBUTTONDOWN;
}

struct BorderStyle {
    DWORD style;
    DWORD extended;
};

BorderStyle style_of(FormBorder border) {
    switch (border) {
        case FormBorder::Sizable:
            return {WS_OVERLAPPEDWINDOW, WS_EX_CONTROLPARENT};
        case FormBorder::Fixed:
            return {WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX, WS_EX_CONTROLPARENT};
        case FormBorder::Dialog:
            return {WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU, WS_EX_CONTROLPARENT | WS_EX_DLGMODALFRAME};
        case FormBorder::None:
            return {WS_POPUP, WS_EX_CONTROLPARENT | WS_EX_APPWINDOW};
    }
    return {};
}

void register_class(const wchar_t* name, WNDPROC procedure) {
    const HINSTANCE program = GetModuleHandleW(nullptr);
    WNDCLASSEXW description{};
    if (GetClassInfoExW(program, name, &description)) return;
    description = {};
    description.cbSize = sizeof description;
    description.style = CS_DBLCLKS;
    description.lpfnWndProc = procedure;
    description.hInstance = program;
    description.hIcon = LoadIconW(program, MAKEINTRESOURCEW(PICTURE_APPLICATION));
    description.hCursor = LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
    description.lpszClassName = name;
    if (!RegisterClassExW(&description)) throw_last_error();
}

// Closes an open menu, and stops moving `window` by keyboard. Keys that end these modal loops of Windows would not
// reach a window hidden by closing.
void leave_system_loops(HWND window) {
    EndMenu();
    SendMessageW(window, WM_CANCELMODE, 0, 0);
    // Wine: WM_CANCELMODE does not stop moving; the next Escape does. GetGUIThreadInfo does not tell whether a window
    // is moved while its menu is open.
    PostMessageW(window, WM_KEYDOWN, VK_ESCAPE, 0);
}

}  // namespace

Form::Form(Application& application, const FormDesign& design)
    : TopLevelWindow(design.minimum), application_(application), caption_(design.caption) {
    register_class(design.name, procedure);
    const auto [style, extended] = style_of(design.border);
    CreateWindowExW(extended, design.name, design.caption, style | WS_CLIPCHILDREN, CW_USEDEFAULT, CW_USEDEFAULT, 0, 0,
                    nullptr, nullptr, GetModuleHandleW(nullptr), this);
    if (!window_) throw_last_error();
    application.modality().opened(window_, application.handling_window());
    const auto window_dpi = static_cast<int>(GetDpiForWindow(window_));
    set_dpi(application.forced_dpi() ? application.forced_dpi() : window_dpi);
    internals_.tool_tips.create(window_, dpi());
    set_size(design.width, design.height);
}

Form::~Form() {
    if (!window_) return;
    // Without the pointer to the form, no message that DestroyWindow sends reaches a handler.
    SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
    const HWND window = window_;
    forget_window();
    DestroyWindow(window);
}

Form* Form::from(HWND window) {
    if (!window || GetWindowThreadProcessId(window, nullptr) != GetCurrentThreadId()) return nullptr;
    if (GetClassLongPtrW(window, GCLP_WNDPROC) != reinterpret_cast<ULONG_PTR>(&Form::procedure)) return nullptr;
    return reinterpret_cast<Form*>(GetWindowLongPtrW(window, GWLP_USERDATA));
}

LRESULT CALLBACK Form::procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == WM_NCCREATE) {
        auto* form = static_cast<Form*>(reinterpret_cast<const CREATESTRUCTW*>(lparam)->lpCreateParams);
        form->window_ = window;
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(form));
    }
    Form* form = reinterpret_cast<Form*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (!form) return DefWindowProcW(window, message, wparam, lparam);
    if (message == WM_NCDESTROY) return window_destroyed(*form, window, wparam, lparam);
    if (message == destroy_message) {
        form->destroy_when_idle();
        return 0;
    }
    return form->guarded([&] { return form->handle_message(message, wparam, lparam); }, message);
}

LRESULT Form::window_destroyed(Form& form, HWND window, WPARAM wparam, LPARAM lparam) {
    // An owner that has closed destroys itself only after its last owned window has gone; tell it.
    if (const HWND owner = GetWindow(window, GW_OWNER)) PostMessageW(owner, destroy_message, 0, 0);
    SetWindowLongPtrW(window, GWLP_USERDATA, 0);
    form.forget_window();
    // The handler may destroy the form and with it the handler itself, so the handler is moved out first.
    Application& application = form.application_;
    const auto on_closed = std::move(form.on_closed);
    const LRESULT result = DefWindowProcW(window, WM_NCDESTROY, wparam, lparam);
    try {
        raise(on_closed);
    } catch (...) {
        application.faults().note_current_exception(nullptr, Occasion::Action);
    }
    return result;
}

void Form::forget_window() {
    application_.modality().forget(window_);
    application_.faults().forget(window_);
    window_ = nullptr;
}

LRESULT Form::guarded(const std::function<LRESULT()>& work, UINT message) {
    const Application::HandlerScope scope(application_, window_);
    ++handlers_running_;
    LRESULT result = 0;
    try {
        result = work();
    } catch (...) {
        application_.faults().note_current_exception(window_, occasion_of(message));
    }
    --handlers_running_;
    if (closed_ && !modal_ && handlers_running_ == 0 && window_) PostMessageW(window_, destroy_message, 0, 0);
    return result;
}

void Form::destroy_when_idle() {
    if (!closed_ || modal_ || handlers_running_ > 0 || !window_) return;
    bool owns_forms = true;
    try {
        owns_forms = !owned_forms().empty();
    } catch (...) {
        application_.faults().note_current_exception(window_, Occasion::Repeating);
    }
    // DestroyWindow destroys owned windows first, and a handler of one of those may be running.
    if (!owns_forms) DestroyWindow(window_);
}

std::vector<Form*> Form::owned_forms() const {
    std::vector<Form*> forms;
    for (const HWND window : thread_windows()) {
        if (GetWindow(window, GW_OWNER) != window_) continue;
        if (Form* form = Form::from(window)) forms.push_back(form);
    }
    return forms;
}

LRESULT Form::handle_message(UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case WM_CLOSE:
            close();
            return 0;
        case WM_SYSCOMMAND:
            // Wine: after a minimised window was moved by keyboard, its menu opens, even if the window has closed.
            if (closed_) return 0;
            // Windows takes the focus away from a window that is being minimised before it sends WM_ACTIVATE.
            if ((wparam & system_command_mask) == SC_MINIMIZE) internals_.keyboard.remember_focus();
            break;
        case WM_DESTROY:
            // MenuBar owns the menu bar; Windows would destroy an attached one with the window.
            SetMenu(window_, nullptr);
            break;
        case WM_ENDSESSION:
            if (wparam) close();
            return 0;
        case WM_SIZE:
            size_changed(wparam);
            if (shown_ && !closed_ && !resolution_changing_) resized();
            return 0;
        case WM_GETMINMAXINFO:
            limit_size(*reinterpret_cast<MINMAXINFO*>(lparam));
            return 0;
        case WM_GETDPISCALEDSIZE:
            return scale_size(static_cast<int>(wparam), *reinterpret_cast<SIZE*>(lparam));
        case WM_DPICHANGED:
            resolution_changed(HIWORD(wparam), *reinterpret_cast<const RECT*>(lparam));
            return 0;
        case WM_TIMER:
            handle_timer(wparam);
            return 0;
        case WM_COMMAND:
            if (!lparam && internals_.commands.pick(LOWORD(wparam))) return 0;
            break;
        case WM_INITMENUPOPUP:
            internals_.commands.raise_opening(reinterpret_cast<HMENU>(wparam));
            return 0;
        case WM_ACTIVATE:
            if (LOWORD(wparam) == WA_INACTIVE) internals_.keyboard.remember_focus();
            break;
        case WM_NEXTDLGCTL:
            // For an access key, Windows asks to focus the caption, and then the control after it.
            if (LOWORD(lparam)) {
                SetFocus(reinterpret_cast<HWND>(wparam));
            } else {
                internals_.keyboard.move_focus(wparam != 0);
            }
            return 0;
        case WM_SETFOCUS:
            internals_.keyboard.restore_focus();
            return 0;
        case WM_SETCURSOR:
            if (handle_set_cursor(LOWORD(lparam), HIWORD(lparam))) return TRUE;
            break;
    }
    if (const auto result = handle_container_message(message, wparam, lparam)) return *result;
    return DefWindowProcW(window_, message, wparam, lparam);
}

bool Form::handle_set_cursor(WORD hit_test, WORD mouse_message) {
    // The user has clicked a disabled window; the dialog for which the window waits may be hidden behind it.
    if (hit_test == static_cast<WORD>(HTERROR) && is_button_press(mouse_message)) {
        beep();
        bring_to_foreground();
        return true;
    }
    if (pointer_ != PointerShape::Hourglass) return false;
    SetCursor(LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_WAIT)));
    return true;
}

void Form::handle_timer(UINT_PTR id) {
    const auto& timers = internals_.timers;
    const auto timer = std::find(timers.begin(), timers.end(), reinterpret_cast<Timer*>(id));
    if (timer != timers.end() && !closed_) (*timer)->tick();
}

void Form::load() {
    load_begun_ = true;
    loading_ = true;
    guarded([this] {
        raise(on_load);
        return LRESULT{};
    });
    loading_ = false;
}

void Form::show() {
    if (!load_begun_) {
        load();
        if (closed_) return;
        DrawMenuBar(window_);
        place_on_screen();
    }
    // `resized` resets `state_` to Normal, because the window is neither minimised nor maximised yet.
    const WindowState state = state_;
    if (!shown_) {
        shown_ = true;
        // Shows or hides focus rectangles and underlined access keys, depending on the user's settings and last input.
        SendMessageW(window_, WM_CHANGEUISTATE, MAKEWPARAM(UIS_INITIALIZE, 0), 0);
        resized();
    }
    constexpr int commands[] = {SW_SHOWNORMAL, SW_SHOWMINIMIZED, SW_SHOWMAXIMIZED};
    ShowWindow(window_, IsWindowVisible(window_) ? SW_SHOW : commands[static_cast<int>(state)]);
    if (state != WindowState::Minimised) bring_to_foreground();
}

void Form::set_owner(const Form& owner) {
    SetWindowLongPtrW(window_, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(owner.window()));
}

void Form::show_modal(Form* owner) {
    modal_ = true;
    if (owner) set_owner(*owner);
    HWND opener = application_.handling_window();
    if (owner) opener = owner->window_;
    application_.modality().let_through(window_);
    {
        ModalScope modal(application_, window_);
        show();
        application_.run_until([this] { return closed_; });
    }
    if (Form* next = Form::from(opener)) next->bring_to_foreground();
    if (window_) DestroyWindow(window_);
}

void Form::close() {
    if (std::exchange(closed_, true)) return;
    leave_system_loops(window_);
    for (Form* form : owned_forms()) form->close();
    // A session can end while `on_load` shows a message. Settings that have not been read yet must not be saved.
    if (!loading_) {
        guarded([this] {
            raise(on_unload);
            return LRESULT{};
        });
    }
    for (Timer* timer : internals_.timers) timer->set_enabled(false);
    // A dialog stays visible until `show_modal` has enabled its owner, or Windows would activate another program.
    if (!modal_) ShowWindow(window_, SW_HIDE);
    PostMessageW(window_, destroy_message, 0, 0);
}

void Form::set_caption(std::wstring caption) {
    if (caption == caption_) return;
    caption_ = std::move(caption);
    SetWindowTextW(window_, caption_.c_str());
}

WindowState Form::window_state() const {
    if (!shown_) return state_;
    if (IsIconic(window_)) return WindowState::Minimised;
    if (IsZoomed(window_)) return WindowState::Maximised;
    return WindowState::Normal;
}

void Form::set_window_state(WindowState state) {
    state_ = state;
    if (!shown_) return;
    constexpr int commands[] = {SW_RESTORE, SW_MINIMIZE, SW_MAXIMIZE};
    ShowWindow(window_, commands[static_cast<int>(state)]);
}

void Form::resized() {
    state_ = window_state();
    raise(on_resize);
}

void Form::resolution_changed(int window_dpi, const RECT& suggested) {
    set_dpi(application_.forced_dpi() ? application_.forced_dpi() : window_dpi);
    internals_.tool_tips.fit_resolution(dpi());
    items_resolution_changed();
    resolution_changing_ = true;
    place_for_resolution(suggested);
    resolution_changing_ = false;
    // A minimised window has nothing to lay out, and its on_resize would act as if it had just been minimised.
    if (shown_ && !IsIconic(window_)) resized();
}

void Form::set_mouse_pointer(PointerShape shape) {
    pointer_ = shape;
    SetCursor(LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(shape == PointerShape::Hourglass ? IDC_WAIT : IDC_ARROW)));
}

void Form::drag_by(MouseEvents& surface) {
    surface.on_mouse_down = [this](const MouseEvent& event) {
        if (event.button == MouseButton::Left) drag();
    };
}

void Form::drag() {
    ReleaseCapture();
    SendMessageW(window_, WM_NCLBUTTONDOWN, HTCAPTION, 0);
}

void Form::bring_to_foreground() {
    if (IsWindowEnabled(window_)) {
        SetForegroundWindow(window_);
    } else {
        application_.modality().bring_usable_to_front();
    }
}

void Form::paint_changes() {
    RedrawWindow(window_, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

}  // namespace quillomat
