#include "soak/scene.h"

#include <algorithm>

namespace quillomat::soak {
namespace {

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
    return menu == windows_.end() ? nullptr : *menu;
}

HWND Scene::topmost() const {
    const auto window = std::ranges::find_if(windows_, [](HWND it) { return IsWindowEnabled(it); });
    return window == windows_.end() ? nullptr : *window;
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
