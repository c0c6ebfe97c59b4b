#pragma once

#include "base/Date.hpp"
#include "base/Observable.hpp"

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace kestrelfen {

using PreferenceData = std::vector<std::uint8_t>;
using PreferenceStrings = std::vector<std::string>;
using PreferenceDictionary = std::map<std::string, std::string>;

using PreferenceValue = std::variant<bool, std::int64_t, double, std::string, Date, PreferenceData,
                                     PreferenceStrings, PreferenceDictionary>;

/// The flat store of the person's choices. An absent key is a state of its own, different from a stored
/// false, 0 or empty list. Main thread only; a read is a look-up in memory and allocates nothing.
class Preferences {
  public:
    virtual ~Preferences() = default;

    /// The value under `key`, or null when it is absent. Valid until the next change.
    virtual const PreferenceValue* object(std::string_view key) const = 0;

    /// The value reads back exactly. Numbers must be finite; in text that is not UTF-8 replacement characters
    /// take the place of what is malformed. Keeps the value in force even where it cannot be stored.
    virtual void set(std::string_view key, PreferenceValue value) = 0;

    virtual void remove(std::string_view key) = 0;

    /// Tells of every real change, whether made here or outside the program, once it is in force.
    [[nodiscard]] Subscription observe(std::function<void()> changed) {
        return observers_.add(std::move(changed));
    }

    // A value of another type than the one asked for reads as absent; the two number types read as each
    // other, a real one cut towards zero and kept within the integers' range.
    std::optional<bool> boolean(std::string_view key) const;
    std::optional<std::int64_t> integer(std::string_view key) const;
    std::optional<double> real(std::string_view key) const;
    const std::string* string(std::string_view key) const;
    std::optional<Date> date(std::string_view key) const;
    const PreferenceData* data(std::string_view key) const;
    const PreferenceStrings* strings(std::string_view key) const;
    const PreferenceDictionary* dictionary(std::string_view key) const;

  protected:
    void notifyObservers() const { observers_.notify(); }

  private:
    Observers observers_;
};

} // namespace kestrelfen
