#include "platform/fake/FakeApplications.hpp"

namespace kestrelfen {

namespace {

void include(std::set<std::string, std::less<>>& identifiers, const std::string& identifier, bool isIn) {
    if (isIn) {
        identifiers.insert(identifier);
    } else {
        identifiers.erase(identifier);
    }
}

} // namespace

void FakeApplications::start(RunningApplication application, std::int64_t display) {
    if (!has(application.processIdentifier)) {
        started_.push_back({std::move(application), display});
    }
}

void FakeApplications::move(std::int32_t processIdentifier, std::int64_t display) {
    for (Started& each : started_) {
        if (each.application.processIdentifier == processIdentifier) {
            each.display = display;
        }
    }
}

void FakeApplications::stop(std::int32_t processIdentifier) {
    std::erase_if(started_, [&](const Started& each) {
        return each.application.processIdentifier == processIdentifier;
    });
    if (frontmost_ == processIdentifier) {
        frontmost_.reset();
    }
}

void FakeApplications::setFrontmost(std::optional<std::int32_t> processIdentifier) {
    frontmost_ = processIdentifier && has(*processIdentifier) ? processIdentifier : std::nullopt;
}

void FakeApplications::setRunningUnseen(const std::string& bundleIdentifier, bool running) {
    include(runningUnseen_, bundleIdentifier, running);
}

void FakeApplications::setInstalled(const std::string& bundleIdentifier, bool installed) {
    include(installed_, bundleIdentifier, installed);
}

bool FakeApplications::has(std::int32_t processIdentifier) const {
    return find(processIdentifier) != nullptr;
}

const FakeApplications::Started* FakeApplications::find(std::int32_t processIdentifier) const {
    for (const Started& each : started_) {
        if (each.application.processIdentifier == processIdentifier) {
            return &each;
        }
    }
    return nullptr;
}

std::vector<RunningApplication> FakeApplications::running() const {
    std::vector<RunningApplication> applications;
    for (const Started& each : started_) {
        applications.push_back(each.application);
    }
    return applications;
}

std::optional<RunningApplication> FakeApplications::frontmost() const {
    const Started* const inFront = frontmost_ && isAvailable_ ? find(*frontmost_) : nullptr;
    return inFront ? std::optional(inFront->application) : std::nullopt;
}

bool FakeApplications::isRunning(std::string_view bundleIdentifier) const {
    return runningUnseen_.contains(bundleIdentifier) || Applications::isRunning(bundleIdentifier);
}

bool FakeApplications::isInstalled(std::string_view bundleIdentifier) const {
    return installed_.contains(bundleIdentifier);
}

void FakeApplications::launchInBackground(std::string_view bundleIdentifier,
                                          std::function<void()> completion) {
    const std::string identifier(bundleIdentifier);
    if (onLaunch) {
        onLaunch(identifier);
    }
    if (!launchesFail) {
        runningUnseen_.insert(identifier);
    }
    completion();
}

} // namespace kestrelfen
