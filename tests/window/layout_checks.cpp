#include "layout_checks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cwctype>
#include <map>
#include <set>
#include <string>

#include "controls/graphics.h"
#include "forms/application.h"
#include "forms/control.h"
#include "forms/form.h"
#include "support/desktop.h"

namespace quillomat {
namespace {

/// A control or a painted item.
struct Piece {
    HWND parent = nullptr;
    HWND window = nullptr;  ///< null for a painted item
    std::wstring text;
    RECT area{};  ///< inside of the parent
};

std::string narrow(const std::wstring& text) {
    return {text.begin(), text.end()};
}

std::wstring kind_of(HWND window) {
    std::wstring kind = class_of(window);
    std::transform(kind.begin(), kind.end(), kind.begin(), [](wchar_t c) { return std::towlower(c); });
    return kind;
}

DWORD style_of(HWND window) {
    return static_cast<DWORD>(GetWindowLongPtrW(window, GWL_STYLE));
}

DWORD button_type(HWND window) {
    return kind_of(window) == L"button" ? style_of(window) & BS_TYPEMASK : ~0u;
}

bool is_option(HWND window) {
    return button_type(window) == BS_AUTORADIOBUTTON;
}

std::string described(HWND window) {
    return narrow(kind_of(window) + L" \"" + text_of(window).substr(0, 40) + L"\"");
}

RECT area_of(HWND window) {
    RECT area{};
    GetWindowRect(window, &area);
    MapWindowPoints(nullptr, GetParent(window), reinterpret_cast<POINT*>(&area), 2);
    return area;
}

/// A box with a help text stands in front of other controls while the pointer is on the control that it explains.
bool is_help_box(HWND window) {
    return kind_of(window) == L"edit" && !(style_of(window) & WS_TABSTOP);
}

/// The visible controls on a window and in its frames, the first made first. Names for screen readers take no room.
std::vector<HWND> controls_on(HWND window) {
    std::vector<HWND> controls;
    for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        const RECT area = area_of(child);
        const bool is_name = kind_of(child) == L"static" && IsRectEmpty(&area);
        if (!(style_of(child) & WS_VISIBLE) || is_name || is_help_box(child)) continue;
        controls.push_back(child);
        if (button_type(child) != BS_GROUPBOX) continue;
        for (const HWND inner : controls_on(child)) controls.push_back(inner);
    }
    return controls;
}

SIZE measure(HFONT font, const std::wstring& text, UINT format, int width) {
    const HDC canvas = GetDC(nullptr);
    const HGDIOBJ former = SelectObject(canvas, font);
    RECT area{0, 0, width, 0};
    DrawTextW(canvas, text.c_str(), -1, &area, DT_CALCRECT | format);
    SelectObject(canvas, former);
    ReleaseDC(nullptr, canvas);
    return {area.right, area.bottom};
}

void expect_room_for_text(HWND control, int dpi) {
    const auto font = reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0));
    const std::wstring kind = kind_of(control);
    const DWORD style = style_of(control);
    RECT room{};
    GetClientRect(control, &room);
    UINT format = DT_SINGLELINE;
    std::wstring text = text_of(control);
    if (kind == L"button") {
        // Around a caption stand the button's edge, the mark of the choice, or the ends of the frame's line.
        const std::map<DWORD, int> used{{BS_OWNERDRAW, 4}, {BS_GROUPBOX, 20}};
        const auto found = used.find(button_type(control));
        room.right -= MulDiv(found == used.end() ? 17 : found->second, dpi, 96);
    } else if (kind == L"static") {
        if ((style & SS_TYPEMASK) != SS_LEFT) return;
        const bool shortened = style & SS_ELLIPSISMASK;
        if (shortened) text = L"C:";
        format = DT_WORDBREAK | (style & SS_NOPREFIX ? DT_NOPREFIX : 0);
    } else {
        // What the user types, picks or scrolls through may be any text; a whole line of it is seen.
        if (kind == L"listbox") room.bottom = static_cast<LONG>(SendMessageW(control, LB_GETITEMHEIGHT, 0, 0));
        if (kind == L"combobox") room.bottom -= 4;
        if (kind == L"edit") SendMessageW(control, EM_GETRECT, 0, reinterpret_cast<LPARAM>(&room));
        room.bottom -= room.top;
        const bool all_in_sight = (style & ES_MULTILINE) && kind == L"edit" && !(style & WS_VSCROLL);
        if (!all_in_sight) text = L"Ag";
        format = all_in_sight ? DT_NOPREFIX : format;
    }
    const SIZE needed = measure(font, text, format, room.right);
    EXPECT_TRUE(needed.cx <= room.right && needed.cy <= room.bottom)
        << described(control) << " is cut off: " << needed.cx << " x " << needed.cy << " in " << room.right << " x "
        << room.bottom;
}

