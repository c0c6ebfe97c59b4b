#include "ui/TasksView/TasksModel.hpp"

#include "core/BreakEngine.hpp"
#include "ui/ShownText.hpp"

#include <algorithm>

namespace kestrelfen {

namespace {

QString textOf(std::string_view original) {
    return shownText(std::string_view(translated(original)));
}

QVariantMap objectOf(const TaskRow& row) {
    return {{"id", QVariant::fromValue<qint64>(row.id)},
            {"title", QString::fromStdString(row.title)},
            {"isCompleted", row.isCompleted},
            {"isActive", row.isActive},
            {"opacity", row.opacity},
            {"canBeChosen", row.canBeChosen},
            {"hasActiveBadge", row.hasActiveBadge},
            {"credits", row.credits ? QString::fromStdString(*row.credits) : QString()},
            {"activeItem", shownText(row.activeItem)},
            {"completedItem", shownText(std::string_view(row.completedItem))}};
}

QVariantMap entry(const char* value, const QVariant& label) {
    return {{"value", QString::fromLatin1(value)}, {"label", label}};
}

} // namespace

TasksModel::TasksModel(const Platform& platform, BreakEngine& engine, KestrelfenStore* store)
    : engine_(engine), list_(platform, engine, store), follower_(platform.mainQueue, [this] { follow(); }) {
    follower_.keep(engine_.observe(follower_.listener()));
    follower_.keep(list_.observe(follower_.listener()));
    refresh();
}

QVariantMap TasksModel::texts() const {
    return {{"prompt", textOf(TasksContent::prompt)},       {"emptyTitle", textOf(TasksContent::emptyTitle)},
            {"emptyText", textOf(TasksContent::emptyText)}, {"clear", textOf(TasksContent::clearItem)},
            {"purpose", textOf(TasksContent::purpose)},     {"grip", textOf(TaskRow::gripTip)},
            {"badge", textOf(TaskRow::activeBadge)},        {"message", textOf(TaskQuestion::message)},
            {"confirm", textOf(TaskQuestion::confirm)},     {"cancel", textOf(TaskQuestion::cancel)}};
}

QString TasksModel::deleteQuestion() const {
    return content_.deleteQuestion ? QString::fromStdString(content_.deleteQuestion->title) : QString();
}

QString TasksModel::clearQuestion() const {
    return content_.clearQuestion ? QString::fromStdString(content_.clearQuestion->title) : QString();
}

void TasksModel::show() {
    isShown_ = true;
    loadedAt_ = engine_.breaksCompletedToday();
    list_.load();
    refresh();
}

void TasksModel::activate(qint64 task) {
    withTask(task, &TaskList::setActive);
}

void TasksModel::toggle(qint64 task) {
    withTask(task, &TaskList::toggle);
}

void TasksModel::askDeletion(qint64 task) {
    const auto& tasks = list_.tasks();
    const auto found =
        std::find_if(tasks.begin(), tasks.end(), [task](const TaskSummary& each) { return each.id == task; });
    if (found != tasks.end()) {
        list_.setPendingDeletion(*found);
    }
}

void TasksModel::cancelQuestion() {
    list_.setPendingDeletion(std::nullopt);
    list_.setConfirmClearCompleted(false);
}

QVariantList TasksModel::menuEntries(const QVariantMap& row) const {
    QVariantList entries;
    if (!row["activeItem"].toString().isEmpty()) {
        entries.append(entry("activate", row["activeItem"]));
    }
    entries.append(entry("toggle", row["completedItem"]));
    entries.append(QVariantMap{{"separator", true}});
    QVariantMap deletion = entry("delete", textOf(TaskRow::deleteItem));
    deletion["destructive"] = true;
    entries.append(deletion);
    return entries;
}

void TasksModel::take(const QString& entry, qint64 task) {
    if (entry == QLatin1String("activate")) {
        activate(task);
    } else if (entry == QLatin1String("toggle")) {
        toggle(task);
    } else if (entry == QLatin1String("delete")) {
        askDeletion(task);
    }
}

void TasksModel::withTask(qint64 id, Action action) {
    const auto& tasks = list_.tasks();
    const auto found =
        std::find_if(tasks.begin(), tasks.end(), [id](const TaskSummary& each) { return each.id == id; });
    if (found != tasks.end()) {
        (list_.*action)(TaskSummary(*found));
    }
}

void TasksModel::follow() {
    if (!isShown_) {
        return;
    }
    if (loadedAt_ != engine_.breaksCompletedToday()) {
        loadedAt_ = engine_.breaksCompletedToday();
        follower_.defer([this] { list_.load(); });
    }
    refresh();
}

void TasksModel::refresh() {
    content_ = TasksContent::of(list_);
    showRows();
    emit contentChanged();
}

void TasksModel::showRows() {
    std::vector<RowListModel::Row> rows;
    for (const TaskRow& row : content_.rows) {
        rows.push_back({QString::number(row.id), objectOf(row)});
    }
    rows_.assign(rows);
}

} // namespace kestrelfen
