#pragma once

#include <deque>
#include <random>

#include "soak/action.h"
#include "soak/scene.h"

namespace quillomat::soak {

/// Thinks out what to do next, by chance. With the same seed it does the same in the same scenes: every action draws
/// its own numbers, so that one that turned out differently does not change those after it.
class Player {
  public:
    explicit Player(unsigned seed) : seed_(seed) {}

    Action next(const Scene& scene);

  private:
    bool chance(int percent);
    int number(int first, int last);
    template <class Values>
    auto any(const Values& values);

    /// A place of the screen where the program is hit; false when none was found.
    bool aim(const Scene& scene, POINT& place);
    POINT place_on(HWND window);
    /// Picks a command of the menu bar.
    void plan_command();
    /// Types something into every box of a window and presses one of its buttons: by chance alone that would never
    /// happen.
    void plan_filling_in(const Scene& scene);
    Action with_mouse(const Scene& scene);
    Action with_key(const Scene& scene);
    Action with_access_key();

    unsigned seed_;
    unsigned count_ = 0;
    std::mt19937 random_;
    std::deque<Action> planned_;
};

}  // namespace quillomat::soak
