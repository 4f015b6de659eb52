#pragma once

#include <functional>
#include <memory>

#include "win/api.h"

namespace quillomat {

/// Runs a function on a thread of its own. If the function crashes, only the thread ends, not the program.
class Worker {
  public:
    /// Starts the thread. Throws `Error` with OutOfMemory if Windows cannot create it.
    explicit Worker(std::function<void()> work);
    /// Waits for the thread to end, unless it was left alone.
    ~Worker();
    Worker(const Worker&) = delete;
    Worker& operator=(const Worker&) = delete;

    /// A handle that is signalled when the thread has ended.
    HANDLE thread() const { return thread_; }
    /// Lets the thread run on alone; the destructor no longer waits for it.
    void leave_alone() { left_alone_ = true; }
    /// Waits for the thread to end. Rethrows the exception that left the function. Throws `Error` with Crashed if the
    /// function has crashed.
    void join() const;

  private:
    struct Task;
    static unsigned __stdcall run(void* passed);

    std::shared_ptr<Task> task_;
    HANDLE thread_;
    bool left_alone_ = false;
};

}  // namespace quillomat
