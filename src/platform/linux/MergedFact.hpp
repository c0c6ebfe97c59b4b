#pragma once

#include <functional>
#include <optional>
#include <vector>

namespace kestrelfen {

/// A yes or no of which several sources tell: it is yes while any of them says so. It tells each real change
/// once, however many sources tell of it, and nothing of what was found at the start. A source that falls
/// silent is left out of account from then on, which by itself changes nothing: the next word of any source
/// settles it. Main thread only.
class MergedFact {
  public:
    /// One source's voice.
    class Source {
      public:
        explicit Source(MergedFact& fact);
        Source(const Source&) = delete;
        Source& operator=(const Source&) = delete;
        ~Source();

        /// What is so now: at the start nothing to tell, later a change if it differs from what was told
        /// last.
        void look(bool value, bool isStart);
        /// What has just come about: a change even if nothing was known before.
        void change(bool value);
        /// It can no longer tell, or not yet.
        void fallSilent() { value_.reset(); }

        std::optional<bool> value() const { return value_; }

      private:
        friend class MergedFact;
        void find(bool value);

        MergedFact& fact_;
        std::optional<bool> value_;
    };

    explicit MergedFact(std::function<void(bool value)> changed);
    MergedFact(const MergedFact&) = delete;
    MergedFact& operator=(const MergedFact&) = delete;

    /// What was found or told last; absent while nothing is known.
    std::optional<bool> value() const { return value_; }

  private:
    bool merged() const;
    void tell(bool value);

    std::function<void(bool)> changed_;
    std::vector<Source*> sources_;
    std::optional<bool> value_;
};

} // namespace kestrelfen
