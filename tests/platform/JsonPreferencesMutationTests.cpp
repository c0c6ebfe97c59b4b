#include "platform/JsonPreferencesFixture.hpp"

#include <random>

namespace kestrelfen {
namespace {

constexpr std::string_view original = R"({
  "debugFastCycle": true,
  "workIntervalSeconds": 1200.0,
  "longBreakEvery": -4,
  "unknown": [null, {"a": [1e400, "x"]}, false],
  "idleMode": "o\u00fff \"é\"",
  "focusAppBundleIDs": ["a", "b"],
  "appCategoryOverrides": {"a": "work"},
  "lastPrunedDayStart": {"$date": "2026-03-09T00:00:00.000000Z"},
  "activeTaskID": {"$data": "e30="}
}
)";

/// Harms the file in random ways, always the same ones.
class JsonPreferencesMutation : public JsonPreferencesFixture {
  protected:
    std::size_t below(std::size_t end) {
        return std::uniform_int_distribution<std::size_t>(0, end - 1)(random_);
    }

    char anyCharacter() {
        constexpr std::string_view telling = "{}[]\",:\\-+.eE019 \n\ttfn$u";
        return below(2) == 0 ? telling[below(telling.size())] : static_cast<char>(below(256));
    }

    void mutateOnce(std::string& text) {
        const std::size_t place = below(text.size() + 1);
        const std::size_t length = below(12);
        switch (below(6)) {
        case 0:
            text.resize(place);
            return;
        case 1:
            text.insert(place, 1, anyCharacter());
            return;
        case 2:
            text.erase(place, length);
            return;
        case 3:
            text.insert(below(text.size() + 1), text.substr(place, length));
            return;
        default:
            if (place < text.size()) {
                text[place] = anyCharacter();
            }
        }
    }

    std::string mutated() {
        std::string text(original);
        for (std::size_t times = 1 + below(4); times > 0; --times) {
            mutateOnce(text);
        }
        return text;
    }

    std::mt19937 random_{1};
};

TEST_F(JsonPreferencesMutation, neverLosesAByte) {
    int readings = 0;
    int damages = 0;
    for (int round = 0; round < 1'000; ++round) {
        const std::string text = mutated();
        writeInPlace(file(), text);
        const auto preferences = open();
        const auto aside = folder_ / "preferences.damaged-1.json";
        if (std::filesystem::exists(file())) {
            ++readings;
            ASSERT_EQ(content(), text);
            ASSERT_FALSE(std::filesystem::exists(aside)) << text;
        } else {
            ++damages;
            ASSERT_EQ(contentOf(aside), text);
            std::filesystem::remove(aside);
        }
    }
    EXPECT_EQ(log_.lines().size(), static_cast<std::size_t>(damages));
    EXPECT_GT(readings, 100);
    EXPECT_GT(damages, 100);
}

TEST_F(JsonPreferencesMutation, whatIsReadIsWrittenBackWithTheSameValues) {
    for (int round = 0; round < 150; ++round) {
        const auto first = openWith(mutated());
        const bool wasRead = std::filesystem::exists(file());
        first->set("added", true);
        first->flush();
        const auto second = open();
        ASSERT_TRUE(std::filesystem::exists(file()));
        for (const char* const key :
             {"debugFastCycle", "workIntervalSeconds", "longBreakEvery", "unknown", "idleMode",
              "focusAppBundleIDs", "appCategoryOverrides", "lastPrunedDayStart", "activeTaskID"}) {
            const auto* const before = first->object(key);
            const auto* const after = second->object(key);
            ASSERT_EQ(before == nullptr, after == nullptr) << key << content();
            ASSERT_TRUE(!before || *before == *after) << key << content();
            ASSERT_TRUE(wasRead || !before);
        }
        ASSERT_EQ(second->boolean("added"), true);
        std::filesystem::remove(folder_ / "preferences.damaged-1.json");
    }
}

} // namespace
} // namespace kestrelfen
