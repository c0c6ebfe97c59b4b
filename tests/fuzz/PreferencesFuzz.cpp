#include "fuzz/Input.hpp"
#include "platform/posix/JsonSyntax.hpp"
#include "platform/posix/PreferenceDocument.hpp"

#include <optional>

using namespace kestrelfen;

namespace {

std::optional<PreferenceDocument> read(std::string_view text) {
    return jsonObjectProblem(text) ? std::nullopt : std::optional(PreferenceDocument(text));
}

} // namespace

/// What can be read at all is written as it was read, and a value that is set is read back.
int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const auto document = read(textOf(bytes, size));
    if (!document) {
        return 0;
    }
    const auto again = read(document->text());
    demand(again.has_value());
    demand(again->values() == document->values());
    PreferenceDocument edited = *document;
    edited.set("workIntervalSeconds", 1500.0);
    const auto written = read(edited.text());
    demand(written.has_value());
    const PreferenceTable values = written->values();
    const PreferenceValue* const value = values.find("workIntervalSeconds");
    demand(value && *value == PreferenceValue(1500.0));
    edited.remove("workIntervalSeconds");
    demand(read(edited.text()).has_value());
    return 0;
}
