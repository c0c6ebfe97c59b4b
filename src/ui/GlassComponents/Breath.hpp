#pragma once

#include <vector>

namespace kestrelfen {

/// From `milliseconds` after the breath's start on, the picture is `growth` pixels wider and higher than at
/// rest.
struct BreathStep {
    int milliseconds;
    int growth;

    bool operator==(const BreathStep&) const = default;
};

/// One breath out and in, `legSeconds` each way, easing in and out, to `greatestGrowth` pixels: a step where
/// the edge moves by a whole pixel on each side, the first at 0 and the last at the end, both of growth 0.
std::vector<BreathStep> breathSteps(double greatestGrowth, double legSeconds);

} // namespace kestrelfen
