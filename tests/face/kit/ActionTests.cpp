#include "face/kit/KitTest.hpp"

namespace kestrelfen {
namespace {

class ActionTest : public KitTest {
  protected:
    QQuickItem* action(const QString& type, const QString& properties = {}) {
        return show(type +
                    " { x: 40; y: 40; label: 'Break Now'; property int clicks: 0; onClicked: ++clicks; " +
                    properties + "}");
    }

    QColor body() { return pixel(40 + 6, 40 + root_->height() / 2); }
    QColor edge() { return pixel(40, 40 + root_->height() / 2); }

    void hold() { QTest::mousePress(&window_, Qt::LeftButton, Qt::NoModifier, QPoint(60, 55)); }

    static QColor share(QColor color, double alpha) {
        color.setAlphaF(static_cast<float>(alpha));
        return color;
    }

    static QColor darker(const QColor& color, float by) {
        return QColor::fromRgbF(std::max(0.0F, color.redF() - by), std::max(0.0F, color.greenF() - by),
                                std::max(0.0F, color.blueF() - by));
    }
};

TEST_F(ActionTest, thePrimaryIsAccentWithAnInnerLineAndAShadow) {
    const QQuickItem* const item = action("PrimaryAction");
    EXPECT_EQ(item->width(), item->childItems().at(0)->width() + 32);
    EXPECT_EQ(item->height(), item->childItems().at(0)->height() + 22);
    const QColor accent = token("accent");
    EXPECT_TRUE(looks(body(), accent));
    EXPECT_TRUE(looks(edge(), over(share(Qt::white, 0.35), accent)));
    const double middle = 40 + item->width() / 2;
    const QColor below = pixel(middle, 40 + item->height() + 1);
    EXPECT_FALSE(looks(below, backdrop, 8)) << "a shadow below";
    EXPECT_GT(below.green(), backdrop.green()) << "of the accent, not of black";
    EXPECT_TRUE(looks(pixel(middle, 40 - 16), backdrop)) << "none far above";
}

TEST_F(ActionTest, thePressedPrimaryIsDarker) {
    action("PrimaryAction");
    hold();
    EXPECT_TRUE(looks(body(), darker(token("accent"), 0.06F)));
    EXPECT_TRUE(looks(edge(), over(share(darker(Qt::white, 0.06F), 0.35), darker(token("accent"), 0.06F))));
}

TEST_F(ActionTest, theSecondaryIsGlassAndMoreOfItWhilePressed) {
    const QQuickItem* const item = action("SecondaryAction");
    EXPECT_EQ(item->height(), item->childItems().at(0)->height() + 20);
    EXPECT_TRUE(looks(body(), over(token("glass2"), backdrop)));
    EXPECT_TRUE(looks(edge(), over(token("hairline"), over(token("glass2"), backdrop))));
    hold();
    EXPECT_TRUE(looks(body(), over(token("glass"), backdrop)));
}

TEST_F(ActionTest, theDangerIsItsColourFaded) {
    const QQuickItem* const item = action("DangerAction");
    EXPECT_EQ(item->property("radius").toDouble(), 11);
    const QColor fill = over(share(token("danger"), 0.12), backdrop);
    EXPECT_TRUE(looks(body(), fill));
    EXPECT_TRUE(looks(edge(), over(share(token("danger"), 0.35), fill)));
    hold();
    EXPECT_TRUE(looks(body(), over(share(token("danger"), 0.2), backdrop)));
}

TEST_F(ActionTest, theRadiusIsTheCallers) {
    action("SecondaryAction", "radius: 0");
    EXPECT_FALSE(looks(pixel(40, 40), backdrop, 20));
    action("SecondaryAction", "radius: 12");
    EXPECT_TRUE(looks(pixel(40, 40), backdrop));
}

TEST_F(ActionTest, aClickCountsOnlyWhereItIsLetGo) {
    action("SecondaryAction");
    hold();
    QTest::mouseRelease(&window_, Qt::LeftButton, Qt::NoModifier, QPoint(300, 200));
    EXPECT_EQ(count("clicks"), 0);
    click(root_.get());
    EXPECT_EQ(count("clicks"), 1);
}

TEST_F(ActionTest, aDisabledActionIsFaintAndTakesNothing) {
    action("SecondaryAction", "enabled: false");
    EXPECT_EQ(root_->opacity(), 0.4);
    click(root_.get());
    press(Qt::Key_Tab);
    press(Qt::Key_Return);
    EXPECT_EQ(count("clicks"), 0);
}

TEST_F(ActionTest, aLinkIsOnlyItsWords) {
    const QQuickItem* const item = action("PlainLink");
    EXPECT_EQ(item->width(), item->childItems().at(0)->implicitWidth());
    EXPECT_TRUE(looks(pixel(40, 40), backdrop));
    click(root_.get());
    EXPECT_EQ(count("clicks"), 1);
}

} // namespace
} // namespace kestrelfen
