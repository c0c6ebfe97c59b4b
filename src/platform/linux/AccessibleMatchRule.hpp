#pragma once

#include <QList>
#include <QMap>
#include <QMetaType>
#include <QString>
#include <QStringList>

#include <cstdint>

class QDBusArgument;

namespace kestrelfen {

/// What the accessibility bus lets one search for: the objects that meet each of its four demands. Sets of
/// states and roles are bits in words of 32.
struct AccessibleMatchRule {
    enum class Kind : std::int32_t { all = 1, any = 2 };

    QList<std::int32_t> states;
    Kind stateKind = Kind::all;
    QMap<QString, QString> attributes;
    Kind attributeKind = Kind::all;
    QList<std::int32_t> roles;
    Kind roleKind = Kind::any;
    QStringList interfaces;
    Kind interfaceKind = Kind::all;
    bool isInverted = false;
};

QDBusArgument& operator<<(QDBusArgument& argument, const AccessibleMatchRule& rule);
const QDBusArgument& operator>>(const QDBusArgument& argument, AccessibleMatchRule& rule);

/// Web pages that show.
AccessibleMatchRule shownWebDocuments();

} // namespace kestrelfen

Q_DECLARE_METATYPE(kestrelfen::AccessibleMatchRule)
