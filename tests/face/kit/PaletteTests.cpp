#include "face/kit/KitTest.hpp"

#include <algorithm>
#include <cmath>

namespace kestrelfen {
namespace {

struct Token {
    const char* name;
    QRgb light;
    double lightAlpha;
    QRgb dark;
    double darkAlpha;
};

constexpr Token tokens[] = {
    {"accent", 0x0E8F7E, 1.0, 0x43D3BC, 1.0},     {"ink", 0x0C1A20, 1.0, 0xE9F2F3, 1.0},
    {"slate", 0x4A616B, 1.0, 0x9DB2B9, 1.0},      {"faint", 0x8CA1A9, 1.0, 0x6E868F, 1.0},
    {"amber", 0xB4701A, 1.0, 0xE0A45C, 1.0},      {"danger", 0xC4483C, 1.0, 0xE5695B, 1.0},
    {"glass", 0xFFFFFF, 0.62, 0x121E24, 0.6},     {"glass2", 0xFFFFFF, 0.42, 0x121E24, 0.4},
    {"hairline", 0xFFFFFF, 0.7, 0xFFFFFF, 0.14},  {"highlight", 0xFFFFFF, 0.9, 0xFFFFFF, 0.18},
    {"rule", 0x0E1A20, 0.1, 0xFFFFFF, 0.1},       {"sunk", 0x0E1A20, 0.05, 0xFFFFFF, 0.06},
    {"accentFill", 0x0B7F70, 1.0, 0x43D3BC, 1.0}, {"overAccent", 0xFFFFFF, 1.0, 0x04231F, 1.0},
    {"hudFill", 0xF7FAFA, 0.96, 0x101C22, 0.96},  {"hudBorder", 0x0E1A20, 0.16, 0xFFFFFF, 0.2},
    {"wallpaper1", 0xBFE3DC, 1.0, 0x12433E, 1.0}, {"wallpaper2", 0xDCEAF2, 1.0, 0x132B38, 1.0},
    {"wallpaper4", 0xA9CFD6, 1.0, 0x0B2A31, 1.0},
};

double luminance(const QColor& color) {
    const auto linear = [](double channel) {
        return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor& one, const QColor& other) {
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

class PaletteTest : public KitTest {
  protected:
    void expectTokens(bool dark) const {
        for (const Token& each : tokens) {
            const QColor color = token(each.name);
            EXPECT_EQ(color.rgb() & 0xFFFFFFU, dark ? each.dark : each.light) << each.name;
            EXPECT_NEAR(color.alphaF(), dark ? each.darkAlpha : each.lightAlpha, 0.0001) << each.name;
        }
    }

    QColor faded(const char* name, double share) const {
        QColor color = token(name);
        color.setAlphaF(color.alphaF() * static_cast<float>(share));
        return color;
    }

    /// Every surface that text stands on, over each colour of the gradient.
    std::vector<QColor> surfaces() const {
        std::vector<QColor> all;
        for (const char* const stop : {"wallpaper1", "wallpaper2", "wallpaper4"}) {
            const QColor base = over(token("blur"), token(stop));
            const QColor pane = over(token("glass2"), base);
            const QColor main = over(token("glass"), base);
            const QColor row = over(token("glass2"), pane);
            const QColor card = over(token("glass"), main);
            const QColor onboardingCard = over(token("glass"), pane);
            all.insert(all.end(), {pane, main, row, card, onboardingCard, over(token("glass2"), main),
                                   over(token("sunk"), onboardingCard), over(token("sunk"), main),
                                   over(token("sunk"), row), over(token("hudFill"), base)});
        }
        return all;
    }

    double least(const QColor& text) const {
        double result = 21;
        for (const QColor& surface : surfaces()) {
            result = std::min(result, contrast(text, surface));
        }
        return result;
    }

    /// Of a text on a share of a token over the panes, cards and rows that carry such.
    double leastOn(const char* text, const char* tint, double share) const {
        double result = 21;
        for (const char* const stop : {"wallpaper1", "wallpaper2", "wallpaper4"}) {
            const QColor base = over(token("blur"), token(stop));
            const QColor pane = over(token("glass2"), base);
            const QColor main = over(token("glass"), base);
            for (const QColor& below :
                 {pane, main, over(token("glass2"), pane), over(token("glass"), main)}) {
                result = std::min(result, contrast(token(text), over(faded(tint, share), below)));
            }
        }
        return result;
    }
};

TEST_F(PaletteTest, everyTokenHasItsLightAndItsDarkValue) {
    expectTokens(false);
    appearance_.setStyle(InterfaceStyle::dark);
    expectTokens(true);
    appearance_.setStyle(InterfaceStyle::light);
    expectTokens(false);
}

TEST_F(PaletteTest, aChangeRedrawsWithoutRebuilding) {
    const QQuickItem* const item = show("Rectangle { width: 50; height: 50; color: Glass.ink }");
    EXPECT_TRUE(looks(pixel(10, 10), QColor(0x0C1A20)));
    appearance_.setStyle(InterfaceStyle::dark);
    EXPECT_TRUE(looks(pixel(10, 10), QColor(0xE9F2F3)));
    EXPECT_EQ(root_.get(), item);
}

TEST_F(PaletteTest, theSystemAppearanceFollowsTheDesktopLive) {
    appearance_.setStyle(InterfaceStyle::system);
    appearance_.setWishes({.dark = true});
    expectTokens(true);
    appearance_.setWishes({.dark = false});
    expectTokens(false);
    appearance_.setStyle(InterfaceStyle::light);
    appearance_.setWishes({.dark = true});
    expectTokens(false);
}

TEST_F(PaletteTest, withMoreContrastEveryTextStandsOutOnEverySurface) {
    appearance_.setWishes({.highContrast = true});
    for (const InterfaceStyle style : {InterfaceStyle::light, InterfaceStyle::dark}) {
        appearance_.setStyle(style);
        for (const char* const text : {"ink", "slate", "faint", "accent", "amber", "danger"}) {
            EXPECT_GE(least(token(text)), 4.5) << text << " in style " << static_cast<int>(style);
        }
        EXPECT_GE(contrast(token("overProminent"), token("prominent")), 4.5);
        EXPECT_GE(contrast(token("overAccent"), token("accentFill")), 4.5);
    }
}

TEST_F(PaletteTest, withMoreContrastTextStandsOutOnItsOwnTint) {
    appearance_.setWishes({.highContrast = true});
    for (const InterfaceStyle style : {InterfaceStyle::light, InterfaceStyle::dark}) {
        appearance_.setStyle(style);
        for (const char* const text : {"accent", "amber", "slate"}) {
            EXPECT_GE(leastOn(text, text, 0.14), 4.5) << text << " in style " << static_cast<int>(style);
        }
        EXPECT_GE(leastOn("slate", "amber", 0.12), 4.5) << static_cast<int>(style);
        EXPECT_GE(leastOn("danger", "danger", 0.2), 4.5) << static_cast<int>(style);
    }
}

TEST_F(PaletteTest, withoutThatWishProminentIsWhiteOnAccent) {
    EXPECT_EQ(token("prominent"), token("accent"));
    EXPECT_EQ(token("overProminent"), QColor(Qt::white));
}

TEST_F(PaletteTest, moreContrastComesAndGoesLive) {
    appearance_.setWishes({.highContrast = true});
    EXPECT_NE(token("faint"), QColor(0x8CA1A9));
    EXPECT_EQ(token("prominent"), QColor(0x0B7F70));
    appearance_.setWishes({});
    expectTokens(false);
}

} // namespace
} // namespace kestrelfen
