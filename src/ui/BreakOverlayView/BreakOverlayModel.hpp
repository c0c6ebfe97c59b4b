#pragma once

#include "platform/ports/Platform.hpp"
#include "ui/BreakOverlayView/BreakOverlayActions.hpp"
#include "ui/BreakOverlayView/BreakOverlayContent.hpp"
#include "ui/ChangeFollower.hpp"
#include "ui/ControlListModel.hpp"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace kestrelfen {

/// Publishes the content of one overlay and forwards its clicks. Main thread only.
class BreakOverlayModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the program")
    Q_PROPERTY(bool isLong READ isLong NOTIFY contentChanged)
    Q_PROPERTY(QString eyebrow READ eyebrow NOTIFY contentChanged)
    Q_PROPERTY(QString title READ title NOTIFY contentChanged)
    Q_PROPERTY(QString body READ body NOTIFY contentChanged)
    Q_PROPERTY(double ringRemaining READ ringRemaining NOTIFY contentChanged)
    Q_PROPERTY(QString ringLabel READ ringLabel NOTIFY contentChanged)
    Q_PROPERTY(QString coverageNote READ coverageNote NOTIFY contentChanged)
    Q_PROPERTY(int cadenceDots READ cadenceDots NOTIFY contentChanged)
    Q_PROPERTY(QString cadenceText READ cadenceText NOTIFY contentChanged)
    Q_PROPERTY(bool cadenceSkip READ cadenceSkip NOTIFY contentChanged)
    Q_PROPERTY(QString cadenceSkipText READ cadenceSkipText NOTIFY contentChanged)
    Q_PROPERTY(kestrelfen::ControlListModel* controls READ controls CONSTANT)

  public:
    BreakOverlayModel(BreakEngine& engine, const Platform& platform);

    bool isLong() const { return content_.isLong; }
    QString eyebrow() const { return QString::fromStdString(content_.eyebrow.value_or("")); }
    QString title() const { return QString::fromStdString(content_.title); }
    QString body() const { return QString::fromStdString(content_.body); }
    double ringRemaining() const { return content_.ringRemaining; }
    QString ringLabel() const { return QString::fromStdString(content_.ringLabel); }
    QString coverageNote() const { return QString::fromStdString(content_.coverageNote.value_or("")); }
    int cadenceDots() const;
    QString cadenceText() const { return QString::fromStdString(content_.cadenceText.value_or("")); }
    bool cadenceSkip() const { return content_.cadenceSkip.value_or(false); }
    QString cadenceSkipText() const { return QString::fromStdString(content_.cadenceSkipText); }
    ControlListModel* controls() { return &controls_; }

    /// A click on the control with that key.
    Q_INVOKABLE void press(int key);
    Q_INVOKABLE void skip();
    Q_INVOKABLE void escape();

  signals:
    void contentChanged();

  private:
    void refresh();

    BreakEngine& engine_;
    const Platform platform_;
    BreakOverlayActions actions_;
    BreakOverlayContent content_;
    ControlListModel controls_;
    ChangeFollower follower_;
};

} // namespace kestrelfen
