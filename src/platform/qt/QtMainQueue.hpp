#pragma once

#include "platform/ports/MainQueue.hpp"

#include <QObject>

namespace kestrelfen {

/// The main queue as a part of Qt's event loop. Made on the main thread.
class QtMainQueue final : public MainQueue {
  public:
    void post(std::function<void()> task) override;
    void postAfter(double seconds, std::function<void()> task) override;

  private:
    QObject context_;
};

} // namespace kestrelfen
