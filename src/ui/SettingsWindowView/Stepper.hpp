#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace kestrelfen {

class Preferences;

enum class StepDirection { up, down };

/// A number among the preferences that is changed step by step. Values from elsewhere may lie outside its
/// range.
class Stepper {
  public:
    enum class Number { real, whole };

    struct Range {
        double minimum;
        double maximum;
        double step;
    };

    constexpr Stepper(std::string_view key, Number number, double fallback, Range range)
        : key_(key), number_(number), fallback_(fallback), range_(range) {}

    /// The one bound to `key`, or null.
    static const Stepper* find(std::string_view key);

    /// Of all that there are.
    static std::vector<std::string_view> keys();

    std::string_view key() const { return key_; }
    double value(const Preferences& preferences) const;
    bool can(StepDirection direction, const Preferences& preferences) const;

    /// Writes the value of one step further, within the range.
    void step(StepDirection direction, Preferences& preferences) const;

  private:
    void write(double value, Preferences& preferences) const;

    std::string_view key_;
    Number number_;
    double fallback_;
    Range range_;
};

/// Those that there are; lengths in seconds.
struct Steppers {
    static constexpr std::int64_t cyclesFallback = 4;

    static constexpr Stepper workInterval{"workIntervalSeconds", Stepper::Number::real, 1200, {60, 7200, 60}};
    static constexpr Stepper breakDuration{"breakDurationSeconds", Stepper::Number::real, 20, {5, 300, 5}};
    static constexpr Stepper longBreak{"longBreakDurationSeconds", Stepper::Number::real, 300, {5, 3600, 60}};
    static constexpr Stepper longBreakEvery{
        "longBreakEvery", Stepper::Number::whole, cyclesFallback, {2, 12, 1}};
    static constexpr Stepper warningLead{
        "preBreakWarningLeadSeconds", Stepper::Number::real, 10, {0, 300, 5}};
    static constexpr Stepper idleThreshold{"idleThresholdSeconds", Stepper::Number::real, 60, {15, 1800, 15}};
};

} // namespace kestrelfen
