#pragma once

#include "base/Translated.hpp"

namespace kestrelfen {

/// What the person is asked before all history is deleted.
struct DeletionQuestion {
    static constexpr std::string_view title = toTranslate("Delete all screen-time and break history?");
    static constexpr std::string_view message =
        toTranslate("Every day record, break, pause and app-usage row is "
                    "removed. Tasks and settings are kept. This can't "
                    "be undone.");
    static constexpr std::string_view confirm = toTranslate("Delete Everything");
    static constexpr std::string_view cancel = toTranslate("Cancel");
};

} // namespace kestrelfen
