#include "fuzz/Input.hpp"
#include "platform/linux/DesktopEntry.hpp"
#include "platform/linux/ExecLine.hpp"
#include "platform/linux/KeyFile.hpp"
#include "platform/linux/KeyFileEdit.hpp"

using namespace kestrelfen;

namespace {

constexpr std::string_view group = "Desktop Entry";
constexpr std::string_view key = "Hidden";

} // namespace

/// Any text can be read, and edited so that the edit is read back and all else stays.
int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string_view text = textOf(bytes, size);
    if (const auto entry = DesktopEntry::parse("some.id", text, "sr_YU.UTF-8@Latn")) {
        executableName(entry->words);
    }
    executableName(execWords(text));
    unescapedValue(text);
    localeNames(text);
    const auto before = keyFileGroup(text, group);
    const std::string with = withKey(text, group, key, "true");
    auto after = keyFileGroup(with, group);
    demand(with == text || after[std::string(key)] == "true");
    after.erase(std::string(key));
    auto others = before;
    others.erase(std::string(key));
    demand(after == others);
    demand(keyFileGroup(withoutKey(with, group, key), group) == others);
    return 0;
}
