#include "face/kit/ContrastTable.hpp"

#include "face/kit/KitTest.hpp"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace kestrelfen {

namespace {

using Layer = ContrastTable::Layer;
using Use = ContrastTable::Use;

/// Under everything, one after the other, as each place of the gradient may lie under a text. The card of the
/// warning lies on whatever the desktop shows.
constexpr std::array<const char*, 3> gradient{"wallpaper1", "wallpaper2", "wallpaper4"};
constexpr const char* anything = "anything";

QColor faded(QColor color, double share) {
    color.setAlphaF(color.alphaF() * static_cast<float>(share));
    return color;
}

QColor drawn(const ContrastTable::Palette& palette, const std::vector<Layer>& layers, QColor below) {
    for (const Layer& each : layers) {
        below = KitTest::over(faded(palette(each.token), each.share), below);
    }
    return below;
}

std::vector<QColor> backdrops(const ContrastTable::Palette& palette, const Use& use) {
    if (use.ground.front().token == anything) {
        return {Qt::black, Qt::white};
    }
    std::vector<QColor> all;
    std::transform(gradient.begin(), gradient.end(), std::back_inserter(all), palette);
    return all;
}

double ratio(const ContrastTable::Palette& palette, const Use& use) {
    double result = 21;
    for (const QColor& backdrop : backdrops(palette, use)) {
        std::vector<Layer> layers = use.ground;
        std::erase_if(layers, [](const Layer& each) { return each.token == anything; });
        const QColor ground = drawn(palette, layers, backdrop);
        result = std::min(result, ContrastTable::contrast(drawn(palette, {use.text}, ground), ground));
    }
    return result;
}

double luminance(const QColor& color) {
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

std::string named(const Layer& layer) {
    return layer.share == 1 ? "`" + std::string(layer.token) + "`"
                            : "`" + std::string(layer.token) + "` at " +
                                  std::to_string(static_cast<int>(std::lround(100 * layer.share))) + " %";
}

std::string cell(double ratio, double needed) {
    std::array<char, 16> text{};
    // Never rounded up to what is needed.
    std::snprintf(text.data(), text.size(), "%.2f", std::floor(100 * ratio) / 100);
    return ratio < needed ? "**" + std::string(text.data()) + "**" : std::string(text.data());
}

} // namespace

double ContrastTable::contrast(const QColor& one, const QColor& other) {
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

std::vector<double> ContrastTable::ratios(const Palette& palette) {
    std::vector<double> all;
    for (const Use& use : uses()) {
        all.push_back(ratio(palette, use));
    }
    return all;
}

std::string ContrastTable::written(const std::array<std::vector<double>, 4>& columns) {
    std::string text = "| where | text | light | dark | light, more contrast | dark, more contrast |\n"
                       "| --- | --- | --- | --- | --- | --- |\n";
    for (std::size_t index = 0; index < uses().size(); ++index) {
        const Use& use = uses()[index];
        text +=
            "| " + std::string(use.where) + " | " + named(use.text) + (use.isLarge ? ", large" : "") + " |";
        for (const std::vector<double>& column : columns) {
            text += " " + cell(column[index], use.isLarge ? leastLarge : least) + " |";
        }
        text += "\n";
    }
    return text;
}

} // namespace kestrelfen
