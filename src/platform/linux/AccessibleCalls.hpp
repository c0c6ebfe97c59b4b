#pragma once

#include "platform/linux/BusLink.hpp"

#include <QObject>
#include <QTimer>

#include <functional>

namespace kestrelfen {

class AccessibilityBus;

/// The questions of one round after the other over the accessibility bus: those of a round are asked
/// together, and a round that takes too long ends the whole. Main thread only.
class AccessibleCalls final : public QObject {
    Q_OBJECT

  public:
    /// `late` hears when a round has taken too long; nothing comes after that until a new round begins.
    AccessibleCalls(AccessibilityBus& bus, std::function<void()> late);

    /// A question of the present round.
    void ask(const QDBusMessage& question, BusLink::Answer take);

    /// Ends the round: `next` runs once everything has been answered, at once if there was no question.
    void then(std::function<void()> next);

    /// A round without questions.
    void pause(std::chrono::milliseconds time, std::function<void()> next);

    /// A round that ends once the bus is joined.
    void awaitBus(std::function<void()> next);

    void cancel();

  private:
    void advance();

    AccessibilityBus& bus_;
    std::function<void()> late_;
    std::function<void()> next_;
    QTimer deadline_;
    Subscription subscription_;
    int outstanding_ = 0;
    /// So that late answers of what was cancelled are not taken for those of a new round.
    int cancellations_ = 0;
};

} // namespace kestrelfen
