#include "face/kit/KitTest.hpp"
#include "ui/GlassComponents/SpringValue.hpp"

namespace kestrelfen {
namespace {

QString ring(double remaining) {
    return QString("CountdownRing { x: 20; y: 20; remaining: %1; label: ''; diameter: 100; lineWidth: 8; "
                   "labelSize: 20 }")
        .arg(remaining);
}

QString bar(const QString& fraction) {
    return "TrackBar { x: 20; y: 20; width: 200; barHeight: 6; tint: Glass.accent; fraction: " + fraction +
           " }";
}

class PieceTest : public KitTest {
  protected:
    /// The middle of the ring's line, so many hours round the clock.
    QColor ringAt(double hours) {
        const double angle = hours / 12 * 2 * 3.14159265358979;
        return pixel(70 + 46 * std::sin(angle), 70 - 46 * std::cos(angle));
    }

    QColor sunk() const { return over(token("sunk"), backdrop); }
};

TEST_F(PieceTest, aRingAtItsEndStillShowsADotAtTheTop) {
    const QQuickItem* const item = show(ring(0));
    EXPECT_EQ(item->implicitWidth(), 100);
    EXPECT_EQ(item->implicitHeight(), 100);
    EXPECT_TRUE(looks(ringAt(0), token("accent"), 6));
    for (const double hours : {1.0, 3.0, 6.0, 9.0, 11.0}) {
        EXPECT_TRUE(looks(ringAt(hours), over(token("rule"), backdrop))) << hours;
    }
}

TEST_F(PieceTest, aRingRunsClockwiseFromTheTop) {
    show(ring(0.3));
    for (const double hours : {0.0, 1.0, 3.0, 3.5}) {
        EXPECT_TRUE(looks(ringAt(hours), token("accent"), 6)) << hours;
    }
    for (const double hours : {4.5, 6.0, 9.0, 11.0}) {
        EXPECT_TRUE(looks(ringAt(hours), over(token("rule"), backdrop))) << hours;
    }
}

TEST_F(PieceTest, aRingOfMoreThanAllIsAFullCircle) {
    show(ring(1.7));
    for (int hours = 0; hours < 12; ++hours) {
        EXPECT_TRUE(looks(ringAt(hours), token("accent"), 6)) << hours;
    }
    EXPECT_TRUE(looks(pixel(70, 19), backdrop)) << "within its square";
}

TEST_F(PieceTest, aRingSweepsToANewValueAndJumpsWithLessMotion) {
    show(ring(1));
    root_->setProperty("remaining", 0.5);
    EXPECT_TRUE(looks(ringAt(9), token("accent"), 6)) << "not yet there";
    EXPECT_TRUE(QTest::qWaitFor([this] { return looks(ringAt(6.5), over(token("rule"), backdrop)); }, 2000));
    appearance_.setWishes({.reducedMotion = true});
    root_->setProperty("remaining", 0.1);
    EXPECT_TRUE(looks(ringAt(2), over(token("rule"), backdrop)));
}

TEST_F(PieceTest, aBarFillsUpFromItsLeadingEnd) {
    const QQuickItem* const item = show(bar("0.5"));
    EXPECT_EQ(item->height(), 6);
    EXPECT_TRUE(looks(pixel(40, 23), token("accent")));
    EXPECT_TRUE(looks(pixel(115, 23), token("accent")));
    EXPECT_TRUE(looks(pixel(125, 23), sunk()));
}

TEST_F(PieceTest, aMirroredBarFillsUpFromTheRight) {
    show("Item { LayoutMirroring.enabled: true; LayoutMirroring.childrenInherit: true; " + bar("0.25") + "}");
    EXPECT_TRUE(looks(pixel(200, 23), token("accent")));
    EXPECT_TRUE(looks(pixel(100, 23), sunk()));
}

TEST_F(PieceTest, aBarStaysInItsCapsule) {
    for (const char* const fraction : {"-3", "0", "NaN"}) {
        show(bar(fraction));
        EXPECT_TRUE(looks(pixel(24, 23), sunk())) << fraction;
        EXPECT_TRUE(looks(pixel(15, 23), backdrop)) << fraction;
    }
    show(bar("2.5"));
    EXPECT_TRUE(looks(pixel(215, 23), token("accent")));
    EXPECT_TRUE(looks(pixel(222, 23), backdrop));
}

TEST_F(PieceTest, aBadgeIsItsTintFaded) {
    const QQuickItem* const badge = show("TypeBadge { x: 20; y: 20; text: 'Active'; tint: Glass.accent }");
    QColor tint = token("accent");
    tint.setAlphaF(0.14F);
    EXPECT_TRUE(looks(pixel(22, 20 + badge->height() / 2), over(tint, backdrop)));
    EXPECT_TRUE(looks(pixel(20, 20), backdrop));
    const QQuickItem* const caption = badge->childItems().at(0);
    EXPECT_EQ(badge->width(), caption->width() + 14);
    EXPECT_EQ(badge->height(), caption->height() + 6);
}

TEST_F(PieceTest, upperCasingIsDrawingOnly) {
    const QQuickItem* const item = show(R"(Row {
        property alias eyebrow: eyebrow
        Eyebrow { id: eyebrow; text: "Today" }
        Label { text: "TODAY"; size: 9.5; weight: Font.Medium; monospaced: true; tracking: 1.2 }
    })");
    EXPECT_EQ(item->childItems().at(0)->property("text").toString(), "Today");
    EXPECT_EQ(item->childItems().at(0)->implicitWidth(), item->childItems().at(1)->implicitWidth());
}

TEST_F(PieceTest, aTextOfHalfASizeIsAsWideAsItShouldBe) {
    for (const double size : {9.5, 10.5, 11.5, 12.5, 13.5}) {
        const QString words = "Find a stopping point. Dismissing keeps the break.";
        const QQuickItem* const row = show(QString("Row { Label { size: %1; text: '%2' } Text { font.family: "
                                                   "Appearance.sans; font.pixelSize: %3; "
                                                   "text: '%2' } }")
                                               .arg(size)
                                               .arg(words)
                                               .arg(static_cast<int>(size * 8)));
        const double exact = row->childItems().at(1)->implicitWidth() / 8;
        EXPECT_NEAR(row->childItems().at(0)->implicitWidth(), exact, exact * 0.01) << size;
    }
}

TEST_F(PieceTest, onAFineScreenATextOfHalfASizeIsSetTwiceAsLarge) {
    EXPECT_EQ(appearance_.enlargement(12.5, 2.0), 2);
    EXPECT_EQ(appearance_.enlargement(12.5, 1.0), 1);
    EXPECT_EQ(appearance_.enlargement(12.0, 2.0), 1);
    EXPECT_EQ(appearance_.tightening(12.5, 2, false), 0.0);
    EXPECT_EQ(appearance_.tightening(12.5, 1, false), -0.25);
}

TEST_F(PieceTest, aSpringPassesThroughTheMiddleAndComesToRest) {
    SpringValue spring;
    spring.componentComplete();
    std::vector<double> values;
    QObject::connect(&spring, &SpringValue::valueChanged, &spring, [&] { values.push_back(spring.value()); });
    spring.setTarget(1);
    EXPECT_EQ(spring.value(), 0.0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return spring.value() == 1.0; }, 2000));
    EXPECT_TRUE(
        std::any_of(values.begin(), values.end(), [](double value) { return value > 0.1 && value < 0.95; }));
    const double most = *std::max_element(values.begin(), values.end());
    EXPECT_LT(most, 1.0065) << "a damping of 0.85 swings over by 0.63 %";
}

TEST_F(PieceTest, withLessMotionASpringJumps) {
    appearance_.setWishes({.reducedMotion = true});
    SpringValue spring;
    spring.componentComplete();
    spring.setTarget(1);
    EXPECT_EQ(spring.value(), 1.0);
}

TEST_F(PieceTest, nothingIsDrawnWhileNothingMoves) {
    show("Column { " + ring(0.4) + bar("0.3") +
         "GlassToggle { isOn: true } StepperControl { value: '1' } PrimaryAction { label: 'Go' } "
         "SegmentedPills { selection: 1; options: [{value: 1, label: 'One'}] } }");
    QTest::qWait(1300);
    int frames = 0;
    QObject::connect(&window_, &QQuickWindow::frameSwapped, &window_, [&] { ++frames; });
    QTest::qWait(600);
    EXPECT_EQ(frames, 0);
    window_.update();
    EXPECT_TRUE(QTest::qWaitFor([&] { return frames > 0; }, 2000)) << "frames are heard of at all";
}

} // namespace
} // namespace kestrelfen
