#pragma once

#include "base/Scenes.hpp"
#include "platform/fake/FakeActivationPolicy.hpp"

#include <functional>
#include <vector>

namespace kestrelfen {

/// The program's ordinary windows without a screen, and their part in its place among the tasks.
class SimulatedScenes final : public SceneWindows {
  public:
    explicit SimulatedScenes(FakeActivationPolicy& policy) : policy_(policy) {}

    /// Hears of each window that has closed.
    std::function<void(Scene)> onClosed;

    std::vector<std::string> identifiers() const override;
    void bringToFront(std::size_t index) override;
    void open(Scene scene) override;

    bool isOpen(Scene scene) const;
    /// Closes the window of that kind; false when none is open.
    bool close(Scene scene);
    /// The process has ended with all its windows: nobody is told.
    void forgetAll();

  private:
    void tellPolicy();

    FakeActivationPolicy& policy_;
    std::vector<Scene> open_;
};

} // namespace kestrelfen
