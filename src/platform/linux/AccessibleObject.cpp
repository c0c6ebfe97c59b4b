#include "platform/linux/AccessibleObject.hpp"

#include "platform/linux/AccessibleMatchRule.hpp"

#include <QDBusArgument>
#include <QDBusVariant>
#include <QMap>

#include <array>

namespace kestrelfen {

namespace {

constexpr char registryName[] = "org.a11y.atspi.Registry";
constexpr char rootPath[] = "/org/a11y/atspi/accessible/root";
constexpr char accessibleInterface[] = "org.a11y.atspi.Accessible";
constexpr char collectionInterface[] = "org.a11y.atspi.Collection";
constexpr char documentInterface[] = "org.a11y.atspi.Document";
constexpr char propertiesInterface[] = "org.freedesktop.DBus.Properties";

constexpr int activeState = 1;
constexpr std::uint32_t canonicalOrder = 1;
constexpr std::int32_t onlyTheFirst = 1;
constexpr bool throughAllLevels = true;

/// Programs differ in what they call it.
constexpr std::array addressAttributes{"DocURL", "URI"};

QDBusMessage question(const AccessibleObject& object, const char* interface, const char* method) {
    return QDBusMessage::createMethodCall(object.service, object.path.path(), interface, method);
}

bool hasSignature(const QDBusMessage& message, const char* signature) {
    return message.type() == QDBusMessage::ReplyMessage && message.signature() == QLatin1String(signature);
}

} // namespace

const QDBusArgument& operator>>(const QDBusArgument& argument, AccessibleObject& object) {
    argument.beginStructure();
    argument >> object.service >> object.path;
    argument.endStructure();
    return argument;
}

AccessibleObject accessibleRoot() {
    return {registryName, QDBusObjectPath(rootPath)};
}

QDBusMessage childrenOf(const AccessibleObject& object) {
    return question(object, accessibleInterface, "GetChildren");
}

QDBusMessage statesOf(const AccessibleObject& object) {
    return question(object, accessibleInterface, "GetState");
}

QDBusMessage nameOf(const AccessibleObject& object) {
    return question(object, propertiesInterface, "Get") << accessibleInterface << "Name";
}

QDBusMessage attributesOf(const AccessibleObject& object) {
    return question(object, accessibleInterface, "GetAttributes");
}

QDBusMessage shownWebDocumentIn(const AccessibleObject& object) {
    return question(object, collectionInterface, "GetMatches")
           << QVariant::fromValue(shownWebDocuments()) << canonicalOrder << onlyTheFirst << throughAllLevels;
}

QDBusMessage documentAttributesOf(const AccessibleObject& document) {
    return question(document, documentInterface, "GetAttributes");
}

std::optional<AccessibleObjects> objectsIn(const QDBusMessage& answer) {
    return hasSignature(answer, "a(so)")
               ? std::optional(qdbus_cast<AccessibleObjects>(answer.arguments().at(0)))
               : std::nullopt;
}

std::optional<bool> isActiveIn(const QDBusMessage& statesAnswer) {
    if (!hasSignature(statesAnswer, "au")) {
        return std::nullopt;
    }
    const auto states = qdbus_cast<QList<std::uint32_t>>(statesAnswer.arguments().at(0));
    return !states.isEmpty() && ((states.front() >> activeState) & 1U) != 0;
}

std::optional<QString> nameIn(const QDBusMessage& answer) {
    return hasSignature(answer, "v")
               ? std::optional(qvariant_cast<QDBusVariant>(answer.arguments().at(0)).variant().toString())
               : std::nullopt;
}

std::optional<QString> addressIn(const QDBusMessage& documentAttributesAnswer) {
    if (!hasSignature(documentAttributesAnswer, "a{ss}")) {
        return std::nullopt;
    }
    const auto attributes = qdbus_cast<QMap<QString, QString>>(documentAttributesAnswer.arguments().at(0));
    for (const char* const name : addressAttributes) {
        const QString address = attributes.value(name);
        if (!address.isEmpty()) {
            return address;
        }
    }
    return QString();
}

} // namespace kestrelfen
