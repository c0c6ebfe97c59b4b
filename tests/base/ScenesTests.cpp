#include "base/Scenes.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

class RecordedWindows final : public SceneWindows {
  public:
    std::vector<std::string> identifiers() const override { return open_; }
    void bringToFront(std::size_t index) override { calls.push_back("front " + std::to_string(index)); }
    void open(Scene scene) override { calls.push_back("open " + std::string(rawValue(scene))); }

    std::vector<std::string> open_;
    std::vector<std::string> calls;
};

using Calls = std::vector<std::string>;

TEST(Scenes, theFirstWindowWhoseIdentifierBeginsWithTheScenesIsBroughtToTheFront) {
    RecordedWindows windows;
    windows.open_ = {"", "kestrelfen.settings", "kestrelfen.main-AppWindow-1", "kestrelfen.main-AppWindow-2"};
    EXPECT_TRUE(focusExistingWindow(windows, Scene::main));
    EXPECT_EQ(windows.calls, Calls{"front 2"});
}

TEST(Scenes, anIdentifierThatOnlyHoldsTheScenesIsNoneOfItsWindows) {
    RecordedWindows windows;
    windows.open_ = {"", "old.kestrelfen.main", "kestrelfen.mai"};
    EXPECT_FALSE(focusExistingWindow(windows, Scene::main));
    EXPECT_EQ(windows.calls, Calls{});
}

TEST(Scenes, aSceneWithoutAWindowIsOpened) {
    RecordedWindows windows;
    windows.open_ = {"kestrelfen.main"};
    showScene(windows, Scene::settings);
    EXPECT_EQ(windows.calls, Calls{"open kestrelfen.settings"});
}

TEST(Scenes, aSceneWithAWindowIsNotOpenedTwice) {
    RecordedWindows windows;
    windows.open_ = {"kestrelfen.main"};
    showScene(windows, Scene::main);
    EXPECT_EQ(windows.calls, Calls{"front 0"});
}

} // namespace
} // namespace kestrelfen
