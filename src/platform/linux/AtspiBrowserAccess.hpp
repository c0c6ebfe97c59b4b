#pragma once

#include "base/Lifeline.hpp"
#include "platform/linux/AccessibilityBus.hpp"
#include "platform/linux/AccessibilitySwitch.hpp"
#include "platform/linux/BrowserTabReader.hpp"
#include "platform/linux/StartableService.hpp"
#include "platform/ports/BrowserAccess.hpp"

#include <QThreadPool>
#include <QTimer>

#include <chrono>
#include <map>
#include <memory>
#include <stop_token>

namespace kestrelfen {

class Applications;
class MainQueue;

/// The active tab of a browser, by what it tells assistive programs. A browser may be asked while the
/// desktop's accessibility is on and the browser speaks on its bus. Main thread, except where the port says
/// otherwise.
class AtspiBrowserAccess final : public BrowserAccess {
  public:
    /// They outlive it.
    struct Services {
        BusLink& sessionBus;
        const Applications& applications;
        ProgramIdentity& identity;
        Preferences& preferences;
        MainQueue& mainQueue;
    };

    static constexpr std::chrono::milliseconds defaultAnswerLifetime{10'000};

    explicit AtspiBrowserAccess(const Services& services,
                                std::chrono::milliseconds answerLifetime = defaultAnswerLifetime);
    AtspiBrowserAccess(const AtspiBrowserAccess&) = delete;
    AtspiBrowserAccess& operator=(const AtspiBrowserAccess&) = delete;
    ~AtspiBrowserAccess() override;

    bool isAvailable() const override { return accessibility_.isReachable(); }

    /// Needs no script. The text is the page's address without its path. Each answer is given once, and only
    /// for some seconds.
    std::optional<ScriptResult> run(std::string_view bundleIdentifier, std::string_view script) override;

    /// With `askUser` it turns the desktop's accessibility on: the person has said so by asking. The browser
    /// then still requires consent if it started too early to notice.
    std::optional<int> permissionStatus(std::string_view bundleIdentifier, bool askUser) override;

    void prepareLaunch(std::function<void()> completion) override;
    void askOffMain(std::function<std::optional<int>()> question,
                    std::function<void(std::optional<int>)> completion) override;
    void release() override;

  private:
    struct Question {
        std::string bundleIdentifier;
        /// Absent while it is on its way.
        std::optional<ScriptResult> answer;
    };
    struct Consent;

    void beginReading(const std::string& bundleIdentifier);
    void take(const BrowserTabReader::Reading& reading);
    void forgetAnswer();

    SoughtBrowser sought(const std::string& bundleIdentifier) const;
    AutomationStatus status(const std::string& bundleIdentifier) const;
    void learnPresence(const SoughtBrowser& browser, bool isOnBus);

    int awaitConsent(const std::string& bundleIdentifier);
    void turnOn(const std::shared_ptr<Consent>& consent);
    void lookForBrowser(const std::shared_ptr<Consent>& consent, int looks);

    const Services services_;
    AccessibilityBus bus_;
    AccessibilitySwitch switch_;
    StartableService accessibility_;
    BrowserTabReader reader_;
    BrowserFinder finder_;
    std::optional<Question> question_;
    QTimer forgetting_;
    /// The processes of those browsers that were seen not to speak on the bus. Others may, once they are
    /// asked.
    std::map<std::string, std::vector<std::int32_t>> silent_;
    Lifeline lifeline_;
    std::stop_source ending_;
    QThreadPool workers_;
};

} // namespace kestrelfen
