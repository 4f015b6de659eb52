#include "forms/timer.h"

#include "forms/form.h"

namespace quillomat {

Timer::Timer(Form& form, int milliseconds, State state)
    : form_(form), milliseconds_(milliseconds), enabled_(state == State::Enabled) {
    form_.internals().timers.push_back(this);
    if (enabled_) start();
}

Timer::~Timer() {
    stop();
    std::erase(form_.internals().timers, this);
}

void Timer::start() {
    SetTimer(form_.window(), reinterpret_cast<UINT_PTR>(this), static_cast<UINT>(milliseconds_), nullptr);
}

void Timer::stop() {
    if (form_.window()) KillTimer(form_.window(), reinterpret_cast<UINT_PTR>(this));
}

void Timer::set_enabled(bool enabled) {
    if (enabled == enabled_) return;
    enabled_ = enabled;
    if (enabled) {
        start();
    } else {
        stop();
    }
}

void Timer::set_interval(int milliseconds) {
    if (milliseconds == milliseconds_) return;
    milliseconds_ = milliseconds;
    if (enabled_) start();
}

void Timer::tick() {
    // A WM_TIMER may still be in the queue when the timer is disabled.
    if (!enabled_ || running_) return;
    struct Running {
        bool& flag;
        explicit Running(bool& running) : flag(running) { running = true; }
        ~Running() { flag = false; }
    } running(running_);
    raise(on_timer);
}

}  // namespace quillomat
