#pragma once

#include <string>
#include <vector>

namespace kestrelfen {

class AudioProcesses;
class Log;

/// One sample of which applications record and which play at this moment. A plain value.
struct AudioActivity {
    /// Bundle identifiers, each once, in the order in which the processes came.
    std::vector<std::string> usingInput;
    std::vector<std::string> usingOutput;
    /// False when the system gave no usable list of processes.
    bool isSupported = false;

    static const AudioActivity unsupported;

    /// Takes a sample. Main thread only.
    static AudioActivity current(const AudioProcesses& processes, Log& log);

    friend bool operator==(const AudioActivity&, const AudioActivity&) = default;
};

} // namespace kestrelfen
