#include "platform/linux/AudioProcessTable.hpp"

#include <algorithm>

namespace kestrelfen {

namespace {

/// The process of these clues, or a new one at the end.
AudioProcess& processOf(std::vector<AudioProcess>& processes, std::uint32_t client,
                        const ProgramClues& clues) {
    // Connections that tell nothing of themselves may be anybody's.
    if (clues != ProgramClues()) {
        const auto found = std::find_if(processes.begin(), processes.end(),
                                        [&](const AudioProcess& process) { return process.clues == clues; });
        if (found != processes.end()) {
            return *found;
        }
    }
    return processes.emplace_back(AudioProcess{client, clues});
}

} // namespace

std::vector<AudioProcess> AudioProcessTable::processes() const {
    std::vector<AudioProcess> processes;
    processes.reserve(clients_.size());
    for (const auto& [client, clues] : clients_) {
        AudioProcess& process = processOf(processes, client, clues);
        process.isPlaying = process.isPlaying || isPlaying(client);
        process.isRecording = process.isRecording || isRecording(client);
    }
    return processes;
}

bool AudioProcessTable::isPlaying(Index client) const {
    return std::any_of(playbacks_.begin(), playbacks_.end(), [client](const auto& each) {
        return each.second.client == client && !each.second.isCorked;
    });
}

bool AudioProcessTable::isRecording(Index client) const {
    return std::any_of(recordings_.begin(), recordings_.end(), [this, client](const auto& each) {
        return each.second.client == client && runs(each.second);
    });
}

bool AudioProcessTable::runs(const Recording& recording) const {
    const auto source = sourceIsMonitor_.find(recording.source);
    return !recording.isCorked && source != sourceIsMonitor_.end() && !source->second;
}

} // namespace kestrelfen
