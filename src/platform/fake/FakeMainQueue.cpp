#include "platform/fake/FakeMainQueue.hpp"

#include <algorithm>

namespace kestrelfen {

void FakeMainQueue::postAfter(double seconds, std::function<void()> task) {
    delayed_.push_back({clock_.now() + seconds, std::move(task)});
}

bool FakeMainQueue::drain() {
    collectDue();
    const bool any = !tasks_.empty();
    while (!tasks_.empty()) {
        const auto task = std::move(tasks_.front());
        tasks_.pop_front();
        task();
        collectDue();
    }
    return any;
}

void FakeMainQueue::clear() {
    tasks_.clear();
    delayed_.clear();
}

void FakeMainQueue::collectDue() {
    if (delayed_.empty()) {
        return;
    }
    const Date now = clock_.now();
    const auto waiting = std::stable_partition(delayed_.begin(), delayed_.end(),
                                               [now](const Delayed& delayed) { return delayed.due <= now; });
    std::for_each(delayed_.begin(), waiting,
                  [this](Delayed& delayed) { tasks_.push_back(std::move(delayed.task)); });
    delayed_.erase(delayed_.begin(), waiting);
}

} // namespace kestrelfen
