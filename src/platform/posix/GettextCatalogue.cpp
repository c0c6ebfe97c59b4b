#include "platform/posix/GettextCatalogue.hpp"

#include <clocale>
#include <cstdlib>
#include <libintl.h>

namespace kestrelfen {

namespace {

constexpr const char* domain = "kestrelfen";

} // namespace

GettextCatalogue::GettextCatalogue(const std::filesystem::path& folder) {
    std::setlocale(LC_MESSAGES, "");
    bindtextdomain(domain, folder.c_str());
    bind_textdomain_codeset(domain, "UTF-8");
}

std::string GettextCatalogue::text(std::string_view original) const {
    // The empty text is the catalogue's own heading.
    return original.empty() ? std::string() : dgettext(domain, std::string(original).c_str());
}

std::string GettextCatalogue::counted(std::int64_t count, std::string_view one, std::string_view many) const {
    return dngettext(domain, std::string(one).c_str(), std::string(many).c_str(),
                     static_cast<unsigned long>(std::llabs(count)));
}

} // namespace kestrelfen
