#pragma once

#include "ui/ChangeFollower.hpp"
#include "ui/KeyedListModel.hpp"
#include "ui/OnboardingView/OnboardingContent.hpp"
#include "ui/SettingsWindowView/SettingsControls.hpp"

#include <QObject>
#include <QString>
#include <QVariantList>
#include <QVariantMap>
#include <QtQml/qqmlregistration.h>

namespace kestrelfen {

/// Publishes the first run and forwards its clicks. Main thread only.
class OnboardingModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the program")
    Q_PROPERTY(int page READ page NOTIFY contentChanged)
    Q_PROPERTY(QString spokenPage READ spokenPage NOTIFY contentChanged)
    Q_PROPERTY(QVariantMap welcome READ welcome CONSTANT)
    Q_PROPERTY(QVariantList promises READ promises CONSTANT)
    Q_PROPERTY(QVariantMap cadence READ cadence CONSTANT)
    Q_PROPERTY(kestrelfen::KeyedListModel* presets READ presets CONSTANT)
    Q_PROPERTY(kestrelfen::KeyedListModel* rows READ rows CONSTANT)
    Q_PROPERTY(QString error READ error NOTIFY contentChanged)

  public:
    /// `onFinish` ends the first run and starts the timer.
    OnboardingModel(const Platform& platform, std::function<void()> onFinish);

    int page() const { return static_cast<int>(content_.page); }
    QString spokenPage() const;
    /// Each page has a `title`, a `sentence`, a `prominentButton` and an `otherButton`.
    QVariantMap welcome() const;
    QVariantMap cadence() const;
    /// Each has a `title` and a `line`.
    QVariantList promises() const;
    KeyedListModel* presets() { return &presets_; }
    KeyedListModel* rows() { return &rows_; }
    QString error() const;

    Q_INVOKABLE void setUp() { onboarding_.setUp(); }
    Q_INVOKABLE void useDefaults() { onboarding_.useDefaults(); }
    Q_INVOKABLE void back() { onboarding_.back(); }
    Q_INVOKABLE void start() { onboarding_.start(); }
    Q_INVOKABLE void choosePreset(const QString& key);
    Q_INVOKABLE void step(const QString& key, bool up);
    Q_INVOKABLE void turn(const QString& key, bool on);

  signals:
    void contentChanged();

  private:
    void refresh();

    const Platform platform_;
    SettingsControls controls_;
    Onboarding onboarding_;
    OnboardingContent content_;
    KeyedListModel presets_;
    KeyedListModel rows_;
    ChangeFollower follower_;
};

} // namespace kestrelfen
