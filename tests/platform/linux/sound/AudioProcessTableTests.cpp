#include "platform/linux/AudioProcessTable.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

constexpr std::uint32_t nobody = 0xFFFF'FFFF;

ProgramClues program(const std::string& binary) {
    return {4711, binary, "", ""};
}

class AudioProcessTableTest : public testing::Test {
  protected:
    AudioProcessTableTest() {
        table.putSource(1, true);
        table.putSource(2, false);
    }

    /// "object binary", with "records" and "plays" after it.
    std::string processes() {
        std::string text;
        for (const AudioProcess& process : table.processes()) {
            text += std::to_string(process.object) + " " + process.clues.binary +
                    (process.isRecording ? " records" : "") + (process.isPlaying ? " plays" : "") + "\n";
        }
        return text;
    }

    AudioProcessTable table;
};

TEST_F(AudioProcessTableTest, ListsSilentClientsInTheOrderOfConnecting) {
    EXPECT_EQ(processes(), "");
    table.putClient(9, program("nine"));
    table.putClient(3, program("three"));
    EXPECT_EQ(processes(), "3 three\n9 nine\n");
}

TEST_F(AudioProcessTableTest, APlaybackCountsForItsClientUnlessItIsCorked) {
    table.putClient(3, program("three"));
    table.putClient(4, program("four"));
    table.putPlayback(20, {.client = 4, .isCorked = false});
    EXPECT_EQ(processes(), "3 three\n4 four plays\n");
    table.putPlayback(20, {.client = 4, .isCorked = true});
    EXPECT_EQ(processes(), "3 three\n4 four\n");
    table.putPlayback(21, {.client = 4, .isCorked = false});
    EXPECT_EQ(processes(), "3 three\n4 four plays\n") << "one of two runs";
    table.removePlayback(21);
    EXPECT_EQ(processes(), "3 three\n4 four\n");
}

TEST_F(AudioProcessTableTest, ARecordingCountsUnlessItIsCorkedOrHearsAMonitor) {
    table.putClient(3, program("three"));
    table.putRecording(20, {.client = 3, .source = 2, .isCorked = false});
    EXPECT_EQ(processes(), "3 three records\n");
    table.putRecording(20, {.client = 3, .source = 2, .isCorked = true});
    EXPECT_EQ(processes(), "3 three\n");
    table.putRecording(20, {.client = 3, .source = 1, .isCorked = false});
    EXPECT_EQ(processes(), "3 three\n");
    table.putRecording(21, {.client = 3, .source = 2, .isCorked = false});
    EXPECT_EQ(processes(), "3 three records\n");
    table.removeRecording(21);
    EXPECT_EQ(processes(), "3 three\n");
}

TEST_F(AudioProcessTableTest, ARecordingFromAnUnknownSourceDoesNotCount) {
    table.putClient(3, program("three"));
    table.putRecording(20, {.client = 3, .source = nobody, .isCorked = false});
    table.putRecording(21, {.client = 3, .source = 5, .isCorked = false});
    EXPECT_EQ(processes(), "3 three\n");
    table.putSource(5, false);
    EXPECT_EQ(processes(), "3 three records\n");
    table.removeSource(5);
    EXPECT_EQ(processes(), "3 three\n");
}

TEST_F(AudioProcessTableTest, ConnectionsOfOneProcessAreOne) {
    table.putClient(3, program("browser"));
    table.putClient(4, program("player"));
    table.putClient(5, program("browser"));
    table.putPlayback(20, {.client = 5, .isCorked = false});
    table.putRecording(21, {.client = 3, .source = 2, .isCorked = false});
    EXPECT_EQ(processes(), "3 browser records plays\n4 player\n");
    table.removeClient(3);
    EXPECT_EQ(processes(), "4 player\n5 browser plays\n");
}

TEST_F(AudioProcessTableTest, EqualNumbersOfDifferentSandboxesAreTwoProcesses) {
    table.putClient(3, {2, "player", "org.example.One", ""});
    table.putClient(4, {2, "player", "org.example.Other", ""});
    EXPECT_EQ(processes(), "3 player\n4 player\n");
}

TEST_F(AudioProcessTableTest, ConnectionsThatTellNothingAreNotOneProcess) {
    table.putClient(3, {});
    table.putClient(4, {});
    EXPECT_EQ(processes(), "3 \n4 \n");
}

TEST_F(AudioProcessTableTest, StreamsOfNobodyCountForNobody) {
    table.putClient(3, program("three"));
    table.putPlayback(20, {.client = nobody, .isCorked = false});
    table.putRecording(21, {.client = nobody, .source = 2, .isCorked = false});
    EXPECT_EQ(processes(), "3 three\n");
}

TEST_F(AudioProcessTableTest, AClientsNewCluesReplaceItsOldOnes) {
    table.putClient(3, {});
    table.putClient(3, program("three"));
    EXPECT_EQ(processes(), "3 three\n");
}

} // namespace
} // namespace kestrelfen
