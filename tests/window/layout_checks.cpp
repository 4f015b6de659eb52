#include "layout_checks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cwctype>
#include <set>
#include <string>

#include "controls/graphics.h"
#include "forms/application.h"
#include "forms/control.h"
#include "forms/form.h"
#include "support/desktop.h"
#include "win/gdi.h"

namespace quillomat {
namespace {

// A control or a painted item.
struct Piece {
    HWND parent = nullptr;
    HWND window = nullptr;  ///< null for a painted item
    std::wstring text;
    RECT area{};  ///< inside of the parent
};

std::string narrow(const std::wstring& text) {
    return {text.begin(), text.end()};
}

DWORD style_of(HWND window) {
    return static_cast<DWORD>(GetWindowLongPtrW(window, GWL_STYLE));
}

DWORD button_type(HWND window) {
    return class_of(window) == L"Button" ? style_of(window) & BS_TYPEMASK : ~0u;
}

std::string described(HWND window) {
    return narrow(class_of(window) + L" \"" + text_of(window).substr(0, 40) + L"\"");
}

RECT area_of(HWND window) {
    RECT area{};
    GetWindowRect(window, &area);
    MapWindowPoints(nullptr, GetParent(window), reinterpret_cast<POINT*>(&area), 2);
    return area;
}

// A box with a help text stands in front of other controls while the pointer is on the control that it explains.
bool is_help_box(HWND window) {
    return class_of(window) == L"Edit" && !(style_of(window) & WS_TABSTOP);
}

// The visible controls on a window and in its frames, the first made first. Names for screen readers take no room.
std::vector<HWND> controls_on(HWND window) {
    std::vector<HWND> controls;
    for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        const RECT area = area_of(child);
        const bool is_name = class_of(child) == L"Static" && IsRectEmpty(&area);
        if (!(style_of(child) & WS_VISIBLE) || is_name || is_help_box(child)) continue;
        controls.push_back(child);
        if (button_type(child) != BS_GROUPBOX) continue;
        for (const HWND inner : controls_on(child)) controls.push_back(inner);
    }
    return controls;
}

void expect_room(const std::string& item, HFONT font, const std::wstring& text, UINT format, LONG width, LONG height) {
    const MemoryCanvas canvas(nullptr);
    const Selection selected(canvas.get(), font);
    RECT needed{0, 0, width, 0};
    DrawTextW(canvas.get(), text.c_str(), -1, &needed, DT_CALCRECT | format);
    EXPECT_TRUE(needed.right <= width && needed.bottom <= height)
        << item << " is cut off: " << needed.right << " x " << needed.bottom << " in " << width << " x " << height;
}

void expect_room_for_text(HWND control, int dpi) {
    const auto font = reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0));
    const std::wstring kind = class_of(control);
    const DWORD style = style_of(control);
    RECT room{};
    GetClientRect(control, &room);
    UINT format = DT_SINGLELINE;
    std::wstring text = text_of(control);
    if (kind == L"Button") {
        // Around a caption stand the button's edge, the mark of the choice, or the ends of the frame's line.
        int used = 20;
        if (button_type(control) == BS_OWNERDRAW) used = 4;
        room.right -= MulDiv(used, dpi, 96);
    } else if (kind == L"Static") {
        if ((style & SS_TYPEMASK) != SS_LEFT) return;
        if (style & SS_ELLIPSISMASK) text = L"C:";
        format = DT_WORDBREAK | (style & SS_NOPREFIX ? DT_NOPREFIX : 0);
    } else {
        // What the user types, picks or scrolls through may be any text; a whole line of it is seen.
        if (kind == L"ListBox") room.bottom = static_cast<LONG>(SendMessageW(control, LB_GETITEMHEIGHT, 0, 0));
        if (kind == L"ComboBox") room.bottom -= 4;
        if (kind == L"Edit") SendMessageW(control, EM_GETRECT, 0, reinterpret_cast<LPARAM>(&room));
        room.bottom -= room.top;
        const bool all_in_sight = (style & ES_MULTILINE) && kind == L"Edit" && !(style & WS_VSCROLL);
        if (!all_in_sight) text = L"Ag";
        format = all_in_sight ? DT_NOPREFIX : format;
    }
    expect_room(described(control), font, text, format, room.right, room.bottom);
}

// What must neither overlap nor be cut off; shapes, lines and stripes may.
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
            const RECT& area = graphic->pixels();
            const std::wstring text = label ? label->caption() : L"image at " + std::to_wstring(area.left);
            pieces.push_back({parent, nullptr, text, area});
            if (!label) continue;
            const Font font = form.application().fonts().get(label->font(), form.dpi());
            expect_room(narrow(text), font.get(), text, DT_WORDBREAK | DT_NOPREFIX, area.right - area.left,
                        area.bottom - area.top);
        }
    }
    return pieces;
}

