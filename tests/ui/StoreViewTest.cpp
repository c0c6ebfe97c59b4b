#include "StoreViewTest.hpp"

#include "core/Settings.hpp"

namespace kestrelfen {

StoreViewTest::StoreViewTest() {
    openStore();
}

void StoreViewTest::openStore() {
    const auto mayFail = [this] {
        if (failing_) {
            throw std::runtime_error("no disk");
        }
    };
    store = KestrelfenStore::make({folder / "Kestrelfen.sqlite", {}, mayFail},
                                  {platform.storeExecutor, platform.mainQueue, platform.log});
}

void StoreViewTest::settleAll() {
    while (platform.mainQueue.drain() || platform.storeExecutor.drain()) {
    }
}

std::int64_t StoreViewTest::addTask(const std::string& title) {
    std::int64_t id = 0;
    store->createTask({.title = title, .notes = {}, .dueOn = {}, .now = now()},
                      [&id](const std::optional<TaskSummary>& task) { id = task.value().id; });
    settleAll();
    return id;
}

void StoreViewTest::finish(std::int64_t task) {
    store->setTaskCompleted(task, true, now(), {});
    settleAll();
}

std::optional<std::int64_t> StoreViewTest::chosen() const {
    return Settings::activeTaskID(platform.preferences);
}

std::vector<TaskSummary> StoreViewTest::storedTasks() {
    std::vector<TaskSummary> result;
    store->tasks([&result](std::vector<TaskSummary> tasks) { result = std::move(tasks); });
    settleAll();
    return result;
}

} // namespace kestrelfen
