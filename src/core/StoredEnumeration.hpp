#pragma once

#include "base/Enumeration.hpp"
#include "platform/ports/Preferences.hpp"

namespace kestrelfen {

/// Specialised for each enumeration that is stored under one key: `key` and the `fallback` for an absent or
/// unknown text.
template <typename Case>
struct StoredEnumeration;

/// The case that is stored, if there is one.
template <typename Case>
std::optional<Case> storedCase(const Preferences& preferences) {
    const std::string* const raw = preferences.string(StoredEnumeration<Case>::key);
    return raw ? fromRawValue<Case>(*raw) : std::nullopt;
}

template <typename Case>
Case current(const Preferences& preferences) {
    return storedCase<Case>(preferences).value_or(StoredEnumeration<Case>::fallback);
}

template <typename Case>
void store(Case value, Preferences& preferences) {
    preferences.set(StoredEnumeration<Case>::key, std::string(rawValue(value)));
}

} // namespace kestrelfen
