#include "soak/scene.h"

#include <algorithm>
#include <span>
#include <string_view>

namespace quillomat::soak {
namespace {

// Windows that all others wait for.
constexpr std::wstring_view modal_classes[] = {message_box_class, L"frmAddNew",     L"frmSave",
                                               L"frmMailCheats",  L"frmPrintGames", L"frmAbout",
                                               L"Dialog1",        L"frmWait",       L"frmStatus"};
// Menus and drop-down lists, which belong to the window they were opened from.
constexpr std::wstring_view popup_classes[] = {L"#32768", L"ComboLBox"};

bool is_one_of(HWND window, std::span<const std::wstring_view> classes) {
    return std::ranges::find(classes, class_of(window)) != classes.end();
}

void add_controls(HWND parent, std::vector<HWND>& controls) {
    for (HWND child = GetWindow(parent, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        if (!IsWindowVisible(child)) continue;
        const std::size_t before = controls.size();
        add_controls(child, controls);
        if (controls.size() == before) controls.push_back(child);
    }
}

}  // namespace

Scene::Scene(DWORD process) : process_(process), windows_(visible_windows()) {
    std::erase_if(windows_, [&](HWND window) { return !is_own(window) || class_of(window) == L"tooltips_class32"; });
}

bool Scene::is_own(HWND window) const {
    return window && process_of(window) == process_;
}

HWND Scene::menu() const {
    const auto menu = std::ranges::find_if(windows_, [](HWND window) { return class_of(window) == L"#32768"; });
    if (menu == windows_.end()) return nullptr;
    return *menu;
}

HWND Scene::topmost() const {
    const auto window = std::ranges::find_if(windows_, [](HWND it) { return IsWindowEnabled(it); });
    if (window == windows_.end()) return nullptr;
    return *window;
}

std::string narrow(std::wstring text) {
    std::erase_if(text, [](wchar_t character) { return character < L' '; });
    return {text.begin(), text.end()};
}

std::string Scene::input_fault() const {
    const auto is_usable = [](HWND window) { return IsWindowEnabled(window) != FALSE; };
    const auto is_modal = [](HWND window) { return is_one_of(window, modal_classes); };
    std::vector<HWND> windows = windows_;
    std::erase_if(windows, [](HWND window) { return is_one_of(window, popup_classes); });
    // Wine: the system menu opens a box about Wine, which disables only its owner.
    if (std::ranges::any_of(windows, [](HWND window) { return text_of(window).starts_with(L"About Wine"); })) return {};
    const bool has_modal = std::ranges::any_of(windows, is_modal);
    // Usable windows first; both parts keep their order from front to back.
    const auto unusable = std::ranges::stable_partition(windows, is_usable);
    const std::span usable(windows.begin(), unusable.begin());
    const HWND foreground = GetForegroundWindow();
    bool right = !is_own(foreground) || is_usable(foreground);
    if (has_modal) {
        right = right && usable.size() == 1 && is_modal(usable.front());
    } else {
        right = right && unusable.empty();
    }
    if (right) return {};
    std::string text = "these windows take input:";
    for (const HWND window : usable) text.append(" ").append(narrow(class_of(window)));
    text += ", and these do not:";
    for (const HWND window : unusable) text.append(" ").append(narrow(class_of(window)));
    return text.append(", in front: ").append(narrow(class_of(foreground) + L" " + message_of(foreground)));
}

std::vector<HWND> controls_of(HWND window) {
    std::vector<HWND> controls;
    add_controls(window, controls);
    return controls;
}

void close_strangers(DWORD process) {
    const DWORD desktop = process_of(GetDesktopWindow());
    const DWORD shell = process_of(GetShellWindow());
    for (const HWND window : visible_windows()) {
        const DWORD owner = process_of(window);
        if (owner == process || owner == desktop || owner == shell || owner == GetCurrentProcessId()) continue;
        PostMessageW(window, WM_CLOSE, 0, 0);
    }
}

}  // namespace quillomat::soak
