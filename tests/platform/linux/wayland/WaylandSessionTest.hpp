#pragma once

#include "SwaySession.hpp"
#include "platform/linux/EventLoop.hpp"
#include "platform/linux/WaylandApplications.hpp"
#include "platform/linux/WaylandWindowList.hpp"

#include <gtest/gtest.h>

#include <memory>

namespace kestrelfen {

/// Names each program by its application id.
class ApplicationIds final : public ProgramCatalogue {
  public:
    Program identify(const WindowClues& clues) override {
        return {.bundleIdentifier = clues.className, .localizedName = "The " + clues.className};
    }
    bool isInstalled(std::string_view bundleIdentifier) override { return bundleIdentifier == "here"; }
    std::optional<std::vector<std::string>> launchCommand(std::string_view bundleIdentifier) override {
        return isInstalled(bundleIdentifier) ? std::optional(command) : std::nullopt;
    }

    std::vector<std::string> command;
};

/// A real compositor with terminals as the programs that a person works in. Skipped where there is none.
class WaylandSessionTest : public testing::Test {
  protected:
    void SetUp() override {
        if (const auto program = SwaySession::lacking()) {
            GTEST_SKIP() << program->toStdString() << " is not installed: no compositor to try it on";
        }
        session = std::make_unique<SwaySession>();
        connection = std::make_unique<WaylandConnection>();
        ASSERT_FALSE(connection->isBroken());
        toplevels = std::make_unique<WaylandToplevels>(*connection, catalogue);
        applications = std::make_unique<WaylandApplications>(*toplevels);
        windows = std::make_unique<WaylandWindowList>(*toplevels);
    }

    /// A program with one window, in front once it is there.
    void start(const QString& key, const QString& applicationId) {
        const auto before = windowCount();
        session->start(key, applicationId);
        EXPECT_TRUE(waitUntil([&] { return windowCount() > before; }));
        EXPECT_TRUE(comesToFront(applicationId.toStdString()));
    }

    bool comesToFront(const std::string& applicationId) const {
        return waitUntil([&] { return frontmost() == applicationId; });
    }

    std::size_t windowCount() const {
        return windows->onScreen().value_or(std::vector<ScreenWindow>()).size();
    }

    std::string frontmost() const {
        const auto application = applications->frontmost();
        return application ? application->bundleIdentifier.value_or("unnamed") : "none";
    }

    /// The ids of the running applications, in their order.
    std::string running() const {
        std::string result;
        for (const auto& application : applications->running()) {
            result += application.bundleIdentifier.value_or("unnamed") + " ";
        }
        return result;
    }

    ApplicationIds catalogue;
    std::unique_ptr<SwaySession> session;
    std::unique_ptr<WaylandConnection> connection;
    std::unique_ptr<WaylandToplevels> toplevels;
    std::unique_ptr<WaylandApplications> applications;
    std::unique_ptr<WaylandWindowList> windows;
};

} // namespace kestrelfen
