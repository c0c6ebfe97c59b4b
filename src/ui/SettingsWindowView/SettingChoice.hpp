#pragma once

#include "platform/ports/Preferences.hpp"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrelfen {

/// A preference that has few values to choose among: behind a switch, pills or cards.
class SettingChoice {
  public:
    struct Option {
        /// The value in words.
        std::string word;
        /// Its text in the person's language, asked for whenever it is shown; none behind a switch.
        std::function<std::string()> label;
        PreferenceValue value;
    };

    using Selected = std::function<std::optional<std::size_t>(const Preferences&)>;

    SettingChoice(std::string_view key, std::vector<Option> options, Selected selected)
        : key_(key), options_(std::move(options)), selected_(std::move(selected)) {}

    /// The one bound to `key`, or null. Lives as long as the program.
    static const SettingChoice* find(std::string_view key);

    /// Of all that there are.
    static std::vector<std::string_view> keys();

    const std::vector<Option>& options() const { return options_; }

    /// The option in force; absent when the value is none of these.
    std::optional<std::size_t> selected(const Preferences& preferences) const {
        return selected_(preferences);
    }

    /// The option that `word` stands for, or null.
    const Option* option(std::string_view word) const;

    void choose(const Option& option, Preferences& preferences) const { preferences.set(key_, option.value); }

  private:
    static const std::vector<SettingChoice>& all();

    std::string_view key_;
    std::vector<Option> options_;
    Selected selected_;
};

} // namespace kestrelfen