void expect_inside(const Piece& piece) {
    // A frame without a caption is a band of colour, which goes on beyond the edge.
    if (piece.window && piece.text.empty() && button_type(piece.window) == BS_GROUPBOX) return;
    RECT room{};
    GetClientRect(piece.parent, &room);
    const auto& [left, top, right, bottom] = piece.area;
    EXPECT_FALSE(IsRectEmpty(&piece.area)) << "\"" << narrow(piece.text) << "\" has no size";
    EXPECT_TRUE(std::min(left, top) >= 0 && right <= room.right && bottom <= room.bottom)
        << "\"" << narrow(piece.text) << "\" reaches out of its place: " << left << ", " << top << " to " << right
        << ", " << bottom << " in " << room.right << " x " << room.bottom;
}

// Adds a caption's access key to those of the captions beside it, which must not have it.
void add_access_key(const std::wstring& caption, std::set<wchar_t>& keys) {
    for (std::size_t i = caption.find(L'&'); i < caption.size() - 1; i = caption.find(L'&', i + 2)) {
        const auto key = static_cast<wchar_t>(std::towupper(caption[i + 1]));
        EXPECT_TRUE(key == L'&' || keys.insert(key).second) << "the access key of " << narrow(caption);
    }
}

void add_access_keys(HMENU menu, std::set<wchar_t>& keys) {
    for (int i = 0; i < GetMenuItemCount(menu); ++i) {
        wchar_t caption[128]{};
        GetMenuStringW(menu, static_cast<UINT>(i), caption, 128, MF_BYPOSITION);
        add_access_key(caption, keys);
        std::set<wchar_t> inner;
        if (const HMENU below = GetSubMenu(menu, i)) add_access_keys(below, inner);
    }
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

void expect_access_keys_and_names(HWND window) {
    std::set<wchar_t> keys;
    if (const HMENU bar = GetMenu(window)) add_access_keys(bar, keys);
    for (const HWND control : controls_on(window)) {
        const std::wstring kind = class_of(control);
        const bool has_prefix = kind == L"Button" || (kind == L"Static" && !(style_of(control) & SS_NOPREFIX));
        if (has_prefix) add_access_key(text_of(control), keys);
        if (kind == L"Static" || button_type(control) == BS_GROUPBOX) continue;
        // A screen reader asks for the control first. Where the control has no caption, the reader takes the text
        // right before it for the name.
        SendMessageW(control, WM_GETOBJECT, 0, OBJID_CLIENT);
        HWND name = control;
        if (kind != L"Button") name = GetWindow(control, GW_HWNDPREV);
        const bool is_named = name && !text_of(name).empty() && (name == control || class_of(name) == L"Static");
        EXPECT_TRUE(is_named) << described(control) << " has no name";
    }
}

std::vector<HWND> inputs_of(HWND window) {
    std::vector<HWND> inputs = controls_on(window);
    std::erase_if(inputs, [](HWND control) {
        const bool takes_none = button_type(control) == BS_GROUPBOX || class_of(control) == L"Static";
        const bool is_other_option =
            button_type(control) == BS_AUTORADIOBUTTON && SendMessageW(control, BM_GETCHECK, 0, 0) != BST_CHECKED;
        return takes_none || is_other_option || !IsWindowEnabled(control);
    });
    return inputs;
}

void expect_reading_order(const std::vector<HWND>& walk) {
    std::vector<std::string> steps_back;
    HWND control = walk.back();
    for (const HWND following : walk) {
        RECT area{};
        RECT next{};
        GetWindowRect(control, &area);
        GetWindowRect(following, &next);
        const bool is_back = next.top < area.bottom && next.left < area.right;
        if (is_back) steps_back.push_back(described(control) + " to " + described(following));
        control = following;
    }
    // One step leads from the last control back to the first.
    EXPECT_LE(steps_back.size(), 1u) << "Tab walks against the order of reading: "
                                     << ::testing::PrintToString(steps_back);
}

std::string forms_and_messages(BOOL taking_input, HWND except) {
    std::string windows;
    for (const HWND window : visible_windows()) {
        const bool is_message = process_of(window) == GetCurrentProcessId() && class_of(window) == message_box_class;
        const bool counts = window != except && (is_message || Form::from(window));
        if (counts && IsWindowEnabled(window) == taking_input) windows += described(window) + " ";
    }
    return windows;
}

}  // namespace quillomat
