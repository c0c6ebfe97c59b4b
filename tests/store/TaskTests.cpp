#include "store/StoreHarness.hpp"

namespace kestrelfen {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Tasks : public StoreTest {
  protected:
    TaskSummary taskNamed(const std::string& title) {
        for (const TaskSummary& task : tasks()) {
            if (task.title == title) {
                return task;
            }
        }
        throw std::logic_error("no task " + title);
    }
};

TEST_F(Tasks, aNewTaskIsAnsweredAsItIsStored) {
    const NewTask task{" Write \n", " as it is ", at("2026-04-01 00:00:00"), 3, at("09:00:00.25")};
    const auto made = createTask(task);
    ASSERT_TRUE(made.has_value());
    EXPECT_EQ(
        *made,
        (TaskSummary{1, "Write", " as it is ", at("09:00:00.25"), {}, at("2026-04-01 00:00:00"), 0, 3, 0}));
    EXPECT_THAT(tasks(), ElementsAre(*made));
}

TEST_F(Tasks, aTitleOfBlanksMakesNothing) {
    for (const char* const title : {"", "   ", "\t\r\n", "\xC2\xA0\xE3\x80\x80\xE2\x80\xA8"}) {
        EXPECT_EQ(createTask(newTask(title)), std::nullopt);
    }
    EXPECT_EQ(rowCount(), 0);
}

TEST_F(Tasks, aNegativeEstimateIsStoredAsZero) {
    NewTask task = newTask("Write");
    task.estimatedBreaks = -3;
    EXPECT_EQ(createTask(task)->estimatedBreaks, 0);
    EXPECT_EQ(tasks().front().estimatedBreaks, 0);
}

TEST_F(Tasks, indexesCountUpFromZero) {
    EXPECT_EQ(makeTask("a").sortIndex, 0);
    EXPECT_EQ(makeTask("b").sortIndex, 1);
}

TEST_F(Tasks, theIndexOfADeletedLastTaskIsGivenAgain) {
    makeTask("a");
    deleteTask(makeTask("b").id);
    EXPECT_EQ(makeTask("c").sortIndex, 1);
}

TEST_F(Tasks, theIndexOfADeletedMiddleTaskIsNotGivenAgain) {
    makeTask("a");
    const auto middle = makeTask("b");
    makeTask("c");
    deleteTask(middle.id);
    EXPECT_EQ(makeTask("d").sortIndex, 3);
}

TEST_F(Tasks, theNextIndexLooksAtDoneTasksToo) {
    setTaskCompleted(makeTask("a").id, true, at("09:00:00"));
    EXPECT_EQ(makeTask("b").sortIndex, 1);
}

TEST_F(Tasks, idsAreNeverGivenAgain) {
    makeTask("a");
    const auto highest = makeTask("b");
    deleteTask(highest.id);
    ASSERT_TRUE(open());
    EXPECT_GT(makeTask("c").id, highest.id);
    setTaskCompleted(taskNamed("c").id, true, at("09:00:00"));
    const TaskID gone = taskNamed("c").id;
    deleteCompletedTasks();
    takeLog();
    EXPECT_GT(makeTask("d").id, gone);
}

TEST_F(Tasks, openTasksComeFirstInTheirOrderThenTheLastFinished) {
    for (const char* const title : {"a", "b", "c", "d", "e"}) {
        makeTask(title);
    }
    setTaskCompleted(taskNamed("a").id, true, at("09:00:00"));
    setTaskCompleted(taskNamed("c").id, true, at("11:00:00"));
    setTaskCompleted(taskNamed("e").id, true, at("10:00:00"));
    EXPECT_THAT(taskTitles(), ElementsAre("b", "d", "c", "e", "a"));
}

TEST_F(Tasks, tasksFinishedAtOneInstantKeepTheStoredOrder) {
    for (const char* const title : {"a", "b", "c"}) {
        makeTask(title);
    }
    execute("UPDATE TaskRecord SET sortIndex = -id");
    for (const char* const title : {"c", "a", "b"}) {
        setTaskCompleted(taskNamed(title).id, true, at("09:00:00"));
    }
    EXPECT_THAT(taskTitles(), ElementsAre("a", "b", "c"));
}

TEST_F(Tasks, openTasksOfOneIndexKeepTheStoredOrder) {
    for (const char* const title : {"a", "b", "c"}) {
        makeTask(title);
    }
    execute("UPDATE TaskRecord SET sortIndex = 4");
    EXPECT_THAT(taskTitles(), ElementsAre("a", "b", "c"));
}

TEST_F(Tasks, aReopenedTaskGoesBackToItsPlaceAndKeepsItsCredits) {
    const auto first = makeTask("a");
    makeTask("b");
    creditBreak(first.id);
    setTaskCompleted(first.id, true, at("09:00:00"));
    EXPECT_EQ(taskNamed("a").completedAt, at("09:00:00"));
    EXPECT_THAT(taskTitles(), ElementsAre("b", "a"));
    setTaskCompleted(first.id, false, at("10:00:00"));
    EXPECT_THAT(taskTitles(), ElementsAre("a", "b"));
    EXPECT_EQ(taskNamed("a").completedAt, std::nullopt);
    EXPECT_EQ(taskNamed("a").completedBreaks, 1);
}

TEST_F(Tasks, creditsGoBeyondTheEstimateAndToDoneTasks) {
    NewTask task = newTask("a");
    task.estimatedBreaks = 1;
    const auto made = createTask(task).value();
    makeTask("b");
    creditBreak(made.id);
    creditBreak(made.id);
    setTaskCompleted(made.id, true, at("09:00:00"));
    creditBreak(made.id);
    EXPECT_EQ(taskNamed("a").completedBreaks, 3);
    EXPECT_EQ(taskNamed("b").completedBreaks, 0);
}

TEST_F(Tasks, whatIsDoneToADeletedTaskChangesNothingSilently) {
    const auto gone = makeTask("a");
    const auto other = makeTask("b");
    deleteTask(gone.id);
    setTaskCompleted(gone.id, true, at("09:00:00"));
    creditBreak(gone.id);
    updateTask(gone.id, {.title = "c", .notes = {}, .dueOn = {}, .estimatedBreaks = {}});
    deleteTask(gone.id);
    EXPECT_THAT(tasks(), ElementsAre(other));
}

TEST_F(Tasks, aDeletedTaskLeavesItsTitleOnPastBreaks) {
    const auto task = makeTask("Write");
    recordBreak(titled(completedBreak(at("09:00:00"), 20), task.title));
    deleteTask(task.id);
    EXPECT_EQ(history().front().taskTitle, "Write");
}

TEST_F(Tasks, doneTasksAreClearedAndOpenOnesStay) {
    for (const char* const title : {"a", "b", "c"}) {
        makeTask(title);
    }
    setTaskCompleted(taskNamed("a").id, true, at("09:00:00"));
    setTaskCompleted(taskNamed("c").id, true, at("09:00:00"));
    EXPECT_EQ(deleteCompletedTasks(), 2);
    EXPECT_THAT(takeLog(), ElementsAre("info: cleared 2 completed task(s)"));
    EXPECT_THAT(taskTitles(), ElementsAre("b"));
}

TEST_F(Tasks, clearingWithoutADoneTaskLogsZero) {
    makeTask("a");
    EXPECT_EQ(deleteCompletedTasks(), 0);
    EXPECT_THAT(takeLog(), ElementsAre("info: cleared 0 completed task(s)"));
    EXPECT_THAT(taskTitles(), ElementsAre("a"));
}

class TaskChanging : public Tasks {
  protected:
    void SetUp() override {
        Tasks::SetUp();
        NewTask task{"Write", "notes", at("2026-04-01 00:00:00"), 3, at("09:00:00")};
        made_ = createTask(task).value();
        makeTask("other");
        creditBreak(made_.id);
        made_ = tasks().front();
    }

