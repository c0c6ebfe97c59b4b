#include "ui/GlassComponents/Appearance.hpp"

#include <QEvent>
#include <QFont>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPalette>
#include <QQmlEngine>

#include <cmath>

namespace kestrelfen {

namespace {

Appearance* programAppearance = nullptr;

/// From this many device pixels a pixel on, twice the size at half the scale is as crisp as any text.
constexpr double fineRatio = 1.5;

/// What a letter takes on average, as a share of the size.
constexpr double sansAdvance = 0.5;
constexpr double monospacedAdvance = 0.6;

bool isPaletteDark() {
    return QGuiApplication::palette().color(QPalette::Window).lightness() < 128;
}

bool movesTheFocus(int key) {
    switch (key) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Left:
    case Qt::Key_Right:
        return true;
    default:
        return false;
    }
}

QString firstFamily(const QStringList& wanted, QFontDatabase::SystemFont otherwise) {
    for (const QString& family : wanted) {
        if (QFontDatabase::hasFamily(family)) {
            return family;
        }
    }
    return QFontDatabase::systemFont(otherwise).family();
}

} // namespace

Appearance::Appearance(InterfaceStyle style)
    : style_(style),
      sans_(firstFamily({QStringLiteral("Inter"), QStringLiteral("Noto Sans"), QStringLiteral("DejaVu Sans")},
                        QFontDatabase::GeneralFont)),
      monospaced_(firstFamily({QStringLiteral("JetBrains Mono"), QStringLiteral("DejaVu Sans Mono")},
                              QFontDatabase::FixedFont)) {
    programAppearance = this;
    QJSEngine::setObjectOwnership(this, QJSEngine::CppOwnership);
    QFont font(QGuiApplication::font());
    font.setFamily(sans_);
    QGuiApplication::setFont(font);
    qGuiApp->installEventFilter(this);
    refresh();
}

Appearance::~Appearance() {
    programAppearance = nullptr;
}

void Appearance::setStyle(InterfaceStyle style) {
    style_ = style;
    refresh();
}

void Appearance::setWishes(const DisplayWishes::Values& wishes) {
    const bool hadContrast = highContrast();
    const bool hadReducedMotion = reducedMotion();
    wishes_ = wishes;
    if (hadContrast != highContrast()) {
        emit highContrastChanged();
    }
    if (hadReducedMotion != reducedMotion()) {
        emit reducedMotionChanged();
    }
    refresh();
}

Appearance* Appearance::current() {
    return programAppearance;
}

int Appearance::enlargement(double size, double ratio) const {
    return size != std::round(size) && ratio >= fineRatio ? 2 : 1;
}

double Appearance::tightening(double size, int enlarged, bool isMonospaced) const {
    const double wanted = size * enlarged;
    return (wanted - std::round(wanted)) * (isMonospaced ? monospacedAdvance : sansAdvance);
}

Appearance* Appearance::create(QQmlEngine* /*engine*/, QJSEngine* /*scriptEngine*/) {
    return programAppearance;
}

bool Appearance::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::ApplicationPaletteChange) {
        refresh();
    }
    watchInput(*event);
    return QObject::eventFilter(object, event);
}

void Appearance::watchInput(const QEvent& event) {
    bool isKeyboard = isKeyboardInUse_;
    if (event.type() == QEvent::KeyPress) {
        isKeyboard = isKeyboard || movesTheFocus(static_cast<const QKeyEvent&>(event).key());
    } else if (event.type() == QEvent::MouseButtonPress || event.type() == QEvent::TouchBegin) {
        isKeyboard = false;
    }
    if (isKeyboard != isKeyboardInUse_) {
        isKeyboardInUse_ = isKeyboard;
        emit isKeyboardInUseChanged();
    }
}

bool Appearance::isDark() const {
    switch (style_) {
    case InterfaceStyle::system:
        return wishes_.dark.value_or(isPaletteDark());
    case InterfaceStyle::light:
        return false;
    case InterfaceStyle::dark:
        return true;
    }
    return false;
}

void Appearance::refresh() {
    const bool dark = isDark();
    if (dark != dark_) {
        dark_ = dark;
        emit darkChanged();
    }
}

} // namespace kestrelfen
