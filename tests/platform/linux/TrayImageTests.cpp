#include "platform/linux/TrayImage.hpp"
#include "platform/linux/TrayPictures.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

constexpr std::uint32_t opaqueBlue = 0xff0000ff;

const std::vector<TrayPicture> threeSizes{plainPicture(64, opaqueBlue), plainPicture(16, opaqueRed),
                                          plainPicture(24, opaqueGreen)};

TEST(TrayImage, TakesTheSmallestPictureThatNeedsNoEnlarging) {
    EXPECT_EQ(trayImage(threeSizes, {16, 16}).pixel(8, 8), opaqueRed);
    EXPECT_EQ(trayImage(threeSizes, {20, 20}).pixel(8, 8), opaqueGreen);
    EXPECT_EQ(trayImage(threeSizes, {40, 40}).pixel(8, 8), opaqueBlue);
}

TEST(TrayImage, TakesTheLargestWhereAllAreTooSmall) {
    EXPECT_EQ(trayImage(threeSizes, {100, 100}).pixel(99, 99), opaqueBlue);
}

TEST(TrayImage, CentresASquareInAnyPlace) {
    const QImage image = trayImage(threeSizes, {40, 20});
    EXPECT_EQ(image.size(), QSize(40, 20));
    EXPECT_EQ(qAlpha(image.pixel(9, 10)), 0);
    EXPECT_EQ(image.pixel(10, 10), opaqueGreen);
    EXPECT_EQ(image.pixel(29, 10), opaqueGreen);
    EXPECT_EQ(qAlpha(image.pixel(30, 10)), 0);
}

TEST(TrayImage, WithoutPicturesIsTransparent) {
    EXPECT_EQ(qAlpha(trayImage({}, {16, 16}).pixel(8, 8)), 0);
}

TEST(TrayImage, PicturesSuitThePanelWhereItIsKnown) {
    const TrayContent content{.pictures = {plainPicture(16, opaqueRed)},
                              .title = {},
                              .tooltip = {},
                              .onLight = {plainPicture(16, opaqueGreen)},
                              .onDark = {plainPicture(16, opaqueBlue)}};
    EXPECT_EQ(picturesFor(content, std::nullopt), content.pictures);
    EXPECT_EQ(picturesFor(content, false), content.onLight);
    EXPECT_EQ(picturesFor(content, true), content.onDark);
    const TrayContent plain{.pictures = content.pictures, .title = {}, .tooltip = {}};
    EXPECT_EQ(picturesFor(plain, true), content.pictures);
}

TEST(TrayImage, PanelIsDarkWhereLightLinesStandOutBetter) {
    QImage panel(4, 4, QImage::Format_RGB32);
    panel.fill(QColor(0xEF, 0xEF, 0xEF));
    EXPECT_FALSE(isDarkPanel(panel));
    panel.fill(QColor(0xC0, 0, 0));
    EXPECT_TRUE(isDarkPanel(panel));
    panel.fill(QColor(130, 130, 130));
    EXPECT_FALSE(isDarkPanel(panel));
    panel.fill(QColor(105, 105, 105));
    EXPECT_TRUE(isDarkPanel(panel));
}

} // namespace
} // namespace kestrelfen
