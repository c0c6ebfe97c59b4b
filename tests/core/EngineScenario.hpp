#pragma once

#include "core/EngineOracle.hpp"

#include <cstdint>
#include <random>

namespace kestrelfen {

/// A life of the engine at random, the same for the same seed: ticks and jumps, every operation, signals,
/// changed settings, days and zones. Each step is held against the oracle.
class EngineScenario {
  public:
    explicit EngineScenario(std::uint64_t seed);

    void step();

    EngineHarness& harness() { return harness_; }
    const EngineOracle& oracle() const { return oracle_; }
    /// Everything that was done and what happened.
    const std::string& story();

  private:
    void tick();
    void operate();
    void operateOnBreaks();
    void operateOnPauses();
    void changeTheWorld();
    void changeAPreference();

    /// Does one thing that must lead to the state `expected`.
    template <typename Act>
    void perform(const std::string& what, const std::string& expected, Act act) {
        harness_.trace.add("-- " + what);
        act();
        expectState(expected);
    }

    void expectState(const std::string& expected);

    std::uint64_t pick(std::uint64_t count) { return random_() % count; }
    bool oneIn(std::uint64_t count) { return pick(count) == 0; }
    template <typename Value, std::size_t count>
    const Value& oneOf(const Value (&values)[count]) {
        return values[pick(count)];
    }

    std::mt19937_64 random_;
    EngineHarness harness_;
    EngineOracle oracle_{harness_};
    std::string story_;
};

} // namespace kestrelfen
