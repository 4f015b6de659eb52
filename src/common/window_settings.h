#pragma once

#include "common/settings.h"
#include "text/window_size.h"

namespace quillomat {

class Form;

/// The keys under which the state and the outer size of a window are stored.
struct WindowKeys {
    Setting<std::int32_t> state;
    Setting<std::int16_t> width;  ///< in twips, like the height
    Setting<std::int16_t> height;
    /// Where the height is stored; not every window reads it from there.
    SettingKey<std::int16_t> written_height;
};

/// Gives a window its stored state. Before the window is shown, that is the state in which it opens.
void restore_window_state(Form& form, const Settings& settings, const WindowKeys& keys);
/// Gives a window its stored size, but none below `minimum`.
void restore_window_size(Form& form, const Settings& settings, const WindowKeys& keys, const WindowSize& minimum);
/// Stores the state of a window, and its size if the state is normal. Throws `Error` if the system refuses.
void store_window(const Form& form, const Settings& settings, const WindowKeys& keys);

}  // namespace quillomat