    TaskSummary changed(const TaskChanges& changes) {
        updateTask(made_.id, changes);
        EXPECT_EQ(tasks().back().title, "other");
        return tasks().front();
    }

    TaskSummary made_;
};

TEST_F(TaskChanging, whatIsAbsentStays) {
    EXPECT_EQ(changed({}), made_);
}

TEST_F(TaskChanging, aNewTitleIsTrimmed) {
    TaskSummary expected = made_;
    expected.title = "Read";
    EXPECT_EQ(changed({.title = "  Read\n", .notes = {}, .dueOn = {}, .estimatedBreaks = {}}), expected);
}

TEST_F(TaskChanging, aTitleOfBlanksIsLeftAlone) {
    EXPECT_EQ(changed({.title = " \n", .notes = {}, .dueOn = {}, .estimatedBreaks = {}}), made_);
}

TEST_F(TaskChanging, notesAreTakenAsTheyAreEvenEmpty) {
    TaskSummary expected = made_;
    expected.notes = "";
    EXPECT_EQ(changed({.title = {}, .notes = "", .dueOn = {}, .estimatedBreaks = {}}), expected);
    expected.notes = " more ";
    EXPECT_EQ(changed({.title = {}, .notes = " more ", .dueOn = {}, .estimatedBreaks = {}}), expected);
}

TEST_F(TaskChanging, aDueDateIsMovedOrTakenAway) {
    TaskSummary expected = made_;
    expected.dueOn = at("2026-05-01 00:00:00");
    EXPECT_EQ(changed({.title = {}, .notes = {}, .dueOn = expected.dueOn, .estimatedBreaks = {}}), expected);
    expected.dueOn = std::nullopt;
    EXPECT_EQ(changed({.title = {},
                       .notes = {},
                       .dueOn = std::optional<std::optional<Date>>(std::optional<Date>()),
                       .estimatedBreaks = {}}),
              expected);
}

TEST_F(TaskChanging, aNewEstimateIsNeverNegative) {
    TaskSummary expected = made_;
    expected.estimatedBreaks = 7;
    EXPECT_EQ(changed({.title = {}, .notes = {}, .dueOn = {}, .estimatedBreaks = 7}), expected);
    expected.estimatedBreaks = 0;
    EXPECT_EQ(changed({.title = {}, .notes = {}, .dueOn = {}, .estimatedBreaks = -1}), expected);
}

class Reordering : public Tasks {
  protected:
    void SetUp() override {
        Tasks::SetUp();
        for (const char* const title : {"a", "b", "c", "d"}) {
            ids_.push_back(makeTask(title).id);
        }
    }

