#pragma once

#include <functional>
#include <memory>

#include "win/api.h"

namespace quillomat {

/// Runs a work on a thread of its own. A work that crashes ends its thread, not the program.
class Worker {
  public:
    /// Starts the work. Throws `Error` with OutOfMemory if there is no room for another thread.
    explicit Worker(std::function<void()> work);
    /// Waits for the end of the work, unless it was left alone.
    ~Worker();
    Worker(const Worker&) = delete;
    Worker& operator=(const Worker&) = delete;

    /// Signalled once the work has ended.
    HANDLE thread() const { return thread_; }
    /// Lets the work go on by itself.
    void leave_alone() { left_alone_ = true; }
    /// Waits for the end of the work. Rethrows the exception that left it; throws `Error` with Crashed if it has
    /// crashed.
    void join() const;

  private:
    struct Task;
    static unsigned __stdcall run(void* task);

    std::shared_ptr<Task> task_;
    HANDLE thread_;
    bool left_alone_ = false;
};

}  // namespace quillomat
