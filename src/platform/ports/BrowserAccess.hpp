#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace kestrelfen {

/// How the system answers the question whether a browser may be asked: the codes of its permission service.
enum class AutomationStatus : int {
    allowed = 0,
    notPermitted = -1743,
    wouldRequireConsent = -1744,
    processNotFound = -600,
};

/// The address of a browser's active tab, and the permission to read it. Main thread, except where told.
class BrowserAccess {
  public:
    struct ScriptFailure {
        std::string description;
    };
    /// The answer is on its way; asking again until it is there starts nothing.
    struct ScriptPending {};
    /// The text that the script answered, absent when it answered no text, or why there is none.
    using ScriptResult = std::variant<std::optional<std::string>, ScriptFailure, ScriptPending>;

    virtual ~BrowserAccess() = default;

    /// Whether this session has what browsers are asked by, on or off. A read of memory.
    virtual bool isAvailable() const = 0;

    /// Asks the browser's active tab for its address with `script`, or by whatever this system has instead.
    /// Absent when the question could not even be made. Never waits: a system that answers later tells so.
    virtual std::optional<ScriptResult> run(std::string_view bundleIdentifier, std::string_view script) = 0;

    /// The status code; absent when no target could be named. Without `askUser` a read of memory. With it, it
    /// may wait for the person's answer: any thread but the main one.
    virtual std::optional<int> permissionStatus(std::string_view bundleIdentifier, bool askUser) = 0;

    /// To be called before a browser is started so that the person can be asked about it: turns on what must
    /// be on before it starts. `completion` runs on the main queue or at once, whether that went well or not.
    virtual void prepareLaunch(std::function<void()> completion) = 0;

    /// Runs `question` off the main thread, and `completion` with its answer on the main queue.
    virtual void askOffMain(std::function<std::optional<int>()> question,
                            std::function<void(std::optional<int>)> completion) = 0;

    /// Says that no enabled browser is left, so that what was turned on for them can be undone.
    virtual void release() = 0;
};

} // namespace kestrelfen
