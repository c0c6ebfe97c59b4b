#pragma once

#include "base/Observable.hpp"

#include <QDBusMessage>
#include <QObject>
#include <QString>
#include <QTimer>

#include <chrono>
#include <functional>
#include <optional>

class QDBusConnection;

namespace kestrelfen {

/// An own connection to a message bus, made, kept and made again after a loss without ever waiting for the
/// bus. Main thread only.
class BusLink final : public QObject {
    Q_OBJECT

  public:
    enum class Bus { system, session };
    using Answer = std::function<void(const QDBusMessage& answer)>;

    /// A signal of the bus, as a match rule picks it. An empty path stands for any.
    struct Signal {
        QString sender;
        QString path;
        QString interface;
        QString member;
        QString firstArgument = {};
    };

    explicit BusLink(Bus bus);
    /// To another bus than the well-known two.
    explicit BusLink(QString address);
    ~BusLink() override;

    /// The bus has let this program in.
    bool isConnected() const { return isConnected_; }

    /// The bus was there, and is no longer.
    bool isLost() const { return wasConnected_ && !isConnected_; }

    /// Hears of every change of `isConnected`.
    [[nodiscard]] Subscription observe(std::function<void()> listener) {
        return observers_.add(std::move(listener));
    }

    /// `take` gets the reply or the error, unless the bus is lost first. Nothing happens while there is none.
    void ask(const QDBusMessage& question, QObject* asker, Answer take);

    /// Until the bus is lost, `slot` of `receiver` gets the signal's message. Nobody but the bus can tell
    /// who sent it: compare its `service`.
    void follow(const Signal& signal, QObject* receiver, const char* slot);
    void unfollow(const Signal& signal, QObject* receiver, const char* slot);

  private:
    void open();
    void greet();
    void close();
    void retryLater();
    Q_SLOT void lose();

    QDBusConnection connection() const;

    QString address_;
    QString name_;
    Observers observers_;
    QTimer retry_;
    std::chrono::milliseconds retryDelay_;
    /// Counts the connections, so that a late answer of one that has gone is not taken for its successor's.
    int connectionNumber_ = 0;
    bool isOpen_ = false;
    bool isConnected_ = false;
    bool wasConnected_ = false;
};

} // namespace kestrelfen
