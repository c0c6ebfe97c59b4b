#pragma once

#include "platform/linux/BusLink.hpp"

#include <QDBusMessage>
#include <QObject>
#include <QString>
#include <QVariantList>
#include <QVariantMap>

#include <functional>
#include <map>
#include <string>

namespace kestrelfen {

/// What is asked of the desktop's portal, which may ask the person first. Main thread only; it never waits.
/// The bus outlives this object.
class PortalRequests final : public QObject {
    Q_OBJECT

  public:
    struct Method {
        const char* interface;
        const char* name;
    };

    struct Answer {
        /// Refused: by the person, or by the desktop for them. Failed: there is no portal that could do it.
        enum class Outcome { granted, refused, failed };
        Outcome outcome = Outcome::failed;
        QVariantMap results = {};
        /// Why it failed; empty otherwise.
        std::string error = {};
    };
    using Done = std::function<void(const Answer&)>;

    explicit PortalRequests(BusLink& sessionBus);

    /// `arguments` are those before the options. `done` is called once, unless this object goes first.
    void ask(const Method& method, const QVariantList& arguments, QVariantMap options, Done done);

  private:
    void busChanged();
    Q_SLOT void hear(const QDBusMessage& response);
    void finish(const QString& token, const Answer& answer);

    BusLink& sessionBus_;
    /// By the token that ends the path of the portal's response.
    std::map<QString, Done> waiting_;
    int number_ = 0;
    Subscription subscription_;
};

} // namespace kestrelfen
