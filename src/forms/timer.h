#pragma once

#include <functional>

namespace quillomat {

class Form;

/// Raises an event at a fixed interval while enabled. A closing form disables its timers.
class Timer {
  public:
    /// The initial state of a timer.
    enum class State { Disabled, Enabled };

    /// `form` must outlive the timer.
    Timer(Form& form, int milliseconds, State state = State::Enabled);
    ~Timer();
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;

    /// The interval has passed.
    std::function<void()> on_timer;

    bool enabled() const { return enabled_; }
    void set_enabled(bool enabled);
    /// Sets the interval. If the value is a new one, a running interval starts again.
    void set_interval(int milliseconds);

    /// Raises the event unless the timer is disabled or its handler is still running, e.g. below a dialog. For the
    /// toolkit.
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