void expect_room_for_text(const Label& label, Application& application, int dpi) {
    const RECT& area = label.pixels();
    const Font font = application.fonts().get(label.font(), dpi);
    const SIZE room{area.right - area.left, area.bottom - area.top};
    const SIZE needed = measure(font.get(), label.caption(), DT_WORDBREAK | DT_NOPREFIX, room.cx);
    EXPECT_TRUE(needed.cx <= room.cx && needed.cy <= room.cy)
        << "label \"" << narrow(label.caption()) << "\" is cut off: " << needed.cx << " x " << needed.cy << " in "
        << room.cx << " x " << room.cy;
}

/// What must neither overlap nor be cut off; shapes, lines and stripes may.
std::vector<Piece> pieces_of(HWND window) {
    std::vector<Piece> pieces;
    Form& form = *Form::from(window);
    std::vector<HWND> containers{window};
    for (const HWND control : controls_on(window)) {
        pieces.push_back({GetParent(control), control, text_of(control), area_of(control)});
        if (button_type(control) == BS_GROUPBOX) containers.push_back(control);
        expect_room_for_text(control, form.dpi());
    }
    for (const HWND parent : containers) {
        const Container* container = parent == window ? &form : dynamic_cast<const Container*>(Control::from(parent));
        for (const Graphic* graphic : container->graphics()) {
            const auto* label = dynamic_cast<const Label*>(graphic);
            if (!graphic->visible() || (!label && !dynamic_cast<const Image*>(graphic))) continue;
            if (label && label->caption().empty()) continue;
            pieces.push_back({parent, nullptr,
                              label ? label->caption() : L"image at " + std::to_wstring(graphic->pixels().left),
                              graphic->pixels()});
            if (label) expect_room_for_text(*label, form.application(), form.dpi());
        }
    }
    return pieces;
}

void expect_inside(const Piece& piece) {
    // A frame without a caption is a band of colour, which goes on beyond the edge.
    if (piece.window && piece.text.empty() && button_type(piece.window) == BS_GROUPBOX) return;
    // Places and sizes are rounded to whole pixels each by itself.
    constexpr int rounding = 1;
    RECT room{};
    GetClientRect(piece.parent, &room);
    RECT inside = room;
    InflateRect(&inside, rounding, rounding);
    IntersectRect(&inside, &inside, &piece.area);
    EXPECT_TRUE(EqualRect(&inside, &piece.area))
        << "\"" << narrow(piece.text) << "\" reaches out of its place: " << piece.area.left << ", " << piece.area.top
        << " to " << piece.area.right << ", " << piece.area.bottom << " in " << room.right << " x " << room.bottom;
}

void collect_access_key(const std::wstring& caption, std::multiset<wchar_t>& keys) {
    for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
        if (caption[i] != L'&') continue;
        ++i;
        if (caption[i] != L'&') keys.insert(static_cast<wchar_t>(std::towupper(caption[i])));
    }
}

void expect_each_once(const std::multiset<wchar_t>& keys) {
    for (const wchar_t key : keys) EXPECT_EQ(keys.count(key), 1u) << "access key " << static_cast<char>(key);
}

void collect_access_keys(HMENU menu, std::multiset<wchar_t>& keys) {
    for (int i = 0; i < GetMenuItemCount(menu); ++i) {
        wchar_t caption[128]{};
        GetMenuStringW(menu, static_cast<UINT>(i), caption, 128, MF_BYPOSITION);
        collect_access_key(caption, keys);
        std::multiset<wchar_t> inner;
        if (const HMENU below = GetSubMenu(menu, i)) collect_access_keys(below, inner);
        expect_each_once(inner);
    }
}

