#pragma once

#include <functional>
#include <memory>

#include "win/api.h"

namespace quillomat {

/// Runs a work on a thread of its own. A work that crashes ends its thread, not the program. A work that has not ended
/// when the object is destroyed goes on by itself.
class Worker {
  public:
    /// Starts the work. Throws `Error` with OutOfMemory if there is no room for another thread.
    explicit Worker(std::function<void()> work);
    ~Worker() { CloseHandle(thread_); }
    Worker(const Worker&) = delete;
    Worker& operator=(const Worker&) = delete;

    /// Signalled once the work has ended.
    HANDLE thread() const { return thread_; }
    /// To be called once the work has ended. Rethrows the exception that left the work; throws `Error` with Crashed if
    /// the work has crashed.
    void check() const;

  private:
    struct Task;
    static unsigned __stdcall run(void* task);

    std::shared_ptr<Task> task_;
    HANDLE thread_;
};

}  // namespace quillomat
