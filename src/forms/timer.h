#pragma once

#include <functional>

namespace quillomat {

class Form;

/// Raises an event again and again while it is enabled. It ends with its form.
class Timer {
  public:
    /// Whether a timer ticks.
    enum class State { Disabled, Enabled };

    /// The form must outlive the timer.
    Timer(Form& form, int milliseconds, State state = State::Enabled);
    ~Timer();
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;

    /// The time has passed once more.
    std::function<void()> on_timer;

    bool enabled() const { return enabled_; }
    void set_enabled(bool enabled);
    /// The time between two events; the present one begins anew.
    void set_interval(int milliseconds);

    /// Raises the event, unless its handler is still running below a dialog; for the toolkit.
    void tick();

  private:
    void start();
    void stop();

    Form& form_;
    int milliseconds_;
    bool enabled_;
    bool running_ = false;
};

}  // namespace quillomat
