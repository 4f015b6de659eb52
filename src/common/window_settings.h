#pragma once

#include "common/settings.h"

namespace quillomat {

class Form;

/// The settings that hold the state and the outer size of a window.
struct WindowKeys {
    Setting<std::int32_t> state;
    Setting<std::int16_t> width;  ///< in twips, like the height
    Setting<std::int16_t> height;
    /// The setting to which the height is written, a constant of `settings`; one window reads another one.
    const SettingKey<std::int16_t>& written_height;
};

/// Sets a window to its stored state. A window that is not shown yet will open in that state.
void restore_window_state(Form& form, const Settings& settings, const WindowKeys& keys);
/// Sets a window to its stored size, but not below its minimum.
void restore_window_size(Form& form, const Settings& settings, const WindowKeys& keys);
/// Stores the state of a window, and its size if the state is normal. Throws `Error` if Windows refuses.
void store_window(const Form& form, const Settings& settings, const WindowKeys& keys);

}  // namespace quillomat
