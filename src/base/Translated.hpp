#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

namespace kestrelfen {

/// The program's texts in the person's language. Main thread; must outlive every use.
class Catalogue {
  public:
    virtual ~Catalogue() = default;

    /// The text itself where there is no other.
    virtual std::string text(std::string_view original) const = 0;

    /// The form that the language uses with the count; `one` or `many` where there is no other.
    virtual std::string counted(std::int64_t count, std::string_view one, std::string_view many) const = 0;
};

/// From now on texts come from this catalogue; nullptr for the originals, as at the start.
void useCatalogue(const Catalogue* catalogue);

/// "%1", "%2" … replaced by the values, which are taken as they are.
std::string filled(std::string_view pattern, std::initializer_list<std::string_view> values);

/// A text in the person's language. Only literals and the labels of tables may be given, never what a person
/// wrote.
std::string translated(std::string_view original);

/// The same, filled.
std::string translated(std::string_view original, std::initializer_list<std::string_view> values);

/// "%1" in either form is the count: translatedCount(2, "%1 day", "%1 days").
std::string translatedCount(std::int64_t count, std::string_view one, std::string_view many);

/// Marks a text for the catalogue where it stands in a table; it goes through `translated` where it is used.
constexpr std::string_view toTranslate(std::string_view original) {
    return original;
}

} // namespace kestrelfen
