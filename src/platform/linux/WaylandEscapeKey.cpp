#include "platform/linux/WaylandEscapeKey.hpp"

#include <QMetaObject>
#include <QObject>

#include <utility>

namespace kestrelfen {

namespace {

class Grab final : public EscapeKey::Handle {
  public:
    Grab(WaylandLayers& layers, std::function<void()> pressed)
        : layers_(layers), pressed_(std::move(pressed)) {
        // What is done on a press may end the surfaces and this grab: not from within the events of both.
        layers_.takeKeyboard([this] {
            QMetaObject::invokeMethod(
                &context_,
                [this] {
                    const auto tell = pressed_;
                    tell();
                },
                Qt::QueuedConnection);
        });
    }
    Grab(const Grab&) = delete;
    Grab& operator=(const Grab&) = delete;
    ~Grab() override { layers_.takeKeyboard({}); }

  private:
    WaylandLayers& layers_;
    std::function<void()> pressed_;
    QObject context_;
};

} // namespace

std::unique_ptr<EscapeKey::Handle> WaylandEscapeKey::grab(std::function<void()> pressed) {
    return std::make_unique<Grab>(layers_, std::move(pressed));
}

} // namespace kestrelfen
