#pragma once

#include <chrono>
#include <functional>

#include "win/api.h"

namespace quillomat {

/// Checks the condition until it holds, calling `between` after each miss; returns false if `patience` runs out.
inline bool wait_until(
    const std::function<bool()>& condition, std::chrono::milliseconds patience = std::chrono::minutes{1},
    const std::function<void()>& between = [] { Sleep(10); }) {
    const auto deadline = std::chrono::steady_clock::now() + patience;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > deadline) return false;
        between();
    }
    return true;
}

}  // namespace quillomat
