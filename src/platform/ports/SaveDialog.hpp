#pragma once

#include <functional>
#include <string>

namespace kestrelfen {

/// Lets the person choose where to write a file of comma-separated values. Main thread only.
class SaveDialog {
  public:
    using Chosen = std::function<void(const std::string& path)>;

    virtual ~SaveDialog() = default;

    /// `chosen` is called at most once, now or later, and never when the person cancels.
    virtual void ask(const std::string& proposedName, Chosen chosen) = 0;
};

} // namespace kestrelfen
