#include "controls/text_box.h"

#include <algorithm>

#include "forms/application.h"
#include "forms/form.h"

namespace quillomat {
namespace {

// By default, Windows lets the user type at most 32,767 characters.
constexpr WPARAM no_limit = 0x7FFFFFFE;

// Wine: the time to break a line grows with the square of its length. It was 0.5 s for 20,000 characters and 75 s for
// 200,000.
constexpr std::size_t longest_broken_line = 20'000;

// The largest size in which the help texts fit the boxes with a given width, such as those of the viewer's image bar.
constexpr double help_points = 7.5;

DWORD style_of(TextBoxKind kind, bool breaks_lines) {
    constexpr DWORD multi_line = ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN | WS_VSCROLL | WS_TABSTOP | WS_GROUP;
    DWORD unbroken = 0;
    if (!breaks_lines) unbroken = ES_AUTOHSCROLL | WS_HSCROLL;
    switch (kind) {
        case TextBoxKind::SingleLine:
            return ES_AUTOHSCROLL | WS_TABSTOP | WS_GROUP;
        case TextBoxKind::MultiLine:
        case TextBoxKind::Writing:
            return multi_line | unbroken;
        case TextBoxKind::Reading:
            return multi_line | unbroken | ES_READONLY;
        case TextBoxKind::Note:
            return ES_MULTILINE | ES_READONLY | WS_TABSTOP | WS_GROUP;
        case TextBoxKind::Result:
            return ES_AUTOHSCROLL | ES_READONLY | WS_TABSTOP | WS_GROUP;
        case TextBoxKind::Help:
            return ES_READONLY | ES_AUTOHSCROLL | WS_BORDER;
    }
    return 0;
}

bool may_break_lines(TextBoxKind kind) {
    return kind == TextBoxKind::Reading || kind == TextBoxKind::Writing;
}

std::size_t longest_line(std::wstring_view text) {
    std::size_t longest = 0;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(L'\n'), text.size());
        longest = std::max(longest, end);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return longest;
}

}  // namespace

TextBox::TextBox(Container& container, Bounds bounds, TextBoxKind kind)
    : Control(container, bounds, L"EDIT", {}, style_of(kind, may_break_lines(kind)),
              kind == TextBoxKind::Help ? 0 : WS_EX_CLIENTEDGE),
      kind_(kind),
      breaks_lines_(may_break_lines(kind)) {
    switch (kind) {
        case TextBoxKind::Help:
            set_default_back_colour(colours::tip_background);
            set_fore_colour(colours::tip_text);
            set_font({.points = help_points});
            set_visible(false);
            break;
        case TextBoxKind::Result:
            set_default_back_colour(colours::button_face);
            break;
        default:
            set_default_back_colour(colours::window);
    }
    send(EM_SETLIMITTEXT, no_limit);
}

void TextBox::set_text(std::wstring_view text) {
    // Windows sends EN_CHANGE for SetWindowText to single-line boxes only. Every change raises one event here.
    choose_line_breaks(text);
    const std::wstring shown = displayable(text);
    program_changes_ = true;
    SetWindowTextW(window(), shown.c_str());
    program_changes_ = false;
    raise(on_change);
}

void TextBox::choose_line_breaks(std::wstring_view text) {
    if (!may_break_lines(kind_)) return;
    const bool breaks_lines = longest_line(text) <= longest_broken_line;
    if (breaks_lines == breaks_lines_) return;
    breaks_lines_ = breaks_lines;
    recreate(style_of(kind_, breaks_lines));
    send(EM_SETLIMITTEXT, no_limit);
}

std::size_t TextBox::selection_start() const {
    DWORD start = 0;
    send(EM_GETSEL, reinterpret_cast<WPARAM>(&start), 0);
    return start;
}

std::size_t TextBox::selection_length() const {
    DWORD start = 0;
    DWORD end = 0;
    send(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    return end - start;
}

std::wstring TextBox::selected_text() const {
    const std::size_t start = selection_start();
    const std::size_t length = selection_length();
    if (length == 0) return {};
    return text().substr(start, length);
}

void TextBox::select(std::size_t start, std::size_t length) {
    send(EM_SETSEL, start, static_cast<LPARAM>(start + length));
    send(EM_SCROLLCARET);
}

void TextBox::fit_width_to_text() {
    RECT area{};
    GetWindowRect(window(), &area);
    RECT inside{};
    send(EM_GETRECT, 0, reinterpret_cast<LPARAM>(&inside));
    const LONG frame = (area.right - area.left) - (inside.right - inside.left);
    // One more pixel, or the box scrolls to make room for the caret.
    const LONG text_width = text_extent(form().application().fonts().get(font(), dpi()).get(), text()).cx + 1;
    set_width(to_twips(text_width + frame, dpi()));
}

void TextBox::notified(WORD code) {
    if (code == EN_CHANGE && !program_changes_) raise(on_change);
}

LRESULT TextBox::handle_message(UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case WM_LBUTTONUP: {
            const LRESULT result = Control::handle_message(message, wparam, lparam);
            raise(on_click);
            return result;
        }
        case WM_LBUTTONDBLCLK: {
            const LRESULT result = default_message(message, wparam, lparam);
            raise(on_double_click);
            return result;
        }
        case WM_CHAR:
            // Enter and Escape were handled as key presses. A single-line box would beep for their characters.
            if ((wparam == keys::enter || wparam == keys::escape) && kind_ != TextBoxKind::MultiLine &&
                kind_ != TextBoxKind::Writing) {
                CharacterEvent event{.character = static_cast<wchar_t>(wparam)};
                raise(on_key_press, event);
                return 0;
            }
            break;
        case WM_GETDLGCODE: {
            // Hide the message from the box: a multi-line box that sees Escape here closes its parent like a dialog.
            LRESULT wanted = default_message(message, wparam, 0);
            if (kind_ == TextBoxKind::Reading || kind_ == TextBoxKind::Note) wanted &= ~DLGC_WANTALLKEYS;
            return wanted;
        }
    }
    return Control::handle_message(message, wparam, lparam);
}

}  // namespace quillomat
