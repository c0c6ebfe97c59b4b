#include "platform/linux/browser/RealBrowser.hpp"

#include <QFile>
#include <QStandardPaths>
#include <gtest/gtest.h>

namespace kestrelfen {

namespace {

constexpr char program[] = "chromium";

/// What it complains of says nothing here.
QStringList quietly(const QStringList& command) {
    return QStringList{"-c", "exec \"$@\" 2>/dev/null", "sh"} + command;
}

void write(const QString& path, const QByteArray& text) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
}

} // namespace

PageServer::PageServer() {
    write(
        folder_.filePath("secret-path.html"),
        "<html><title>Secret Title</title><body><p>Page</p><iframe src='inner.html'></iframe></body></html>");
    write(folder_.filePath("inner.html"), "<html><title>Inner</title><body><p>Inner</p></body></html>");
    server_ =
        std::make_unique<ChildProcess>("sh", quietly({"/usr/bin/python3", "-u", "-m", "http.server", "0",
                                                      "--bind", "127.0.0.1", "--directory", folder_.path()}));
    port_ = server_->readLine().section(" port ", 1).section(' ', 0, 0).toInt();
    EXPECT_GT(port_, 0);
}

bool RealBrowser::isInstalled() {
    return !QStandardPaths::findExecutable(program).isEmpty();
}

RealBrowser::RealBrowser(const QStringList& arguments)
    : browser_(std::make_unique<ChildProcess>("sh", command(arguments))) {}

QStringList RealBrowser::command(const QStringList& arguments) const {
    return quietly(QStringList{"env", "HOME=" + folder_.path(), "XDG_CONFIG_HOME=" + folder_.path(),
                               "XDG_CACHE_HOME=" + folder_.path(), program, "--no-sandbox", "--no-first-run",
                               "--disable-gpu", "--password-store=basic",
                               "--user-data-dir=" + folder_.filePath("profile")} +
                   arguments);
}

void RealBrowser::open(const QString& address) {
    outputOf("sh", command({address}));
}

bool RealBrowser::showsTitle(const QString& title) {
    return !outputOf("xdotool", {"search", "--onlyvisible", "--name", title}).isEmpty();
}

} // namespace kestrelfen
