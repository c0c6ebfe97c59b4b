#include "ui/GlassComponents/SymbolDrawings.hpp"
#include "ui/GlassComponents/SymbolPainting.hpp"
#include "ui/GlassComponents/SymbolPath.hpp"
#include "ui/MenuBarView/FooterItem.hpp"
#include "ui/MenuBarView/StatusItemPicture.hpp"

#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace kestrelfen {

namespace {

constexpr std::array<std::string_view, 22> wanted{
    "eye",
    "eye.trianglebadge.exclamationmark",
    "eye.slash",
    "pause.circle",
    "chart.bar.fill",
    "list.bullet.rectangle",
    "checklist",
    "clock.arrow.circlepath",
    "gearshape.fill",
    "gearshape",
    "power",
    "checkmark",
    "exclamationmark.triangle.fill",
    "hand.raised.fill",
    "minus.circle.fill",
    "plus.circle",
    "hammer",
    "bubble.left.and.bubble.right",
    "safari",
    "play.rectangle",
    "wrench.and.screwdriver",
    "questionmark.circle",
};

QImage drawn(std::string_view name, int size, const QColor& tint = Qt::black) {
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    paintSymbol(painter, name, QRectF(0, 0, size, size), {tint, 1.5 * size / SymbolDrawing::field});
    return image;
}

int inkOf(const QImage& image) {
    int ink = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            ink += qAlpha(image.pixel(x, y)) > 127 ? 1 : 0;
        }
    }
    return ink;
}

TEST(Symbols, everyNameThatTheViewsUseDrawsSomething) {
    for (const std::string_view name : wanted) {
        EXPECT_GT(inkOf(drawn(name, 48)), 60) << name;
    }
    EXPECT_EQ(inkOf(drawn("no.such.symbol", 48)), 0);
}

TEST(Symbols, eachDrawsSomethingElse) {
    const auto all = symbolDrawings();
    for (std::size_t index = 0; index < all.size(); ++index) {
        for (std::size_t other = 0; other < index; ++other) {
            EXPECT_NE(all[index].name, all[other].name);
            EXPECT_NE(drawn(all[index].name, 24), drawn(all[other].name, 24))
                << all[index].name << " and " << all[other].name;
        }
    }
}

TEST(Symbols, eachStaysWithinItsBox) {
    for (const SymbolDrawing& drawing : symbolDrawings()) {
        const QRectF field(0, 0, SymbolDrawing::field, SymbolDrawing::field);
        const QRectF bounds =
            symbolPath(drawing.strokes).boundingRect() | symbolPath(drawing.dots).boundingRect();
        EXPECT_TRUE(field.contains(bounds.adjusted(-0.75, -0.75, 0.75, 0.75))) << drawing.name;
    }
}

TEST(Symbols, theTintColoursAllOfIt) {
    const QImage image = drawn("list.bullet.rectangle", 24, QColor(10, 200, 30));
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = image.pixelColor(x, y);
            EXPECT_TRUE(color.alpha() == 0 || (color.green() > color.red() && color.green() > color.blue()));
        }
    }
}

TEST(Symbols, theFootersItemsHaveTheirs) {
    for (const FooterItem item : allCases<FooterItem>()) {
        EXPECT_NE(symbolDrawing(symbol(item)), nullptr) << symbol(item);
    }
}

TEST(SymbolPath, readsLinesBothWays) {
    QPainterPath path(QPointF(1, 2));
    path.lineTo(4, 2);
    path.lineTo(4, 6);
    path.lineTo(1.5, 5.5);
    path.closeSubpath();
    EXPECT_EQ(symbolPath("M1 2H4V6L1.5 5.5Z"), path);
    EXPECT_EQ(symbolPath("m1 2h3v4l-2.5-.5z"), path);
    EXPECT_EQ(symbolPath("M1,2 4,2 4,6 1.5,5.5Z"), path);
}

TEST(SymbolPath, readsCurvesBothWays) {
    QPainterPath path(QPointF(1, 1));
    path.cubicTo(2, 1, 3, 2, 3, 4);
    EXPECT_EQ(symbolPath("M1 1C2 1 3 2 3 4"), path);
    EXPECT_EQ(symbolPath("M1 1c1 0 2 1 2 3"), path);
}

TEST(SymbolPath, anArcTakesTheSideAndTheLengthThatItsFlagsSay) {
    const auto bounds = [](const char* data) {
        const QRectF rect = symbolPath(data).boundingRect();
        const auto round = [](double value) { return static_cast<double>(std::lround(value * 10)) / 10.0; };
        return QRectF(QPointF(round(rect.left()), round(rect.top())),
                      QPointF(round(rect.right()), round(rect.bottom())));
    };
    EXPECT_EQ(bounds("M10 10A5 5 0 0 1 15 15"), QRectF(10, 10, 5, 5));
    EXPECT_EQ(bounds("M10 10A5 5 0 1 1 15 15"), QRectF(10, 5, 10, 10));
    EXPECT_EQ(bounds("M10 10A5 5 0 1 0 15 15"), QRectF(5, 10, 10, 10));
    EXPECT_EQ(bounds("M10 10a5 5 0 1 0 5 5"), QRectF(5, 10, 10, 10));
    EXPECT_EQ(bounds("M3 12A9 9 0 1 1 21 12A9 9 0 1 1 3 12Z"), QRectF(3, 3, 18, 18));
}

TEST(SymbolPath, endsWhereItCannotRead) {
    EXPECT_EQ(symbolPath("M1 1L2 2Q3 3"), symbolPath("M1 1L2 2"));
    EXPECT_TRUE(symbolPath("").isEmpty());
}

double luminance(const QColor& color) {
    const auto linear = [](double share) {
        return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor& one, const QColor& other) {
    const auto [low, high] = std::minmax({luminance(one), luminance(other)});
    return (high + 0.05) / (low + 0.05);
}

TEST(StatusItemPicture, standsOutOnEveryPanel) {
    const QColor lightPanel(0xEF, 0xEF, 0xEF);
    const QColor darkPanel(0x20, 0x23, 0x26);
    for (const std::string_view symbol :
         {"eye", "eye.trianglebadge.exclamationmark", "eye.slash", "pause.circle"}) {
        const QColor either = statusItemColor(symbol, PanelShade::unknown);
        EXPECT_GT(contrast(either, lightPanel), 3.3) << symbol;
        EXPECT_GT(contrast(either, darkPanel), 3.3) << symbol;
        EXPECT_GT(contrast(statusItemColor(symbol, PanelShade::light), lightPanel), 10) << symbol;
        EXPECT_GT(contrast(statusItemColor(symbol, PanelShade::dark), darkPanel), 10) << symbol;
    }
}

TEST(StatusItemPicture, tellsTheStatesApartAtEverySize) {
    constexpr std::array<std::string_view, 4> symbols{"eye", "eye.trianglebadge.exclamationmark", "eye.slash",
                                                      "pause.circle"};
    for (const int size : {16, 18, 20, 22, 24, 32, 44, 48, 64}) {
        for (std::size_t index = 0; index < symbols.size(); ++index) {
            const QImage image = statusItemPicture(symbols[index], size, PanelShade::dark);
            EXPECT_EQ(image.size(), QSize(size, size));
            EXPECT_GT(inkOf(image), size);
            for (std::size_t other = 0; other < index; ++other) {
                EXPECT_NE(image, statusItemPicture(symbols[other], size, PanelShade::dark));
            }
        }
    }
    EXPECT_EQ(inkOf(statusItemPicture("no.such.symbol", 24, PanelShade::dark)), 0);
}

} // namespace

} // namespace kestrelfen
