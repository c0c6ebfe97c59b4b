#include "platform/linux/PortalDisplayWishes.hpp"

#include <QDBusArgument>
#include <QDBusVariant>
#include <QMap>
#include <QStringList>
#include <QVariantMap>

namespace kestrelfen {

namespace {

constexpr char portalName[] = "org.freedesktop.portal.Desktop";
constexpr char portalPath[] = "/org/freedesktop/portal/desktop";
constexpr char settingsInterface[] = "org.freedesktop.portal.Settings";

constexpr char everyDesktop[] = "org.freedesktop.appearance";
constexpr char gnome[] = "org.gnome.desktop.interface";
constexpr char gnomeAccessibility[] = "org.gnome.desktop.a11y.interface";
constexpr char kde[] = "org.kde.kdeglobals.KDE";

constexpr char allSignature[] = "a{sa{sv}}";
constexpr char changedSignature[] = "ssv";

constexpr unsigned preferDark = 1;
constexpr unsigned preferLight = 2;

QVariant plain(const QVariant& value) {
    return value.metaType() == QMetaType::fromType<QDBusVariant>() ? value.value<QDBusVariant>().variant()
                                                                   : value;
}

/// Yes if any of them says so; absent if none says anything.
std::optional<bool> anyOf(std::initializer_list<std::optional<bool>> answers) {
    std::optional<bool> result;
    for (const auto& answer : answers) {
        if (answer) {
            result = result.value_or(false) || *answer;
        }
    }
    return result;
}

template <typename Judge>
std::optional<bool> ifTold(const QVariant& value, const Judge& judge) {
    return value.isValid() ? std::optional<bool>(judge(value)) : std::nullopt;
}

} // namespace

PortalDisplayWishes::PortalDisplayWishes(BusLink& sessionBus)
    : portal_(
          sessionBus, portalName,
          {[this] { look(); }, [this] { forget(); }, [this](const QDBusMessage& signal) { hear(signal); }}) {
    portal_.follow({portalPath, settingsInterface, "SettingChanged"});
}

void PortalDisplayWishes::look() {
    const QStringList groups{everyDesktop, gnome, gnomeAccessibility, kde};
    portal_.ask({portalPath, settingsInterface, "ReadAll"}, {groups},
                [this](const QDBusMessage& answer) { takeAll(answer); });
}

void PortalDisplayWishes::forget() {
    settings_.clear();
    settle();
}

void PortalDisplayWishes::takeAll(const QDBusMessage& answer) {
    if (answer.signature() != allSignature) {
        return;
    }
    settings_.clear();
    const auto groups = qdbus_cast<QMap<QString, QVariantMap>>(answer.arguments().at(0));
    for (auto group = groups.begin(); group != groups.end(); ++group) {
        for (auto each = group->begin(); each != group->end(); ++each) {
            settings_.insert({group.key(), each.key()}, plain(each.value()));
        }
    }
    settle();
}

void PortalDisplayWishes::hear(const QDBusMessage& signal) {
    if (signal.signature() != changedSignature) {
        return;
    }
    const QVariantList arguments = signal.arguments();
    settings_.insert({arguments.at(0).toString(), arguments.at(1).toString()}, plain(arguments.at(2)));
    settle();
}

void PortalDisplayWishes::settle() {
    const Values now = read();
    if (now != values_) {
        values_ = now;
        observers_.notify();
    }
}

QVariant PortalDisplayWishes::setting(const char* group, const char* key) const {
    return settings_.value({group, key});
}

DisplayWishes::Values PortalDisplayWishes::read() const {
    return {.dark = dark(), .highContrast = highContrast(), .reducedMotion = reducedMotion()};
}

std::optional<bool> PortalDisplayWishes::dark() const {
    switch (setting(everyDesktop, "color-scheme").toUInt()) {
    case preferDark:
        return true;
    case preferLight:
        return false;
    default:
        return std::nullopt;
    }
}

std::optional<bool> PortalDisplayWishes::highContrast() const {
    const auto isOne = [](const QVariant& value) { return value.toUInt() == 1; };
    const auto isTrue = [](const QVariant& value) { return value.toBool(); };
    const auto isContrastTheme = [](const QVariant& value) {
        return value.toString().contains("HighContrast", Qt::CaseInsensitive);
    };
    return anyOf({ifTold(setting(everyDesktop, "contrast"), isOne),
                  ifTold(setting(gnomeAccessibility, "high-contrast"), isTrue),
                  ifTold(setting(gnome, "gtk-theme"), isContrastTheme)});
}

std::optional<bool> PortalDisplayWishes::reducedMotion() const {
    const auto isOne = [](const QVariant& value) { return value.toUInt() == 1; };
    const auto isFalse = [](const QVariant& value) { return !value.toBool(); };
    const auto isZero = [](const QVariant& value) {
        bool isNumber = false;
        return value.toDouble(&isNumber) == 0.0 && isNumber;
    };
    return anyOf({ifTold(setting(everyDesktop, "reduced-motion"), isOne),
                  ifTold(setting(gnome, "enable-animations"), isFalse),
                  ifTold(setting(kde, "AnimationDurationFactor"), isZero)});
}

} // namespace kestrelfen
