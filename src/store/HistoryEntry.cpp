#include "store/HistoryEntry.hpp"

#include "base/Translated.hpp"

namespace kestrelfen {

namespace {

std::string_view label(PauseKind reason) {
    switch (reason) {
    case PauseKind::manual:
        return toTranslate("Paused · manual");
    case PauseKind::systemSleep:
        return toTranslate("Paused · sleep");
    case PauseKind::screenLocked:
        return toTranslate("Paused · lock");
    case PauseKind::displaySleep:
        return toTranslate("Paused · display");
    case PauseKind::userIdle:
        return toTranslate("Paused · idle");
    case PauseKind::meeting:
        return toTranslate("Paused · call");
    case PauseKind::videoPlayback:
        return toTranslate("Paused · video");
    case PauseKind::screenSharing:
        return toTranslate("Paused · sharing");
    case PauseKind::focusApp:
        return toTranslate("Paused · focus");
    }
    return {};
}

} // namespace

std::string_view label(const HistoryEntry::Kind& kind) {
    switch (kind.kind) {
    case HistoryEntry::Kind::Case::completed:
        return kind.isLong ? toTranslate("Long break") : toTranslate("Completed");
    case HistoryEntry::Kind::Case::paused:
        return label(kind.reason);
    case HistoryEntry::Kind::Case::skipped:
        return toTranslate("Skipped");
    }
    return {};
}

} // namespace kestrelfen
