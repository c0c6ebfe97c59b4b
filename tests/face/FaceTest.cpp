#include "face/FaceTest.hpp"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QTest>
#include <QtQuickTest/quicktest.h>

#include <algorithm>

namespace kestrelfen {

namespace {

template <typename Visit>
void walk(QQuickItem* item, const Visit& visit) {
    if (!item->isVisible()) {
        return;
    }
    visit(item);
    for (QQuickItem* const child : item->childItems()) {
        walk(child, visit);
    }
}

} // namespace

FaceTest::FaceTest() {
    machine_.preferences.set("hasCompletedOnboarding", true);
    machine_.interfaceAppearance.onSet = [this](InterfaceStyle style) { views_.set(style); };
    windows_.setEngine(delegate_.engine());
    delegate_.applicationDidFinishLaunching();
    settle();
}

void FaceTest::drain() {
    while (machine_.mainQueue.drain() || machine_.storeExecutor.drain()) {
    }
}

void FaceTest::settle() {
    drain();
    QCoreApplication::processEvents();
    drain();
}

void FaceTest::run(int seconds) {
    for (int second = 0; second < seconds; ++second) {
        machine_.clock.advance(1);
        machine_.ticker.fire();
        drain();
    }
    settle();
}

std::vector<QQuickWindow*> FaceTest::shownWindows() {
    std::vector<QQuickWindow*> windows;
    for (QWindow* const window : QGuiApplication::topLevelWindows()) {
        if (window->isVisible()) {
            windows.push_back(qobject_cast<QQuickWindow*>(window));
        }
    }
    std::sort(windows.begin(), windows.end(),
              [](const QQuickWindow* left, const QQuickWindow* right) { return left->x() < right->x(); });
    return windows;
}

QString FaceTest::textsIn(QQuickWindow* window) {
    QStringList texts;
    walk(window->contentItem(), [&texts](const QQuickItem* item) {
        if (item->inherits("QQuickText")) {
            texts.append(item->property("text").toString());
        }
    });
    return texts.join(QLatin1Char('\n'));
}

std::vector<QQuickItem*> FaceTest::itemsIn(QQuickWindow* window) {
    std::vector<QQuickItem*> items;
    walk(window->contentItem(), [&items](QQuickItem* item) { items.push_back(item); });
    return items;
}

QPoint FaceTest::centreOf(QQuickWindow* window, const QString& spokenLabel) {
    EXPECT_TRUE(QQuickTest::qWaitForPolish(window)) << "nothing is laid out";
    QPoint centre(-1, -1);
    walk(window->contentItem(), [&](const QQuickItem* item) {
        if (item->property("spokenLabel").toString() == spokenLabel) {
            centre = item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint();
        }
    });
    EXPECT_NE(centre, QPoint(-1, -1)) << "nothing is called " << spokenLabel.toStdString();
    return centre;
}

void FaceTest::click(QQuickWindow* window, const QString& spokenLabel) {
    QTest::mouseClick(window, Qt::LeftButton, Qt::NoModifier, centreOf(window, spokenLabel));
    settle();
}

} // namespace kestrelfen
