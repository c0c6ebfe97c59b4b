#pragma once

#include "store/StoreHarness.hpp"

#include <fstream>
#include <map>
#include <string>

namespace kestrelfen {

/// A store that is to be found in trouble: no store, one line, and every file as it was.
class OpeningTrouble : public testing::Test, public StoreHarness {
  protected:
    using Files = std::map<std::string, std::string>;

    /// Leaves the file as the program leaves it at its end, with some pages in it.
    void makeStore() {
        ASSERT_TRUE(open());
        for (int count = 0; count < 200; ++count) {
            recordBreak(titled(completedBreak(at("09:00:00") + count, 20), std::string(300, 'x')));
            addWebsiteTime(websiteTime(5, std::to_string(count) + ".example.org"));
        }
        makeTask("Write");
        close();
    }

    /// Leaves the files as a crash leaves them: the last saves are in the log.
    void makeCrashedStore() {
        makeStore();
        ASSERT_TRUE(open());
        recordBreak(completedBreak(at("18:00:00"), 20));
        const Files crashed = files();
        close();
        for (const auto& [name, content] : crashed) {
            writeInPlace(folder / name, content);
        }
        ASSERT_EQ(crashed.size(), 3U);
    }

    Files files() const {
        Files result;
        for (const std::string& name : folder.names()) {
            std::string& content = result[name];
            content.resize(std::filesystem::file_size(folder / name));
            std::ifstream(folder / name, std::ios::binary)
                .read(content.data(), static_cast<std::streamsize>(content.size()));
        }
        return result;
    }

    void overwrite(const std::filesystem::path& file, std::size_t offset, const std::string& bytes) const {
        std::string content = contentOf(file);
        content.replace(offset, bytes.size(), bytes);
        writeInPlace(file, content);
    }

    /// Changes a number of the header, also in the log where there is one.
    void setPragma(const std::string& pragma) const {
        SQLite::Database(configuration.file.string(), SQLite::OPEN_READWRITE).exec("PRAGMA " + pragma);
    }

    /// Tries to open the store, expects trouble, and answers what the line says of it.
    std::string trouble() {
        const Files before = files();
        EXPECT_FALSE(open());
        const Files after = files();
        EXPECT_TRUE(after == before) << "the files have changed: " << testing::PrintToString(folder.names());
        const auto lines = takeLog();
        EXPECT_THAT(lines, testing::ElementsAre(testing::StartsWith(beginning_)));
        return lines.empty() ? "" : lines.front().substr(beginning_.size());
    }

    const std::string beginning_ = "error: store unavailable: ";
};

} // namespace kestrelfen
