#pragma once

#include "base/Translated.hpp"

#include <filesystem>

namespace kestrelfen {

/// The catalogues that lie under a folder as LANGUAGE/LC_MESSAGES/kestrelfen.mo. The language is the
/// environment's: LANGUAGE, then LC_ALL, LC_MESSAGES, LANG. Without a catalogue for it, or where the system
/// lacks that locale, texts stay as they are.
class GettextCatalogue : public Catalogue {
  public:
    explicit GettextCatalogue(const std::filesystem::path& folder);

    std::string text(std::string_view original) const override;
    std::string counted(std::int64_t count, std::string_view one, std::string_view many) const override;
};

} // namespace kestrelfen
