#pragma once

#include "platform/fake/FakeApplications.hpp"
#include "platform/fake/FakeBrowserPermission.hpp"
#include "platform/ports/BrowserAccess.hpp"

#include <map>

namespace kestrelfen {

class MainQueue;

/// Browsers by hand, by bundle identifier. At first none is installed, and each would answer an empty text.
/// A question off the main thread is answered one turn of the main queue later.
class FakeBrowserAccess final : public BrowserAccess {
  public:
    /// Hears of every script that really runs, before its answer.
    std::function<void(const std::string& bundleIdentifier)> onScript;
    /// Hears of every question for a permission.
    std::function<void(const std::string& bundleIdentifier)> onPermission;
    /// Hears of every question that the person is to answer.
    std::function<void(const std::string& bundleIdentifier)> onAskUser;
    std::function<void()> onRelease;
    std::function<void()> onPrepareLaunch;

    FakeBrowserAccess(FakeApplications& applications, MainQueue& mainQueue)
        : applications_(applications), mainQueue_(mainQueue) {}

    void setAvailable(bool available) { isAvailable_ = available; }

    /// Answers alike with and without asking the person. Also says whether the browser is installed, and
    /// whether it runs unseen.
    void setPermission(const std::string& bundleIdentifier, FakeBrowserPermission permission);
    /// Any code of the permission service; absent for a target that cannot be named.
    void setStatus(const std::string& bundleIdentifier, std::optional<int> status);

    /// What the script answers; absent for a script that cannot be made.
    void setAnswer(const std::string& bundleIdentifier, std::optional<ScriptResult> answer);

    /// The script that ran last.
    const std::string& lastScript() const { return lastScript_; }

    bool isAvailable() const override { return isAvailable_; }
    std::optional<ScriptResult> run(std::string_view bundleIdentifier, std::string_view script) override;
    std::optional<int> permissionStatus(std::string_view bundleIdentifier, bool askUser) override;
    void askOffMain(std::function<std::optional<int>()> question,
                    std::function<void(std::optional<int>)> completion) override;
    void prepareLaunch(std::function<void()> completion) override;
    void release() override;

  private:
    struct Browser {
        std::optional<int> status;
        std::optional<ScriptResult> answer = ScriptResult(std::optional(std::string()));
    };

    FakeApplications& applications_;
    MainQueue& mainQueue_;
    std::map<std::string, Browser, std::less<>> browsers_;
    std::string lastScript_;
    bool isAvailable_ = true;
};

} // namespace kestrelfen
