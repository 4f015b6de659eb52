#pragma once

#include <deque>
#include <random>

#include "soak/action.h"
#include "soak/scene.h"

namespace quillomat::soak {

/// Chooses the next action at random. The same seed gives the same actions in the same scenes. Each action has its own
/// random numbers, so that an action that turns out differently does not change all later ones.
class Player {
  public:
    explicit Player(unsigned seed) : seed_(seed) {}

    Action next(const Scene& scene);

  private:
    bool chance(int percent);
    int number(int first, int last);
    template <class Values>
    auto any(const Values& values);

    /// Finds a place on the screen that belongs to the program. Returns false if there is none.
    bool aim(const Scene& scene, POINT& place);
    POINT place_on(HWND window);
    /// Plans the keys that pick a command of the menu bar.
    void plan_command();
    /// Plans to type into every text box of a window and to press one of its buttons. By chance that would never
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
