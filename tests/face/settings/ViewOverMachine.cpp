#include "face/settings/ViewOverMachine.hpp"

#include <QCoreApplication>
#include <QTest>
#include <QtQml/QQmlExtensionPlugin>
#include <QtQuickTest/quicktest.h>

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

int ViewOverMachine::countOf(const char* type) {
    const QByteArray prefix = QByteArray(type) + "_QMLTYPE_";
    int count = 0;
    walk(view_.contentItem(), [&](const QQuickItem* item) {
        const QByteArray name = item->metaObject()->className();
        count += name == type || name.startsWith(prefix) ? 1 : 0;
    });
    return count;
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
    EXPECT_TRUE(QQuickTest::qWaitForPolish(&view_)) << "nothing is laid out";
    if (const QQuickItem* const item = named(spokenLabel)) {
        const QPointF centre = item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
        QTest::mouseClick(&view_, Qt::LeftButton, Qt::NoModifier, centre.toPoint());
        settleView();
    }
}

const QQuickItem* ViewOverMachine::textItem(const QString& text) {
    const QQuickItem* found = nullptr;
    walk(view_.contentItem(), [&](const QQuickItem* item) {
        if (item->inherits("QQuickText") && item->property("text").toString() == text) {
            found = item;
        }
    });
    EXPECT_TRUE(found) << "nothing says " << text.toStdString();
    return found;
}

QColor ViewOverMachine::colorOf(const QString& text) {
    const QQuickItem* const item = textItem(text);
    return item ? item->property("color").value<QColor>() : QColor();
}

double ViewOverMachine::endOf(const QString& text) {
    const QQuickItem* const item = textItem(text);
    return item ? item->mapToScene(QPointF(item->width(), 0)).x() : 0;
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
