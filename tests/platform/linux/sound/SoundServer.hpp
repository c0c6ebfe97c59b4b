#pragma once

#include "platform/linux/ChildProcess.hpp"
#include "support/TemporaryFolder.hpp"

#include <optional>

namespace kestrelfen {

/// A place for a sound server of the test's own, which $PULSE_SERVER names while this lives; at first no
/// server is there. Its loudspeaker is "speakers", heard again through "speakers.monitor", and its microphone
/// "microphone".
class SoundServer {
  public:
    SoundServer();
    ~SoundServer();

    /// Returns when programs can connect.
    void start();
    void stop() { server_.reset(); }
    /// Ends it without a farewell.
    void kill();
    /// Stops it in its tracks: it takes connections, and answers nothing.
    void hang();
    void goOn();

  private:
    QByteArray path(const char* name) const;

    TemporaryFolder folder_;
    std::optional<ChildProcess> server_;
};

} // namespace kestrelfen
