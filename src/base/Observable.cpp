#include "base/Observable.hpp"

#include <algorithm>

namespace kestrelfen {

void Observers::List::remove(std::uint64_t id) {
    for (const auto& entry : entries) {
        if (entry->id == id) {
            entry->removed = true;
        }
    }
    compact();
}

void Observers::List::compact() {
    const auto isRemoved = [](const auto& entry) { return entry->removed; };
    while (depth == 0) {
        const auto found = std::find_if(entries.begin(), entries.end(), isRemoved);
        if (found == entries.end()) {
            return;
        }
        // What the listener holds ends with it, and may itself end a subscription to this list: so it must
        // outlive the erasure.
        const auto removedEntry = std::move(*found);
        entries.erase(found);
    }
}

void Observers::Subscription::cancel() {
    if (const auto list = std::exchange(list_, {}).lock()) {
        list->remove(id_);
    }
}

Observers::~Observers() {
    if (list_) {
        for (const auto& entry : list_->entries) {
            entry->removed = true;
        }
    }
}

Observers::Subscription Observers::add(std::function<void()> listener) {
    if (!list_) {
        list_ = std::make_shared<List>();
    }
    list_->entries.push_back(
        std::make_shared<List::Entry>(List::Entry{++list_->lastId, std::move(listener)}));
    return Subscription(list_, list_->lastId);
}

void Observers::notify() const {
    if (!list_ || list_->entries.empty()) {
        return;
    }
    const std::shared_ptr<List> list = list_;
    ++list->depth;
    const std::size_t count = list->entries.size();
    for (std::size_t index = 0; index < count; ++index) {
        const auto entry = list->entries[index];
        if (!entry->removed) {
            entry->listener();
        }
    }
    --list->depth;
    list->compact();
}

} // namespace kestrelfen
