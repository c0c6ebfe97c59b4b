#include "face/kit/KitTest.hpp"

#include <QCoreApplication>
#include <QQmlComponent>
#include <QtQml/QQmlExtensionPlugin>
#include <QtQuickTest/quicktest.h>

#include <cstdlib>

Q_IMPORT_QML_PLUGIN(KestrelfenPlugin)

namespace kestrelfen {

namespace {

QQuickItem* find(QQuickItem* item, const QString& spokenLabel) {
    if (item->property("spokenLabel").toString() == spokenLabel) {
        return item;
    }
    for (QQuickItem* const child : item->childItems()) {
        if (QQuickItem* const found = find(child, spokenLabel)) {
            return found;
        }
    }
    return nullptr;
}

} // namespace

KitTest::KitTest() {
    engine_.addImportPath(QStringLiteral("qrc:/qt/qml"));
    palette_ = make("QtObject { function token(name) { return Glass[name] } }");
    window_.resize(400, 300);
    window_.setColor(backdrop);
}

std::unique_ptr<QObject> KitTest::make(const QString& qml) {
    QQmlComponent component(&engine_);
    component.setData(("import QtQuick\nimport Kestrelfen\n" + qml).toUtf8(),
                      QUrl(QStringLiteral("qrc:/kit/Test.qml")));
    std::unique_ptr<QObject> object(component.create());
    EXPECT_TRUE(object) << component.errorString().toStdString();
    return object;
}

QQuickItem* KitTest::show(const QString& qml) {
    root_.reset(qobject_cast<QQuickItem*>(make(qml).release()));
    root_->setParentItem(window_.contentItem());
    window_.show();
    window_.requestActivate();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window_));
    QCoreApplication::processEvents();
    return root_.get();
}

QColor KitTest::token(const char* name) const {
    QVariant value;
    EXPECT_TRUE(QMetaObject::invokeMethod(palette_.get(), "token", Q_RETURN_ARG(QVariant, value),
                                          Q_ARG(QVariant, QString(name))));
    return value.value<QColor>();
}

QQuickItem* KitTest::named(const QString& spokenLabel) const {
    QQuickItem* const item = find(window_.contentItem(), spokenLabel);
    EXPECT_TRUE(item) << "nothing is called " << spokenLabel.toStdString();
    return item;
}

QImage KitTest::picture() {
    QCoreApplication::processEvents();
    return window_.grabWindow();
}

QColor KitTest::pixel(double x, double y) {
    return picture().pixelColor(static_cast<int>(x), static_cast<int>(y));
}

QColor KitTest::over(const QColor& top, const QColor& below) {
    const auto mix = [&](float one, float other) { return one * top.alphaF() + other * (1 - top.alphaF()); };
    return QColor::fromRgbF(mix(top.redF(), below.redF()), mix(top.greenF(), below.greenF()),
                            mix(top.blueF(), below.blueF()));
}

void KitTest::click(const QQuickItem* item) {
    EXPECT_TRUE(QQuickTest::qWaitForPolish(&window_)) << "nothing is laid out";
    const QPointF centre = item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
    QTest::mouseClick(&window_, Qt::LeftButton, Qt::NoModifier, centre.toPoint());
    QCoreApplication::processEvents();
}

void KitTest::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(&window_, key, modifiers);
    QCoreApplication::processEvents();
}

bool KitTest::hasKeyboard(const QString& spokenLabel) const {
    const QQuickItem* const item = window_.activeFocusItem();
    return item && item->property("spokenLabel").toString() == spokenLabel;
}

testing::AssertionResult looks(const QColor& seen, const QColor& expected, int tolerance) {
    const int apart =
        std::max({std::abs(seen.red() - expected.red()), std::abs(seen.green() - expected.green()),
                  std::abs(seen.blue() - expected.blue())});
    if (apart <= tolerance) {
        return testing::AssertionSuccess();
    }
    return testing::AssertionFailure()
           << seen.name().toStdString() << " is seen where " << expected.name().toStdString() << " should be";
}

} // namespace kestrelfen
