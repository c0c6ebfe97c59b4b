#include "face/kit/ContrastTable.hpp"
#include "face/kit/KitTest.hpp"

#include <fstream>
#include <sstream>

namespace kestrelfen {
namespace {

constexpr const char* firstMark = "<!-- the contrasts: a test holds them to what is drawn -->\n";
constexpr const char* lastMark = "<!-- the end of the contrasts -->\n";

class ContrastTest : public KitTest {
  protected:
    /// Each token as it is now.
    ContrastTable::Palette palette() const {
        return [this](const char* name) { return token(name); };
    }

    /// Of every use in that style and with that wish.
    std::vector<double> ratios(InterfaceStyle style, bool highContrast) {
        appearance_.setStyle(style);
        appearance_.setWishes({.highContrast = highContrast});
        return ContrastTable::ratios(palette());
    }

    std::string written() {
        return ContrastTable::written(
            {ratios(InterfaceStyle::light, false), ratios(InterfaceStyle::dark, false),
             ratios(InterfaceStyle::light, true), ratios(InterfaceStyle::dark, true)});
    }
};

std::string documented() {
    std::ifstream file(KESTRELFEN_DOCS "/accessibility.md");
    std::stringstream text;
    text << file.rdbuf();
    const std::string all = text.str();
    const std::size_t first = all.find(firstMark);
    const std::size_t last = all.find(lastMark);
    if (first == std::string::npos || last == std::string::npos) {
        return "no table";
    }
    const std::size_t begin = first + std::string_view(firstMark).size();
    return all.substr(begin, last - begin);
}

TEST_F(ContrastTest, blackOnWhiteIsTheMostThatThereIs) {
    EXPECT_NEAR(ContrastTable::contrast(Qt::black, Qt::white), 21, 0.001);
    EXPECT_NEAR(ContrastTable::contrast(QColor(0x777777), Qt::white), 4.48, 0.01);
    EXPECT_NEAR(ContrastTable::contrast(Qt::white, Qt::white), 1, 0.001);
}

TEST_F(ContrastTest, theDocumentTellsWhatIsDrawn) {
    EXPECT_EQ(documented(), written());
}

TEST_F(ContrastTest, withMoreContrastNothingFallsShort) {
    for (const InterfaceStyle style : {InterfaceStyle::light, InterfaceStyle::dark}) {
        const std::vector<double> all = ratios(style, true);
        for (std::size_t index = 0; index < all.size(); ++index) {
            EXPECT_GE(all[index], ContrastTable::least) << ContrastTable::uses()[index].where;
        }
    }
}

} // namespace
} // namespace kestrelfen
