#include "platform/AudioProcessesContract.hpp"
#include "platform/linux/EventLoop.hpp"
#include "platform/linux/PulseAudioProcesses.hpp"
#include "platform/linux/sound/ApplicationIdentity.hpp"
#include "platform/linux/sound/SoundProgram.hpp"
#include "platform/linux/sound/SoundServer.hpp"

#include <map>
#include <memory>

namespace kestrelfen {
namespace {

/// A real server, with a process for each product.
class PulseAudioSubject {
  public:
    PulseAudioSubject() {
        server_.start();
        processes_ = std::make_unique<PulseAudioProcesses>(identity_);
    }

    const AudioProcesses& processes() const { return *processes_; }

    void record(const std::string& product) { program(product).record("microphone"); }
    void play(const std::string& product) { program(product).play(); }
    void stop(const std::string& product) { programs_.erase(product); }

    template <typename Condition>
    bool waitUntil(Condition isReached) {
        return kestrelfen::waitUntil(isReached);
    }

  private:
    SoundProgram& program(const std::string& product) {
        return programs_.try_emplace(product, product).first->second;
    }

    SoundServer server_;
    ApplicationIdentity identity_;
    std::unique_ptr<PulseAudioProcesses> processes_;
    std::map<std::string, SoundProgram> programs_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(PulseAudio, AudioProcessesContract, PulseAudioSubject);

} // namespace
} // namespace kestrelfen
