#pragma once

#include "platform/linux/ChildProcess.hpp"

#include <QJsonObject>
#include <QStringList>

namespace kestrelfen {

/// A program on the accessibility bus that tells of windows and pages as a browser does.
class AccessibleProgram {
  public:
    using Windows = std::initializer_list<QJsonObject>;

    explicit AccessibleProgram(Windows windows);

    std::int32_t process() const { return static_cast<std::int32_t>(program_.id()); }

    void show(Windows windows);

    /// What its windows and pages were asked since the last time, as "member window".
    QStringList calls();

    void suspend() const;
    void resume() const;

  private:
    ChildProcess program_;
};

/// An ordinary window in front.
QJsonObject window(const char* address, const char* name = "Secret Title - Google Chrome");

} // namespace kestrelfen
