#pragma once

#include "base/Observable.hpp"
#include "platform/ports/Displays.hpp"

#include <QObject>

class QScreen;

namespace kestrelfen {

/// The displays as Qt knows them. Main thread only, while a QGuiApplication lives.
class QtDisplays final : public Displays {
  public:
    QtDisplays();

    std::vector<Display> all() const override;
    std::int64_t count() const override;

    /// The display under the pointer.
    std::optional<Display> main() const override;
    std::unique_ptr<Observation> observe(std::function<void()> changed) override;

    /// The screen that a display stands for, or null when it has gone.
    static QScreen* screen(const Display& display);

  private:
    void watch(QScreen* screen);
    void tellSoon();

    QObject context_;
    Observers observers_;
    bool telling_ = false;
};

} // namespace kestrelfen
