#pragma once

#include "platform/ports/PreferenceTable.hpp"
#include "platform/ports/Preferences.hpp"

#include <map>
#include <string>
#include <string_view>

namespace kestrelfen {

/// Preferences in memory alone, for tests and the simulator. Main thread only.
class FakePreferences final : public Preferences {
  public:
    const PreferenceValue* object(std::string_view key) const override { return table_.find(key); }
    void set(std::string_view key, PreferenceValue value) override;
    void remove(std::string_view key) override;

    /// Everything that is set, sorted by key. A copy.
    std::map<std::string, PreferenceValue> all() const { return table_.all(); }

  private:
    PreferenceTable table_;
};

} // namespace kestrelfen
