#include "platform/linux/EventLoop.hpp"
#include "platform/linux/PrivateBus.hpp"
#include "platform/linux/StatusNotifierItem.hpp"
#include "platform/linux/TrayHost.hpp"
#include "platform/linux/TrayPictures.hpp"

#include <gmock/gmock.h>

namespace kestrelfen {
namespace {

using testing::ElementsAre;

class StatusNotifierItemTest : public testing::Test {
  protected:
    StatusNotifierItemTest() {
        item_.onActivate([this](std::optional<TrayPoint> point) { clicks_.push_back(point); });
    }

    TrayContent content(std::uint32_t colour = opaqueRed) {
        return {{plainPicture(2, colour)}, "Kestrelfen", [this] {
                    ++tooltipReads_;
                    return "read " + std::to_string(tooltipReads_);
                }};
    }

    bool becomesShown(bool isShown = true) {
        return waitUntil([this, isShown] { return item_.isShown() == isShown; });
    }

    BusConnection bus_;
    int tooltipReads_ = 0;
    std::vector<std::optional<TrayPoint>> clicks_;
    StatusNotifierItem item_{bus_.get()};
};

TEST_F(StatusNotifierItemTest, IsShownOnceAWatcherWithAHostHasIt) {
    TrayHost host;
    EXPECT_FALSE(item_.isShown());
    item_.show(content());
    EXPECT_EQ(host.next()["service"].toString(), bus_.get().baseService());
    EXPECT_TRUE(becomesShown());
}

TEST_F(StatusNotifierItemTest, DescribesItself) {
    TrayHost host;
    item_.show(content(0x80ff4020));
    host.next();
    const QJsonObject all = host.ask({{"do", "properties"}})["answer"].toObject();
    EXPECT_EQ(all["Category"].toString(), "ApplicationStatus");
    EXPECT_EQ(all["Id"].toString(), "kestrelfen");
    EXPECT_EQ(all["Title"].toString(), "Kestrelfen");
    EXPECT_EQ(all["Status"].toString(), "Active");
    EXPECT_TRUE(all["IconName"].isString());
    EXPECT_EQ(all["IconName"].toString(), "");
    EXPECT_TRUE(all["ItemIsMenu"].isBool());
    EXPECT_FALSE(all["ItemIsMenu"].toBool());
    EXPECT_FALSE(all.contains("Menu"));
    const QJsonArray point{0x80, 0xff, 0x40, 0x20};
    QJsonArray bytes;
    for (int index = 0; index < 16; ++index) {
        bytes.append(point[index % 4]);
    }
    EXPECT_EQ(all["IconPixmap"].toArray(), (QJsonArray{QJsonArray{2, 2, bytes}}));
}

TEST_F(StatusNotifierItemTest, AnswersEachPropertyAlone) {
    TrayHost host;
    item_.show(content());
    host.next();
    EXPECT_EQ(host.ask({{"do", "property"}, {"name", "Id"}})["answer"].toString(), "kestrelfen");
    EXPECT_EQ(host.ask({{"do", "property"}, {"name", "Menu"}})["error"].toString(),
              "org.freedesktop.DBus.Error.UnknownProperty");
    EXPECT_EQ(tooltipReads_, 0);
}

TEST_F(StatusNotifierItemTest, TheTooltipIsExactWheneverItIsRead) {
    TrayHost host;
    item_.show(content());
    host.next();
    for (const char* const text : {"read 1", "read 2"}) {
        EXPECT_EQ(host.ask({{"do", "property"}, {"name", "ToolTip"}})["answer"].toArray(),
                  (QJsonArray{"", QJsonArray(), "Kestrelfen", text}));
    }
}

TEST_F(StatusNotifierItemTest, EveryWayToActivateItCallsWithThePoint) {
    TrayHost host;
    item_.show(content());
    host.next();
    EXPECT_TRUE(host.call("Activate", {790, 20}).contains("answer"));
    EXPECT_TRUE(host.call("ContextMenu", {791, 21}).contains("answer"));
    EXPECT_TRUE(host.call("Activate", {0, 0}).contains("answer"));
    EXPECT_TRUE(waitUntil([this] { return clicks_.size() == 3; }));
    EXPECT_THAT(clicks_, ElementsAre(TrayPoint{790, 20}, TrayPoint{791, 21}, std::nullopt));
}

TEST_F(StatusNotifierItemTest, OnWaylandThePointIsUnknown) {
    TrayHost host;
    item_.show(content());
    host.next();
    qputenv("WAYLAND_DISPLAY", "wayland-0");
    host.call("Activate", {12, 8});
    EXPECT_TRUE(waitUntil([this] { return clicks_.size() == 1; }));
    qunsetenv("WAYLAND_DISPLAY");
    EXPECT_THAT(clicks_, ElementsAre(std::nullopt));
}

TEST_F(StatusNotifierItemTest, MiddleClickAndWheelDoNothing) {
    TrayHost host;
    item_.show(content());
    host.next();
    EXPECT_TRUE(host.call("SecondaryActivate", {790, 20}).contains("answer"));
    EXPECT_TRUE(host.call("Scroll", {120, "vertical"}).contains("answer"));
    EXPECT_TRUE(host.call("Explode", {}).contains("error"));
    EXPECT_TRUE(clicks_.empty());
}

TEST_F(StatusNotifierItemTest, TellsOnlyOfWhatHasChanged) {
    TrayHost host;
    item_.show(content());
    host.next();
    ASSERT_TRUE(becomesShown());

    item_.tooltipChanged();
    EXPECT_EQ(host.next()["name"].toString(), "NewToolTip");

    item_.show(content(opaqueGreen));
    EXPECT_EQ(host.next()["name"].toString(), "NewIcon");
    EXPECT_EQ(host.next()["name"].toString(), "NewToolTip");
    EXPECT_EQ(host.next()["name"].toString(), "XAyatanaNewLabel");

    TrayContent renamed = content(opaqueGreen);
    renamed.title = "Paused";
    item_.show(renamed);
    EXPECT_EQ(host.next()["name"].toString(), "NewTitle");
    EXPECT_EQ(host.next()["name"].toString(), "NewToolTip");
    EXPECT_EQ(host.next()["name"].toString(), "XAyatanaNewLabel");
}

TEST_F(StatusNotifierItemTest, IsNotShownByAWatcherWithoutAHost) {
    TrayHost host({"--no-host"});
    item_.show(content());
    host.next();
    pass(std::chrono::milliseconds(100));
    EXPECT_FALSE(item_.isShown());
    host.setHost(true);
    EXPECT_TRUE(becomesShown());
    host.setHost(false);
    EXPECT_TRUE(becomesShown(false));
}

TEST_F(StatusNotifierItemTest, RegistersWithEveryWatcherThatAppears) {
    item_.show(content());
    int changes = 0;
    const auto subscription = item_.observeShown([&changes] { ++changes; });
    {
        TrayHost host;
        EXPECT_EQ(host.next()["event"].toString(), "registered");
        EXPECT_TRUE(becomesShown());
    }
    EXPECT_TRUE(becomesShown(false));
    TrayHost successor;
    EXPECT_EQ(successor.next()["event"].toString(), "registered");
    EXPECT_TRUE(becomesShown());
    EXPECT_EQ(changes, 3);
}

} // namespace
} // namespace kestrelfen
