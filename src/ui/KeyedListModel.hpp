#pragma once

#include <QAbstractListModel>
#include <QString>
#include <QStringList>
#include <QVariantMap>
#include <QtQml/qqmlregistration.h>

#include <vector>

namespace kestrelfen {

/// A list for a view. A row that stays keeps its item on the screen, and of that only what has changed is
/// told, so that a click or the keyboard in it are not lost. Main thread only.
class KeyedListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to the model of a view")

  public:
    struct Row {
        /// Tells one row from another.
        QString key;
        /// By role.
        QVariantMap values;
    };

    explicit KeyedListModel(const QStringList& roles, QObject* parent = nullptr);

    /// Takes over `rows`, each with a key of its own.
    void assign(std::vector<Row> rows);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

  private:
    bool keepsOrder(const std::vector<Row>& rows) const;
    void removeGone(const std::vector<Row>& rows);
    void change(int row, const QVariantMap& values);

    QStringList roles_;
    std::vector<Row> rows_;
};

} // namespace kestrelfen
