#include "platform/posix/PreferenceDocument.hpp"

#include "platform/posix/JsonSyntax.hpp"
#include "platform/posix/PreferenceJson.hpp"

#include <algorithm>
#include <cstddef>
#include <unordered_map>

namespace kestrelfen {

namespace {

constexpr std::string_view indentation = "  ";

/// Walks through the members of a text that is known to be one JSON object.
class MemberReader {
  public:
    explicit MemberReader(std::string_view text) : text_(text), position_(text.find('{') + 1) {}

    /// Moves to the next member's key; false at the object's end.
    bool next() {
        position_ = text_.find_first_not_of(" \t\r\n,", position_);
        return text_[position_] != '}';
    }

    std::string takeKey() {
        const std::size_t begin = position_;
        position_ = jsonStringEnd(text_, begin);
        return textFromJson(text_.substr(begin, position_ - begin));
    }

    std::string_view takeValue() {
        const std::size_t begin = text_.find_first_not_of(" \t\r\n:", position_);
        position_ = valueEnd(begin);
        return text_.substr(begin, position_ - begin);
    }

  private:
    std::size_t valueEnd(std::size_t position) const {
        if (text_[position] != '{' && text_[position] != '[') {
            return text_[position] == '"' ? jsonStringEnd(text_, position)
                                          : text_.find_first_of(" \t\r\n,}", position);
        }
        std::size_t depth = 0;
        do {
            position = text_.find_first_of("\"{}[]", position);
            const char found = text_[position];
            depth += found == '{' || found == '[' ? 1 : 0;
            depth -= found == '}' || found == ']' ? 1 : 0;
            position = found == '"' ? jsonStringEnd(text_, position) : position + 1;
        } while (depth > 0);
        return position;
    }

    std::string_view text_;
    std::size_t position_;
};

/// `json`, of several lines perhaps, as it stands within the object.
std::string indented(const std::string& json) {
    std::string result;
    for (const char character : json) {
        result += character;
        if (character == '\n') {
            result += indentation;
        }
    }
    return result;
}

/// Whether `json` already says `value`, in whatever way it is written.
bool says(const std::string& json, const std::string& valueJson) {
    const auto value = preferenceFromJson(json);
    return value && jsonFromPreference(*value) == valueJson;
}

} // namespace

PreferenceDocument::PreferenceDocument(std::string_view text) {
    std::unordered_map<std::string, std::size_t> places;
    for (MemberReader reader(text); reader.next();) {
        std::string key = reader.takeKey();
        std::string json(reader.takeValue());
        const auto [place, isNew] = places.emplace(key, members_.size());
        if (isNew) {
            members_.push_back({std::move(key), std::move(json)});
        } else {
            members_[place->second].json = std::move(json);
        }
    }
}

void PreferenceDocument::set(const std::string& key, const PreferenceValue& value) {
    const std::string json = jsonFromPreference(value);
    const auto member = find(key);
    if (member == members_.end()) {
        members_.push_back({key, indented(json)});
    } else if (!says(member->json, json)) {
        member->json = indented(json);
    }
}

void PreferenceDocument::remove(const std::string& key) {
    const auto member = find(key);
    if (member != members_.end()) {
        members_.erase(member);
    }
}

PreferenceTable PreferenceDocument::values() const {
    PreferenceTable table;
    for (const Member& member : members_) {
        if (auto value = preferenceFromJson(member.json)) {
            table.set(member.key, std::move(*value));
        }
    }
    return table;
}

std::string PreferenceDocument::text() const {
    if (members_.empty()) {
        return "{}\n";
    }
    std::string result;
    for (const Member& member : members_) {
        result += result.empty() ? "{\n" : ",\n";
        result += indentation;
        result += jsonFromText(member.key) + ": " + member.json;
    }
    return result + "\n}\n";
}

std::vector<PreferenceDocument::Member>::iterator PreferenceDocument::find(const std::string& key) {
    return std::find_if(members_.begin(), members_.end(),
                        [&key](const Member& member) { return member.key == key; });
}

} // namespace kestrelfen
