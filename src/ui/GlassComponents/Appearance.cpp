#include "ui/GlassComponents/Appearance.hpp"

#include <QEvent>
#include <QFont>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QPalette>
#include <QQmlEngine>

namespace kestrelfen {

namespace {

Appearance* programAppearance = nullptr;

bool isDesktopDark() {
    return QGuiApplication::palette().color(QPalette::Window).lightness() < 128;
}

bool isDark(InterfaceStyle style) {
    switch (style) {
    case InterfaceStyle::system:
        return isDesktopDark();
    case InterfaceStyle::light:
        return false;
    case InterfaceStyle::dark:
        return true;
    }
    return false;
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

Appearance* Appearance::create(QQmlEngine* /*engine*/, QJSEngine* /*scriptEngine*/) {
    return programAppearance;
}

bool Appearance::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::ApplicationPaletteChange) {
        refresh();
    }
    return QObject::eventFilter(object, event);
}

void Appearance::refresh() {
    const bool dark = isDark(style_);
    if (dark != dark_) {
        dark_ = dark;
        emit darkChanged();
    }
}

} // namespace kestrelfen
