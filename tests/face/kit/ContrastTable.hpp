#pragma once

#include <QColor>

#include <array>
#include <functional>
#include <string>
#include <vector>

namespace kestrelfen {

/// How much every text stands out from what it is drawn upon, as the guidelines of the web count it.
class ContrastTable {
  public:
    /// A colour of the palette by its name.
    using Palette = std::function<QColor(const char*)>;

    /// A token with a share of its opacity.
    struct Layer {
        const char* token = nullptr;
        double share = 1;
    };

    /// One text on one ground. The layers lie one above the other upon the backdrop, and the text is the
    /// last.
    struct Use {
        const char* where;
        std::vector<Layer> ground;
        Layer text;
        /// From 24 pixels on, or 19 in bold, less is enough.
        bool isLarge = false;
    };

    static constexpr double least = 4.5;
    static constexpr double leastLarge = 3;

    static const std::vector<Use>& uses();
    static double contrast(const QColor& one, const QColor& other);
    /// The least of each use over every colour that can lie below it.
    static std::vector<double> ratios(const Palette& palette);
    /// As Markdown: of each use light and dark, without and with the wish for more contrast.
    static std::string written(const std::array<std::vector<double>, 4>& columns);
};

} // namespace kestrelfen
