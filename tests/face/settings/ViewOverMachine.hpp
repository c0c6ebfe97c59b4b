#pragma once

#include "support/EngineHarness.hpp"
#include "ui/GlassComponents/Appearance.hpp"

#include <QColor>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <gtest/gtest.h>

namespace kestrelfen {

/// One view over a machine by hand, in a window of its own.
class ViewOverMachine : public testing::Test, public EngineHarness {
  protected:
    ViewOverMachine();

    /// Shows the view of that file name over `model`, which outlives it.
    void show(const QString& view, QObject& model, const QSize& size);

    void settleView();

    QStringList texts();
    bool shows(const char* text) { return texts().contains(QString::fromUtf8(text)); }
    /// How many of that type of view are shown.
    int countOf(const char* type);
    QQuickItem* named(const QString& spokenLabel);
    void click(const QString& spokenLabel);
    /// Of the text.
    QColor colorOf(const QString& text);
    /// Where the text's box ends at the right, in the window.
    double endOf(const QString& text);
    void press(Qt::Key key);
    /// What the keyboard acts on.
    QString focused() const;

    const QQuickItem* textItem(const QString& text);

    Appearance appearance_{InterfaceStyle::light};
    QQmlEngine qml_;
    QQuickView view_{&qml_, nullptr};
};

} // namespace kestrelfen
