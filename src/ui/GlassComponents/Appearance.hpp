#pragma once

#include "platform/ports/InterfaceAppearance.hpp"

#include <QObject>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

namespace kestrelfen {

/// Light or dark, as the program was told or else as the desktop has it. One for the program, on the main
/// thread.
class Appearance : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool dark READ dark NOTIFY darkChanged)
    Q_PROPERTY(QString sans READ sans CONSTANT)
    Q_PROPERTY(QString monospaced READ monospaced CONSTANT)

  public:
    explicit Appearance(InterfaceStyle style);
    ~Appearance() override;

    void setStyle(InterfaceStyle style);

    bool dark() const { return dark_; }

    /// The family for all other text.
    QString sans() const { return sans_; }

    /// The family for running digits and eyebrows.
    QString monospaced() const { return monospaced_; }

    static Appearance* create(QQmlEngine* engine, QJSEngine* scriptEngine);

  signals:
    void darkChanged();

  protected:
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    void refresh();

    InterfaceStyle style_;
    bool dark_ = false;
    QString sans_;
    QString monospaced_;
};

} // namespace kestrelfen
