#pragma once

#include "platform/linux/ChildProcess.hpp"
#include "platform/linux/EventLoop.hpp"
#include "platform/linux/VirtualDisplay.hpp"
#include "platform/linux/X11Applications.hpp"
#include "platform/linux/X11WindowList.hpp"

#include <gtest/gtest.h>

#include <map>
#include <memory>

namespace kestrelfen {

/// Names each program by the class of its window, and tells how often it was asked.
class ClassNames final : public ProgramCatalogue {
  public:
    Program identify(const WindowClues& clues) override {
        ++asked;
        return {.bundleIdentifier = "org.example." + clues.className,
                .localizedName = clues.className + " of " + clues.instanceName};
    }
    bool isInstalled(std::string_view bundleIdentifier) override { return bundleIdentifier == "here"; }
    std::optional<std::vector<std::string>> launchCommand(std::string_view bundleIdentifier) override {
        return isInstalled(bundleIdentifier) ? std::optional(command) : std::nullopt;
    }

    int asked = 0;
    std::vector<std::string> command;
};

/// A real X server and a real window manager, with terminals as the programs that a person works in.
class X11WindowsTest : public testing::Test {
  protected:
    X11WindowsTest();

    void startWindowManager();
    void stopWindowManager() { windowManager_.reset(); }
    /// It leaves behind all that it has written down.
    void killWindowManager();

    /// A program with one window of that class, in front once it is there.
    qint64 start(const QString& className, const QString& geometry = "40x10+50+60");
    void stop(const QString& className) { programs_.erase(className); }
    qint64 processOf(const QString& className) { return programs_.at(className)->id(); }
    static QString windowOf(const QString& className);

    /// Waits until the program with that class is in front.
    bool comesToFront(const QString& className);
    bool nothingIsInFront();
    /// The classes of the running programs, in their order.
    std::string runningClasses() const;
    /// The owners of the windows on the screen, by their classes, front to back.
    std::string classesOnScreen() const;
    std::optional<ScreenWindow> windowOnScreen(const QString& className) const;

    VirtualDisplay display{{"+extension", "RANDR"}};
    ClassNames catalogue;

  private:
    std::unique_ptr<ChildProcess> windowManager_;
    std::map<QString, std::unique_ptr<ChildProcess>> programs_;

  protected:
    std::unique_ptr<X11WindowWatch> watch;
    std::unique_ptr<X11Applications> applications;
    std::unique_ptr<X11WindowList> windows;
};

} // namespace kestrelfen
