#include "ui/ScreenTimeView/ScoreContent.hpp"

#include "base/Translated.hpp"

namespace kestrelfen {

ScoreContent ScoreContent::of(const EyeScore& score, const ScreenTimeTargets& targets, double workInterval) {
    const EyeScore::Band band = score.band();
    const bool hasData = band != EyeScore::Band::noData;
    return {.value = hasData ? std::to_string(score.score) : "—",
            .valueTint = hasData ? "ink" : "faint",
            .label = translated(kestrelfen::label(band)),
            .labelTint = tint(band),
            .meters = scoreMeters(score),
            .suggestion = kestrelfen::suggestion(score, targets, workInterval)};
}

} // namespace kestrelfen