    std::vector<TaskID> ids_;
};

TEST_F(Reordering, theListedTasksTakeTheOrderOfTheList) {
    reorderTasks({ids_[2], ids_[0], ids_[3], ids_[1]});
    EXPECT_THAT(taskTitles(), ElementsAre("c", "a", "d", "b"));
    EXPECT_EQ(tasks().front().sortIndex, 0);
    EXPECT_EQ(tasks().back().sortIndex, 3);
    EXPECT_EQ(makeTask("e").sortIndex, 4);
}

TEST_F(Reordering, theUnlistedKeepTheirOrderBehindThem) {
    reorderTasks({ids_[3]});
    EXPECT_THAT(taskTitles(), ElementsAre("d", "a", "b", "c"));
    reorderTasks({});
    EXPECT_THAT(taskTitles(), ElementsAre("d", "a", "b", "c"));
}

TEST_F(Reordering, unknownAndRepeatedTasksArePassedOver) {
    reorderTasks({ids_[1], 4'711, ids_[1], ids_[0], -1, ids_[1]});
    EXPECT_THAT(taskTitles(), ElementsAre("b", "a", "c", "d"));
    EXPECT_EQ(number("SELECT count(DISTINCT sortIndex) FROM TaskRecord"), 4);
    EXPECT_EQ(number("SELECT max(sortIndex) FROM TaskRecord"), 3);
}

TEST_F(Reordering, anUnlistedDoneTaskComesBehindWhenItIsReopened) {
    setTaskCompleted(ids_[0], true, at("09:00:00"));
    reorderTasks({ids_[3], ids_[2]});
    EXPECT_THAT(taskTitles(), ElementsAre("d", "c", "b", "a"));
    setTaskCompleted(ids_[0], false, at("10:00:00"));
    EXPECT_THAT(taskTitles(), ElementsAre("d", "c", "a", "b"));
}

} // namespace
} // namespace kestrelfen
