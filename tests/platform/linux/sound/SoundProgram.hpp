#pragma once

#include "platform/linux/ChildProcess.hpp"

#include <string>

namespace kestrelfen {

/// A program that plays and records on the sound server, of the product that its `application.id` names.
class SoundProgram {
  public:
    explicit SoundProgram(const std::string& product);

    qint64 id() const { return process_.id(); }

    void play() { tell("play"); }
    void playCorked() { tell("play-corked"); }
    void record(const std::string& source) { tell("record " + source); }
    /// Plays many times, each too shortly to be heard.
    void blink() { tell("blink"); }
    /// These three concern the newest stream.
    void cork() { tell("cork"); }
    void uncork() { tell("uncork"); }
    void end() { tell("end"); }

  private:
    void tell(const std::string& command);

    ChildProcess process_;
};

} // namespace kestrelfen
