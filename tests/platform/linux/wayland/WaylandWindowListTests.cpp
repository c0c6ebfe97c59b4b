#include "WaylandSessionTest.hpp"

namespace kestrelfen {
namespace {

constexpr ScreenRect leftDisplay{0, 0, 800, 600};
constexpr ScreenRect rightDisplay{800, 0, 640, 480};

class WaylandWindowListTest : public WaylandSessionTest {
  protected:
    /// The displays of the application's windows, those of the last one in front first.
    std::vector<ScreenRect> placesOf(const std::string& applicationId) const {
        std::vector<ScreenRect> places;
        for (const auto& window : windows->onScreen().value_or(std::vector<ScreenWindow>())) {
            if (window.ownerProcess == numberOf(applicationId)) {
                places.push_back(window.bounds.value_or(ScreenRect{}));
            }
        }
        return places;
    }

    bool lie(const std::string& applicationId, const std::vector<ScreenRect>& places) const {
        return waitUntil([&] { return placesOf(applicationId) == places; });
    }

    /// The applications of the windows, front to back.
    std::string order() const {
        std::string result;
        for (const auto& window : windows->onScreen().value_or(std::vector<ScreenWindow>())) {
            for (const auto& application : applications->running()) {
                if (window.ownerProcess == application.processIdentifier) {
                    result += *application.bundleIdentifier + " ";
                }
            }
        }
        return result;
    }

  private:
    std::optional<std::int64_t> numberOf(const std::string& applicationId) const {
        for (const auto& application : applications->running()) {
            if (application.bundleIdentifier == applicationId) {
                return application.processIdentifier;
            }
        }
        return std::nullopt;
    }
};

TEST_F(WaylandWindowListTest, AWindowHasTheBoundsOfItsDisplay) {
    start("first", "alpha");
    EXPECT_TRUE(lie("alpha", {leftDisplay}));
    EXPECT_EQ(windows->onScreen()->front().layer, 0);

    SwaySession::command("[app_id=alpha] move container to workspace right");
    EXPECT_TRUE(lie("alpha", {rightDisplay}));
}

TEST_F(WaylandWindowListTest, ADisplaysPlaceIsInLogicalCoordinates) {
    start("first", "alpha");
    SwaySession::command("output HEADLESS-1 scale 2 position 100 50");
    EXPECT_TRUE(lie("alpha", {{100, 50, 400, 300}}));
    SwaySession::command("output HEADLESS-1 scale 1 transform 90");
    EXPECT_TRUE(lie("alpha", {{100, 50, 600, 800}}));
}

TEST_F(WaylandWindowListTest, TheLastInFrontIsFirst) {
    start("first", "alpha");
    start("second", "beta");
    start("third", "gamma");
    EXPECT_EQ(order(), "gamma beta alpha ");

    SwaySession::command("[app_id=alpha] focus");
    EXPECT_TRUE(comesToFront("alpha"));
    EXPECT_EQ(order(), "alpha gamma beta ");
}

} // namespace
} // namespace kestrelfen
