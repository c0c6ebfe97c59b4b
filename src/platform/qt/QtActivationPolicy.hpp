#pragma once

#include "base/Observable.hpp"
#include "platform/ports/ActivationPolicy.hpp"

#include <QObject>
#include <QPointer>
#include <QWindow>

namespace kestrelfen {

/// The program's windows as Qt knows them. A desktop lists a titled window among the tasks by itself, so that
/// the policy is only remembered. Main thread only.
class QtActivationPolicy final : public QObject, public ActivationPolicy {
    Q_OBJECT

  public:
    QtActivationPolicy();

    std::vector<ProgramWindow> windows() const override;
    ActivationPolicyKind current() const override { return current_; }
    void set(ActivationPolicyKind policy) override { current_ = policy; }
    void activate() override;

    /// Brings one window to the front; it is the one that `activate` means until another is brought there.
    void bringForward(QWindow& window);

    std::unique_ptr<Observation> observe(ProgramWindowEvent event, std::function<void()> deliver) override;

  protected:
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    QPointer<QWindow> foremost_;
    Observers willClose_;
    Observers didBecomeKey_;
    ActivationPolicyKind current_ = ActivationPolicyKind::accessory;
};

} // namespace kestrelfen
