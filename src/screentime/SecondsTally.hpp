#pragma once

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace kestrelfen {

/// Seconds by key, in the order in which the keys came to be. To add to the key of the last addition is the
/// cheap case: it allocates nothing.
template <typename Key>
class SecondsTally {
  public:
    struct Entry {
        Key key;
        double seconds = 0;

        friend bool operator==(const Entry&, const Entry&) = default;
    };

    void add(const Key& key, double seconds) {
        if (latest_ >= entries_.size() || entries_[latest_].key != key) {
            latest_ = indexOf(key);
        }
        entries_[latest_].seconds += seconds;
    }

    const std::vector<Entry>& entries() const { return entries_; }
    bool isEmpty() const { return entries_.empty(); }

    /// Everything, leaving nothing.
    std::vector<Entry> take() { return std::exchange(entries_, {}); }

    void clear() { entries_.clear(); }

  private:
    std::size_t indexOf(const Key& key) {
        const auto found = std::find_if(entries_.begin(), entries_.end(),
                                        [&](const Entry& entry) { return entry.key == key; });
        const auto index = static_cast<std::size_t>(found - entries_.begin());
        if (found == entries_.end()) {
            entries_.push_back({key, 0});
        }
        return index;
    }

    std::vector<Entry> entries_;
    std::size_t latest_ = 0;
};

} // namespace kestrelfen
