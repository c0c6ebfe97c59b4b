#pragma once

#include "ui/GlassComponents/PictureItem.hpp"

#include <QColor>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace kestrelfen {

/// A symbol of the drawn set beside text of `size`: its box is somewhat larger, as letters do not fill
/// theirs. A name that the set lacks shows nothing. Main thread only.
class Symbol : public kestrelfen::PictureItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString name MEMBER name_ WRITE setName NOTIFY lookChanged)
    Q_PROPERTY(double size MEMBER size_ WRITE setPointSize NOTIFY lookChanged)
    Q_PROPERTY(QColor tint MEMBER tint_ WRITE setTint NOTIFY lookChanged)
    /// As of a font: a heavier symbol has a thicker stroke.
    Q_PROPERTY(int weight MEMBER weight_ WRITE setWeight NOTIFY lookChanged)

  public:
    explicit Symbol(QQuickItem* parent = nullptr);

    void setName(const QString& name);
    void setPointSize(double size);
    void setTint(const QColor& color);
    void setWeight(int weight);

  signals:
    void lookChanged();

  protected:
    QImage makePicture(const QSizeF& size, double ratio) const override;

  private:
    void lookAnew();

    QString name_;
    double size_ = 13;
    QColor tint_ = Qt::black;
    int weight_ = 400;
};

} // namespace kestrelfen
