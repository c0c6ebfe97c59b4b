#pragma once

#include "platform/linux/ChildProcess.hpp"

#include <QByteArray>
#include <QStringList>

namespace kestrelfen {

/// An X server of its own, which $DISPLAY names while this lives.
class VirtualDisplay {
  public:
    explicit VirtualDisplay(const QStringList& arguments = {});
    ~VirtualDisplay();

    void stop() { server_.stop(); }

  private:
    QByteArray outerDisplay_;
    ChildProcess server_;
};

} // namespace kestrelfen
