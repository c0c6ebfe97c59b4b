#include "platform/AudioProcessesContract.hpp"
#include "platform/fake/FakeAudioProcesses.hpp"

#include <algorithm>

namespace kestrelfen {
namespace {

class FakeAudioSubject {
  public:
    const AudioProcesses& processes() const { return processes_; }

    void record(const std::string& product) { recording_.push_back(product), apply(); }
    void play(const std::string& product) { playing_.push_back(product), apply(); }
    void stop(const std::string& product) {
        std::erase(recording_, product);
        std::erase(playing_, product);
        apply();
    }

    template <typename Condition>
    bool waitUntil(Condition isReached) {
        return isReached();
    }

  private:
    void apply() {
        processes_.setRecording(recording_);
        processes_.setPlaying(playing_);
    }

    std::vector<std::string> recording_;
    std::vector<std::string> playing_;
    FakeAudioProcesses processes_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Fake, AudioProcessesContract, FakeAudioSubject);

TEST(FakeAudioProcessesTest, WithoutSupportItAnswersNothing) {
    FakeAudioProcesses processes;
    processes.setPlaying({"org.example.Player"});
    processes.setSupported(false);
    EXPECT_FALSE(processes.hasProcessList());
    EXPECT_EQ(processes.processObjects(), std::nullopt);
    EXPECT_EQ(processes.bundleIdentifier(1), std::nullopt);
    EXPECT_EQ(processes.isRunningInput(1), std::nullopt);
    EXPECT_EQ(processes.isRunningOutput(1), std::nullopt);
}

} // namespace
} // namespace kestrelfen
