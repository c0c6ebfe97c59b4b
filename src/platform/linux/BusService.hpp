#pragma once

#include "base/Observable.hpp"
#include "platform/linux/BusLink.hpp"

#include <QDBusMessage>
#include <QObject>
#include <QString>
#include <QVariantList>

#include <functional>
#include <vector>

namespace kestrelfen {

/// One service of a bus by its well-known name: whether somebody owns it, what it tells and what it answers.
/// It is taken at its owner's word alone, and never started or waited for. Main thread only.
class BusService final : public QObject {
    Q_OBJECT

  public:
    /// A signal of the service. An empty path stands for any.
    struct Signal {
        QString path;
        QString interface;
        QString member;
        QString firstArgument = {};
        friend bool operator==(const Signal&, const Signal&) = default;
    };
    struct Method {
        QString path;
        QString interface;
        QString name;
    };

    /// What the one who holds the service wants to hear; each may be empty.
    struct Listener {
        /// It has an owner, or another than before.
        std::function<void()> appeared = {};
        /// It has no owner, or the bus was lost. Told also at the first look.
        std::function<void()> vanished = {};
        /// One of the signals that are followed came from the owner.
        std::function<void(const QDBusMessage& signal)> told = {};
    };

    BusService(BusLink& bus, QString name, Listener listener);

    const QString& name() const { return name_; }
    bool isOwned() const { return !owner_.isEmpty(); }

    /// What is so now was so at the first look at the bus.
    bool isFirstLook() const { return isFirstLook_; }

    void follow(const Signal& signal);
    void unfollow(const Signal& signal);

    /// `take` gets the reply or the error, unless the owner goes first.
    void ask(const Method& method, const QVariantList& arguments, const BusLink::Answer& take);

  private:
    void busChanged();
    void look();
    void setOwner(const QString& owner);
    BusLink::Signal onBus(const Signal& signal) const;
    Q_SLOT void ownerChanged(const QDBusMessage& message);
    Q_SLOT void hear(const QDBusMessage& message);

    BusLink& bus_;
    QString name_;
    Listener listener_;
    std::vector<Signal> signals_;
    QString owner_;
    bool hasLooked_ = false;
    bool isFirstLook_ = false;
    /// Counts the owners, so that a late answer of one that has gone is not taken for its successor's.
    int ownerNumber_ = 0;
    Subscription subscription_;
};

} // namespace kestrelfen
