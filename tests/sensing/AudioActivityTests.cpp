#include "platform/fake/FakeAudioProcesses.hpp"
#include "platform/fake/FakeLog.hpp"
#include "sensing/AudioActivity.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

using Strings = std::vector<std::string>;

/// Process objects by hand, each answer of which can fail.
class ProcessTable final : public AudioProcesses {
  public:
    struct Row {
        std::optional<std::string> bundleIdentifier;
        std::optional<bool> input;
        std::optional<bool> output;
    };

    bool hasList = true;
    bool listFails = false;
    std::vector<Row> rows;

    bool hasProcessList() const override { return hasList; }

    std::optional<std::vector<ObjectID>> processObjects() const override {
        std::vector<ObjectID> objects;
        for (std::size_t index = 0; index < rows.size(); ++index) {
            objects.push_back(firstObject + static_cast<ObjectID>(index));
        }
        return listFails ? std::nullopt : std::optional(objects);
    }

    std::optional<std::string> bundleIdentifier(ObjectID object) const override {
        return rows.at(object - firstObject).bundleIdentifier;
    }
    std::optional<bool> isRunningInput(ObjectID object) const override {
        return rows.at(object - firstObject).input;
    }
    std::optional<bool> isRunningOutput(ObjectID object) const override {
        return rows.at(object - firstObject).output;
    }

  private:
    static constexpr ObjectID firstObject = 70;
};

class AudioActivityTest : public testing::Test {
  protected:
    AudioActivity sample() { return AudioActivity::current(processes, log); }
    AudioActivity sampleOf(std::vector<ProcessTable::Row> rows) {
        processes.rows = std::move(rows);
        return sample();
    }

    ProcessTable processes;
    FakeLog log;
};

TEST_F(AudioActivityTest, UnsupportedIsEmpty) {
    EXPECT_FALSE(AudioActivity::unsupported.isSupported);
    EXPECT_EQ(AudioActivity::unsupported.usingInput, Strings{});
    EXPECT_EQ(AudioActivity::unsupported.usingOutput, Strings{});
}

TEST_F(AudioActivityTest, ASystemWithoutAProcessListIsUnsupportedAndSaysSoAtEachSample) {
    processes.hasList = false;
    processes.rows = {{"a", true, true}};
    EXPECT_EQ(sample(), AudioActivity::unsupported);
    const FakeLog::Line line{LogLevel::debug, "AudioActivity",
                             "per-process audio objects are unavailable on this system"};
    EXPECT_EQ(log.lines(), std::vector{line});
    EXPECT_EQ(sample(), AudioActivity::unsupported);
    EXPECT_EQ(log.lines(), (std::vector{line, line}));
}

TEST_F(AudioActivityTest, AFailingListIsUnsupported) {
    processes.listFails = true;
    EXPECT_EQ(sampleOf({{"a", true, true}}), AudioActivity::unsupported);
    EXPECT_TRUE(log.lines().empty());
}

TEST_F(AudioActivityTest, AnEmptyListIsUnsupported) {
    EXPECT_EQ(sampleOf({}), AudioActivity::unsupported);
    EXPECT_TRUE(log.lines().empty());
}

TEST_F(AudioActivityTest, ASilentProcessIsASupportedSampleWithEmptySets) {
    EXPECT_EQ(sampleOf({{"a", false, false}}), (AudioActivity{{}, {}, true}));
    EXPECT_TRUE(log.lines().empty());
}

TEST_F(AudioActivityTest, EachSetHoldsWhatRunsInTheOrderOfTheList) {
    EXPECT_EQ(sampleOf({{"d", true, false}, {"b", false, true}, {"c", true, false}, {"a", false, true}}),
              (AudioActivity{{"d", "c"}, {"b", "a"}, true}));
}

TEST_F(AudioActivityTest, AnAppThatRecordsAndPlaysStandsInBothSets) {
    EXPECT_EQ(sampleOf({{"a", true, true}}), (AudioActivity{{"a"}, {"a"}, true}));
}

TEST_F(AudioActivityTest, ProcessesOfOneIdentifierAreOneEntry) {
    EXPECT_EQ(sampleOf({{"a", true, true}, {"b", true, true}, {"a", true, true}}),
              (AudioActivity{{"a", "b"}, {"a", "b"}, true}));
    EXPECT_EQ(sampleOf({{"a", true, false}, {"a", false, true}}), (AudioActivity{{"a"}, {"a"}, true}));
}

TEST_F(AudioActivityTest, AProcessWithoutAnIdentifierIsSkipped) {
    EXPECT_EQ(sampleOf({{std::nullopt, true, true}, {"", true, true}, {"a", true, false}}),
              (AudioActivity{{"a"}, {}, true}));
}

TEST_F(AudioActivityTest, AFailingFlagLeavesTheProcessOutOfThatSetOnly) {
    EXPECT_EQ(sampleOf({{"a", std::nullopt, true}, {"b", true, std::nullopt}}),
              (AudioActivity{{"b"}, {"a"}, true}));
    EXPECT_EQ(sampleOf({{"a", std::nullopt, std::nullopt}}), (AudioActivity{{}, {}, true}));
}

class FakeAudioActivityTest : public testing::Test {
  protected:
    AudioActivity sample() { return AudioActivity::current(processes, log); }

    FakeAudioProcesses processes;
    FakeLog log;
};

TEST_F(FakeAudioActivityTest, WithNoProcessAtAllItIsSupported) {
    EXPECT_EQ(sample(), (AudioActivity{{}, {}, true}));
}

TEST_F(FakeAudioActivityTest, EachSetKeepsItsOwnOrder) {
    processes.setRecording({"b", "a"});
    processes.setPlaying({"c", "a", "b"});
    EXPECT_EQ(sample(), (AudioActivity{{"b", "a"}, {"c", "a", "b"}, true}));
    processes.setRecording({});
    EXPECT_EQ(sample(), (AudioActivity{{}, {"c", "a", "b"}, true}));
}

TEST_F(FakeAudioActivityTest, UnsupportedKeepsTheSetsForLater) {
    processes.setRecording({"a"});
    processes.setPlaying({"b"});
    processes.setSupported(false);
    EXPECT_EQ(sample(), AudioActivity::unsupported);
    processes.setSupported(true);
    EXPECT_EQ(sample(), (AudioActivity{{"a"}, {"b"}, true}));
}

TEST_F(FakeAudioActivityTest, TellsOfASampleBeforeItsLine) {
    std::size_t samples = 0;
    processes.setSupported(false);
    processes.onSample = [&] {
        ++samples;
        EXPECT_TRUE(log.lines().empty());
    };
    sample();
    EXPECT_EQ(samples, 1U);
    EXPECT_EQ(log.lines().size(), 1U);
}

} // namespace
} // namespace kestrelfen
