#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace kestrelfen {

/// What a screen reader says and nobody sees: names of groups that the eye makes out by their place, and what
/// Qt has no state for. Main thread only.
class SpokenWords : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QString unavailable READ unavailable CONSTANT)
    Q_PROPERTY(QString view READ view CONSTANT)
    Q_PROPERTY(QString source READ source CONSTANT)
    Q_PROPERTY(QString range READ range CONSTANT)
    Q_PROPERTY(QString category READ category CONSTANT)

  public:
    using QObject::QObject;

    /// Of a control that cannot be used now.
    static QString unavailable();
    /// Of the choice among the tabs.
    static QString view();
    /// Of the choice between apps and websites.
    static QString source();
    /// Of the choice among ranges of days.
    static QString range();
    /// Of the choice among categories.
    static QString category();
};

} // namespace kestrelfen
