#include "ui/SettingsWindowView/PaneModels.hpp"

#include "ui/ShownText.hpp"

namespace kestrelfen {

namespace {

QString textOf(const std::string& text) {
    return shownText(std::string_view(text));
}

QString moodName(ToldState::Mood mood) {
    switch (mood) {
    case ToldState::Mood::good:
        return "good";
    case ToldState::Mood::doubtful:
        return "doubtful";
    case ToldState::Mood::absent:
        return "absent";
    }
    return {};
}

/// Adds what is special to a control.
struct ControlValues {
    QVariantMap& values;

    void operator()(const StepperState& stepper) const {
        values["control"] = "stepper";
        values["value"] = textOf(stepper.value);
        values["isInvalid"] = stepper.isInvalid;
        values["canDecrement"] = stepper.canDecrement;
        values["canIncrement"] = stepper.canIncrement;
        values["decrementLabel"] = textOf(stepper.decrementLabel);
        values["incrementLabel"] = textOf(stepper.incrementLabel);
    }
    void operator()(const PillsState& pills) const {
        QVariantList options;
        for (const PillsState::Option& option : pills.options) {
            options.append(
                QVariantMap{{"value", QString::fromStdString(option.word)}, {"label", textOf(option.label)}});
        }
        values["control"] = "pills";
        values["options"] = options;
        values["isAccented"] = pills.accentSelection;
        values["value"] =
            pills.selected ? QString::fromStdString(pills.options[*pills.selected].word) : QString();
    }
    void operator()(const ToggleState& toggle) const {
        values["control"] = "toggle";
        values["isOn"] = toggle.isOn;
    }
    void operator()(const CardState& card) const {
        values["control"] = "card";
        values["value"] = QString::fromStdString(card.word);
        values["isOn"] = card.isSelected;
        values["eyebrow"] = textOf(card.eyebrow);
    }
    void operator()(const ToldState& told) const {
        values["control"] = "told";
        values["value"] = textOf(told.word);
        values["mood"] = moodName(told.mood);
    }
};

QString keyOf(const PaneRow& row) {
    const auto* const card = std::get_if<CardState>(&row.control);
    return QString::fromStdString(card ? row.key + "." + card->word : row.key);
}

QVariantList previewsOf(const PaneBlock& block) {
    QVariantList previews;
    for (const NotificationPreview& preview : block.previews) {
        previews.append(QVariantMap{{"title", shownText(NotificationPreview::title)},
                                    {"spoken", textOf(preview.spoken())},
                                    {"time", textOf(preview.time)},
                                    {"body", textOf(preview.body)},
                                    {"isProminent", preview.isProminent}});
    }
    return previews;
}

QVariantList buttonsOf(const PaneBlock& block) {
    QVariantList buttons;
    for (const PaneBlock::Button& button : block.buttons) {
        buttons.append(QVariantMap{{"label", textOf(button.label)}, {"isEnabled", button.isEnabled}});
    }
    return buttons;
}

QString kindName(PaneBlock::Kind kind) {
    switch (kind) {
    case PaneBlock::Kind::rows:
        return "rows";
    case PaneBlock::Kind::cards:
        return "cards";
    case PaneBlock::Kind::modeCards:
        return "modeCards";
    case PaneBlock::Kind::callout:
        return "callout";
    case PaneBlock::Kind::disclosure:
        return "disclosure";
    case PaneBlock::Kind::status:
        return "status";
    case PaneBlock::Kind::text:
        return "text";
    case PaneBlock::Kind::note:
        return "note";
    case PaneBlock::Kind::message:
        return "message";
    case PaneBlock::Kind::footnote:
        return "footnote";
    case PaneBlock::Kind::previews:
        return "previews";
    case PaneBlock::Kind::buttons:
        return "buttons";
    }
    return {};
}

QVariantMap valuesOf(const PaneBlock& block, KeyedListModel& rows) {
    return {{"kind", kindName(block.kind)},
            {"eyebrow", textOf(block.eyebrow)},
            {"heading", textOf(block.title)},
            {"words", textOf(block.text)},
            {"tint", QString::fromStdString(block.tint)},
            {"rows", QVariant::fromValue(&rows)},
            {"previews", previewsOf(block)},
            {"buttons", buttonsOf(block)}};
}

} // namespace

QStringList paneRowRoles() {
    return {"key",          "title",         "caption",        "captionToken",   "button",
            "spokenButton", "isButtonPlain", "offered",        "control",        "value",
            "isInvalid",    "canDecrement",  "canIncrement",   "options",        "isOn",
            "eyebrow",      "isAccented",    "decrementLabel", "incrementLabel", "mood"};
}

KeyedListModel::Row keyedRow(const PaneRow& row) {
    QVariantMap values{{"key", QString::fromStdString(row.key)},
                       {"title", textOf(row.title)},
                       {"caption", shownText(row.caption)},
                       {"captionToken", QString::fromStdString(row.captionTint)},
                       {"button", textOf(row.button)},
                       {"spokenButton", textOf(row.spokenButton)},
                       {"isButtonPlain", row.buttonStyle == PaneRow::ButtonStyle::plain},
                       {"offered", row.isEnabled},
                       {"value", QString()},
                       {"isInvalid", false},
                       {"canDecrement", false},
                       {"canIncrement", false},
                       {"decrementLabel", QString()},
                       {"incrementLabel", QString()},
                       {"eyebrow", QString()},
                       {"options", QVariantList()},
                       {"isAccented", false},
                       {"mood", QString()},
                       {"isOn", false}};
    std::visit(ControlValues{values}, row.control);
    return {keyOf(row), values};
}

std::vector<KeyedListModel::Row> keyedRows(const std::vector<PaneRow>& rows) {
    std::vector<KeyedListModel::Row> keyed;
    keyed.reserve(rows.size());
    for (const PaneRow& row : rows) {
        keyed.push_back(keyedRow(row));
    }
    return keyed;
}

PaneBlocks::PaneBlocks()
    : model_({"kind", "eyebrow", "heading", "words", "tint", "rows", "previews", "buttons"}) {}

void PaneBlocks::assign(const QString& pane, const std::vector<PaneBlock>& blocks) {
    std::map<QString, int> counts;
    std::vector<KeyedListModel::Row> rows;
    for (const PaneBlock& block : blocks) {
        const QString name = pane + "/" + kindName(block.kind) + "/" + QString::fromStdString(block.eyebrow);
        const QString key = name + "/" + QString::number(counts[name]++);
        rows.push_back({key, valuesOf(block, rowsOf(key, block))});
    }
    model_.assign(std::move(rows));
}

KeyedListModel& PaneBlocks::rowsOf(const QString& key, const PaneBlock& block) {
    auto& list = lists_[key];
    if (!list) {
        list = std::make_unique<KeyedListModel>(paneRowRoles());
    }
    list->assign(keyedRows(block.rows));
    return *list;
}

} // namespace kestrelfen
