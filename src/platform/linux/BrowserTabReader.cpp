#include "platform/linux/BrowserTabReader.hpp"

#include "platform/linux/BrowserWindowName.hpp"
#include "platform/linux/WebOrigin.hpp"

#include <algorithm>
#include <utility>

namespace kestrelfen {

namespace {

using namespace std::chrono_literals;

/// A browser builds what it tells of its pages only once somebody has asked.
constexpr int documentLooks = 6;
constexpr auto documentLookInterval = 150ms;

} // namespace

BrowserTabReader::BrowserTabReader(AccessibilityBus& bus, ProgramIdentity& identity)
    : finder_(bus, identity), calls_(bus, [this] {
          end({Reading::Outcome::late, {}});
      }) {}

void BrowserTabReader::read(const SoughtBrowser& browser, Told told) {
    cancel();
    told_ = std::move(told);
    bundleIdentifier_ = browser.bundleIdentifier;
    looksLeft_ = documentLooks;
    finder_.find(browser, [this](const std::optional<AccessibleObjects>& programs) {
        if (!programs) {
            end({Reading::Outcome::late, {}});
        } else if (programs->isEmpty()) {
            end({Reading::Outcome::notOnBus, {}});
        } else {
            askForWindows(*programs);
        }
    });
}

void BrowserTabReader::cancel() {
    finder_.cancel();
    calls_.cancel();
    told_ = nullptr;
    windows_.clear();
    documents_.clear();
    origin_.reset();
}

void BrowserTabReader::askForWindows(const AccessibleObjects& programs) {
    for (const AccessibleObject& program : programs) {
        calls_.ask(childrenOf(program), [this](const QDBusMessage& answer) {
            for (const AccessibleObject& window : objectsIn(answer).value_or(AccessibleObjects())) {
                windows_.push_back({window});
            }
        });
    }
    calls_.then([this] { askAboutWindows(); });
}

void BrowserTabReader::askAboutWindows() {
    for (std::size_t index = 0; index < windows_.size(); ++index) {
        calls_.ask(statesOf(windows_[index].object), [this, index](const QDBusMessage& answer) {
            windows_[index].isActive = isActiveIn(answer).value_or(false);
        });
        calls_.ask(nameOf(windows_[index].object),
                   [this, index](const QDBusMessage& answer) { takeName(index, answer); });
    }
    calls_.then([this] { chooseWindow(); });
}

void BrowserTabReader::takeName(std::size_t window, const QDBusMessage& answer) {
    const QString name = nameIn(answer).value_or(QString());
    windows_[window].isNamed = !name.isEmpty();
    windows_[window].isOrdinary = isOrdinaryBrowserWindow(bundleIdentifier_, name);
}

void BrowserTabReader::chooseWindow() {
    const Window* const window = windowInUse();
    if (window && window->isOrdinary) {
        askForDocument(window->object);
    } else {
        end({});
    }
}

const BrowserTabReader::Window* BrowserTabReader::windowInUse() const {
    const auto isActive = [](const Window& each) { return each.isActive; };
    const auto isNamed = [](const Window& each) { return each.isNamed; };
    const auto active = std::find_if(windows_.begin(), windows_.end(), isActive);
    if (active != windows_.end()) {
        return &*active;
    }
    // A window that was in front before the browser began to tell is not told as active. Hidden ones have no
    // name.
    return std::count_if(windows_.begin(), windows_.end(), isNamed) == 1
               ? &*std::find_if(windows_.begin(), windows_.end(), isNamed)
               : nullptr;
}

/// That somebody asks for the window's attributes is what wakes a browser.
void BrowserTabReader::askForDocument(const AccessibleObject& window) {
    calls_.ask(attributesOf(window), [](const QDBusMessage&) {});
    calls_.ask(shownWebDocumentIn(window), [this](const QDBusMessage& answer) {
        documents_ = objectsIn(answer).value_or(AccessibleObjects());
    });
    calls_.then([this, window] { askForAddress(window); });
}

void BrowserTabReader::askForAddress(const AccessibleObject& window) {
    if (!documents_.isEmpty()) {
        calls_.ask(documentAttributesOf(documents_.front()),
                   [this](const QDBusMessage& answer) { takeAddress(answer); });
    }
    calls_.then([this, window] {
        if (origin_) {
            end({Reading::Outcome::read, *origin_});
        } else {
            waitForDocument(window);
        }
    });
}

void BrowserTabReader::takeAddress(const QDBusMessage& answer) {
    const QString address = addressIn(answer).value_or(QString());
    if (!address.isEmpty()) {
        origin_ = webOrigin(address);
    }
}

void BrowserTabReader::waitForDocument(const AccessibleObject& window) {
    if (--looksLeft_ == 0) {
        end({});
    } else {
        calls_.pause(documentLookInterval, [this, window] { askForDocument(window); });
    }
}

void BrowserTabReader::end(const Reading& reading) {
    const auto told = std::exchange(told_, nullptr);
    cancel();
    if (told) {
        told(reading);
    }
}

} // namespace kestrelfen
