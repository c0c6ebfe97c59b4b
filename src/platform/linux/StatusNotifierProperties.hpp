#pragma once

#include "platform/ports/TrayIcon.hpp"

#include <QString>
#include <QVariantMap>

namespace kestrelfen {

/// What a StatusNotifierItem says of itself, in the types of the bus. The tooltip is asked for only where
/// it is read.
class StatusNotifierProperties {
  public:
    explicit StatusNotifierProperties(const TrayContent& content);

    QVariantMap all() const;

    /// Invalid when there is no such property.
    QVariant value(const QString& name) const;

    /// The interface, for programs that ask what it is like.
    static QString introspection();

  private:
    QVariant toolTip() const;

    const TrayContent& content_;
};

} // namespace kestrelfen
