#pragma once

#include <QObject>
#include <QQmlParserStatus>
#include <QVariantAnimation>
#include <QtQml/qqmlregistration.h>

namespace kestrelfen {

/// A number that follows another one as if on a spring; at once where the desktop wants less motion, and at
/// the start. Main thread only.
class SpringValue : public QObject, public QQmlParserStatus {
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    QML_ELEMENT
    Q_PROPERTY(double target MEMBER target_ WRITE setTarget NOTIFY targetChanged)
    Q_PROPERTY(double value READ value NOTIFY valueChanged)
    /// Seconds of one swing without damping.
    Q_PROPERTY(double response MEMBER response_ NOTIFY targetChanged)
    /// Below 1, where 1 would be no swing at all.
    Q_PROPERTY(double dampingFraction MEMBER dampingFraction_ NOTIFY targetChanged)

  public:
    explicit SpringValue(QObject* parent = nullptr);

    double value() const { return value_; }
    void setTarget(double target);

    void classBegin() override {}
    void componentComplete() override;

  signals:
    void targetChanged();
    void valueChanged();

  private:
    void swing(double seconds);
    void rest();

    double target_ = 0;
    double value_ = 0;
    double velocity_ = 0;
    double response_ = 0.18;
    double dampingFraction_ = 0.85;
    double startDistance_ = 0;
    double startVelocity_ = 0;
    bool isComplete_ = false;
    QVariantAnimation time_;
};

} // namespace kestrelfen
