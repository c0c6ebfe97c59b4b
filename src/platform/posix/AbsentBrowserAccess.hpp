#pragma once

#include "platform/ports/BrowserAccess.hpp"
#include "platform/ports/MainQueue.hpp"

#include <utility>

namespace kestrelfen {

/// The browsers of a system that has no way to ask them: as if none ran.
class AbsentBrowserAccess final : public BrowserAccess {
  public:
    explicit AbsentBrowserAccess(MainQueue& mainQueue) : mainQueue_(mainQueue) {}

    bool isAvailable() const override { return false; }
    std::optional<ScriptResult> run(std::string_view /*bundleIdentifier*/,
                                    std::string_view /*script*/) override {
        return std::nullopt;
    }
    std::optional<int> permissionStatus(std::string_view /*bundleIdentifier*/, bool /*askUser*/) override {
        return static_cast<int>(AutomationStatus::processNotFound);
    }
    void prepareLaunch(std::function<void()> completion) override { completion(); }
    /// No question can wait here, so that it needs no thread of its own.
    void askOffMain(std::function<std::optional<int>()> question,
                    std::function<void(std::optional<int>)> completion) override {
        mainQueue_.post(
            [question = std::move(question), completion = std::move(completion)] { completion(question()); });
    }
    void release() override {}

  private:
    MainQueue& mainQueue_;
};

} // namespace kestrelfen
