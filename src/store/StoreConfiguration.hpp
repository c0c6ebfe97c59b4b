#pragma once

#include <filesystem>
#include <functional>

namespace kestrelfen {

/// Where the history lies, and what may stand in its way.
struct StoreConfiguration {
    std::filesystem::path file;

    /// For tests of what follows when the disk fails. What they throw counts as the failure itself:
    /// `beforeOpening` as that of opening the file (main thread), `beforeOperation` as that of an operation's
    /// first step on the file (executor).
    std::function<void()> beforeOpening;
    std::function<void()> beforeOperation;

    /// The name of the file within the folder of the person's data.
    static constexpr const char* fileName = "Kestrelfen.sqlite";
};

} // namespace kestrelfen
