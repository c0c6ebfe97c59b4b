#pragma once

#include "base/Observable.hpp"
#include "platform/ports/ActivationPolicy.hpp"

#include <functional>
#include <utility>

namespace kestrelfen {

/// The program's place in the list of tasks, with windows by hand. At first it has none, and no place there.
class FakeActivationPolicy final : public ActivationPolicy {
  public:
    std::function<void(ActivationPolicyKind)> onSet;
    std::function<void()> onActivate;

    void setWindows(std::vector<ProgramWindow> windows) { windows_ = std::move(windows); }

    std::vector<ProgramWindow> windows() const override { return windows_; }
    ActivationPolicyKind current() const override { return current_; }

    void set(ActivationPolicyKind policy) override {
        current_ = policy;
        if (onSet) {
            onSet(policy);
        }
    }

    void activate() override {
        if (onActivate) {
            onActivate();
        }
    }

    std::unique_ptr<Observation> observe(ProgramWindowEvent event, std::function<void()> deliver) override {
        return std::make_unique<Listening>(listeners(event).add(std::move(deliver)));
    }

    /// Something happens to a window.
    void send(ProgramWindowEvent event) { listeners(event).notify(); }

  private:
    class Listening final : public Observation {
      public:
        explicit Listening(Subscription subscription) : subscription_(std::move(subscription)) {}

      private:
        Subscription subscription_;
    };

    Observers& listeners(ProgramWindowEvent event) {
        return event == ProgramWindowEvent::willClose ? willClose_ : didBecomeKey_;
    }

    Observers willClose_;
    Observers didBecomeKey_;
    std::vector<ProgramWindow> windows_;
    ActivationPolicyKind current_ = ActivationPolicyKind::accessory;
};

} // namespace kestrelfen
