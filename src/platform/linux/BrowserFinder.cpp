#include "platform/linux/BrowserFinder.hpp"

#include "platform/linux/AccessibilityBus.hpp"
#include "platform/linux/ProgramIdentity.hpp"

#include <algorithm>
#include <iterator>
#include <unistd.h>
#include <utility>

namespace kestrelfen {

namespace {

QDBusMessage processOf(const QString& connection) {
    return QDBusMessage::createMethodCall("org.freedesktop.DBus", "/org/freedesktop/DBus",
                                          "org.freedesktop.DBus", "GetConnectionUnixProcessID")
           << connection;
}

bool isThisProgram(std::uint32_t process) {
    return process == static_cast<std::uint32_t>(::getpid());
}

} // namespace

BrowserFinder::BrowserFinder(AccessibilityBus& bus, ProgramIdentity& identity)
    : bus_(bus), identity_(identity), calls_(bus, [this] { end(std::nullopt); }) {}

void BrowserFinder::find(SoughtBrowser browser, Found found) {
    cancel();
    browser_ = std::move(browser);
    found_ = std::move(found);
    calls_.awaitBus([this] { askForPrograms(); });
}

void BrowserFinder::cancel() {
    calls_.cancel();
    found_ = nullptr;
}

void BrowserFinder::askForPrograms() {
    calls_.ask(childrenOf(accessibleRoot()),
               [this](const QDBusMessage& answer) { programs_ = objectsIn(answer); });
    calls_.then([this] {
        if (programs_) {
            askForProcesses();
        } else {
            end(std::nullopt);
        }
    });
}

void BrowserFinder::askForProcesses() {
    forgetThoseThatWent();
    for (const AccessibleObject& program : std::as_const(*programs_)) {
        if (bus_.processes().count(program.service) == 0) {
            calls_.ask(processOf(program.service), [this, connection = program.service](const auto& answer) {
                // It may have gone in the meantime.
                if (answer.signature() == "u") {
                    bus_.processes()[connection] = answer.arguments().at(0).toUInt();
                }
            });
        }
    }
    calls_.then([this] { tell(); });
}

void BrowserFinder::forgetThoseThatWent() {
    std::erase_if(bus_.processes(), [this](const auto& each) {
        return std::none_of(programs_->begin(), programs_->end(),
                            [&](const AccessibleObject& program) { return program.service == each.first; });
    });
}

void BrowserFinder::tell() {
    AccessibleObjects found = programsWhere([this](std::uint32_t process) { return isBrowser(process); });
    if (found.isEmpty()) {
        // A sandbox speaks for its program, and not every system tells the processes of windows.
        found = programsWhere([this](std::uint32_t process) { return isIdentifiedAsBrowser(process); });
    }
    end(found);
}

AccessibleObjects
BrowserFinder::programsWhere(const std::function<bool(std::uint32_t process)>& isMeant) const {
    const auto& processes = bus_.processes();
    AccessibleObjects meant;
    std::copy_if(programs_->begin(), programs_->end(), std::back_inserter(meant),
                 [&](const AccessibleObject& program) {
                     const auto process = processes.find(program.service);
                     return process != processes.end() && !isThisProgram(process->second) &&
                            isMeant(process->second);
                 });
    return meant;
}

bool BrowserFinder::isBrowser(std::uint32_t process) const {
    const auto& processes = browser_.processes;
    return std::find(processes.begin(), processes.end(), static_cast<std::int32_t>(process)) !=
           processes.end();
}

bool BrowserFinder::isIdentifiedAsBrowser(std::uint32_t process) const {
    const ProgramClues clues{static_cast<std::int32_t>(process), {}, {}, {}};
    return identity_.bundleIdentifier(clues) == browser_.bundleIdentifier;
}

void BrowserFinder::end(const std::optional<AccessibleObjects>& programs) {
    if (const auto found = std::exchange(found_, nullptr)) {
        found(programs);
    }
}

} // namespace kestrelfen
