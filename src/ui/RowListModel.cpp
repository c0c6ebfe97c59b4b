#include "ui/RowListModel.hpp"

#include <QSet>

#include <algorithm>

namespace kestrelfen {

void RowListModel::assign(const std::vector<Row>& rows) {
    removeGone(rows);
    for (std::size_t index = 0; index < rows.size(); ++index) {
        place(rows[index], static_cast<int>(index));
    }
}

void RowListModel::removeGone(const std::vector<Row>& rows) {
    QSet<QString> keys;
    for (const Row& row : rows) {
        keys.insert(row.key);
    }
    for (int index = static_cast<int>(rows_.size()) - 1; index >= 0; --index) {
        if (!keys.contains(rows_[static_cast<std::size_t>(index)].key)) {
            beginRemoveRows({}, index, index);
            rows_.erase(rows_.begin() + index);
            endRemoveRows();
        }
    }
}

void RowListModel::place(const Row& row, int index) {
    const auto target = rows_.begin() + index;
    const auto found =
        std::find_if(target, rows_.end(), [&row](const Row& each) { return each.key == row.key; });
    if (found == rows_.end()) {
        beginInsertRows({}, index, index);
        rows_.insert(target, row);
        endInsertRows();
        return;
    }
    if (found != target) {
        const int from = static_cast<int>(found - rows_.begin());
        beginMoveRows({}, from, from, {}, index);
        std::rotate(target, found, found + 1);
        endMoveRows();
    }
    if (*target != row) {
        *target = row;
        emit dataChanged(createIndex(index, 0), createIndex(index, 0));
    }
}

int RowListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant RowListModel::data(const QModelIndex& index, int role) const {
    return role == rowRole ? rows_.at(static_cast<std::size_t>(index.row())).value : QVariant();
}

QHash<int, QByteArray> RowListModel::roleNames() const {
    return {{rowRole, "row"}};
}

} // namespace kestrelfen
