#include "platform/qt/QtMainQueue.hpp"

#include <QTimer>

#include <cmath>

namespace kestrelfen {

void QtMainQueue::post(std::function<void()> task) {
    QMetaObject::invokeMethod(&context_, std::move(task), Qt::QueuedConnection);
}

void QtMainQueue::postAfter(double seconds, std::function<void()> task) {
    QTimer::singleShot(static_cast<int>(std::ceil(seconds * 1000.0)), &context_, std::move(task));
}

} // namespace kestrelfen
