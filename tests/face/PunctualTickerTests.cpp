#include "platform/fake/FakeClock.hpp"
#include "platform/ports/PunctualClock.hpp"
#include "platform/qt/QtTicker.hpp"

#include <QCoreApplication>
#include <gtest/gtest.h>

#include <vector>

namespace kestrelfen {

namespace {

constexpr double period = 0.004;

class PunctualTickerTest : public testing::Test {
  protected:
    /// Moves the clock and waits for the next firing.
    void fireAfter(double seconds) {
        wallClock_.advance(seconds);
        const std::size_t before = dates_.size();
        while (dates_.size() == before) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    }

    FakeClock wallClock_{Date::fromSeconds(1'000)};
    PunctualClock clock_{wallClock_};
    QtTicker ticker_{clock_};
    std::vector<Date> dates_;
    std::unique_ptr<Ticker::Handle> handle_ =
        ticker_.start(period, [this] { dates_.push_back(clock_.now()); });
};

TEST_F(PunctualTickerTest, firingsThatComeALittleLateAreDatedOnTime) {
    fireAfter(period + 0.0023);
    fireAfter(period + 0.0009);
    fireAfter(period - 0.0008);
    ASSERT_EQ(dates_.size(), 3U);
    EXPECT_EQ(dates_[1] - dates_[0], period);
    EXPECT_EQ(dates_[2] - dates_[1], period);
}

TEST_F(PunctualTickerTest, theFirstFiringIsNotBeforeAWholePeriodFromTheStart) {
    fireAfter(period + 0.002);
    EXPECT_GE(dates_[0], Date::fromSeconds(1'000) + period);
}

TEST_F(PunctualTickerTest, aFiringFarOffItsTimeHasTheRealDate) {
    fireAfter(3600.0);
    EXPECT_EQ(dates_[0], Date::fromSeconds(1'000) + 3600.0);
}

TEST_F(PunctualTickerTest, aClockThatIsSetBackDoesNotStopTheFiring) {
    fireAfter(-86'400.0);
    fireAfter(period);
    EXPECT_EQ(dates_[0], Date::fromSeconds(1'000) - 86'400.0);
    EXPECT_EQ(dates_[1] - dates_[0], period);
}

TEST_F(PunctualTickerTest, outsideOfAFiringTheClockIsTheRealOne) {
    fireAfter(period + 0.003);
    EXPECT_EQ(clock_.now(), wallClock_.now());
}

TEST_F(PunctualTickerTest, aFiringMayEndItsOwnTimer) {
    int fired = 0;
    std::unique_ptr<Ticker::Handle> own;
    own = ticker_.start(period, [&] {
        ++fired;
        own.reset();
    });
    while (fired == 0) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    fireAfter(period);
    EXPECT_EQ(fired, 1);
}

} // namespace

} // namespace kestrelfen
