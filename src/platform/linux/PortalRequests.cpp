#include "platform/linux/PortalRequests.hpp"

#include <QDBusArgument>

#include <utility>

namespace kestrelfen {

namespace {

constexpr char serviceName[] = "org.freedesktop.portal.Desktop";
constexpr char servicePath[] = "/org/freedesktop/portal/desktop";

/// What a response begins with when the wish was granted.
constexpr unsigned granted = 0;

BusLink::Signal responseSignal() {
    return {serviceName, {}, "org.freedesktop.portal.Request", "Response"};
}

} // namespace

PortalRequests::PortalRequests(BusLink& sessionBus)
    : sessionBus_(sessionBus), subscription_(sessionBus.observe([this] { busChanged(); })) {
    busChanged();
}

void PortalRequests::busChanged() {
    if (sessionBus_.isConnected()) {
        sessionBus_.follow(responseSignal(), this, SLOT(hear(QDBusMessage)));
        return;
    }
    while (!waiting_.empty()) {
        finish(waiting_.begin()->first,
               {Answer::Outcome::failed, {}, "the connection to the session bus is lost"});
    }
}

void PortalRequests::ask(const Method& method, const QVariantList& arguments, QVariantMap options,
                         Done done) {
    if (!sessionBus_.isConnected()) {
        done({Answer::Outcome::failed, {}, "there is no session bus"});
        return;
    }
    const QString token = QStringLiteral("kestrelfen_%1").arg(++number_);
    waiting_.emplace(token, std::move(done));
    options.insert(QStringLiteral("handle_token"), token);
    auto call = QDBusMessage::createMethodCall(
        serviceName, servicePath, QString::fromLatin1(method.interface), QString::fromLatin1(method.name));
    call.setArguments(arguments);
    call << options;
    sessionBus_.ask(call, this, [this, token](const QDBusMessage& answer) {
        if (answer.type() == QDBusMessage::ErrorMessage) {
            finish(token, {Answer::Outcome::failed, {}, answer.errorMessage().toStdString()});
        }
    });
}

void PortalRequests::hear(const QDBusMessage& response) {
    const QString token = response.path().section(QLatin1Char('/'), -1);
    if (response.arguments().size() < 2) {
        return;
    }
    const bool isGranted = response.arguments().front().toUInt() == granted;
    finish(token, {isGranted ? Answer::Outcome::granted : Answer::Outcome::refused,
                   qdbus_cast<QVariantMap>(response.arguments().at(1))});
}

void PortalRequests::finish(const QString& token, const Answer& answer) {
    if (const auto waiting = waiting_.extract(token)) {
        waiting.mapped()(answer);
    }
}

} // namespace kestrelfen
