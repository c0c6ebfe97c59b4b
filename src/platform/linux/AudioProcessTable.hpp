#pragma once

#include "platform/linux/ProgramIdentity.hpp"

#include <cstdint>
#include <map>
#include <vector>

namespace kestrelfen {

/// A program that uses the sound server, and whether it records and plays.
struct AudioProcess {
    /// The server's number of the first of its connections.
    std::uint32_t object = 0;
    ProgramClues clues;
    bool isRecording = false;
    bool isPlaying = false;

    friend bool operator==(const AudioProcess&, const AudioProcess&) = default;
};

/// What a sound server told of its clients, sources and streams, by the server's own numbers, and what that
/// means for each process. Thread of its owner.
class AudioProcessTable {
  public:
    using Index = std::uint32_t;

    /// A stream towards a loudspeaker.
    struct Playback {
        Index client = 0;
        bool isCorked = false;
    };

    /// A stream from a source.
    struct Recording {
        Index client = 0;
        Index source = 0;
        bool isCorked = false;
    };

    /// Each replaces what was told before under this number.
    void putClient(Index client, ProgramClues clues) { clients_[client] = std::move(clues); }
    void putSource(Index source, bool isMonitor) { sourceIsMonitor_[source] = isMonitor; }
    void putPlayback(Index stream, Playback playback) { playbacks_[stream] = playback; }
    void putRecording(Index stream, Recording recording) { recordings_[stream] = recording; }

    void removeClient(Index client) { clients_.erase(client); }
    void removeSource(Index source) { sourceIsMonitor_.erase(source); }
    void removePlayback(Index stream) { playbacks_.erase(stream); }
    void removeRecording(Index stream) { recordings_.erase(stream); }

    /// In the order in which they connected. Connections of one process are one. A stream counts while it
    /// runs, one that records while it hears a source that is no monitor of what is played.
    std::vector<AudioProcess> processes() const;

  private:
    bool isPlaying(Index client) const;
    bool isRecording(Index client) const;
    bool runs(const Recording& recording) const;

    std::map<Index, ProgramClues> clients_;
    std::map<Index, bool> sourceIsMonitor_;
    std::map<Index, Playback> playbacks_;
    std::map<Index, Recording> recordings_;
};

} // namespace kestrelfen
