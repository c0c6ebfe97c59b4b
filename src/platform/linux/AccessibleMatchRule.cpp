#include "platform/linux/AccessibleMatchRule.hpp"

#include <QDBusArgument>
#include <QDBusMetaType>

#include <algorithm>

namespace kestrelfen {

namespace {

constexpr int showingState = 25;
constexpr int webDocumentRole = 95;
constexpr int wordBits = 32;
constexpr int stateWords = 2;
constexpr int roleWords = 4;

QList<std::int32_t> onlyBit(int bit, int words) {
    QList<std::int32_t> set(words, 0);
    set[bit / wordBits] = static_cast<std::int32_t>(1U << (bit % wordBits));
    return set;
}

std::int32_t number(AccessibleMatchRule::Kind kind) {
    return static_cast<std::int32_t>(kind);
}

void read(const QDBusArgument& argument, AccessibleMatchRule::Kind& kind) {
    std::int32_t value = 0;
    argument >> value;
    kind = static_cast<AccessibleMatchRule::Kind>(value);
}

} // namespace

QDBusArgument& operator<<(QDBusArgument& argument, const AccessibleMatchRule& rule) {
    argument.beginStructure();
    argument << rule.states << number(rule.stateKind) << rule.attributes << number(rule.attributeKind)
             << rule.roles << number(rule.roleKind) << rule.interfaces << number(rule.interfaceKind)
             << rule.isInverted;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, AccessibleMatchRule& rule) {
    argument.beginStructure();
    argument >> rule.states;
    read(argument, rule.stateKind);
    argument >> rule.attributes;
    read(argument, rule.attributeKind);
    argument >> rule.roles;
    read(argument, rule.roleKind);
    argument >> rule.interfaces;
    read(argument, rule.interfaceKind);
    argument >> rule.isInverted;
    argument.endStructure();
    return argument;
}

AccessibleMatchRule shownWebDocuments() {
    // Without its type's way onto the bus the rule cannot be sent.
    [[maybe_unused]] static const QMetaType type = qDBusRegisterMetaType<AccessibleMatchRule>();
    AccessibleMatchRule rule;
    rule.states = onlyBit(showingState, stateWords);
    rule.roles = onlyBit(webDocumentRole, roleWords);
    return rule;
}

} // namespace kestrelfen
