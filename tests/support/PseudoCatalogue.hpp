#pragma once

#include "base/Translated.hpp"

#include <array>
#include <string>
#include <string_view>

namespace kestrelfen {

/// A language that nobody speaks: each letter of a text has an accent, each third is said twice, and brackets
/// show where the text begins and ends. What is not in it was not translated, and what has no room for it has
/// none for most languages.
class PseudoCatalogue : public Catalogue {
  public:
    std::string text(std::string_view original) const override {
        return original.empty() ? std::string() : inPseudo(original);
    }

    std::string counted(std::int64_t count, std::string_view one, std::string_view many) const override {
        return inPseudo(count == 1 ? one : many);
    }

    static std::string inPseudo(std::string_view original) {
        std::string pseudo = "[";
        std::size_t letters = 0;
        for (const char character : original) {
            const std::string look(lookOf(character));
            const bool isLetter = look.size() > 1;
            letters += isLetter ? 1 : 0;
            pseudo += look;
            pseudo += isLetter && letters % 3 == 0 ? look : "";
        }
        return pseudo + "]";
    }

  private:
    /// Itself where it is not a letter of English.
    static std::string lookOf(char character) {
        static constexpr std::array<std::string_view, 26> small{"á", "ß", "ç", "đ", "é", "ƒ", "ğ", "ħ", "í",
                                                                "ĵ", "ķ", "ł", "μ", "ñ", "ó", "þ", "φ", "ŕ",
                                                                "š", "ŧ", "ú", "ν", "ŵ", "χ", "ý", "ž"};
        static constexpr std::array<std::string_view, 26> large{"Á", "Β", "Ç", "Đ", "É", "Ғ", "Ğ", "Ħ", "Í",
                                                                "Ĵ", "Ķ", "Ł", "Μ", "Ñ", "Ó", "Þ", "Ω", "Ŕ",
                                                                "Š", "Ŧ", "Ú", "Λ", "Ŵ", "Χ", "Ý", "Ž"};
        if (character >= 'a' && character <= 'z') {
            return std::string(small[static_cast<std::size_t>(character - 'a')]);
        }
        if (character >= 'A' && character <= 'Z') {
            return std::string(large[static_cast<std::size_t>(character - 'A')]);
        }
        return std::string(1, character);
    }
};

} // namespace kestrelfen
