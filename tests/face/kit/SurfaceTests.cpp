#include "face/kit/KitTest.hpp"

namespace kestrelfen {
namespace {

constexpr char twoRows[] = R"(RowGroup {
    x: 20; y: 20; width: 300
    Item { width: 300; height: 40 }
    Repeater { model: 1; delegate: Item { width: 300; height: 40 } }
    Item { width: 300; height: 40; visible: false }
    Item { width: 300; height: 40 }
})";

class SurfaceTest : public KitTest {
  protected:
    void expectSurface(const char* fill) {
        const QColor body = over(token(fill), backdrop);
        EXPECT_TRUE(looks(pixel(120, 70), body));
        EXPECT_TRUE(looks(pixel(20, 70), over(token("hairline"), body)));
        EXPECT_TRUE(looks(pixel(19, 70), backdrop));
        EXPECT_TRUE(looks(pixel(219, 70), over(token("hairline"), body)));
        EXPECT_TRUE(looks(pixel(21, 70), body));
        EXPECT_TRUE(looks(pixel(120, 20), over(token("highlight"), over(token("hairline"), body))));
        EXPECT_TRUE(looks(pixel(120, 21), body));
        EXPECT_TRUE(looks(pixel(120, 119), over(token("hairline"), body)));
    }
};

TEST_F(SurfaceTest, aCardHasItsFillItsBorderAndItsBrightEdge) {
    show("GlassSurface { x: 20; y: 20; width: 200; height: 100; radius: 16 }");
    expectSurface("glass");
    appearance_.setStyle(InterfaceStyle::dark);
    expectSurface("glass");
}

TEST_F(SurfaceTest, aRecessedCardIsLessFilled) {
    show("GlassSurface { x: 20; y: 20; width: 200; height: 100; radius: 16; recessed: true }");
    expectSurface("glass2");
}

TEST_F(SurfaceTest, theCornersAreCutAndTheBrightEdgeStaysInThem) {
    show("GlassSurface { x: 20; y: 20; width: 200; height: 100; radius: 18 }");
    for (const int x : {20, 24, 29}) {
        EXPECT_TRUE(looks(pixel(x, 20), backdrop)) << x;
    }
    EXPECT_TRUE(looks(pixel(219, 119), backdrop));
    EXPECT_FALSE(looks(pixel(26, 26), backdrop, 30));
}

TEST_F(SurfaceTest, theBrightEdgeTakesNoClicks) {
    const QQuickItem* const item = show(R"(Item {
        property int clicks: 0
        width: 200; height: 100
        MouseArea { anchors.fill: parent; onClicked: ++parent.clicks }
        GlassSurface { width: 200; height: 100 }
    })");
    QTest::mouseClick(&window_, Qt::LeftButton, Qt::NoModifier, QPoint(100, 0));
    EXPECT_EQ(item->property("clicks").toInt(), 1);
}

TEST_F(SurfaceTest, aGroupPutsItsRowsOnGlassAndTheRuleInTheGapsAlone) {
    const QQuickItem* const group = show(twoRows);
    EXPECT_EQ(group->implicitHeight(), 40 * 3 + 2);
    const QColor glass = over(token("glass2"), backdrop);
    for (const int y : {22, 59, 61, 100, 102, 140}) {
        EXPECT_TRUE(looks(pixel(150, y), glass)) << y;
    }
    for (const int y : {60, 101}) {
        EXPECT_TRUE(looks(pixel(150, y), over(token("rule"), backdrop))) << y;
        EXPECT_TRUE(looks(pixel(20, y), over(token("rule"), backdrop))) << y;
    }
    EXPECT_TRUE(looks(pixel(150, 142), backdrop));
}

TEST_F(SurfaceTest, aGroupIsCutToCornersOf14) {
    show(twoRows);
    const QColor glass = over(token("glass2"), backdrop);
    for (const QPoint corner : {QPoint(21, 21), QPoint(318, 21), QPoint(21, 140), QPoint(318, 140)}) {
        EXPECT_TRUE(looks(pixel(corner.x(), corner.y()), backdrop)) << corner.x() << ' ' << corner.y();
    }
    for (const QPoint inside :
         {QPoint(25, 25), QPoint(20, 34), QPoint(20, 59), QPoint(20, 61), QPoint(20, 102)}) {
        EXPECT_TRUE(looks(pixel(inside.x(), inside.y()), glass)) << inside.x() << ' ' << inside.y();
    }
}

TEST_F(SurfaceTest, aGroupOfOneRowHasAllFourCorners) {
    show("RowGroup { x: 20; y: 20; width: 300; Item { width: 300; height: 40 } }");
    EXPECT_TRUE(looks(pixel(21, 21), backdrop));
    EXPECT_TRUE(looks(pixel(21, 58), backdrop));
    EXPECT_TRUE(looks(pixel(20, 40), over(token("glass2"), backdrop)));
    EXPECT_TRUE(looks(pixel(150, 60), backdrop));
}

TEST_F(SurfaceTest, aRowIsPaddedAndAsHighAsItsContent) {
    const QQuickItem* const row = show(R"(SettingRow {
        width: 300; title: "Title"; caption: "Caption"
        Item { implicitWidth: 50; implicitHeight: 30 }
    })");
    const QQuickItem* const texts = row->childItems().at(0);
    const QQuickItem* const trailing = row->childItems().at(1);
    EXPECT_EQ(texts->x(), 16);
    EXPECT_EQ(texts->y(), 13);
    EXPECT_EQ(trailing->x(), 300 - 16 - 50);
    EXPECT_EQ(texts->width(), 300 - 16 - 50 - 16 - 16);
    EXPECT_EQ(row->implicitHeight(), texts->height() + 26);
    EXPECT_EQ(texts->childItems().at(1)->y() - texts->childItems().at(0)->height(), 2);
}

TEST_F(SurfaceTest, aRowWithoutACaptionIsAsHighAsItsControl) {
    const QQuickItem* const row =
        show("SettingRow { width: 300; title: 'Title'; StepperControl { value: '1' } }");
    EXPECT_EQ(row->implicitHeight(), 30 + 26);
}

TEST_F(SurfaceTest, aLongCaptionWrapsBesideItsControl) {
    const QQuickItem* const row = show(R"(SettingRow {
        width: 200; title: "Title"; caption: "A caption that is much too long for what the control leaves of it"
        Item { implicitWidth: 80; implicitHeight: 30 }
    })");
    EXPECT_GT(row->implicitHeight(), 80);
}

} // namespace
} // namespace kestrelfen
