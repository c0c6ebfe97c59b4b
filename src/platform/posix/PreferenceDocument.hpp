#pragma once

#include "platform/ports/PreferenceTable.hpp"
#include "platform/ports/Preferences.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace kestrelfen {

/// The content of a preference file: one flat JSON object. Keeps the order of its keys, and every value that
/// nobody sets just as it was written, those of unknown kinds included.
class PreferenceDocument {
  public:
    PreferenceDocument() = default;

    /// `text` must be one JSON object. Of a repeated key the last value counts.
    explicit PreferenceDocument(std::string_view text);

    /// Replaces the value in place, or adds it at the end.
    void set(const std::string& key, const PreferenceValue& value);

    void remove(const std::string& key);

    bool isEmpty() const { return members_.empty(); }

    /// The values of all keys whose kind is known.
    PreferenceTable values() const;

    /// The whole text of the file.
    std::string text() const;

    friend bool operator==(const PreferenceDocument&, const PreferenceDocument&) = default;

  private:
    struct Member {
        std::string key;
        std::string json;

        friend bool operator==(const Member&, const Member&) = default;
    };

    std::vector<Member>::iterator find(const std::string& key);

    std::vector<Member> members_;
};

} // namespace kestrelfen
