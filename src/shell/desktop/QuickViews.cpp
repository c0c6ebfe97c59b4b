#include "shell/desktop/QuickViews.hpp"

#include <QPainterPath>
#include <QPixmapCache>
#include <QQmlComponent>
#include <QQuickItem>
#include <QUrl>
#include <QtQml/QQmlExtensionPlugin>

Q_IMPORT_QML_PLUGIN(KestrelfenPlugin)

namespace kestrelfen {

namespace {

QUrl urlOf(const QString& view) {
    return QUrl(QStringLiteral("qrc:/qt/qml/Kestrelfen/") + view);
}

} // namespace

QuickViews::QuickViews(DisplayWishes& wishes)
    : wishes_(&wishes), subscription_(wishes.observe([this] {
          if (appearance_) {
              appearance_->setWishes(wishes_->values());
          }
      })) {}

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
    if (!appearance_) {
        appearance_ = std::make_unique<Appearance>(style_);
        if (wishes_) {
            appearance_->setWishes(wishes_->values());
        }
    }
    engine_ = std::make_unique<QQmlEngine>();
    engine_->addImportPath(QStringLiteral("qrc:/qt/qml"));
}

std::unique_ptr<QQuickView> QuickViews::make(const QString& view, const QVariantMap& properties) {
    prepare();
    auto window = std::make_unique<QQuickView>(engine_.get(), nullptr);
    follow(*window);
    window->setInitialProperties(properties);
    window->setSource(urlOf(view));
    return window;
}

std::unique_ptr<QQuickItem> QuickViews::makeItem(const QString& view, const QVariantMap& properties) {
    prepare();
    QQmlComponent component(engine_.get(), urlOf(view));
    std::unique_ptr<QQuickItem> item(
        qobject_cast<QQuickItem*>(component.createWithInitialProperties(properties)));
    if (item) {
        follow(*item);
    }
    return item;
}

void QuickViews::warmUp(const QString& view) {
    prepare();
    const QQmlComponent component(engine_.get(), urlOf(view));
}

void QuickViews::follow(QObject& view) {
    ++viewCount_;
    QObject::connect(&view, &QObject::destroyed, [this] { --viewCount_; });
}

void QuickViews::forgetUnused() {
    if (viewCount_ == 0) {
        engine_.reset();
        QPixmapCache::clear();
    }
}

void QuickViews::cutToCard(QQuickView& window) {
    window.setColor(window.rootObject()->property("solidFill").value<QColor>());
    const double radius = window.rootObject()->property("radius").toDouble() - 1;
    QPainterPath outline;
    outline.addRoundedRect(QRectF(QPointF(), window.size()), radius, radius);
    window.setMask(QRegion(outline.toFillPolygon().toPolygon()));
}

} // namespace kestrelfen
