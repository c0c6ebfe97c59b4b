#include "ui/SettingsWindowView/WhatWorksContent.hpp"

#include "base/Translated.hpp"

namespace kestrelfen {

namespace {

using State = Capability::State;

/// How one capability stands and, unless it works, what happens instead.
struct Finding {
    State state = State::works;
    std::string fallback = {};
};

Finding worksOr(bool works, std::string fallback) {
    return works ? Finding() : Finding{State::missing, std::move(fallback)};
}

Finding overlays(OverlayReach reach) {
    switch (reach) {
    case OverlayReach::everywhere:
        return {};
    case OverlayReach::throughXServer:
        return {State::limited,
                translated("No layers on this desktop. Overlays are windows of its X server instead.")};
    case OverlayReach::ordinaryWindows:
        return {State::limited, translated("No layers on this desktop. Other windows may cover an overlay.")};
    }
    return {};
}

Finding escape(OverlayReach reach) {
    switch (reach) {
    case OverlayReach::everywhere:
        return {};
    case OverlayReach::throughXServer:
        return {
            State::limited,
            translated("Heard while a program of the X server has the keyboard. Otherwise use the overlay's "
                       "buttons.")};
    case OverlayReach::ordinaryWindows:
        return {State::missing, translated("Not heard here. Use the overlay's buttons.")};
    }
    return {};
}

/// Where locks and dark displays go unnoticed, the lack of input pauses, if that is told at least.
std::string insteadOf(const DesktopAnswers& answers, std::string withIdle, std::string without) {
    return answers.tellsInput ? std::move(withIdle) : std::move(without);
}

Finding screenLock(const DesktopAnswers& answers) {
    if (answers.machine.lock && !answers.machine.session) {
        return {State::limited,
                insteadOf(answers,
                          translated("A switch to another user is not noticed. Being idle pauses instead."),
                          translated("A switch to another user is not noticed. Pause by hand."))};
    }
    return worksOr(answers.machine.lock,
                   insteadOf(answers, translated("Neither is noticed here. Being idle pauses instead."),
                             translated("Neither is noticed here. Pause by hand.")));
}

Finding displaySleep(const DesktopAnswers& answers) {
    return worksOr(answers.machine.displaySleep,
                   insteadOf(answers, translated("Not noticed here. Being idle pauses instead."),
                             translated("Not noticed here. Pause by hand.")));
}

Finding applications(const DesktopAnswers& answers) {
    if (answers.tellsApplications && answers.missesSomeApplications) {
        return {State::limited,
                translated("Only programs of the X server are known. Time in others counts without "
                           "names.")};
    }
    return worksOr(
        answers.tellsApplications,
        translated("Not told here. Screen time counts without names, and focus apps pause nothing."));
}

Finding audio(const DesktopAnswers& answers) {
    return worksOr(answers.tellsAudio,
                   answers.tellsApplications
                       ? translated("No sound server. Calls and video pause while their app is in front.")
                       : translated("No sound server. Calls and video pause nothing."));
}

Capability capability(std::string key, std::string name, Finding finding) {
    return {std::move(key), std::move(name), finding.state, std::move(finding.fallback)};
}

std::vector<Capability> whatIsShown(const DesktopAnswers& answers) {
    return {
        capability("tray", translated("Tray icon"),
                   worksOr(answers.hasTray,
                           translated("No tray here. Start the program again to open its window."))),
        capability(
            "notifications", translated("Notifications"),
            worksOr(answers.hasNotifications,
                    translated("Nothing here shows them. The warning card and the overlays still come."))),
        capability("overlays", translated("Break overlays"), overlays(answers.overlays)),
        capability("escape", translated("Escape during a break"), escape(answers.overlays)),
    };
}

std::vector<Capability> whatPauses(const DesktopAnswers& answers) {
    return {
        capability("idle", translated("Idle time"),
                   worksOr(answers.tellsInput,
                           translated("Not told here. Stepping away pauses nothing; pause by hand."))),
        capability(
            "sleep", translated("Sleep and waking"),
            worksOr(answers.machine.sleep,
                    translated("Not told here. A break that came due during sleep starts on waking."))),
        capability("screenLock", translated("Screen lock and user switch"), screenLock(answers)),
        capability("displaySleep", translated("Display sleep"), displaySleep(answers)),
        capability("locking", translated("Locking the screen"),
                   worksOr(answers.canLock, translated("Nothing here locks it. Breaks start unlocked."))),
    };
}

std::vector<Capability> whatIsWatched(const DesktopAnswers& answers) {
    return {
        capability("applications", translated("Program in front"), applications(answers)),
        capability("audio", translated("Calls and video"), audio(answers)),
        capability("websites", translated("Website names"),
                   worksOr(answers.hasBrowserAccess,
                           translated("No accessibility bus. Browsers count without their websites."))),
    };
}

void append(std::vector<Capability>& all, std::vector<Capability> more) {
    all.insert(all.end(), std::make_move_iterator(more.begin()), std::make_move_iterator(more.end()));
}

ToldState told(State state) {
    switch (state) {
    case State::works:
        return {translated("Works"), ToldState::Mood::good};
    case State::limited:
        return {translated("Limited"), ToldState::Mood::doubtful};
    case State::missing:
        return {translated("Unavailable"), ToldState::Mood::absent};
    }
    return {};
}

PaneRow rowOf(const Capability& capability) {
    PaneRow row{.key = capability.key, .title = capability.name};
    if (!capability.fallback.empty()) {
        row.caption = capability.fallback;
    }
    row.control = told(capability.state);
    return row;
}

} // namespace

WhatWorksContent WhatWorksContent::of(const DesktopAnswers& answers) {
    WhatWorksContent content{translated("What works here"), whatIsShown(answers)};
    append(content.capabilities, whatPauses(answers));
    append(content.capabilities, whatIsWatched(answers));
    return content;
}

void WhatWorksContent::addTo(PaneContent& pane) const {
    std::vector<PaneRow> rows;
    rows.reserve(capabilities.size());
    for (const Capability& each : capabilities) {
        rows.push_back(rowOf(each));
    }
    pane.addRows(heading, std::move(rows));
}

} // namespace kestrelfen
