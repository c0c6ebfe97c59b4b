#include "platform/fake/ZoneFile.hpp"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>
#include <utility>

namespace kestrelfen {

namespace {

constexpr std::size_t bytesPerType = 6;

/// The big-endian signed number that `bytes` are.
std::int64_t number(std::string_view bytes) {
    std::uint64_t value = static_cast<unsigned char>(bytes.front()) >= 0x80 ? ~std::uint64_t{0} : 0;
    for (const char byte : bytes) {
        value = value << 8 | static_cast<unsigned char>(byte);
    }
    return static_cast<std::int64_t>(value);
}

/// The head of one of the file's two blocks: how many entries of each kind the block has.
struct Head {
    static constexpr std::size_t size = 44;

    char version = '\0';
    std::size_t universalMarks = 0;
    std::size_t standardMarks = 0;
    std::size_t leapSeconds = 0;
    std::size_t changes = 0;
    std::size_t types = 0;
    std::size_t nameBytes = 0;

    static std::optional<Head> take(std::string_view& bytes) {
        if (bytes.size() < size || !bytes.starts_with("TZif")) {
            return std::nullopt;
        }
        const auto count = [bytes](std::size_t index) {
            return static_cast<std::size_t>(number(bytes.substr(20 + 4 * index, 4)) & 0xFFFF'FFFF);
        };
        const Head head{bytes[4], count(0), count(1), count(2), count(3), count(4), count(5)};
        bytes.remove_prefix(size);
        return head;
    }

    std::size_t bodySize(std::size_t bytesPerTime) const {
        return changes * (bytesPerTime + 1) + types * bytesPerType + nameBytes +
               leapSeconds * (bytesPerTime + 4) + standardMarks + universalMarks;
    }
};

std::optional<std::string> contentOf(const std::string& path) {
    std::error_code ignored;
    if (!std::filesystem::is_regular_file(path, ignored)) {
        return std::nullopt;
    }
    std::ifstream file(path, std::ios::binary);
    std::string content{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    return file && !content.empty() ? std::optional(std::move(content)) : std::nullopt;
}

} // namespace

std::optional<ZoneFile> ZoneFile::read(const std::string& path) {
    const auto content = contentOf(path);
    return content ? parse(*content) : std::nullopt;
}

std::optional<ZoneFile> ZoneFile::parse(std::string_view bytes) {
    // The first block has the times in four bytes, for readers from before the second one.
    const auto oldHead = Head::take(bytes);
    if (!oldHead || oldHead->version < '2' || bytes.size() < oldHead->bodySize(4)) {
        return std::nullopt;
    }
    bytes.remove_prefix(oldHead->bodySize(4));
    const auto head = Head::take(bytes);
    if (!head || head->types == 0 || bytes.size() < head->bodySize(8)) {
        return std::nullopt;
    }
    const std::string_view typeOfChange = bytes.substr(8 * head->changes);
    const std::string_view types = typeOfChange.substr(head->changes);
    ZoneFile zone;
    zone.firstOffset_ = number(types.substr(0, 4));
    for (std::size_t index = 0; index < head->changes; ++index) {
        const auto type = static_cast<unsigned char>(typeOfChange[index]);
        if (type >= head->types) {
            return std::nullopt;
        }
        zone.changes_.push_back(number(bytes.substr(8 * index, 8)));
        zone.offsets_.push_back(number(types.substr(bytesPerType * type, 4)));
    }
    const std::string_view footer = bytes.substr(head->bodySize(8));
    if (footer.size() > 2) {
        zone.rule_ = ZoneRule::parse(footer.substr(1, footer.size() - 2));
    }
    return zone;
}

std::int64_t ZoneFile::offsetAt(std::int64_t second) const {
    const auto next = std::upper_bound(changes_.begin(), changes_.end(), second);
    if (next == changes_.end() && rule_) {
        return rule_->offsetAt(second);
    }
    return next == changes_.begin() ? firstOffset_
                                    : offsets_[static_cast<std::size_t>(next - changes_.begin()) - 1];
}

} // namespace kestrelfen
