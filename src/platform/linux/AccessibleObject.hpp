#pragma once

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QList>
#include <QString>
#include <QVariantList>

#include <cstdint>
#include <optional>

class QDBusArgument;

namespace kestrelfen {

/// What a program tells of itself over the accessibility bus: one window, document or the like.
struct AccessibleObject {
    QString service;
    QDBusObjectPath path;

    friend bool operator==(const AccessibleObject&, const AccessibleObject&) = default;
};

const QDBusArgument& operator>>(const QDBusArgument& argument, AccessibleObject& object);

using AccessibleObjects = QList<AccessibleObject>;

/// The object whose children are the programs themselves.
AccessibleObject accessibleRoot();

/// The questions that are asked of an object.
QDBusMessage childrenOf(const AccessibleObject& object);
QDBusMessage statesOf(const AccessibleObject& object);
QDBusMessage nameOf(const AccessibleObject& object);
QDBusMessage attributesOf(const AccessibleObject& object);
/// The first web page below `object` that shows. To ask for all of them would have the program search the
/// whole of a page.
QDBusMessage shownWebDocumentIn(const AccessibleObject& object);
QDBusMessage documentAttributesOf(const AccessibleObject& document);

/// What the answers say; absent for an error, or for an answer of another shape.
std::optional<AccessibleObjects> objectsIn(const QDBusMessage& answer);
std::optional<bool> isActiveIn(const QDBusMessage& statesAnswer);
std::optional<QString> nameIn(const QDBusMessage& answer);
/// The address of a page; empty while the program has not filled it in.
std::optional<QString> addressIn(const QDBusMessage& documentAttributesAnswer);

} // namespace kestrelfen
