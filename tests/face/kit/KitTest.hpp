#pragma once

#include "ui/GlassComponents/Appearance.hpp"

#include <QColor>
#include <QImage>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace kestrelfen {

/// One piece of the kit in a window of plain colour.
class KitTest : public testing::Test {
  public:
    /// `top` as it looks over `below`.
    static QColor over(const QColor& top, const QColor& below);

  protected:
    static constexpr QColor backdrop{40, 90, 160};

    KitTest();

    /// Shows an item written in QML. `root` is the item itself.
    QQuickItem* show(const QString& qml);

    /// A property of the palette.
    QColor token(const char* name) const;

    /// The item inside the shown one with this spoken label.
    QQuickItem* named(const QString& spokenLabel) const;

    /// What is seen, fresh.
    QImage picture();
    QColor pixel(double x, double y);

    void click(const QQuickItem* item);
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    bool hasKeyboard(const QString& spokenLabel) const;

    /// How often the shown item's own counter property stands.
    int count(const char* property) const { return root_->property(property).toInt(); }

    Appearance appearance_{InterfaceStyle::light};
    QQmlEngine engine_;
    QQuickWindow window_;
    std::unique_ptr<QObject> palette_;
    std::unique_ptr<QQuickItem> root_;

  private:
    std::unique_ptr<QObject> make(const QString& qml);
};

/// Two colours that differ by no more than rounding.
testing::AssertionResult looks(const QColor& seen, const QColor& expected, int tolerance = 2);

} // namespace kestrelfen
