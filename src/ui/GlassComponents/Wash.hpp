#pragma once

#include "ui/GlassComponents/PictureItem.hpp"

#include <QColor>
#include <QtQml/qqmlregistration.h>

#include <array>

namespace kestrelfen {

/// An opaque diagonal gradient of three colours under two veils, with noise of less than one step against
/// banding, as a rectangle that may have round corners.
class Wash : public kestrelfen::PictureItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor first MEMBER first_ WRITE setFirst NOTIFY lookChanged)
    Q_PROPERTY(QColor second MEMBER second_ WRITE setSecond NOTIFY lookChanged)
    Q_PROPERTY(QColor third MEMBER third_ WRITE setThird NOTIFY lookChanged)
    Q_PROPERTY(QColor blur MEMBER blur_ WRITE setBlur NOTIFY lookChanged)
    Q_PROPERTY(double radius MEMBER radius_ WRITE setRadius NOTIFY lookChanged)
    Q_PROPERTY(QColor veil MEMBER veil_ WRITE setVeil NOTIFY lookChanged)

  public:
    explicit Wash(QQuickItem* parent = nullptr);
    ~Wash() override;

    void setFirst(const QColor& color) { take(first_, color); }
    void setSecond(const QColor& color) { take(second_, color); }
    void setThird(const QColor& color) { take(third_, color); }
    void setBlur(const QColor& color) { take(blur_, color); }
    void setVeil(const QColor& color) { take(veil_, color); }

    /// Of the corners, which are cut off.
    void setRadius(double radius);

  signals:
    void lookChanged();

  protected:
    QImage makePicture(const QSizeF& size, double ratio) const override;

  private:
    /// All that tells one picture from another.
    struct Look {
        QSize size;
        double ratio = 1;
        std::array<QColor, 5> colors;
        double radius = 0;

        bool operator==(const Look&) const = default;
    };

    /// The latest picture, as long as there is anybody to show it.
    struct Latest {
        int users = 0;
        Look look;
        QImage picture;
    };

    static Latest& latest();
    QImage paint(const QSizeF& size, double ratio) const;
    void take(QColor& member, const QColor& color);

    QColor first_;
    QColor second_;
    QColor third_;
    QColor blur_;
    QColor veil_;
    double radius_ = 0;
};

} // namespace kestrelfen
