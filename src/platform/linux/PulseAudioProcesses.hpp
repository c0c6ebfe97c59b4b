#pragma once

#include "platform/linux/PulseConnection.hpp"
#include "platform/ports/AudioProcesses.hpp"

#include <QObject>

namespace kestrelfen {

class ProgramIdentity;

/// Who records and plays, by the sound server: PulseAudio, or PipeWire which speaks its protocol. Main thread
/// only. The connection lives on a thread of its own, so that a server that is slow, hung or gone keeps
/// nobody waiting; what it tells comes here through the event loop. While there is no server, there is no
/// process list.
class PulseAudioProcesses final : public AudioProcesses {
  public:
    /// `identity` must outlive this.
    explicit PulseAudioProcesses(ProgramIdentity& identity);
    ~PulseAudioProcesses() override;

    bool hasProcessList() const override { return hasServer_; }
    std::optional<std::vector<ObjectID>> processObjects() const override;
    std::optional<std::string> bundleIdentifier(ObjectID object) const override;
    std::optional<bool> isRunningInput(ObjectID object) const override;
    std::optional<bool> isRunningOutput(ObjectID object) const override;

  private:
    struct Process {
        AudioProcess heard;
        std::optional<std::string> bundleIdentifier;
    };

    void take(const std::optional<std::vector<AudioProcess>>& heard);
    std::optional<std::string> identify(const AudioProcess& heard) const;
    const Process* find(ObjectID object) const;

    ProgramIdentity& identity_;
    bool hasServer_ = false;
    std::vector<Process> processes_;
    /// What the connection's thread sends reaches this object's thread, and ends with it.
    QObject mailbox_;
    PulseLoop loop_;
    std::optional<PulseConnection> connection_;
};

} // namespace kestrelfen
