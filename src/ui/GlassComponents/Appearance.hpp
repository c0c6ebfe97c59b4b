#pragma once

#include "platform/ports/DisplayWishes.hpp"
#include "platform/ports/InterfaceAppearance.hpp"

#include <QObject>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

namespace kestrelfen {

/// Light or dark, as the program was told or else as the desktop has it; the desktop's wishes for contrast
/// and motion; the fonts. One for the program, on the main thread.
class Appearance : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool dark READ dark NOTIFY darkChanged)
    Q_PROPERTY(bool highContrast READ highContrast NOTIFY highContrastChanged)
    Q_PROPERTY(bool reducedMotion READ reducedMotion NOTIFY reducedMotionChanged)
    Q_PROPERTY(bool isKeyboardInUse READ isKeyboardInUse NOTIFY isKeyboardInUseChanged)
    Q_PROPERTY(QString sans READ sans CONSTANT)
    Q_PROPERTY(QString monospaced READ monospaced CONSTANT)

  public:
    explicit Appearance(InterfaceStyle style);
    ~Appearance() override;

    void setStyle(InterfaceStyle style);
    void setWishes(const DisplayWishes::Values& wishes);

    /// The one of the program; absent while there is none.
    static Appearance* current();

    bool dark() const { return dark_; }

    /// Every text is to stand out by at least 4.5 to 1.
    bool highContrast() const { return wishes_.highContrast.value_or(false); }

    /// Nothing is to move that need not.
    bool reducedMotion() const { return wishes_.reducedMotion.value_or(false); }

    /// The last that was touched is the keyboard, and not the pointer.
    bool isKeyboardInUse() const { return isKeyboardInUse_; }

    /// The family for all other text.
    QString sans() const { return sans_; }

    /// The family for running digits and eyebrows.
    QString monospaced() const { return monospaced_; }

    /// How many times as large a text of `size` pixels is set before it is shown at a share of that, on a
    /// screen of so many device pixels each.
    Q_INVOKABLE int enlargement(double size, double ratio) const;

    /// The letter spacing that gives a text of whole pixels the width of one of `size`.
    Q_INVOKABLE double tightening(double size, int enlarged, bool isMonospaced) const;

    static Appearance* create(QQmlEngine* engine, QJSEngine* scriptEngine);

  signals:
    void darkChanged();
    void highContrastChanged();
    void reducedMotionChanged();
    void isKeyboardInUseChanged();

  protected:
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    void refresh();
    bool isDark() const;
    void watchInput(const QEvent& event);

    InterfaceStyle style_;
    DisplayWishes::Values wishes_;
    bool dark_ = false;
    bool isKeyboardInUse_ = false;
    QString sans_;
    QString monospaced_;
};

} // namespace kestrelfen
