#pragma once

#include "platform/ports/Log.hpp"
#include "platform/ports/TrayIcon.hpp"

#include <QTimer>

#include <functional>
#include <memory>

namespace kestrelfen {

/// The icon by whichever of two ways some tray takes: the preferred one as soon as it is taken, the fallback
/// while it is not. Main thread only, with an event loop. When neither is taken in time, the log says so
/// once.
class TrayIconChooser final : public TrayIcon {
  public:
    using Maker = std::function<std::unique_ptr<TrayIcon>()>;

    /// The fallback is made only while it is needed.
    TrayIconChooser(std::unique_ptr<TrayIcon> preferred, Maker makeFallback, Log& log);

    void show(TrayContent content) override;
    void tooltipChanged() override;
    void labelChanged() override;
    bool isShown() const override;

  private:
    void choose();
    void startFallback();
    void tellIfThereIsNone();
    void notifyIfChanged();

    std::unique_ptr<TrayIcon> preferred_;
    Maker makeFallback_;
    Logger log_;
    TrayContent content_;
    bool isStarted_ = false;
    bool wasShown_ = false;
    QTimer fallbackWait_;
    QTimer patience_;
    Subscription preferredShown_;
    std::unique_ptr<TrayIcon> fallback_;
    Subscription fallbackShown_;
};

} // namespace kestrelfen
