#include "platform/ports/PreferenceTable.hpp"

#include "base/Fault.hpp"
#include "platform/ports/Utf8.hpp"

#include <cmath>
#include <utility>

namespace kestrelfen {

namespace {

/// Unlike ==, tells −0.0 from 0.0.
bool isExactlySame(const PreferenceValue& left, const PreferenceValue& right) {
    const auto* const number = std::get_if<double>(&left);
    const auto* const other = std::get_if<double>(&right);
    return left == right && (!number || !other || std::signbit(*number) == std::signbit(*other));
}

/// Brings a value into the form in which it can be stored.
struct Storable {
    void operator()(double& number) const {
        if (!std::isfinite(number)) {
            fault("a preference must be a finite number");
        }
    }

    void operator()(std::string& text) const { text = wellFormedUtf8(std::move(text)); }

    void operator()(PreferenceStrings& texts) const {
        for (std::string& text : texts) {
            (*this)(text);
        }
    }

    void operator()(PreferenceDictionary& dictionary) const {
        PreferenceDictionary result;
        for (auto& [key, text] : dictionary) {
            result.insert_or_assign(wellFormedUtf8(key), wellFormedUtf8(std::move(text)));
        }
        dictionary = std::move(result);
    }

    template <typename Other>
    void operator()(Other&) const {}
};

} // namespace

const PreferenceValue* PreferenceTable::find(std::string_view key) const {
    const auto found = values_.find(key);
    return found == values_.end() ? nullptr : &found->second;
}

bool PreferenceTable::set(std::string_view key, PreferenceValue value) {
    std::visit(Storable(), value);
    const auto found = values_.find(key);
    if (found == values_.end()) {
        return values_.emplace(wellFormedUtf8(std::string(key)), std::move(value)).second;
    }
    if (isExactlySame(found->second, value)) {
        return false;
    }
    found->second = std::move(value);
    return true;
}

bool PreferenceTable::remove(std::string_view key) {
    const auto found = values_.find(key);
    if (found == values_.end()) {
        return false;
    }
    values_.erase(found);
    return true;
}

std::map<std::string, PreferenceValue> PreferenceTable::all() const {
    return {values_.begin(), values_.end()};
}

bool operator==(const PreferenceTable& left, const PreferenceTable& right) {
    if (left.size() != right.size()) {
        return false;
    }
    for (const auto& [key, value] : left.values_) {
        const PreferenceValue* const other = right.find(key);
        if (!other || !isExactlySame(value, *other)) {
            return false;
        }
    }
    return true;
}

} // namespace kestrelfen
