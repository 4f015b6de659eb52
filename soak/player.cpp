#include "soak/player.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <vector>

namespace quillomat::soak {
namespace {

// The number of actions from one rest to the next.
constexpr unsigned period = 150;

constexpr std::wstring_view characters =
    L"abcdefghijklmnopqrstuvwxyz etaoin shrdlu ETAOIN 0123456789 .,-:;!?'\"$%&()*/<>=@_~"
    L"\u00E4\u00E9\u00DF\u20AC\u0151\u6F22\u0301";

bool confirms_exit(HWND control) {
    wchar_t caption[8]{};
    GetWindowTextW(control, caption, static_cast<int>(std::size(caption)));
    return std::wstring_view(caption) == L"&Yes" && class_of(GetParent(control)) == L"frmMain";
}

// Returns true if a click at the place may end the program. The player seldom does that, because leaks show only in a
// program that runs for long.
bool is_way_out(POINT place) {
    const HWND window = WindowFromPoint(place);
    if (class_of(window) == L"frmMain") {
        POINT inside = place;
        ScreenToClient(window, &inside);
        return inside.y < 0;
    }
    return confirms_exit(window);
}

// Returns true if the key may end the program.
bool is_way_out(const Action& action, const Scene& scene) {
    if (action.kind == Action::Kind::Key && action.value == VK_F4) return class_of(scene.topmost()) == L"frmMain";
    constexpr std::wstring_view pressing{L"\r yY"};
    return pressing.find(static_cast<wchar_t>(action.value)) != std::wstring_view::npos &&
           std::ranges::any_of(controls_of(scene.topmost()), confirms_exit);
}

constexpr WORD plain_keys[] = {VK_TAB,  VK_TAB,  VK_TAB,    VK_RETURN, VK_RETURN, VK_SPACE, VK_UP,
                               VK_DOWN, VK_DOWN, VK_LEFT,   VK_RIGHT,  VK_HOME,   VK_END,   VK_PRIOR,
                               VK_NEXT, VK_BACK, VK_DELETE, VK_F1,     VK_F10,    VK_APPS};

}  // namespace

bool Player::chance(int percent) {
    return number(1, 100) <= percent;
}

int Player::number(int first, int last) {
    return std::uniform_int_distribution<int>(first, last)(random_);
}

template <class Values>
auto Player::any(const Values& values) {
    return values[static_cast<std::size_t>(number(0, static_cast<int>(std::size(values)) - 1))];
}

Action Player::next(const Scene& scene) {
    ++count_;
    std::seed_seq numbers{seed_, count_};
    random_.seed(numbers);
    if (count_ % period == 0) return {};
    if (planned_.empty() && !scene.menu()) {
        // Windows with a menu bar stay open for much longer than windows with boxes to fill in.
        const bool has_menu_bar = scene.topmost() && GetMenu(scene.topmost());
        int percent = 15;
        if (has_menu_bar) percent = 2;
        if (has_menu_bar && chance(2)) plan_command();
        if (chance(percent)) plan_filling_in(scene);
    }
    if (!planned_.empty()) {
        const Action action = planned_.front();
        planned_.pop_front();
        return action;
    }
    Action action;
    if (chance(60) || !scene.has_keyboard()) {
        action = with_mouse(scene);
    } else {
        action = with_key(scene);
    }
    if (is_way_out(action, scene) && !chance(5)) action = {.kind = Action::Kind::Key, .value = VK_TAB};
    // Mostly as fast as possible, and sometimes slow enough for timers to tick.
    action.pause = number(0, 40);
    if (chance(10)) action.pause = number(50, 400);
    if (chance(20)) action.modifiers |= Action::Ahead;
    return action;
}

POINT Player::place_on(HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    return {number(place.left, std::max(place.left, place.right - 1)),
            number(place.top, std::max(place.top, place.bottom - 1))};
}

bool Player::aim(const Scene& scene, POINT& place) {
    for (int attempt = 0; attempt < 20; ++attempt) {
        HWND window = scene.topmost();
        if (scene.menu() && chance(80)) {
            window = scene.menu();
        } else if (!window || chance(10)) {
            if (scene.windows().empty()) return false;
            window = any(scene.windows());
        }
        if (const std::vector<HWND> controls = controls_of(window); !controls.empty() && chance(65)) {
            window = any(controls);
        }
        place = place_on(window);
        if (scene.has(place) && (!is_way_out(place) || chance(5))) return true;
    }
    return false;
}

void Player::plan_command() {
    const auto press = [this](WORD key, int times) {
        for (; times > 0; --times) {
            planned_.push_back({.kind = Action::Kind::Key, .value = key, .pause = number(0, 50)});
        }
    };
    press(VK_F10, 1);
    press(VK_RIGHT, number(0, 2));
    press(VK_DOWN, number(1, 5));
    press(VK_RETURN, 1);
}

void Player::plan_filling_in(const Scene& scene) {
    std::vector<HWND> buttons;
    const auto click = [this](HWND control) {
        planned_.push_back({.kind = Action::Kind::Click, .at = place_on(control), .pause = number(0, 20)});
    };
    for (const HWND control : controls_of(scene.topmost())) {
        if (class_of(control) == L"Button") buttons.push_back(control);
        if (class_of(control) != L"Edit") continue;
        click(control);
        for (int length = number(1, 12); length > 0; --length) {
            // Rarely a character that the files' code page lacks, because the program refuses such texts.
            const wchar_t letter = chance(98) ? any(characters.substr(0, 26)) : any(characters);
            planned_.push_back({.kind = Action::Kind::Character, .value = letter, .pause = number(0, 10)});
        }
    }
    if (planned_.empty() || buttons.empty()) return planned_.clear();
    click(any(buttons));
}

Action Player::with_mouse(const Scene& scene) {
    Action action{.kind = Action::Kind::Key, .value = VK_ESCAPE};
    if (!aim(scene, action.at)) return action;
    action.value = 0;
    const int kind = number(1, 100);
    if (kind <= 55) {
        action.kind = Action::Kind::Click;
    } else if (kind <= 65) {
        action.kind = Action::Kind::DoubleClick;
    } else if (kind <= 75) {
        action.kind = Action::Kind::RightClick;
    } else if (kind <= 82) {
        action.kind = Action::Kind::Wheel;
        action.value = number(-3, 3);
    } else if (kind <= 87) {
        action.kind = Action::Kind::Drag;
        if (!aim(scene, action.to)) action.to = action.at;
    } else {
        action.kind = Action::Kind::Move;
    }
    return action;
}

Action Player::with_access_key() {
    Action action{.kind = Action::Kind::Key, .modifiers = Action::Alt};
    const int kind = number(1, 100);
    if (kind <= 2) {
        action.value = VK_F4;
    } else if (kind <= 8) {
        action.value = VK_SPACE;
    } else if (kind <= 15) {
        action.value = VK_DOWN;
        if (chance(50)) action.value = VK_UP;
    } else {
        action.value = number('A', 'Z');
    }
    return action;
}

Action Player::with_key(const Scene& scene) {
    const int kind = number(1, 100);
    if (kind <= 25) return with_access_key();
    Action action{.kind = Action::Kind::Key};
    if (scene.menu() && chance(70)) {
        constexpr WORD keys[] = {VK_DOWN, VK_DOWN, VK_UP, VK_LEFT, VK_RIGHT, VK_RETURN, VK_ESCAPE};
        action.value = any(keys);
    } else if (kind <= 60) {
        action.kind = Action::Kind::Character;
        action.value = any(characters);
    } else if (kind <= 90) {
        action.value = any(plain_keys);
        if (chance(15)) action.modifiers = Action::Shift;
    } else if (kind <= 93) {
        action.value = VK_ESCAPE;
    } else {
        constexpr WORD keys[] = {'A', 'C', 'V', 'X', 'Z', 'Y', VK_HOME, VK_END, VK_LEFT, VK_RIGHT};
        action.value = any(keys);
        action.modifiers = Action::Control;
    }
    return action;
}

}  // namespace quillomat::soak
