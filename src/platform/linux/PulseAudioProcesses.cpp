#include "platform/linux/PulseAudioProcesses.hpp"

#include <algorithm>

namespace kestrelfen {

PulseAudioProcesses::PulseAudioProcesses(ProgramIdentity& identity)
    : identity_(identity), loop_(pa_threaded_mainloop_new()) {
    if (!loop_) {
        return;
    }
    pa_threaded_mainloop_set_name(loop_.get(), "sound");
    connection_.emplace(*pa_threaded_mainloop_get_api(loop_.get()), [this](const auto& heard) {
        QMetaObject::invokeMethod(
            &mailbox_, [this, heard] { take(heard); }, Qt::QueuedConnection);
    });
    pa_threaded_mainloop_start(loop_.get());
}

PulseAudioProcesses::~PulseAudioProcesses() {
    if (loop_) {
        pa_threaded_mainloop_stop(loop_.get());
    }
}

std::optional<std::vector<AudioProcesses::ObjectID>> PulseAudioProcesses::processObjects() const {
    if (!hasServer_) {
        return std::nullopt;
    }
    std::vector<ObjectID> objects;
    objects.reserve(processes_.size());
    for (const Process& process : processes_) {
        objects.push_back(process.heard.object);
    }
    return objects;
}

std::optional<std::string> PulseAudioProcesses::bundleIdentifier(ObjectID object) const {
    const Process* const process = find(object);
    return process ? process->bundleIdentifier : std::nullopt;
}

std::optional<bool> PulseAudioProcesses::isRunningInput(ObjectID object) const {
    const Process* const process = find(object);
    return process ? std::optional(process->heard.isRecording) : std::nullopt;
}

std::optional<bool> PulseAudioProcesses::isRunningOutput(ObjectID object) const {
    const Process* const process = find(object);
    return process ? std::optional(process->heard.isPlaying) : std::nullopt;
}

void PulseAudioProcesses::take(const std::optional<std::vector<AudioProcess>>& heard) {
    hasServer_ = heard.has_value();
    std::vector<Process> processes;
    if (heard) {
        processes.reserve(heard->size());
        for (const AudioProcess& each : *heard) {
            processes.push_back({each, identify(each)});
        }
    }
    processes_ = std::move(processes);
}

std::optional<std::string> PulseAudioProcesses::identify(const AudioProcess& heard) const {
    const Process* const known = find(heard.object);
    if (known && known->bundleIdentifier && known->heard.clues == heard.clues) {
        return known->bundleIdentifier;
    }
    return identity_.bundleIdentifier(heard.clues);
}

const PulseAudioProcesses::Process* PulseAudioProcesses::find(ObjectID object) const {
    const auto found = std::find_if(processes_.begin(), processes_.end(), [object](const Process& process) {
        return process.heard.object == object;
    });
    return found == processes_.end() ? nullptr : &*found;
}

} // namespace kestrelfen
