#pragma once

#include "platform/ports/SerialExecutor.hpp"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>

namespace kestrelfen {

/// One thread that runs jobs in the order of posting. It starts with the first job. When the executor ends,
/// it runs all jobs first, those included that jobs post meanwhile.
class ThreadExecutor final : public SerialExecutor {
  public:
    ThreadExecutor() = default;
    ~ThreadExecutor() override;
    ThreadExecutor(const ThreadExecutor&) = delete;
    ThreadExecutor& operator=(const ThreadExecutor&) = delete;

    void post(std::function<void()> job) override;

  private:
    void run();
    /// Waits for a job; empty when the executor ends and none is left.
    std::function<void()> takeJob();

    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<std::function<void()>> jobs_;
    bool isEnding_ = false;
    std::thread thread_;
};

} // namespace kestrelfen
