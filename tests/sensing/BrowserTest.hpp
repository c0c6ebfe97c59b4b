#pragma once

#include "platform/fake/FakePlatform.hpp"
#include "sensing/BrowserScripting.hpp"
#include "support/Trace.hpp"

#include <gtest/gtest.h>

#include <memory>

namespace kestrelfen {

/// A test of what is asked of browsers. Scripts, questions to the person, launches and log lines go into the
/// trace.
class BrowserTest : public testing::Test {
  protected:
    BrowserTest() {
        access.onScript = [this](const std::string& identifier) { trace.add("script " + identifier); };
        access.onAskUser = [this](const std::string& identifier) { trace.add("ask " + identifier); };
        access.onPrepareLaunch = [this] { trace.add("prepare"); };
        access.onRelease = [this] { trace.add("release"); };
        applications.onLaunch = [this](const std::string& identifier) { trace.add("launch " + identifier); };
        platform.log.onLine = [this](const FakeLog::Line& line) {
            trace.add(std::string(rawValue(line.level)) + " " + line.category + ": " + line.text);
        };
    }

    void TearDown() override { EXPECT_EQ(happened(), "") << "not expected by the test"; }

    void setPermission(Browser browser, FakeBrowserPermission permission) {
        access.setPermission(std::string(bundleID(browser)), permission);
    }

    void setAnswer(Browser browser, std::optional<BrowserAccess::ScriptResult> answer) {
        access.setAnswer(std::string(bundleID(browser)), std::move(answer));
    }

    std::string happened() { return trace.take(); }

    FakePlatform platform;
    FakeApplications& applications = platform.applications;
    FakeBrowserAccess& access = platform.browserAccess;
    Trace trace{platform.clock};
    std::unique_ptr<BrowserScripting> scripting = std::make_unique<BrowserScripting>(platform.ports());
};

} // namespace kestrelfen
