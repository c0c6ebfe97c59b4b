#include "face/kit/KitTest.hpp"
#include "ui/GlassComponents/Breath.hpp"

#include <cmath>
#include <numbers>

namespace kestrelfen {
namespace {

using Steps = std::vector<BreathStep>;

TEST(BreathTest, goesOutAndInByWholePixelsOfTheEdge) {
    // Eased, a quarter and three quarters of the way are reached after a third and two thirds of the leg.
    EXPECT_EQ(breathSteps(4, 3), (Steps{{0, 0}, {1000, 2}, {2000, 4}, {4000, 2}, {5000, 0}, {6000, 0}}));
}

TEST(BreathTest, neverStraysHalfAPixelFromTheEasedWay) {
    const double growth = 21.5;
    const double leg = 5000;
    const Steps steps = breathSteps(growth, leg / 1000);
    ASSERT_EQ(steps.size(), 2 * 11 + 2U);
    for (std::size_t next = 1; next < steps.size(); ++next) {
        EXPECT_GE(steps[next].milliseconds, steps[next - 1].milliseconds);
        for (const int moment : {steps[next - 1].milliseconds + 1, steps[next].milliseconds - 1}) {
            const double share = moment < leg ? moment / leg : 2 - moment / leg;
            const double eased = (1 - std::cos(share * std::numbers::pi)) / 2 * growth;
            EXPECT_NEAR(steps[next - 1].growth, eased, 1.02) << moment;
        }
    }
}

TEST(BreathTest, ofLessThanAPixelStaysAsItIs) {
    EXPECT_EQ(breathSteps(0.4, 5), (Steps{{0, 0}, {10000, 0}}));
    EXPECT_EQ(breathSteps(0, 5), (Steps{{0, 0}, {10000, 0}}));
}

class HaloTest : public KitTest {
  protected:
    /// 152 pixels wide with the reach of its blur, its centre at (100, 100).
    QQuickItem* showHalo(const QString& more = {}) {
        return show(
            "Halo { x: 24; y: 24; width: 152; height: 152; tint: '#80ff0000'; diameter: 100; blur: 10; " +
            more + "}");
    }

    /// How red it is so far from the centre, from 0 to 1.
    double strength(double distance) {
        const double blue = pixel(100 + distance, 100).blueF();
        return 1 - blue / backdrop.blueF();
    }
};

TEST_F(HaloTest, isFullInTheMiddleHalfAtItsEdgeAndGoneBeyondItsBlur) {
    showHalo();
    EXPECT_NEAR(strength(0), 0.5, 0.02);
    EXPECT_NEAR(strength(20), 0.5, 0.02);
    EXPECT_NEAR(strength(50), 0.25, 0.03);
    EXPECT_NEAR(strength(74), 0.0, 0.02);
    EXPECT_TRUE(looks(pixel(26, 26), backdrop));
}

TEST_F(HaloTest, isTheSameInAllDirections) {
    showHalo();
    const QImage seen = picture();
    for (const int distance : {0, 30, 48, 55, 70}) {
        const QRgb right = seen.pixel(100 + distance, 100);
        EXPECT_EQ(right, seen.pixel(99 - distance, 100)) << distance;
        EXPECT_EQ(right, seen.pixel(100, 100 + distance)) << distance;
        EXPECT_EQ(right, seen.pixel(100, 99 - distance)) << distance;
    }
}

TEST_F(HaloTest, growsWhileItBreathesAndIsAtRestAgainWhenItStops) {
    showHalo("legSeconds: 0.2; breathing: true");
    const double atRest = strength(52);
    EXPECT_TRUE(QTest::qWaitFor([&] { return strength(52) > atRest + 0.05; }, 2000));
    root_->setProperty("breathing", false);
    EXPECT_NEAR(strength(52), atRest, 0.001);
}

TEST_F(HaloTest, drawsNoFrameBetweenItsSteps) {
    showHalo("legSeconds: 1000; breathing: true");
    QTest::qWait(300);
    int frames = 0;
    QObject::connect(&window_, &QQuickWindow::afterRendering, [&frames] { ++frames; });
    QTest::qWait(300);
    EXPECT_EQ(frames, 0);
}

} // namespace
} // namespace kestrelfen
