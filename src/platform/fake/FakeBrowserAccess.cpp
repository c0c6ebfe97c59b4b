#include "platform/fake/FakeBrowserAccess.hpp"

#include "platform/ports/MainQueue.hpp"

#include <utility>

namespace kestrelfen {

namespace {

/// What the service answers for a program that is not there is never looked at.
int status(FakeBrowserPermission permission) {
    switch (permission) {
    case FakeBrowserPermission::granted:
        return static_cast<int>(AutomationStatus::allowed);
    case FakeBrowserPermission::denied:
        return static_cast<int>(AutomationStatus::notPermitted);
    case FakeBrowserPermission::notDetermined:
        return static_cast<int>(AutomationStatus::wouldRequireConsent);
    case FakeBrowserPermission::notRunning:
    case FakeBrowserPermission::notInstalled:
        return static_cast<int>(AutomationStatus::processNotFound);
    }
    return static_cast<int>(AutomationStatus::processNotFound);
}

} // namespace

void FakeBrowserAccess::setPermission(const std::string& bundleIdentifier, FakeBrowserPermission permission) {
    const bool isInstalled = permission != FakeBrowserPermission::notInstalled;
    applications_.setInstalled(bundleIdentifier, isInstalled);
    applications_.setRunningUnseen(bundleIdentifier,
                                   isInstalled && permission != FakeBrowserPermission::notRunning);
    setStatus(bundleIdentifier, status(permission));
}

void FakeBrowserAccess::setStatus(const std::string& bundleIdentifier, std::optional<int> status) {
    browsers_[bundleIdentifier].status = status;
}

void FakeBrowserAccess::setAnswer(const std::string& bundleIdentifier, std::optional<ScriptResult> answer) {
    browsers_[bundleIdentifier].answer = std::move(answer);
}

std::optional<BrowserAccess::ScriptResult> FakeBrowserAccess::run(std::string_view bundleIdentifier,
                                                                  std::string_view script) {
    const Browser& browser = browsers_[std::string(bundleIdentifier)];
    if (browser.answer) {
        lastScript_ = script;
        if (onScript) {
            onScript(std::string(bundleIdentifier));
        }
    }
    return browser.answer;
}

std::optional<int> FakeBrowserAccess::permissionStatus(std::string_view bundleIdentifier, bool askUser) {
    if (onPermission) {
        onPermission(std::string(bundleIdentifier));
    }
    if (askUser && onAskUser) {
        onAskUser(std::string(bundleIdentifier));
    }
    const auto found = browsers_.find(bundleIdentifier);
    return found == browsers_.end() ? std::nullopt : found->second.status;
}

void FakeBrowserAccess::askOffMain(std::function<std::optional<int>()> question,
                                   std::function<void(std::optional<int>)> completion) {
    mainQueue_.post(
        [question = std::move(question), completion = std::move(completion)] { completion(question()); });
}

void FakeBrowserAccess::prepareLaunch(std::function<void()> completion) {
    if (onPrepareLaunch) {
        onPrepareLaunch();
    }
    mainQueue_.post(std::move(completion));
}

void FakeBrowserAccess::release() {
    if (onRelease) {
        onRelease();
    }
}

} // namespace kestrelfen
