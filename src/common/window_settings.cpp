#include "common/window_settings.h"

#include <algorithm>
#include <limits>

#include "forms/form.h"
#include "text/rounding.h"

namespace quillomat {
namespace {

WindowState window_state_of(std::int32_t stored) {
    switch (stored) {
        case 1:
            return WindowState::Minimised;
        case 2:
            return WindowState::Maximised;
        default:
            return WindowState::Normal;
    }
}

// Settings hold sizes of 16 bits; a window on a very large screen can be larger.
std::int16_t stored_size(double twips) {
    return static_cast<std::int16_t>(
        round_half_even(std::min<double>(twips, std::numeric_limits<std::int16_t>::max())));
}

}  // namespace

void restore_window_state(Form& form, const Settings& settings, const WindowKeys& keys) {
    form.set_window_state(window_state_of(settings.read(keys.state)));
}

void restore_window_size(Form& form, const Settings& settings, const WindowKeys& keys) {
    form.set_size(settings.read(keys.width), settings.read(keys.height));
}

void store_window(const Form& form, const Settings& settings, const WindowKeys& keys) {
    settings.write(keys.state, static_cast<std::int32_t>(form.window_state()));
    if (form.window_state() != WindowState::Normal) return;
    settings.write(keys.written_height, stored_size(form.height()));
    settings.write(keys.width, stored_size(form.width()));
}

}  // namespace quillomat
