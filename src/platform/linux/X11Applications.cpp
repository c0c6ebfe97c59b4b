#include "platform/linux/X11Applications.hpp"

#include <QProcess>

#include <algorithm>

namespace kestrelfen {

namespace {

RunningApplication applicationOf(const X11WindowWatch::Window& window) {
    return {.bundleIdentifier = window.program.bundleIdentifier,
            .localizedName = window.program.localizedName,
            .processIdentifier = window.record.owner()};
}

bool isOfAnApplication(const X11WindowWatch::Window& window) {
    return window.record.kind == X11WindowRecord::Kind::normal;
}

} // namespace

std::vector<RunningApplication> X11Applications::running() const {
    std::vector<RunningApplication> applications;
    for (const auto& window : watch_.windows()) {
        const bool known = std::any_of(applications.begin(), applications.end(), [&](const auto& each) {
            return each.processIdentifier == window.record.owner();
        });
        if (!known && isOfAnApplication(window)) {
            applications.push_back(applicationOf(window));
        }
    }
    return applications;
}

std::optional<RunningApplication> X11Applications::frontmost() const {
    const auto* const active = watch_.active();
    if (!active || active->record.kind == X11WindowRecord::Kind::desktop) {
        return std::nullopt;
    }
    return applicationOf(*active);
}

bool X11Applications::isInstalled(std::string_view bundleIdentifier) const {
    return watch_.catalogue().isInstalled(bundleIdentifier);
}

void X11Applications::launchInBackground(std::string_view bundleIdentifier,
                                         std::function<void()> completion) {
    if (const auto words = watch_.catalogue().launchCommand(bundleIdentifier); words && !words->empty()) {
        QStringList arguments;
        std::transform(words->begin() + 1, words->end(), std::back_inserter(arguments),
                       [](const std::string& word) { return QString::fromStdString(word); });
        QProcess::startDetached(QString::fromStdString(words->front()), arguments);
    }
    QMetaObject::invokeMethod(&context_, std::move(completion), Qt::QueuedConnection);
}

} // namespace kestrelfen
