#include "ui/OnboardingView/OnboardingModel.hpp"

#include "platform/ports/Preferences.hpp"
#include "ui/SettingsWindowView/PaneModels.hpp"
#include "ui/ShownText.hpp"

namespace kestrelfen {

namespace {

QString textOf(const std::string& text) {
    return shownText(std::string_view(text));
}

QVariantMap objectOf(const OnboardingContent::Page& page) {
    return {{"title", textOf(page.title)},
            {"sentence", textOf(page.sentence)},
            {"prominentButton", textOf(page.prominentButton)},
            {"otherButton", textOf(page.otherButton)}};
}

KeyedListModel::Row keyed(const OnboardingContent::PresetCard& card) {
    const QString key = shownText(rawValue(card.preset));
    return {key,
            {{"key", key},
             {"title", textOf(card.label)},
             {"headline", textOf(card.headline)},
             {"note", textOf(card.note)},
             {"spokenDetail", textOf(card.spokenDetail())},
             {"isSelected", card.isSelected}}};
}

} // namespace

OnboardingModel::OnboardingModel(const Platform& platform, std::function<void()> onFinish)
    : platform_(platform), controls_(platform.preferences), onboarding_(platform, std::move(onFinish)),
      presets_({"key", "title", "headline", "note", "spokenDetail", "isSelected"}), rows_(paneRowRoles()),
      follower_(platform.mainQueue, [this] { refresh(); }) {
    follower_.keep(onboarding_.observe(follower_.listener()));
    follower_.keep(platform.preferences.observe(follower_.listener()));
    refresh();
}

QString OnboardingModel::spokenPage() const {
    return textOf(content_.spokenPage);
}

QVariantMap OnboardingModel::welcome() const {
    return objectOf(content_.welcome);
}

QVariantMap OnboardingModel::cadence() const {
    return objectOf(content_.cadence);
}

QVariantList OnboardingModel::promises() const {
    QVariantList promises;
    for (const auto& promise : content_.promises) {
        promises.append(QVariantMap{{"title", textOf(promise.title)}, {"line", textOf(promise.line)}});
    }
    return promises;
}

QString OnboardingModel::error() const {
    return shownText(content_.error);
}

void OnboardingModel::choosePreset(const QString& key) {
    if (const auto preset = fromRawValue<CadencePreset>(key.toStdString())) {
        onboarding_.choosePreset(*preset);
    }
}

void OnboardingModel::step(const QString& key, bool up) {
    if (const Stepper* const stepper = Stepper::find(key.toStdString())) {
        controls_.step(*stepper, up ? StepDirection::up : StepDirection::down);
    }
}

void OnboardingModel::turn(const QString& key, bool on) {
    if (key == QLatin1String(LaunchAtLogin::key)) {
        onboarding_.launchAtLogin().set(on);
    } else if (const SettingChoice* const choice = SettingChoice::find(key.toStdString())) {
        controls_.choose(*choice, *choice->option(on ? "true" : "false"));
    }
}

void OnboardingModel::refresh() {
    content_ = OnboardingContent::of(platform_.preferences, onboarding_);
    std::vector<KeyedListModel::Row> cards;
    for (const auto& card : content_.presets) {
        cards.push_back(keyed(card));
    }
    presets_.assign(std::move(cards));
    rows_.assign(keyedRows({content_.rows.begin(), content_.rows.end()}));
    emit contentChanged();
}

} // namespace kestrelfen
