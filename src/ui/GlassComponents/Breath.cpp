#include "ui/GlassComponents/Breath.hpp"

#include <cmath>
#include <numbers>

namespace kestrelfen {

namespace {

/// When the eased way has come to `share` of its length, as a share of the leg.
double easeInOutReaches(double share) {
    return std::acos(1.0 - 2.0 * share) / std::numbers::pi;
}

} // namespace

std::vector<BreathStep> breathSteps(double greatestGrowth, double legSeconds) {
    const double leg = legSeconds * 1000.0;
    const double greatest = greatestGrowth / 2.0;
    const int pixels = greatest > 0.5 ? static_cast<int>(std::lround(greatest)) : 0;
    const auto reached = [&](int pixel) {
        return static_cast<int>(std::lround(leg * easeInOutReaches((pixel - 0.5) / greatest)));
    };
    const int whole = static_cast<int>(std::lround(2 * leg));
    std::vector<BreathStep> steps{{0, 0}};
    for (int pixel = 1; pixel <= pixels; ++pixel) {
        steps.push_back({reached(pixel), 2 * pixel});
    }
    for (int pixel = pixels; pixel > 0; --pixel) {
        steps.push_back({whole - reached(pixel), 2 * (pixel - 1)});
    }
    steps.push_back({whole, 0});
    return steps;
}

} // namespace kestrelfen
