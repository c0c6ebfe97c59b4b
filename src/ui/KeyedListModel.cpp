#include "ui/KeyedListModel.hpp"

#include <algorithm>

namespace kestrelfen {

namespace {

bool isAmong(const std::vector<KeyedListModel::Row>& rows, const QString& key) {
    return std::any_of(rows.begin(), rows.end(),
                       [&key](const KeyedListModel::Row& row) { return row.key == key; });
}

QStringList commonKeys(const std::vector<KeyedListModel::Row>& rows,
                       const std::vector<KeyedListModel::Row>& others) {
    QStringList keys;
    for (const auto& row : rows) {
        if (isAmong(others, row.key)) {
            keys.append(row.key);
        }
    }
    return keys;
}

} // namespace

KeyedListModel::KeyedListModel(const QStringList& roles, QObject* parent)
    : QAbstractListModel(parent), roles_(roles) {}

void KeyedListModel::assign(std::vector<Row> rows) {
    if (!keepsOrder(rows)) {
        beginResetModel();
        rows_ = std::move(rows);
        endResetModel();
        return;
    }
    removeGone(rows);
    for (std::size_t index = 0; index < rows.size(); ++index) {
        const int row = static_cast<int>(index);
        if (index >= rows_.size() || rows_[index].key != rows[index].key) {
            beginInsertRows(QModelIndex(), row, row);
            rows_.insert(rows_.begin() + row, rows[index]);
            endInsertRows();
        } else {
            change(row, rows[index].values);
        }
    }
}

bool KeyedListModel::keepsOrder(const std::vector<Row>& rows) const {
    return commonKeys(rows_, rows) == commonKeys(rows, rows_);
}

void KeyedListModel::removeGone(const std::vector<Row>& rows) {
    for (int row = rowCount() - 1; row >= 0; --row) {
        if (!isAmong(rows, rows_[static_cast<std::size_t>(row)].key)) {
            beginRemoveRows(QModelIndex(), row, row);
            rows_.erase(rows_.begin() + row);
            endRemoveRows();
        }
    }
}

void KeyedListModel::change(int row, const QVariantMap& values) {
    QVariantMap& present = rows_[static_cast<std::size_t>(row)].values;
    QList<int> changed;
    for (int role = 0; role < roles_.size(); ++role) {
        if (present.value(roles_.at(role)) != values.value(roles_.at(role))) {
            changed.append(Qt::UserRole + role);
        }
    }
    if (!changed.isEmpty()) {
        present = values;
        emit dataChanged(index(row), index(row), changed);
    }
}

int KeyedListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant KeyedListModel::data(const QModelIndex& index, int role) const {
    const int place = role - Qt::UserRole;
    if (place < 0 || place >= roles_.size()) {
        return {};
    }
    return rows_[static_cast<std::size_t>(index.row())].values.value(roles_.at(place));
}

QHash<int, QByteArray> KeyedListModel::roleNames() const {
    QHash<int, QByteArray> names;
    for (int role = 0; role < roles_.size(); ++role) {
        names.insert(Qt::UserRole + role, roles_.at(role).toUtf8());
    }
    return names;
}

} // namespace kestrelfen
