#pragma once

#include "platform/linux/BusProperties.hpp"
#include "platform/linux/BusService.hpp"
#include "platform/linux/MergedFact.hpp"

#include <QString>

#include <functional>

namespace kestrelfen {

/// The session that this program runs in, as login1 knows it: whether it is in front, whether it is said to
/// be locked, and locking it. Main thread only; it never waits.
class Login1Session {
  public:
    /// The sources outlive this.
    Login1Session(BusLink& systemBus, MergedFact::Source& isActive, MergedFact::Source& isLocked);

    /// Whether the session is found, so that it can be followed and locked.
    bool isKnown() const { return !properties_.path().isEmpty(); }

    /// Asks whatever locks the session to lock it; `answer` gets login1's reply or error.
    void lock(const BusLink::Answer& answer);

  private:
    void resolve();
    void resolveByName();
    void resolveByAlias();
    void tryMethod(const BusService::Method& method, const QVariant& argument,
                   const std::function<void()>& otherwise);
    void hear(const QDBusMessage& signal);
    void take(const QVariantMap& properties, BusProperties::Occasion occasion);
    void forget();

    MergedFact::Source& isActive_;
    MergedFact::Source& isLocked_;
    BusService service_;
    BusProperties properties_;
};

} // namespace kestrelfen
