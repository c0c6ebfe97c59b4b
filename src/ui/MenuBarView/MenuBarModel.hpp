#pragma once

#include "platform/ports/Platform.hpp"
#include "ui/ControlListModel.hpp"
#include "ui/EngineFollower.hpp"
#include "ui/MenuBarView/MenuBarActions.hpp"
#include "ui/MenuBarView/MenuBarContent.hpp"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <functional>

namespace kestrelfen {

/// Publishes the content of the popover and forwards its clicks. Main thread only.
class MenuBarModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the program")
    Q_PROPERTY(QString eyebrow READ eyebrow NOTIFY contentChanged)
    Q_PROPERTY(QString value READ value NOTIFY contentChanged)
    Q_PROPERTY(QString caption READ caption NOTIFY contentChanged)
    Q_PROPERTY(QString cycleText READ cycleText NOTIFY contentChanged)
    Q_PROPERTY(double ringRemaining READ ringRemaining NOTIFY contentChanged)
    Q_PROPERTY(QString ringLabel READ ringLabel NOTIFY contentChanged)
    Q_PROPERTY(kestrelfen::ControlListModel* controls READ controls CONSTANT)
    Q_PROPERTY(int prominentKey READ prominentKey CONSTANT)

  public:
    /// `quit` asks the program to end.
    MenuBarModel(BreakEngine& engine, const Platform& platform, std::function<void()> quit);

    QString eyebrow() const { return QString::fromStdString(content_.eyebrow); }
    QString value() const { return QString::fromStdString(content_.value); }
    QString caption() const { return QString::fromStdString(content_.caption); }
    QString cycleText() const { return QString::fromStdString(content_.cycleText); }
    double ringRemaining() const { return content_.ringRemaining; }
    QString ringLabel() const { return QString::fromStdString(content_.ringLabel); }
    ControlListModel* controls() { return &controls_; }
    int prominentKey() const;

    /// A click on the button with that key.
    Q_INVOKABLE void press(int key);
    Q_INVOKABLE void quit() { quit_(); }

  signals:
    void contentChanged();

  private:
    void refresh();

    BreakEngine& engine_;
    MenuBarActions actions_;
    std::function<void()> quit_;
    MenuBarContent content_;
    ControlListModel controls_;
    EngineFollower follower_;
};

} // namespace kestrelfen
