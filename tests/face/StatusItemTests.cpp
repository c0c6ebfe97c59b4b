#include "face/FaceTest.hpp"
#include "shell/desktop/StatusItem.hpp"

namespace kestrelfen {

namespace {

class FakeTrayIcon final : public TrayIcon {
  public:
    void show(TrayContent content) override { contents.push_back(std::move(content)); }
    void tooltipChanged() override { ++tooltipChanges; }
    void labelChanged() override { ++labelChanges; }
    bool isShown() const override { return true; }
    void click() const { activate(TrayPoint{3, 4}); }

    std::vector<TrayContent> contents;
    int tooltipChanges = 0;
    int labelChanges = 0;
};

class StatusItemTest : public FaceTest {
  protected:
    StatusItemTest() { item_.follow(delegate_.engine(), machine_.mainQueue); }

    FakeTrayIcon tray_;
    StatusItem item_{tray_};
};

TEST_F(StatusItemTest, theTooltipIsExactWhenItIsRead) {
    run(65);
    EXPECT_EQ(tray_.contents.back().tooltip(), "Next break in 18:55");
    delegate_.engine().pause(PauseReason::manual);
    EXPECT_EQ(tray_.contents.back().tooltip(), "Paused, 18:55 left");
}

TEST_F(StatusItemTest, thePictureTellsTheState) {
    run(1190);
    ASSERT_EQ(tray_.contents.size(), 2U);
    run(10);
    ASSERT_EQ(tray_.contents.size(), 3U);
    delegate_.engine().pause(PauseReason::manual);
    settle();
    ASSERT_EQ(tray_.contents.size(), 4U);
    for (std::size_t index = 0; index < 4; ++index) {
        for (std::size_t other = 0; other < index; ++other) {
            EXPECT_NE(tray_.contents[index].pictures, tray_.contents[other].pictures) << index << other;
        }
    }
}

TEST_F(StatusItemTest, aPictureHasEverySizeAndSomethingInIt) {
    for (const TrayPicture& picture : tray_.contents.back().pictures) {
        EXPECT_EQ(picture.argb.size(), static_cast<std::size_t>(picture.size * picture.size));
        EXPECT_NE(picture.argb, std::vector<std::uint32_t>(picture.argb.size(), 0U));
    }
}

TEST_F(StatusItemTest, theTrayIsToldOfTheTooltipOnceAMinute) {
    const int before = tray_.tooltipChanges;
    run(600);
    EXPECT_EQ(tray_.tooltipChanges - before, 10);
}

TEST_F(StatusItemTest, theLabelCountsDownByTheSecondInItsWidth) {
    run(65);
    EXPECT_EQ(tray_.contents.back().label(), "18:55");
    EXPECT_EQ(tray_.contents.back().labelGuide.size(), tray_.contents.back().label().size());
    const int before = tray_.labelChanges;
    run(10);
    EXPECT_EQ(tray_.labelChanges - before, 10);
    delegate_.engine().pause(PauseReason::manual);
    settle();
    run(10);
    EXPECT_LE(tray_.labelChanges - before, 11) << "a time that stands still is not told";
}

TEST_F(StatusItemTest, thereAreOtherPicturesForPanelsThatAreKnown) {
    const TrayContent& content = tray_.contents.back();
    EXPECT_EQ(content.onLight.size(), content.pictures.size());
    EXPECT_EQ(content.onDark.size(), content.pictures.size());
    EXPECT_NE(content.onLight, content.onDark);
    EXPECT_NE(content.onLight, content.pictures);
}

TEST_F(StatusItemTest, aClickIsHandedOnWithItsPlace) {
    std::optional<TrayPoint> place;
    item_.onActivate = [&place](std::optional<TrayPoint> point) { place = point; };
    tray_.click();
    EXPECT_EQ(place, (TrayPoint{3, 4}));
}

} // namespace

} // namespace kestrelfen
