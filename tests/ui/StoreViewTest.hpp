#pragma once

#include "ContentTest.hpp"
#include "store/KestrelfenStore.hpp"
#include "support/TemporaryFolder.hpp"

namespace kestrelfen {

/// A test of a view over a real store, in a folder of the test's own.
class StoreViewTest : public ContentTest {
  protected:
    StoreViewTest();

    /// Opens the store anew, over the same file.
    void openStore();

    /// Runs the main queue and the store's jobs until both are empty.
    void settleAll();

    /// Makes each operation of the store fail from now on, or no longer.
    void setFailing(bool failing) { failing_ = failing; }

    std::int64_t addTask(const std::string& title);
    void finish(std::int64_t task);
    /// The active task's identifier as it is kept.
    std::optional<std::int64_t> chosen() const;
    std::vector<TaskSummary> storedTasks();

    TemporaryFolder folder;
    std::unique_ptr<KestrelfenStore> store;

  private:
    bool failing_ = false;
};

} // namespace kestrelfen
