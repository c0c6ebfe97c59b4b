#pragma once

#include <QAbstractListModel>
#include <QString>
#include <QVariantMap>
#include <QtQml/qqmlregistration.h>

#include <vector>

namespace kestrelfen {

/// The rows of a list for a view, each as one value with the role `row`. A row that stays keeps its item on
/// the screen, wherever it goes. Main thread only.
class RowListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to the model of a view")

  public:
    struct Row {
        /// Tells one row from another, whatever it holds.
        QString key;
        QVariantMap value;

        friend bool operator==(const Row&, const Row&) = default;
    };

    using QAbstractListModel::QAbstractListModel;

    void assign(const std::vector<Row>& rows);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

  private:
    enum Role { rowRole = Qt::UserRole };

    void removeGone(const std::vector<Row>& rows);
    /// Brings `row` to that place, from further down or anew.
    void place(const Row& row, int index);

    std::vector<Row> rows_;
};

} // namespace kestrelfen
