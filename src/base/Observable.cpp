#include "base/Observable.hpp"

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
    if (depth == 0) {
        std::erase_if(entries, [](const auto& entry) { return entry->removed; });
    }
}

void Observers::Subscription::cancel() {
    if (const auto list = std::exchange(list_, {}).lock()) {
        list->remove(id_);
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
