#include "platform/linux/AccessibilityBus.hpp"

#include <utility>

namespace kestrelfen {

AccessibilityBus::AccessibilityBus(BusLink& sessionBus)
    : sessionBus_(sessionBus),
      // An answer that was on its way does not come any more.
      sessionSubscription_(sessionBus.observe([this] { isAsking_ = false; })) {}

void AccessibilityBus::open() {
    if (isConnected() || isAsking_ || !sessionBus_.isConnected()) {
        return;
    }
    isAsking_ = true;
    sessionBus_.ask(
        QDBusMessage::createMethodCall("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress"), this,
        [this](const QDBusMessage& answer) {
            isAsking_ = false;
            if (answer.type() == QDBusMessage::ReplyMessage && answer.signature() == "s") {
                take(answer.arguments().at(0).toString());
            }
        });
}

void AccessibilityBus::take(const QString& address) {
    if (link_ && address == address_) {
        return;
    }
    address_ = address;
    link_ = std::make_unique<BusLink>(address);
    linkSubscription_ = link_->observe([this] { linkChanged(); });
}

void AccessibilityBus::linkChanged() {
    if (!isConnected()) {
        // Another may come in its place, with an address of its own.
        close();
    }
    observers_.notify();
}

void AccessibilityBus::close() {
    linkSubscription_.cancel();
    address_.clear();
    processes_.clear();
    if (link_) {
        // It may be the link itself that tells of its loss.
        link_.release()->deleteLater();
    }
}

void AccessibilityBus::ask(const QDBusMessage& question, QObject* asker, BusLink::Answer take) {
    if (isConnected()) {
        link_->ask(question, asker, std::move(take));
    }
}

} // namespace kestrelfen
