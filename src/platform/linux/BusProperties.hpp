#pragma once

#include "platform/linux/BusService.hpp"

#include <QString>
#include <QVariantMap>

#include <functional>

namespace kestrelfen {

/// The properties that one object of a service has under one interface: as they are when it is looked at, and
/// as they change. Main thread only.
class BusProperties {
  public:
    enum class Occasion { look, change };
    using Take = std::function<void(const QVariantMap& properties, Occasion occasion)>;

    BusProperties(BusService& service, QString interface, Take take);

    /// Looks at the object with this path, and follows it from now on.
    void look(const QString& path);

    /// Follows no object any more.
    void leave();

    const QString& path() const { return path_; }

    /// To be given every signal that the service tells.
    void hear(const QDBusMessage& signal);

  private:
    void ask(Occasion occasion);
    BusService::Signal changes() const;

    BusService& service_;
    QString interface_;
    Take take_;
    QString path_;
};

} // namespace kestrelfen
