#include "store/HistoryEntry.hpp"

namespace kestrelfen {

namespace {

std::string_view label(PauseKind reason) {
    switch (reason) {
    case PauseKind::manual:
        return "Paused · manual";
    case PauseKind::systemSleep:
        return "Paused · sleep";
    case PauseKind::screenLocked:
        return "Paused · lock";
    case PauseKind::displaySleep:
        return "Paused · display";
    case PauseKind::userIdle:
        return "Paused · idle";
    case PauseKind::meeting:
        return "Paused · call";
    case PauseKind::videoPlayback:
        return "Paused · video";
    case PauseKind::screenSharing:
        return "Paused · sharing";
    case PauseKind::focusApp:
        return "Paused · focus";
    }
    return {};
}

} // namespace

std::string_view label(const HistoryEntry::Kind& kind) {
    switch (kind.kind) {
    case HistoryEntry::Kind::Case::completed:
        return kind.isLong ? "Long break" : "Completed";
    case HistoryEntry::Kind::Case::paused:
        return label(kind.reason);
    case HistoryEntry::Kind::Case::skipped:
        return "Skipped";
    }
    return {};
}

} // namespace kestrelfen
