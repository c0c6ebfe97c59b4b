#pragma once

#include "platform/fake/FakeClock.hpp"
#include "platform/fake/FakeLog.hpp"
#include "platform/fake/FakeMainQueue.hpp"
#include "platform/posix/JsonPreferences.hpp"
#include "support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kestrelfen {

/// Preferences in a real file of a temporary folder, with a queue and a log that stand still.
class JsonPreferencesFixture : public testing::Test {
  protected:
    std::filesystem::path file() const { return folder_ / "preferences.json"; }

    std::unique_ptr<JsonPreferences> open() {
        return std::make_unique<JsonPreferences>(file(), log_, queue_);
    }

    std::unique_ptr<JsonPreferences> openWith(std::string_view content) {
        writeInPlace(file(), content);
        return open();
    }

    std::string content() const { return contentOf(file()); }

    /// Lets the queue's turn end.
    void drain() { queue_.drain(); }

    void drainAfter(double seconds) {
        clock_.advance(seconds);
        queue_.drain();
    }

    /// Every line of the log, as "error: …" or "info: …", with the folder's name cut out.
    std::vector<std::string> logLines() const {
        std::vector<std::string> lines;
        for (const FakeLog::Line& line : log_.lines()) {
            EXPECT_EQ(line.category, "Preferences");
            std::string text = std::string(rawValue(line.level)) + ": " + line.text;
            const std::string folder = folder_.path().string() + "/";
            for (auto place = text.find(folder); place != std::string::npos; place = text.find(folder)) {
                text.erase(place, folder.size());
            }
            lines.push_back(std::move(text));
        }
        return lines;
    }

    TemporaryFolder folder_;
    FakeClock clock_;
    FakeMainQueue queue_{clock_};
    FakeLog log_;
};

} // namespace kestrelfen
