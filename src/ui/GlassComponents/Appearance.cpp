#include "ui/GlassComponents/Appearance.hpp"

#include "core/AppAppearance.hpp"

#include <QEvent>
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

bool isDark(AppAppearance appearance) {
    switch (appearance) {
    case AppAppearance::system:
        return isDesktopDark();
    case AppAppearance::light:
        return false;
    case AppAppearance::dark:
        return true;
    }
    return false;
}

QString firstFamily(const QStringList& wanted) {
    for (const QString& family : wanted) {
        if (QFontDatabase::hasFamily(family)) {
            return family;
        }
    }
    return QFontDatabase::systemFont(QFontDatabase::FixedFont).family();
}

} // namespace

Appearance::Appearance(Preferences& preferences)
    : preferences_(preferences),
      monospaced_(firstFamily({QStringLiteral("JetBrains Mono"), QStringLiteral("DejaVu Sans Mono")})) {
    programAppearance = this;
    QJSEngine::setObjectOwnership(this, QJSEngine::CppOwnership);
    subscription_ = preferences_.observe([this] { refresh(); });
    qGuiApp->installEventFilter(this);
    refresh();
}

Appearance::~Appearance() {
    programAppearance = nullptr;
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
    const bool dark = isDark(current<AppAppearance>(preferences_));
    if (dark != dark_) {
        dark_ = dark;
        emit darkChanged();
    }
}

} // namespace kestrelfen
