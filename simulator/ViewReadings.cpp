#include "Readers.hpp"
#include "Simulation.hpp"
#include "ui/BreakOverlayView/BreakOverlayContent.hpp"
#include "ui/MenuBarView/StatusItemContent.hpp"
#include "ui/PreBreakWarningView/PreBreakWarningContent.hpp"

namespace kestrelfen {

namespace {

Json configReading(const BreakEngine::Config& config) {
    return {{"workInterval", config.workInterval},
            {"breakDuration", config.breakDuration},
            {"longBreakDuration", config.longBreakDuration},
            {"longBreakEvery", config.longBreakEvery},
            {"preBreakWarningLead", config.preBreakWarningLead},
            {"idleThreshold", config.idleThreshold}};
}

Json reasonReading(const BreakState& state) {
    const auto reason = state.reason();
    return reason ? Json(rawValue(*reason)) : Json(nullptr);
}

void addReadOuts(Json& json, const BreakEngine& engine) {
    json["timeUntilNextBreak"] = engine.timeUntilNextBreak();
    json["breakRemaining"] = engine.breakRemaining();
    json["phaseProgress"] = engine.phaseProgress();
    json["isNextBreakLong"] = engine.isNextBreakLong();
    json["cyclePosition"] = engine.cyclePosition();
    json["menuBarText"] = engine.menuBarText();
    json["canPostpone"] = engine.canPostpone();
    json["canSnooze"] = engine.canSnooze();
    json["canSkipCurrentBreak"] = engine.canSkipCurrentBreak();
    json["canSkipNextBreak"] = engine.canSkipNextBreak();
    json["canEndBreakEarly"] = engine.canEndBreakEarly();
}

Json engineReading(Simulation& simulation, Arguments& arguments) {
    arguments.end();
    const BreakEngine& engine = simulation.program().engine();
    Json json{{"now", jsonOf(engine.now())},
              {"state", rawValue(engine.state().phase())},
              {"endsAt", jsonOf(engine.state().endsAt())},
              {"reason", reasonReading(engine.state())},
              {"nextBreakAt", jsonOf(engine.nextBreakAt())},
              {"breaksCompletedToday", engine.breaksCompletedToday()},
              {"breaksSkippedToday", engine.breaksSkippedToday()},
              {"currentPhaseTotal", engine.currentPhaseTotal()},
              {"currentBreakIsLong", engine.currentBreakIsLong()},
              {"pausedUntil", jsonOf(engine.pausedUntil())},
              {"snoozesOnCurrentBreak", engine.snoozesOnCurrentBreak()},
              {"activeTaskTitle", jsonOf(engine.activeTaskTitle())}};
    addReadOuts(json, engine);
    json["config"] = configReading(engine.config());
    json["dayStart"] = jsonOf(engine.rollover().currentDayStart());
    return json;
}

struct PreferenceReader {
    Json operator()(Date date) const { return jsonOf(date); }
    Json operator()(const PreferenceData& /*data*/) const { return true; }
    Json operator()(const PreferenceStrings& strings) const { return Json(strings); }
    Json operator()(const PreferenceDictionary& dictionary) const {
        Json json = Json::object();
        for (const auto& [key, value] : dictionary) {
            json[key] = value;
        }
        return json;
    }
    template <typename Plain>
    Json operator()(const Plain& plain) const {
        return plain;
    }
};

Json preferencesReading(Simulation& simulation, Arguments& arguments) {
    arguments.end();
    Json values = Json::object();
    for (const auto& [key, value] : simulation.world().preferences.all()) {
        values[key] = std::visit(PreferenceReader(), value);
    }
    return {{"values", values}};
}

template <typename Controls>
Json textsOf(const Controls& controls) {
    Json texts = Json::array();
    for (const auto& control : controls) {
        texts.push_back(control.text);
    }
    return texts;
}

Json overlayReading(Simulation& simulation, Arguments& arguments) {
    arguments.end();
    SimulatedProgram& program = simulation.program();
    if (!program.firstOverlay()) {
        Json json = absentView({"visible", "count", "isLong", "eyebrow", "title", "body", "ringRemaining",
                                "ringLabel", "controls", "coverageNote", "cadenceDots", "cadenceText",
                                "cadenceSkip"});
        json["count"] = 0;
        return json;
    }
    const auto content = BreakOverlayContent::of(program.engine(), simulation.world().preferences,
                                                 simulation.world().displays.count());
    return {{"visible", true},
            {"count", program.breakWindowCount()},
            {"isLong", content.isLong},
            {"eyebrow", jsonOf(content.eyebrow)},
            {"title", content.title},
            {"body", content.body},
            {"ringRemaining", content.ringRemaining},
            {"ringLabel", content.ringLabel},
            {"controls", textsOf(content.controls)},
            {"coverageNote", jsonOf(content.coverageNote)},
            {"cadenceDots", jsonOf(content.cadenceDots)},
            {"cadenceText", jsonOf(content.cadenceText)},
            {"cadenceSkip", jsonOf(content.cadenceSkip)}};
}

Json warningReading(Simulation& simulation, Arguments& arguments) {
    arguments.end();
    SimulatedProgram& program = simulation.program();
    if (!program.isWarningShown()) {
        return absentView({"visible", "title", "caption", "counter", "fraction", "controls", "hint"});
    }
    const auto content = PreBreakWarningContent::of(program.engine());
    return {{"visible", true},
            {"title", content.title},
            {"caption", content.caption},
            {"counter", content.counter},
            {"fraction", content.fraction},
            {"controls", textsOf(content.controls)},
            {"hint", jsonOf(content.hint)}};
}

Json statusItemReading(Simulation& simulation, Arguments& arguments) {
    arguments.end();
    const auto content = StatusItemContent::of(simulation.program().engine());
    return {{"symbol", content.symbol}, {"text", content.text}};
}

Json windowsReading(Simulation& simulation, Arguments& arguments) {
    arguments.end();
    const AppRouter& router = simulation.program().delegate().router();
    const auto pending = router.pendingUsageDetail();
    return {{"main", simulation.scenes().isOpen(Scene::main)},
            {"settings", simulation.scenes().isOpen(Scene::settings)},
            {"mainTab", rawValue(router.mainTab())},
            {"settingsPane", rawValue(router.settingsPane())},
            {"pendingUsageDetail", pending ? Json(rawValue(*pending)) : Json(nullptr)},
            {"policy", rawValue(simulation.world().activationPolicy.current())}};
}

constexpr std::array<NamedReader, 6> readers{{{"engine", engineReading},
                                              {"prefs", preferencesReading},
                                              {"overlay", overlayReading},
                                              {"warning", warningReading},
                                              {"status-item", statusItemReading},
                                              {"windows", windowsReading}}};

} // namespace

Json absentView(std::initializer_list<const char*> keys) {
    Json json = Json::object();
    for (const char* const key : keys) {
        json[key] = nullptr;
    }
    json["visible"] = false;
    return json;
}

Readers viewReaders() {
    return readers;
}

} // namespace kestrelfen
