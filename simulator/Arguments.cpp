#include "Arguments.hpp"

#include "ScenarioError.hpp"
#include "Values.hpp"

namespace kestrelfen {

const std::string& Arguments::take(const char* what) {
    if (empty()) {
        throw ScenarioError(std::string("missing ") + what);
    }
    return words_[next_++];
}

std::vector<std::string> Arguments::takeRest() {
    std::vector<std::string> rest(words_.begin() + static_cast<std::ptrdiff_t>(next_), words_.end());
    next_ = words_.size();
    return rest;
}

void Arguments::takeLastTwo(std::string& key, std::string& value) {
    if (left() < 2) {
        throw ScenarioError("missing a key and a value");
    }
    value = words_.back();
    words_.pop_back();
    key = words_.back();
    words_.pop_back();
}

void Arguments::end() const {
    if (!empty()) {
        throw ScenarioError("unexpected " + quoted(words_[next_]));
    }
}

} // namespace kestrelfen
