#include "StoreViewTest.hpp"
#include "core/Settings.hpp"
#include "ui/TasksView/TaskList.hpp"

#include <functional>
#include <random>

namespace kestrelfen {
namespace {

/// What a person could expect of the list, in memory: written from the rules, not from the code.
class ExpectedTasks {
  public:
    struct Task {
        std::string title;
        std::int64_t sortIndex = 0;
        std::int64_t credits = 0;
        std::optional<Date> completedAt;

        friend bool operator==(const Task&, const Task&) = default;
    };

    std::vector<Task> tasks;
    std::optional<std::string> active;

    void add(const std::string& title) {
        std::int64_t next = 0;
        for (const Task& task : tasks) {
            next = std::max(next, task.sortIndex + 1);
        }
        tasks.push_back({.title = title, .sortIndex = next, .completedAt = {}});
    }

    void toggle(std::size_t index, Date now) {
        Task& task = tasks[index];
        task.completedAt = task.completedAt ? std::nullopt : std::optional(now);
        if (task.completedAt && active == task.title) {
            active.reset();
        }
    }

    void activate(std::size_t index) {
        const Task& task = tasks[index];
        if (!task.completedAt) {
            active = active == task.title ? std::nullopt : std::optional(task.title);
        }
    }

    void remove(std::size_t index) {
        if (active == tasks[index].title) {
            active.reset();
        }
        tasks.erase(tasks.begin() + static_cast<std::ptrdiff_t>(index));
    }

    void clear() {
        std::erase_if(tasks, [](const Task& task) { return task.completedAt.has_value(); });
    }

    void credit() {
        for (Task& task : tasks) {
            task.credits += task.title == active ? 1 : 0;
        }
    }

    /// Open ones by their place, then the latest done first.
    std::vector<Task> inOrder() const {
        std::vector<Task> sorted = tasks;
        std::sort(sorted.begin(), sorted.end(), [](const Task& one, const Task& other) {
            if (one.completedAt && other.completedAt) {
                return *one.completedAt > *other.completedAt;
            }
            return one.completedAt || other.completedAt ? !one.completedAt : one.sortIndex < other.sortIndex;
        });
        return sorted;
    }
};

class TaskListPropertyTest : public StoreViewTest, public testing::WithParamInterface<unsigned> {
  protected:
    /// As the program does at every finished work interval.
    void credit() {
        if (const auto id = chosen()) {
            store->creditBreak(*id, {});
        }
        expected_.credit();
    }

    void restart() {
        list_.reset();
        store.reset();
        create();
        openStore();
        list_ = std::make_unique<TaskList>(platform.ports(), engine(), store.get());
        list_->load();
    }

    void add() {
        const std::string title = "task " + std::to_string(++added_);
        list_->setNewTitle(" " + title + " ");
        list_->add();
        expected_.add(title);
    }

    void addBlank() {
        list_->setNewTitle("  ");
        list_->add();
    }

    /// Does something to a task that the list shows, and the same to the one that is expected.
    void withAny(const std::function<void(const TaskSummary&, std::size_t)>& action) {
        if (list_->tasks().empty()) {
            return;
        }
        const TaskSummary task = list_->tasks()[random_() % list_->tasks().size()];
        const auto found =
            std::find_if(expected_.tasks.begin(), expected_.tasks.end(),
                         [&task](const ExpectedTasks::Task& each) { return each.title == task.title; });
        ASSERT_NE(found, expected_.tasks.end()) << task.title << " is shown";
        action(task, static_cast<std::size_t>(found - expected_.tasks.begin()));
    }

    void activate() {
        withAny([this](const TaskSummary& task, std::size_t index) {
            list_->setActive(task);
            expected_.activate(index);
        });
    }

    void toggle() {
        withAny([this](const TaskSummary& task, std::size_t index) {
            list_->toggle(task);
            expected_.toggle(index, now());
        });
    }

    void remove() {
        withAny([this](const TaskSummary& task, std::size_t index) {
            list_->setPendingDeletion(task);
            list_->confirmDeletion();
            expected_.remove(index);
        });
    }

    void clear() {
        list_->setConfirmClearCompleted(true);
        list_->confirmClearing();
        expected_.clear();
    }

    void step() {
        using Step = void (TaskListPropertyTest::*)();
        using Self = TaskListPropertyTest;
        constexpr std::array<Step, 14> steps{&Self::add,      &Self::add,     &Self::add,    &Self::activate,
                                             &Self::activate, &Self::toggle,  &Self::toggle, &Self::toggle,
                                             &Self::remove,   &Self::credit,  &Self::credit, &Self::clear,
                                             &Self::restart,  &Self::addBlank};
        (this->*steps[random_() % steps.size()])();
        pass(1);
        settleAll();
        list_->load();
        settleAll();
    }

    static ExpectedTasks::Task plain(const TaskSummary& task) {
        return {task.title, task.sortIndex, task.completedBreaks, task.completedAt};
    }

    void expectAgreement() {
        const auto stored = storedTasks();
        EXPECT_EQ(list_->tasks(), stored);
        std::vector<ExpectedTasks::Task> shown;
        std::optional<std::string> active;
        for (const TaskSummary& task : stored) {
            shown.push_back(plain(task));
            active = task.id == chosen() ? std::optional(task.title) : active;
        }
        EXPECT_TRUE(shown == expected_.inOrder());
        EXPECT_EQ(active, expected_.active);
        EXPECT_EQ(list_->activeTaskID(), chosen());
        EXPECT_EQ(engine().activeTaskTitle(), expected_.active);
        EXPECT_EQ(chosen().has_value(), expected_.active.has_value());
    }

    std::mt19937 random_{GetParam()};
    int added_ = 0;
    ExpectedTasks expected_;
    std::unique_ptr<TaskList> list_;
};

TEST_P(TaskListPropertyTest, ListAndStoreAgreeAfterEveryStep) {
    restart();
    for (int count = 0; count < 60 && !HasFailure(); ++count) {
        step();
        expectAgreement();
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, TaskListPropertyTest, testing::Range(1U, 31U));

} // namespace
} // namespace kestrelfen