std::vector<HWND> shown_forms_and_messages() {
    std::vector<HWND> windows = visible_windows();
    std::erase_if(windows, [](HWND window) {
        const bool is_message = process_of(window) == GetCurrentProcessId() && class_of(window) == message_box_class;
        return !is_message && !Form::from(window);
    });
    return windows;
}

}  // namespace

void expect_whole_layout(HWND window) {
    const std::vector<Piece> pieces = pieces_of(window);
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        expect_inside(pieces[i]);
        for (std::size_t j = 0; j < i; ++j) {
            // The edges of an embossed text are the same text, one pixel beside it.
            const bool embossed = !pieces[i].window && pieces[i].text == pieces[j].text;
            RECT common{};
            if (pieces[i].parent != pieces[j].parent || embossed) continue;
            EXPECT_FALSE(IntersectRect(&common, &pieces[i].area, &pieces[j].area))
                << "\"" << narrow(pieces[i].text) << "\" overlaps \"" << narrow(pieces[j].text) << "\"";
        }
    }
}

void expect_unique_access_keys(HWND window) {
    std::multiset<wchar_t> keys;
    for (const HWND control : controls_on(window)) {
        const std::wstring kind = kind_of(control);
        const bool has_prefix = kind == L"button" || (kind == L"static" && !(style_of(control) & SS_NOPREFIX));
        if (has_prefix) collect_access_key(text_of(control), keys);
    }
    if (const HMENU bar = GetMenu(window)) collect_access_keys(bar, keys);
    expect_each_once(keys);
}

std::vector<HWND> inputs_of(HWND window) {
    std::vector<HWND> inputs;
    for (const HWND control : controls_on(window)) {
        if (button_type(control) == BS_GROUPBOX || kind_of(control) == L"static" || !IsWindowEnabled(control)) continue;
        const auto same_group = [control](HWND other) {
            return is_option(other) && GetParent(other) == GetParent(control);
        };
        const auto first = std::find_if(inputs.begin(), inputs.end(), same_group);
        if (!is_option(control) || first == inputs.end()) {
            inputs.push_back(control);
        } else if (SendMessageW(control, BM_GETCHECK, 0, 0) == BST_CHECKED) {
            *first = control;
        }
    }
    return inputs;
}

void expect_spoken_names(HWND window) {
    for (const HWND control : controls_on(window)) {
        if (kind_of(control) == L"static") continue;
        // A screen reader asks for the control first. Where the control has no caption, the reader takes the text
        // right before it for the name.
        SendMessageW(control, WM_GETOBJECT, 0, OBJID_CLIENT);
        if (button_type(control) == BS_GROUPBOX) continue;
        if (kind_of(control) == L"button") {
            EXPECT_FALSE(text_of(control).empty()) << "a button without a caption";
        } else {
            const HWND before = GetWindow(control, GW_HWNDPREV);
            EXPECT_TRUE(before && kind_of(before) == L"static" && !text_of(before).empty())
                << described(control) << " has no name";
        }
    }
}

void expect_reading_order(const std::vector<HWND>& walk) {
    std::string steps_back;
    int count = 0;
    for (std::size_t i = 0; i < walk.size(); ++i) {
        const HWND control = walk[i];
        const HWND following = walk[(i + 1) % walk.size()];
        RECT area{};
        RECT next{};
        GetWindowRect(control, &area);
        GetWindowRect(following, &next);
        if (next.top >= area.bottom || next.left >= area.right) continue;
        steps_back += described(control) + " to " + described(following) + "; ";
        ++count;
    }
    // One step leads from the last control back to the first.
    EXPECT_LE(count, 1) << "Tab walks against the order of reading: " << steps_back;
}

void expect_only_one_takes_input(HWND dialog) {
    EXPECT_TRUE(IsWindowEnabled(dialog));
    for (const HWND window : shown_forms_and_messages()) {
        EXPECT_TRUE(window == dialog || !IsWindowEnabled(window))
            << described(window) << " takes input beside " << described(dialog);
    }
}

bool all_take_input() {
    const auto windows = shown_forms_and_messages();
    return std::all_of(windows.begin(), windows.end(), IsWindowEnabled);
}

}  // namespace quillomat
