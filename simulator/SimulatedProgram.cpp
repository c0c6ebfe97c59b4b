#include "SimulatedProgram.hpp"

#include "platform/ports/Preferences.hpp"

namespace kestrelfen {

SimulatedProgram::SimulatedProgram(const Platform& platform, const StoreConfiguration& store,
                                   const std::function<void(std::string_view call)>& onWindows)
    : windows_(platform), delegate_(platform, store, windows_),
      historyData_(platform, delegate_.store(), fileWriter_), launchAtLogin_(platform.loginItem),
      onboarding_(platform, [this] { delegate_.finishOnboarding(); }),
      onboardingEnd_(platform.preferences.observe([this] {
          if (!delegate_.needsOnboarding()) {
              onboarding_.startOver();
          }
      })) {
    windows_.setEngine(delegate_.engine());
    delegate_.screenTime();
    delegate_.overlays().onChange = onWindows;
}

std::int64_t SimulatedProgram::breakWindowCount() {
    return static_cast<std::int64_t>(delegate_.overlays().breakWindows().size());
}

SimulatedBreakWindow* SimulatedProgram::firstOverlay() {
    const auto& windows = delegate_.overlays().breakWindows();
    return windows.empty() ? nullptr : dynamic_cast<SimulatedBreakWindow*>(windows.front().get());
}

} // namespace kestrelfen
