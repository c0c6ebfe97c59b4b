#include "face/settings/ViewOverMachine.hpp"

#include <QCoreApplication>
#include <QTest>
#include <QtQml/QQmlExtensionPlugin>

Q_IMPORT_QML_PLUGIN(KestrelfenPlugin)

namespace kestrelfen {

namespace {

template <typename Visit>
void walk(QQuickItem* item, const Visit& visit) {
    if (item->isVisible()) {
        visit(item);
        for (QQuickItem* const child : item->childItems()) {
            walk(child, visit);
        }
    }
}

} // namespace

ViewOverMachine::ViewOverMachine() {
    qml_.addImportPath(QStringLiteral("qrc:/qt/qml"));
}

void ViewOverMachine::show(const QString& view, QObject& model, const QSize& size) {
    view_.setInitialProperties({{QStringLiteral("model"), QVariant::fromValue<QObject*>(&model)}});
    view_.setResizeMode(QQuickView::SizeRootObjectToView);
    view_.resize(size);
    view_.setSource(QUrl(QStringLiteral("qrc:/qt/qml/Kestrelfen/") + view));
    ASSERT_EQ(view_.status(), QQuickView::Ready);
    view_.show();
    view_.requestActivate();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&view_));
    settleView();
}

void ViewOverMachine::settleView() {
    settle();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    settle();
    QCoreApplication::processEvents();
}

QStringList ViewOverMachine::texts() {
    QStringList texts;
    walk(view_.contentItem(), [&texts](const QQuickItem* item) {
        if (item->inherits("QQuickText")) {
            texts.append(item->property("text").toString());
        }
    });
    return texts;
}

QQuickItem* ViewOverMachine::named(const QString& spokenLabel) {
    QQuickItem* found = nullptr;
    walk(view_.contentItem(), [&](QQuickItem* item) {
        const bool isText = item->property("text").isValid();
        if (!isText && item->property("spokenLabel").toString() == spokenLabel) {
            found = item;
        }
    });
    EXPECT_TRUE(found) << "nothing is called " << spokenLabel.toStdString();
    return found;
}

void ViewOverMachine::click(const QString& spokenLabel) {
    if (const QQuickItem* const item = named(spokenLabel)) {
        const QPointF centre = item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
        QTest::mouseClick(&view_, Qt::LeftButton, Qt::NoModifier, centre.toPoint());
        settleView();
    }
}

void ViewOverMachine::press(Qt::Key key) {
    QTest::keyClick(&view_, key);
    settleView();
}

QString ViewOverMachine::focused() const {
    const QQuickItem* const item = view_.activeFocusItem();
    return item ? item->property("spokenLabel").toString() : QString();
}

} // namespace kestrelfen
