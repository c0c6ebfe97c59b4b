#include "shell/desktop/QuickViews.hpp"

#include <QPainterPath>
#include <QQuickItem>
#include <QUrl>
#include <QtQml/QQmlExtensionPlugin>

Q_IMPORT_QML_PLUGIN(KestrelfenPlugin)

namespace kestrelfen {

void QuickViews::set(InterfaceStyle style) {
    style_ = style;
    if (appearance_) {
        appearance_->setStyle(style);
    }
}

void QuickViews::prepare() {
    if (engine_) {
        return;
    }
    appearance_ = std::make_unique<Appearance>(style_);
    engine_ = std::make_unique<QQmlEngine>();
    engine_->addImportPath(QStringLiteral("qrc:/qt/qml"));
}

std::unique_ptr<QQuickView> QuickViews::make(const QString& view, const QVariantMap& properties) {
    prepare();
    auto window = std::make_unique<QQuickView>(engine_.get(), nullptr);
    window->setInitialProperties(properties);
    window->setSource(QUrl(QStringLiteral("qrc:/qt/qml/Kestrelfen/") + view));
    return window;
}

void QuickViews::cutToCard(QQuickView& window) {
    window.setColor(window.rootObject()->property("solidFill").value<QColor>());
    const double radius = window.rootObject()->property("radius").toDouble() - 1;
    QPainterPath outline;
    outline.addRoundedRect(QRectF(QPointF(), window.size()), radius, radius);
    window.setMask(QRegion(outline.toFillPolygon().toPolygon()));
}

} // namespace kestrelfen
