#include "ui/ControlListModel.hpp"

#include <algorithm>

namespace kestrelfen {

void ControlListModel::assign(const std::vector<Row>& rows) {
    removeGone(rows);
    for (std::size_t index = 0; index < rows.size(); ++index) {
        const int row = static_cast<int>(index);
        if (index >= rows_.size() || rows_[index].key != rows[index].key) {
            beginInsertRows(QModelIndex(), row, row);
            rows_.insert(rows_.begin() + row, rows[index]);
            endInsertRows();
        } else if (rows_[index] != rows[index]) {
            rows_[index] = rows[index];
            emit dataChanged(this->index(row), this->index(row));
        }
    }
}

bool ControlListModel::isAmong(const std::vector<Row>& rows, int key) const {
    return std::any_of(rows.begin(), rows.end(), [key](const Row& row) { return row.key == key; });
}

void ControlListModel::removeGone(const std::vector<Row>& rows) {
    for (int row = rowCount() - 1; row >= 0; --row) {
        if (!isAmong(rows, rows_[static_cast<std::size_t>(row)].key)) {
            beginRemoveRows(QModelIndex(), row, row);
            rows_.erase(rows_.begin() + row);
            endRemoveRows();
        }
    }
}

int ControlListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant ControlListModel::data(const QModelIndex& index, int role) const {
    const Row& row = rows_[static_cast<std::size_t>(index.row())];
    switch (role) {
    case keyRole:
        return row.key;
    case textRole:
        return row.text;
    case spokenLabelRole:
        return row.spokenLabel;
    case enabledRole:
        return row.enabled;
    default:
        return {};
    }
}

QHash<int, QByteArray> ControlListModel::roleNames() const {
    return {{keyRole, "key"}, {textRole, "text"}, {spokenLabelRole, "spokenLabel"}, {enabledRole, "offered"}};
}

} // namespace kestrelfen
