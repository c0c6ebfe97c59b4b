#include "platform/posix/ThreadExecutor.hpp"

#include <utility>

namespace kestrelfen {

ThreadExecutor::~ThreadExecutor() {
    {
        const std::lock_guard lock(mutex_);
        isEnding_ = true;
    }
    changed_.notify_one();
    if (thread_.joinable()) {
        thread_.join();
    }
}

void ThreadExecutor::post(std::function<void()> job) {
    {
        const std::lock_guard lock(mutex_);
        jobs_.push_back(std::move(job));
        if (!thread_.joinable()) {
            thread_ = std::thread([this] { run(); });
        }
    }
    changed_.notify_one();
}

void ThreadExecutor::run() {
    while (const std::function<void()> job = takeJob()) {
        job();
    }
}

std::function<void()> ThreadExecutor::takeJob() {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return isEnding_ || !jobs_.empty(); });
    if (jobs_.empty()) {
        return {};
    }
    std::function<void()> job = std::move(jobs_.front());
    jobs_.pop_front();
    return job;
}

} // namespace kestrelfen
