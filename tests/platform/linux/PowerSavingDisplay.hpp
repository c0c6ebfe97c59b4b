#pragma once

#include "platform/linux/ChildProcess.hpp"

#include <QByteArray>
#include <QStringList>

namespace kestrelfen {

/// The display that $DISPLAY names, with power saving added to it; $DISPLAY names this one while it lives.
/// The servers that need no hardware have none.
class PowerSavingDisplay {
  public:
    explicit PowerSavingDisplay(const QStringList& options = {});
    ~PowerSavingDisplay();

    void setLevel(int level) { process_.writeLine(QByteArray::number(level)); }

    /// Runs the event loop until somebody asks for the level.
    bool isAsked() { return process_.readLine() == "asked"; }

  private:
    QByteArray outerDisplay_;
    int number_;
    ChildProcess process_;
};

} // namespace kestrelfen
