#pragma once

#include "base/Date.hpp"
#include "core/PauseReason.hpp"

#include <optional>

namespace kestrelfen {

/// The phase of the timer. Two states are equal when they are the same case with the same payload.
class BreakState {
  public:
    enum class Case { working, onBreak, paused, idle, preBreakWarning };

    static BreakState working(Date endsAt) { return BreakState(Case::working, endsAt, PauseReason::manual); }
    static BreakState onBreak(Date endsAt) { return BreakState(Case::onBreak, endsAt, PauseReason::manual); }
    static BreakState paused(PauseReason reason) { return BreakState(Case::paused, Date(), reason); }
    static BreakState idle() { return BreakState(Case::idle, Date(), PauseReason::manual); }
    static BreakState preBreakWarning() {
        return BreakState(Case::preBreakWarning, Date(), PauseReason::manual);
    }

    Case phase() const { return phase_; }
    bool is(Case phase) const { return phase_ == phase; }

    /// Only in `working` and `onBreak`.
    std::optional<Date> endsAt() const {
        const bool ends = phase_ == Case::working || phase_ == Case::onBreak;
        return ends ? std::optional(endsAt_) : std::nullopt;
    }

    /// Only in `paused`.
    std::optional<PauseReason> reason() const {
        return phase_ == Case::paused ? std::optional(reason_) : std::nullopt;
    }

    friend bool operator==(const BreakState&, const BreakState&) = default;

  private:
    BreakState(Case phase, Date endsAt, PauseReason reason)
        : phase_(phase), endsAt_(endsAt), reason_(reason) {}

    Case phase_;
    Date endsAt_;
    PauseReason reason_;
};

template <>
struct EnumerationTable<BreakState::Case> {
    static constexpr std::array<EnumerationRow<BreakState::Case>, 5> rows{{
        {BreakState::Case::working, "working"},
        {BreakState::Case::onBreak, "onBreak"},
        {BreakState::Case::paused, "paused"},
        {BreakState::Case::idle, "idle"},
        {BreakState::Case::preBreakWarning, "preBreakWarning"},
    }};
};

} // namespace kestrelfen
