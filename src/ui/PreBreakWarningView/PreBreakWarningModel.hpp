#pragma once

#include "platform/ports/Platform.hpp"
#include "ui/ChangeFollower.hpp"
#include "ui/ControlListModel.hpp"
#include "ui/PreBreakWarningView/PreBreakWarningActions.hpp"
#include "ui/PreBreakWarningView/PreBreakWarningContent.hpp"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace kestrelfen {

/// Publishes the content of the warning card and forwards its clicks. Main thread only.
class PreBreakWarningModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the program")
    Q_PROPERTY(QString title READ title NOTIFY contentChanged)
    Q_PROPERTY(QString caption READ caption NOTIFY contentChanged)
    Q_PROPERTY(QString counter READ counter NOTIFY contentChanged)
    Q_PROPERTY(double fraction READ fraction NOTIFY contentChanged)
    Q_PROPERTY(QString hint READ hint NOTIFY contentChanged)
    Q_PROPERTY(kestrelfen::ControlListModel* controls READ controls CONSTANT)
    Q_PROPERTY(int dismissKey READ dismissKey CONSTANT)
    Q_PROPERTY(int startKey READ startKey CONSTANT)

  public:
    PreBreakWarningModel(BreakEngine& engine, const Platform& platform);

    QString title() const { return QString::fromStdString(content_.title); }
    QString caption() const { return QString::fromStdString(content_.caption); }
    QString counter() const { return QString::number(content_.counter); }
    double fraction() const { return content_.fraction; }
    QString hint() const { return QString::fromStdString(content_.hint.value_or("")); }
    ControlListModel* controls() { return &controls_; }
    int dismissKey() const;
    int startKey() const;

    /// A click on the control with that key.
    Q_INVOKABLE void press(int key);

  signals:
    void contentChanged();

  private:
    void refresh();

    BreakEngine& engine_;
    PreBreakWarningActions actions_;
    PreBreakWarningContent content_;
    ControlListModel controls_;
    ChangeFollower follower_;
};

} // namespace kestrelfen
