#include "platform/linux/PulseClues.hpp"
#include "platform/linux/PulseHandles.hpp"

#include <gtest/gtest.h>

#include <map>

namespace kestrelfen {
namespace {

ProgramClues cluesOf(const std::map<std::string, std::string>& values) {
    const PulseProperties properties(pa_proplist_new());
    for (const auto& [key, value] : values) {
        pa_proplist_sets(properties.get(), key.c_str(), value.c_str());
    }
    return programClues(*properties);
}

TEST(PulseCluesTest, TakesWhatAProgramSaysOfItself) {
    EXPECT_EQ(cluesOf({{"application.process.id", "4711"},
                       {"application.process.binary", "player"},
                       {"application.id", "org.example.Player"},
                       {"application.icon_name", "player-icon"}}),
              (ProgramClues{4711, "player", "org.example.Player", "player-icon"}));
}

TEST(PulseCluesTest, WhatIsNotToldIsAbsent) {
    EXPECT_EQ(cluesOf({}), ProgramClues());
}

TEST(PulseCluesTest, WhatTheServerFoundOutComesBeforeWhatTheProgramSays) {
    EXPECT_EQ(cluesOf({{"application.process.id", "2"},
                       {"pipewire.sec.pid", "4711"},
                       {"application.id", "player"},
                       {"pipewire.access.portal.app_id", "org.example.Player"}}),
              (ProgramClues{4711, "", "org.example.Player", ""}));
    EXPECT_EQ(cluesOf({{"application.id", "player"}, {"pipewire.access.portal.app_id", ""}}),
              (ProgramClues{std::nullopt, "", "player", ""}));
}

TEST(PulseCluesTest, PipeWiresTranslatorIsNotTakenForTheProgram) {
    EXPECT_EQ(cluesOf({{"application.process.id", "4711"},
                       {"pipewire.sec.pid", "1645"},
                       {"client.api", "pipewire-pulse"}})
                  .processIdentifier,
              4711);
}

TEST(PulseCluesTest, ANumberThatIsNoneIsAbsent) {
    for (const char* const text : {"", "0", "-3", "12a", " 12", "99999999999"}) {
        EXPECT_EQ(cluesOf({{"application.process.id", text}}).processIdentifier, std::nullopt) << text;
    }
}

TEST(PulseCluesTest, WhatIsPlayedIsNoClue) {
    EXPECT_EQ(cluesOf({{"media.name", "A private page"},
                       {"media.title", "A private page"},
                       {"window.name", "A private page"}}),
              ProgramClues());
}

} // namespace
} // namespace kestrelfen
