#pragma once

#include "platform/ports/Preferences.hpp"

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>

namespace kestrelfen {

/// The values in force of a preference store, in memory. Main thread only; a look-up allocates nothing.
class PreferenceTable {
  public:
    /// The value under `key`, or null. Valid until the next change.
    const PreferenceValue* find(std::string_view key) const;

    /// Puts `value` under `key` as Preferences::set says; false when just this value stood there already.
    bool set(std::string_view key, PreferenceValue value);

    /// False when `key` was absent.
    bool remove(std::string_view key);

    std::size_t size() const { return values_.size(); }

    /// Everything, sorted by key. A copy.
    std::map<std::string, PreferenceValue> all() const;

    /// Whether both hold the same keys with exactly the same values.
    friend bool operator==(const PreferenceTable& left, const PreferenceTable& right);

  private:
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(std::string_view key) const noexcept {
            return std::hash<std::string_view>()(key);
        }
    };

    std::unordered_map<std::string, PreferenceValue, Hash, std::equal_to<>> values_;
};

} // namespace kestrelfen
