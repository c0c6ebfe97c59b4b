#pragma once

#include <string_view>

namespace kestrelfen {

/// What the person is asked before all history is deleted.
struct DeletionQuestion {
    static constexpr std::string_view title = "Delete all screen-time and break history?";
    static constexpr std::string_view message = "Every day record, break, pause and app-usage row is "
                                                "removed. Tasks and settings are kept. This can't "
                                                "be undone.";
    static constexpr std::string_view confirm = "Delete Everything";
    static constexpr std::string_view cancel = "Cancel";
};

} // namespace kestrelfen
