#pragma once

#include <QAbstractListModel>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <vector>

namespace kestrelfen {

/// A row of buttons for a view. A button that stays keeps its item on the screen, so that a click that has
/// begun is not lost when its text or a neighbour changes. Main thread only.
class ControlListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to the model of a view")

  public:
    struct Row {
        /// Tells one button from another, whatever its text.
        int key = 0;
        QString text;
        QString spokenLabel;
        bool enabled = true;

        friend bool operator==(const Row&, const Row&) = default;
    };

    using QAbstractListModel::QAbstractListModel;

    /// Takes over `rows`; the keys of those that stay must keep their order.
    void assign(const std::vector<Row>& rows);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

  private:
    enum Role { keyRole = Qt::UserRole, textRole, spokenLabelRole, enabledRole };

    bool isAmong(const std::vector<Row>& rows, int key) const;
    void removeGone(const std::vector<Row>& rows);

    std::vector<Row> rows_;
};

} // namespace kestrelfen
