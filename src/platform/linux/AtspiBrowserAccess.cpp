#include "platform/linux/AtspiBrowserAccess.hpp"

#include "platform/ports/Applications.hpp"
#include "platform/ports/MainQueue.hpp"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <semaphore>
#include <utility>

namespace kestrelfen {

namespace {

using namespace std::chrono_literals;

constexpr char accessibilityName[] = "org.a11y.Bus";

/// A browser that has just started takes a moment to come onto the bus.
constexpr int presenceLooks = 10;
constexpr double presenceLookSeconds = 0.25;
constexpr auto longestConsent = 10s;

} // namespace

/// A question that waits off the main thread, and its answer from there.
struct AtspiBrowserAccess::Consent {
    std::string bundleIdentifier;
    std::atomic<AutomationStatus> status = AutomationStatus::wouldRequireConsent;
    /// Released by the answer, and by the end of the program.
    std::counting_semaphore<2> isOver{0};

    void answer(AutomationStatus answered) {
        status = answered;
        isOver.release();
    }
};

AtspiBrowserAccess::AtspiBrowserAccess(const Services& services, std::chrono::milliseconds answerLifetime)
    : services_(services), bus_(services.sessionBus), switch_(services.sessionBus, services.preferences),
      accessibility_(services.sessionBus, accessibilityName), reader_(bus_, services.identity),
      finder_(bus_, services.identity) {
    forgetting_.setSingleShot(true);
    forgetting_.setInterval(answerLifetime);
    QObject::connect(&forgetting_, &QTimer::timeout, &forgetting_, [this] { forgetAnswer(); });
    workers_.setMaxThreadCount(1);
}

AtspiBrowserAccess::~AtspiBrowserAccess() {
    ending_.request_stop();
    workers_.waitForDone();
}

std::optional<BrowserAccess::ScriptResult> AtspiBrowserAccess::run(std::string_view bundleIdentifier,
                                                                   std::string_view /*script*/) {
    if (!switch_.isOn()) {
        reader_.cancel();
        forgetAnswer();
        return std::nullopt;
    }
    if (!question_ || question_->bundleIdentifier != bundleIdentifier) {
        beginReading(std::string(bundleIdentifier));
    }
    if (!question_->answer) {
        return ScriptPending{};
    }
    auto answer = std::move(question_->answer);
    forgetAnswer();
    return answer;
}

void AtspiBrowserAccess::beginReading(const std::string& bundleIdentifier) {
    forgetAnswer();
    question_ = Question{bundleIdentifier, std::nullopt};
    reader_.read(sought(bundleIdentifier), [this, browser = sought(bundleIdentifier)](const auto& reading) {
        if (reading.outcome != BrowserTabReader::Reading::Outcome::late) {
            learnPresence(browser, reading.outcome == BrowserTabReader::Reading::Outcome::read);
        }
        take(reading);
    });
}

void AtspiBrowserAccess::take(const BrowserTabReader::Reading& reading) {
    switch (reading.outcome) {
    case BrowserTabReader::Reading::Outcome::read:
    case BrowserTabReader::Reading::Outcome::notOnBus:
        question_->answer = std::optional(reading.origin);
        break;
    case BrowserTabReader::Reading::Outcome::late:
        question_->answer = ScriptFailure{"no answer over the accessibility bus in time"};
        break;
    }
    forgetting_.start();
}

void AtspiBrowserAccess::forgetAnswer() {
    question_.reset();
    forgetting_.stop();
}

SoughtBrowser AtspiBrowserAccess::sought(const std::string& bundleIdentifier) const {
    SoughtBrowser browser{bundleIdentifier, {}};
    for (const RunningApplication& application : services_.applications.running()) {
        if (application.bundleIdentifier == bundleIdentifier) {
            browser.processes.push_back(application.processIdentifier);
        }
    }
    return browser;
}

void AtspiBrowserAccess::learnPresence(const SoughtBrowser& browser, bool isOnBus) {
    if (isOnBus) {
        silent_.erase(browser.bundleIdentifier);
    } else {
        silent_[browser.bundleIdentifier] = browser.processes;
    }
}

std::optional<int> AtspiBrowserAccess::permissionStatus(std::string_view bundleIdentifier, bool askUser) {
    const std::string identifier(bundleIdentifier);
    return askUser ? awaitConsent(identifier) : static_cast<int>(status(identifier));
}

AutomationStatus AtspiBrowserAccess::status(const std::string& bundleIdentifier) const {
    if (!services_.applications.isRunning(bundleIdentifier)) {
        return AutomationStatus::processNotFound;
    }
    if (switch_.isRefused()) {
        return AutomationStatus::notPermitted;
    }
    const auto silent = silent_.find(bundleIdentifier);
    const bool isSilent = silent != silent_.end() && silent->second == sought(bundleIdentifier).processes;
    return switch_.isOn() && !isSilent ? AutomationStatus::allowed : AutomationStatus::wouldRequireConsent;
}

int AtspiBrowserAccess::awaitConsent(const std::string& bundleIdentifier) {
    const auto consent = std::make_shared<Consent>();
    consent->bundleIdentifier = bundleIdentifier;
    const std::stop_callback onEnd(ending_.get_token(), [consent] { consent->isOver.release(); });
    services_.mainQueue.post(lifeline_.guard([this, consent] { turnOn(consent); }));
    [[maybe_unused]] const bool isInTime = consent->isOver.try_acquire_for(longestConsent);
    return static_cast<int>(consent->status.load());
}

void AtspiBrowserAccess::turnOn(const std::shared_ptr<Consent>& consent) {
    switch_.turnOn([this, consent](bool isOn) {
        if (isOn && services_.applications.isRunning(consent->bundleIdentifier)) {
            lookForBrowser(consent, presenceLooks);
        } else {
            consent->answer(status(consent->bundleIdentifier));
        }
    });
}

void AtspiBrowserAccess::lookForBrowser(const std::shared_ptr<Consent>& consent, int looks) {
    const SoughtBrowser browser = sought(consent->bundleIdentifier);
    finder_.find(browser, [this, consent, looks, browser](const std::optional<AccessibleObjects>& programs) {
        const bool isFound = programs && !programs->isEmpty();
        if (!isFound && looks > 1) {
            services_.mainQueue.postAfter(presenceLookSeconds, lifeline_.guard([this, consent, looks] {
                lookForBrowser(consent, looks - 1);
            }));
            return;
        }
        learnPresence(browser, isFound);
        consent->answer(status(consent->bundleIdentifier));
    });
}

void AtspiBrowserAccess::prepareLaunch(std::function<void()> completion) {
    switch_.turnOn([completion = std::move(completion)](bool /*isOn*/) { completion(); });
}

void AtspiBrowserAccess::askOffMain(std::function<std::optional<int>()> question,
                                    std::function<void(std::optional<int>)> completion) {
    workers_.start(
        [question = std::move(question), completion = std::move(completion), &queue = services_.mainQueue] {
            queue.post([completion, status = question()] { completion(status); });
        });
}

void AtspiBrowserAccess::release() {
    reader_.cancel();
    forgetAnswer();
    bus_.close();
    switch_.release();
}

} // namespace kestrelfen
