#include "platform/linux/MergedFact.hpp"

#include <algorithm>
#include <utility>

namespace kestrelfen {

MergedFact::MergedFact(std::function<void(bool)> changed) : changed_(std::move(changed)) {}

bool MergedFact::merged() const {
    return std::any_of(sources_.begin(), sources_.end(),
                       [](const Source* source) { return source->value_.value_or(false); });
}

void MergedFact::tell(bool value) {
    if (value_ != value) {
        value_ = value;
        changed_(value);
    }
}

MergedFact::Source::Source(MergedFact& fact) : fact_(fact) {
    fact_.sources_.push_back(this);
}

MergedFact::Source::~Source() {
    std::erase(fact_.sources_, this);
}

void MergedFact::Source::look(bool value, bool isStart) {
    if (isStart || !fact_.value_) {
        find(value);
    } else {
        change(value);
    }
}

void MergedFact::Source::find(bool value) {
    value_ = value;
    const bool merged = fact_.merged();
    if (merged || !fact_.value_) {
        fact_.value_ = merged;
    } else {
        fact_.tell(merged);
    }
}

void MergedFact::Source::change(bool value) {
    value_ = value;
    fact_.tell(fact_.merged());
}

} // namespace kestrelfen
