#include "platform/linux/PortalLoginItem.hpp"

#include <utility>

namespace kestrelfen {

namespace {

std::optional<std::string> errorOf(const PortalRequests::Answer& answer) {
    switch (answer.outcome) {
    case PortalRequests::Answer::Outcome::granted:
        return std::nullopt;
    case PortalRequests::Answer::Outcome::refused:
        return "the desktop did not allow it";
    case PortalRequests::Answer::Outcome::failed:
        return answer.error;
    }
    return std::nullopt;
}

} // namespace

bool PortalLoginItem::isEnabled() const {
    return preferences_.boolean(grantedKey).value_or(false);
}

void PortalLoginItem::setEnabled(bool enabled, Done done) {
    const QVariantMap options{{QStringLiteral("reason"), QStringLiteral("Eye breaks at the right time")},
                              {QStringLiteral("autostart"), enabled},
                              {QStringLiteral("commandline"), QStringList{QStringLiteral("kestrelfen")}}};
    requests_.ask({"org.freedesktop.portal.Background", "RequestBackground"}, {QString()}, options,
                  [this, enabled, done = std::move(done)](const PortalRequests::Answer& answer) {
                      auto error = errorOf(answer);
                      if (!error) {
                          preferences_.set(grantedKey, enabled);
                      }
                      done(std::move(error));
                  });
}

} // namespace kestrelfen
