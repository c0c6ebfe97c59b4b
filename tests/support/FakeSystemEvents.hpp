#pragma once

#include "core/SystemEvents.hpp"
#include "support/Trace.hpp"

namespace kestrelfen {

/// A system event monitor whose signals are given by hand.
class FakeSystemEvents final : public SystemEvents {
  public:
    explicit FakeSystemEvents(Trace& trace) : trace_(trace) {}

    void start() override {
        trace_.add(onPause && onResume ? "monitor starts" : "monitor starts without callbacks");
    }

    void stop() override { trace_.add("monitor stops"); }

  private:
    Trace& trace_;
};

} // namespace kestrelfen
