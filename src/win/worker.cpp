#include "win/worker.h"

#include <process.h>

#include <atomic>
#include <exception>
#include <utility>

#include "text/error.h"

namespace quillomat {
namespace {

// True in the thread of a worker. Windows calls the exception filter in the thread that crashed, with no argument that
// tells whose thread it is.
thread_local bool is_worker_thread = false;

// Ends only the thread if a worker has crashed.
LONG WINAPI end_crashed_worker(EXCEPTION_POINTERS*) {
    if (is_worker_thread) ExitThread(EXIT_FAILURE);
    return EXCEPTION_CONTINUE_SEARCH;
}

}  // namespace

struct Worker::Task {
    std::function<void()> work;
    std::exception_ptr failure;
    std::atomic<bool> finished = false;
};

Worker::Worker(std::function<void()> work) : task_(std::make_shared<Task>()) {
    SetUnhandledExceptionFilter(end_crashed_worker);
    task_->work = std::move(work);
    auto passed = std::make_unique<std::shared_ptr<Task>>(task_);
    thread_ = reinterpret_cast<HANDLE>(_beginthreadex(nullptr, 0, run, passed.get(), 0, nullptr));
    if (!thread_) throw Error(ErrorCode::OutOfMemory);
    static_cast<void>(passed.release());  // The thread owns it now.
}

unsigned __stdcall Worker::run(void* passed) {
    is_worker_thread = true;
    const std::unique_ptr<std::shared_ptr<Task>> owned(static_cast<std::shared_ptr<Task>*>(passed));
    Task& task = **owned;
    try {
        task.work();
    } catch (...) {
        task.failure = std::current_exception();
    }
    task.finished = true;
    return 0;
}

Worker::~Worker() {
    if (!left_alone_) WaitForSingleObject(thread_, INFINITE);
    CloseHandle(thread_);
}

void Worker::join() const {
    WaitForSingleObject(thread_, INFINITE);
    if (!task_->finished) throw Error(ErrorCode::Crashed);
    if (task_->failure) std::rethrow_exception(task_->failure);
}

}  // namespace quillomat
