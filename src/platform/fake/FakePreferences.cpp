#include "platform/fake/FakePreferences.hpp"

#include <utility>

namespace kestrelfen {

void FakePreferences::set(std::string_view key, PreferenceValue value) {
    if (table_.set(key, std::move(value))) {
        notifyObservers();
    }
}

void FakePreferences::remove(std::string_view key) {
    if (table_.remove(key)) {
        notifyObservers();
    }
}

} // namespace kestrelfen
