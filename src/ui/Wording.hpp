#pragma once

#include "base/Translated.hpp"

#include <string_view>

namespace kestrelfen {

/// What to show for a text of the contents. A few of them name the Mac or its technologies; elsewhere another
/// sentence is shown, that says what is true there. Any other text is shown as it is.
std::string_view worded(std::string_view text);

/// Translates what is true on this system.
class WordedCatalogue : public Catalogue {
  public:
    /// `inner` must outlive this.
    explicit WordedCatalogue(const Catalogue& inner) : inner_(inner) {}

    std::string text(std::string_view original) const override { return inner_.text(worded(original)); }
    std::string counted(std::int64_t count, std::string_view one, std::string_view many) const override {
        return inner_.counted(count, one, many);
    }

  private:
    const Catalogue& inner_;
};

} // namespace kestrelfen
