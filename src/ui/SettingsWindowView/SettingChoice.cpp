#include "ui/SettingsWindowView/SettingChoice.hpp"

#include "base/Translated.hpp"
#include "core/AppAppearance.hpp"
#include "core/DoubleEscapeAction.hpp"
#include "core/EnforcementLevel.hpp"
#include "core/HistoryRetention.hpp"
#include "core/IdleMode.hpp"
#include "core/Settings.hpp"
#include "core/SnoozeOption.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace kestrelfen {

namespace {

using Options = std::vector<SettingChoice::Option>;
using Label = std::function<std::string()>;

constexpr std::int64_t noLimit = -1;

Label labelOf(std::string_view original) {
    return [original] { return translated(original); };
}

SettingChoice boolean(std::string_view key, bool fallback) {
    return {key, {{"false", {}, false}, {"true", {}, true}}, [key, fallback](const Preferences& preferences) {
                return std::optional<std::size_t>(Settings::boolean(preferences, key, fallback) ? 1 : 0);
            }};
}

template <typename Case>
SettingChoice stored() {
    Options options;
    for (const auto& row : EnumerationTable<Case>::rows) {
        const std::string word(row.rawValue);
        options.push_back({word, labelOf(row.label), word});
    }
    return {StoredEnumeration<Case>::key, std::move(options), [](const Preferences& preferences) {
                return std::optional(static_cast<std::size_t>(current<Case>(preferences)));
            }};
}

std::optional<std::size_t> placeOf(const Options& options, const PreferenceValue& value) {
    const auto found = std::find_if(options.begin(), options.end(), [&](const SettingChoice::Option& option) {
        return option.value == value;
    });
    return found == options.end() ? std::nullopt
                                  : std::optional(static_cast<std::size_t>(found - options.begin()));
}

SettingChoice whole(std::string_view key, std::int64_t fallback, const Options& options) {
    return {key, options, [key, fallback, options](const Preferences& preferences) {
                return placeOf(options, Settings::integer(preferences, key, fallback));
            }};
}

std::string quotaText(std::int64_t limit) {
    if (limit == noLimit) {
        return translated("No limit");
    }
    return limit == 0 ? translated("None") : std::to_string(limit);
}

SettingChoice quota(std::string_view key) {
    Options options;
    for (const std::int64_t limit :
         {std::int64_t{0}, std::int64_t{1}, std::int64_t{2}, std::int64_t{3}, std::int64_t{5}, noLimit}) {
        options.push_back({std::to_string(limit), [limit] { return quotaText(limit); }, limit});
    }
    return whole(key, noLimit, options);
}

SettingChoice retention() {
    Options options;
    for (const HistoryRetention each : historyRetentions) {
        options.push_back({std::to_string(days(each)), labelOf(label(each)), days(each)});
    }
    return whole("historyRetentionDays", days(HistoryRetention::year), options);
}

/// The first of the nearest, so the shorter one halfway between two.
std::size_t nearestSnooze(double length) {
    const auto distance = [length](SnoozeOption option) { return std::abs(seconds(option) - length); };
    const auto nearest = std::min_element(
        snoozeOptions.begin(), snoozeOptions.end(),
        [&](SnoozeOption left, SnoozeOption right) { return distance(left) < distance(right); });
    return static_cast<std::size_t>(nearest - snoozeOptions.begin());
}

SettingChoice snoozeDuration() {
    constexpr const char* key = "snoozeDurationSeconds";
    Options options;
    for (const SnoozeOption option : snoozeOptions) {
        options.push_back({std::to_string(60 * minutes(option)), [option] { return pickerLabel(option); },
                           seconds(option)});
    }
    return {key, std::move(options), [](const Preferences& preferences) {
                return std::optional(
                    nearestSnooze(Settings::real(preferences, key, seconds(SnoozeOption::five))));
            }};
}

std::vector<SettingChoice> makeChoices() {
    return {
        stored<EnforcementLevel>(),
        snoozeDuration(),
        quota("snoozesPerDay"),
        quota("snoozesPerBreak"),
        quota("advanceSkipsPerDay"),
        boolean("showSkipButton", true),
        boolean("allowEndBreakEarly", true),
        stored<DoubleEscapeAction>(),
        boolean("lockOnBreakStart", false),
        boolean("smartPauseMeetings", true),
        boolean("smartPauseVideo", true),
        boolean("smartPauseScreenSharing", true),
        boolean("smartPauseFocusApps", false),
        stored<IdleMode>(),
        boolean("resumeAutomatically", true),
        boolean("pauseOnScreenLock", true),
        boolean("pauseOnDisplaySleep", true),
        boolean("pauseOnSystemSleep", true),
        boolean("warningHUDEnabled", true),
        boolean("dailySummaryEnabled", true),
        boolean("soundOnBreakStart", false),
        retention(),
        stored<AppAppearance>(),
    };
}

/// A real number can be written in more than one way.
bool isNumber(std::string_view word, const PreferenceValue& value) {
    const auto* const number = std::get_if<double>(&value);
    double written = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), written);
    return number && error == std::errc() && end == word.data() + word.size() && written == *number;
}

} // namespace

const std::vector<SettingChoice>& SettingChoice::all() {
    static const std::vector<SettingChoice> choices = makeChoices();
    return choices;
}

std::vector<std::string_view> SettingChoice::keys() {
    std::vector<std::string_view> keys;
    for (const SettingChoice& choice : all()) {
        keys.push_back(choice.key_);
    }
    return keys;
}

const SettingChoice* SettingChoice::find(std::string_view key) {
    const std::vector<SettingChoice>& choices = all();
    const auto found = std::find_if(choices.begin(), choices.end(),
                                    [key](const SettingChoice& choice) { return choice.key_ == key; });
    return found == choices.end() ? nullptr : &*found;
}

const SettingChoice::Option* SettingChoice::option(std::string_view word) const {
    const auto found = std::find_if(options_.begin(), options_.end(), [word](const Option& option) {
        return option.word == word || isNumber(word, option.value);
    });
    return found == options_.end() ? nullptr : &*found;
}

} // namespace kestrelfen
