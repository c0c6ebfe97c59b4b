#include "face/kit/ContrastTable.hpp"

namespace kestrelfen {

namespace {

using Layer = ContrastTable::Layer;
using Layers = std::vector<Layer>;

Layers on(Layers below, const Layers& above) {
    below.insert(below.end(), above.begin(), above.end());
    return below;
}

// What the surfaces are made of, from the backdrop up.
const Layers pane{{"blur"}, {"glass2"}};
const Layers window{{"blur"}, {"glass"}};
const Layers welcome{{"glass"}};
const Layers warning{{"anything"}, {"hudFill"}};
const Layers menu{{"hudFill"}};
const Layers rail = on(pane, {{"glass2"}});
const Layers row = on(pane, {{"glass2"}});
const Layers card = on(window, {{"glass"}});
const Layers overlayCard = on(pane, {{"glass"}});

void addTexts(std::vector<ContrastTable::Use>& uses, const char* where, const Layers& ground,
              const std::vector<Layer>& texts) {
    for (const Layer& text : texts) {
        uses.push_back({.where = where, .ground = ground, .text = text});
    }
}

void addSettings(std::vector<ContrastTable::Use>& uses) {
    addTexts(uses, "settings, rail", rail, {{"slate"}, {"faint"}});
    addTexts(uses, "settings, chosen tab of the rail", on(rail, {{"sunk"}}), {{"ink"}});
    addTexts(uses, "settings, pane", pane, {{"ink"}, {"slate"}, {"faint"}, {"danger"}});
    addTexts(uses, "settings, row", row, {{"ink"}, {"faint"}, {"amber"}, {"accent"}});
    addTexts(uses, "stepper", on(row, {{"sunk"}}), {{"ink"}});
    addTexts(uses, "button of a stepper", on(row, {{"sunk"}, {"glass"}}), {{"ink"}});
    addTexts(uses, "stepper with a value that is not valid", on(row, {{"amber", 0.14}}), {{"amber"}});
    addTexts(uses, "pills", on(row, {{"sunk"}}), {{"slate"}});
    addTexts(uses, "chosen pill", on(row, {{"sunk"}, {"glass"}}), {{"ink"}});
    addTexts(uses, "chosen pill, accented", on(row, {{"prominent"}}), {{"overProminent"}});
    addTexts(uses, "card to choose", row, {{"slate"}});
    addTexts(uses, "chosen card", on(pane, {{"prominent"}}), {{"overAccent"}});
    addTexts(uses, "callout that warns", on(pane, {{"amber", 0.12}}), {{"amber"}, {"slate"}});
    addTexts(uses, "preview of a notification", on(pane, {{"glass"}}), {{"slate"}, {"faint"}});
    addTexts(uses, "button that destroys", on(pane, {{"danger", 0.12}}), {{"danger"}});
    addTexts(uses, "button that destroys, pressed", on(pane, {{"danger", 0.2}}), {{"danger"}});
}

void addMainWindow(std::vector<ContrastTable::Use>& uses) {
    addTexts(uses, "main window", window, {{"ink"}, {"slate"}, {"faint"}, {"amber"}});
    addTexts(uses, "main window, pills", on(window, {{"sunk"}}), {{"slate"}});
    addTexts(uses, "main window, card", card,
             {{"ink"}, {"slate"}, {"faint"}, {"accent"}, {"amber"}, {"danger"}});
    uses.push_back({.where = "score", .ground = card, .text = {"accent"}, .isLarge = true});
    uses.push_back({.where = "score", .ground = card, .text = {"amber"}, .isLarge = true});
    uses.push_back({.where = "score", .ground = card, .text = {"danger"}, .isLarge = true});
    addTexts(uses, "ordinary button", on(card, {{"glass2"}}), {{"ink"}});
    addTexts(uses, "strongest button", on(card, {{"prominent"}}), {{"overProminent"}});
    addTexts(uses, "type of a row, completed", on(card, {{"accent", 0.14}}), {{"accent"}});
    addTexts(uses, "type of a row, skipped", on(card, {{"amber", 0.14}}), {{"amber"}});
    addTexts(uses, "type of a row, paused", on(card, {{"slate", 0.14}}), {{"slate"}});
    addTexts(uses, "active task", on(card, {{"accent", 0.08}}), {{"ink"}, {"accent"}, {"faint"}});
    addTexts(uses, "usage, sheet", window, {{"slate"}, {"faint"}});
    addTexts(uses, "usage, category", on(window, {{"sunk"}}), {{"ink"}});
    addTexts(uses, "usage, chosen category", on(window, {{"prominent"}}), {{"overProminent"}});
    addTexts(uses, "menu", menu, {{"ink"}, {"danger"}});
    addTexts(uses, "menu, chosen entry", on(menu, {{"prominent"}}), {{"overProminent"}});
}

void addRest(std::vector<ContrastTable::Use>& uses) {
    addTexts(uses, "popover", window, {{"ink"}, {"slate"}, {"faint"}});
    addTexts(uses, "popover, cycle", on(window, {{"sunk"}}), {{"slate"}});
    addTexts(uses, "popover, button", on(window, {{"glass2"}}), {{"ink"}});
    addTexts(uses, "popover, prominent button", on(window, {{"prominent"}}), {{"overProminent"}});
    uses.push_back({.where = "overlay, title", .ground = pane, .text = {"ink"}, .isLarge = true});
    addTexts(uses, "overlay", pane, {{"slate"}, {"faint"}, {"accent"}});
    addTexts(uses, "overlay, button", on(pane, {{"glass2"}}), {{"ink"}});
    addTexts(uses, "overlay, cadence", overlayCard, {{"slate"}, {"faint"}});
    addTexts(uses, "warning card", warning, {{"ink"}, {"slate"}, {"faint"}});
    addTexts(uses, "warning card, button", on(warning, {{"sunk"}}), {{"ink"}});
    addTexts(uses, "warning card, start", on(warning, {{"accentFill"}}), {{"overAccent"}});
    addTexts(uses, "welcome", welcome, {{"ink"}, {"slate"}, {"faint"}, {"danger"}});
    addTexts(uses, "welcome, cadence to choose", on(welcome, {{"glass2"}}), {{"ink"}, {"slate"}, {"faint"}});
    addTexts(uses, "welcome, chosen cadence", on(welcome, {{"prominent"}}), {{"overAccent"}});
}

} // namespace

const std::vector<ContrastTable::Use>& ContrastTable::uses() {
    static const std::vector<Use> all = [] {
        std::vector<Use> uses;
        addSettings(uses);
        addMainWindow(uses);
        addRest(uses);
        return uses;
    }();
    return all;
}

} // namespace kestrelfen
