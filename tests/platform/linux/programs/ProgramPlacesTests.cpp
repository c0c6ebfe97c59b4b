#include "platform/linux/ProgramPlaces.hpp"

#include <cstdlib>
#include <gmock/gmock.h>
#include <map>
#include <optional>

namespace kestrelfen {

namespace {

using testing::ElementsAre;

/// Sets what a test wants of the environment, and puts back what was there.
class ProgramPlacesTest : public testing::Test {
  protected:
    ProgramPlacesTest() {
        for (const char* const name :
             {"HOME", "XDG_DATA_HOME", "XDG_DATA_DIRS", "LC_ALL", "LC_MESSAGES", "LANG"}) {
            const char* const value = std::getenv(name);
            before_[name] = value ? std::optional<std::string>(value) : std::nullopt;
            unsetenv(name);
        }
        setenv("HOME", "/home/ada", 1);
    }

    ~ProgramPlacesTest() override {
        for (const auto& [name, value] : before_) {
            value ? setenv(name.c_str(), value->c_str(), 1) : unsetenv(name.c_str());
        }
    }

  private:
    std::map<std::string, std::optional<std::string>> before_;
};

TEST_F(ProgramPlacesTest, WithoutAWordOfTheSessionTheUsualFoldersHold) {
    const ProgramPlaces places = ProgramPlaces::ofThisSession();
    EXPECT_EQ(places.processes, "/proc");
    EXPECT_THAT(places.entries, ElementsAre("/home/ada/.local/share/applications",
                                            "/usr/local/share/applications", "/usr/share/applications",
                                            "/home/ada/.local/share/flatpak/exports/share/applications",
                                            "/var/lib/flatpak/exports/share/applications",
                                            "/var/lib/snapd/desktop/applications"));
    EXPECT_EQ(places.locale, "");
}

TEST_F(ProgramPlacesTest, EachFolderOfTheSessionStandsOnceAndInItsOrder) {
    setenv("XDG_DATA_HOME", "/data", 1);
    setenv("XDG_DATA_DIRS", "/var/lib/snapd/desktop:relative:/usr/share/:/usr/share::/data", 1);
    EXPECT_THAT(ProgramPlaces::ofThisSession().entries,
                ElementsAre("/data/applications", "/var/lib/snapd/desktop/applications",
                            "/usr/share/applications",
                            "/home/ada/.local/share/flatpak/exports/share/applications",
                            "/var/lib/flatpak/exports/share/applications"));
}

TEST_F(ProgramPlacesTest, TheLanguageIsThatOfMessages) {
    setenv("LANG", "fr_FR", 1);
    EXPECT_EQ(ProgramPlaces::ofThisSession().locale, "fr_FR");
    setenv("LC_MESSAGES", "de_AT", 1);
    EXPECT_EQ(ProgramPlaces::ofThisSession().locale, "de_AT");
    setenv("LC_ALL", "sr_RS@Latn", 1);
    EXPECT_EQ(ProgramPlaces::ofThisSession().locale, "sr_RS@Latn");
}

} // namespace

} // namespace kestrelfen
