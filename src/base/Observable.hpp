#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace kestrelfen {

/// A list of listeners, told in the order in which they came. Main thread only. A listener may add or remove
/// listeners, itself included, while it is being told: one added then is first told the next time. A list
/// that a listener destroys tells no further.
class Observers {
    struct List {
        struct Entry {
            std::uint64_t id;
            std::function<void()> listener;
            bool removed = false;
        };
        std::vector<std::shared_ptr<Entry>> entries;
        std::uint64_t lastId = 0;
        int depth = 0;

        void remove(std::uint64_t id);
        void compact();
    };

  public:
    /// Ends the listening when it is destroyed; outliving the list is harmless.
    class Subscription {
      public:
        Subscription() = default;
        Subscription(std::weak_ptr<List> list, std::uint64_t id) : list_(std::move(list)), id_(id) {}
        Subscription(Subscription&& other) noexcept
            : list_(std::exchange(other.list_, {})), id_(std::exchange(other.id_, 0)) {}
        Subscription& operator=(Subscription&& other) noexcept {
            if (this == &other) {
                return *this;
            }
            cancel();
            list_ = std::exchange(other.list_, {});
            id_ = std::exchange(other.id_, 0);
            return *this;
        }
        ~Subscription() { cancel(); }

        void cancel();

      private:
        std::weak_ptr<List> list_;
        std::uint64_t id_ = 0;
    };

    Observers() = default;
    Observers(const Observers&) = delete;
    Observers& operator=(const Observers&) = delete;
    ~Observers();

    [[nodiscard]] Subscription add(std::function<void()> listener);

    /// Allocates nothing.
    void notify() const;

  private:
    std::shared_ptr<List> list_;
};

using Subscription = Observers::Subscription;

/// A stored value whose readers are told of real changes only. `owner` hears of every change too, after the
/// value's own listeners.
template <typename Value>
class Property {
  public:
    explicit Property(Observers& owner, Value initial = Value())
        : owner_(&owner), value_(std::move(initial)) {}

    const Value& get() const { return value_; }

    void set(Value value) {
        if (value == value_) {
            return;
        }
        value_ = std::move(value);
        observers_.notify();
        owner_->notify();
    }

    [[nodiscard]] Subscription observe(std::function<void()> listener) {
        return observers_.add(std::move(listener));
    }

  private:
    Observers* owner_;
    Observers observers_;
    Value value_;
};

} // namespace kestrelfen
