#pragma once

#include "platform/linux/ChildProcess.hpp"

#include <QStringList>
#include <QTemporaryDir>

#include <memory>

namespace kestrelfen {

/// A server of a few pages on this machine, each of which has a title, a path and a page within it.
class PageServer {
  public:
    PageServer();

    QString origin(const char* host = "127.0.0.1") const {
        return QStringLiteral("http://%1:%2").arg(host).arg(port_);
    }
    QString page(const char* host = "127.0.0.1") const {
        return origin(host) + "/secret-path.html?secret-query#secret-fragment";
    }

  private:
    QTemporaryDir folder_;
    std::unique_ptr<ChildProcess> server_;
    int port_ = 0;
};

/// Chromium, as a person has it on the display, with a profile of its own.
class RealBrowser {
  public:
    static bool isInstalled();

    explicit RealBrowser(const QStringList& arguments);

    std::int32_t process() const { return static_cast<std::int32_t>(browser_->id()); }

    /// In a tab of its own, in front.
    void open(const QString& address);

    /// Whether a window shows a page of this title by now.
    static bool showsTitle(const QString& title);

  private:
    QStringList command(const QStringList& arguments) const;

    QTemporaryDir folder_;
    std::unique_ptr<ChildProcess> browser_;
};

} // namespace kestrelfen
