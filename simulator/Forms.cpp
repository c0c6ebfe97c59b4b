#include "Forms.hpp"

#include "ScenarioError.hpp"
#include "Values.hpp"

#include <algorithm>

namespace kestrelfen {

namespace {

std::string listOf(std::span<const std::string_view> words) {
    std::string list;
    for (std::size_t index = 0; index < words.size(); ++index) {
        const bool isLast = index + 1 == words.size();
        list += index == 0 ? "" : isLast ? " or " : ", ";
        list += words[index];
    }
    return list;
}

} // namespace

std::string_view takeOneOf(std::span<const std::string_view> words, Arguments& arguments) {
    const std::string list = listOf(words);
    const std::string& word = arguments.take(list.c_str());
    const auto found = std::find(words.begin(), words.end(), word);
    if (found == words.end()) {
        throw ScenarioError(quoted(word) + " is not " + list);
    }
    return *found;
}

FormList formsOf(std::span<const std::string_view> words) {
    return {words.begin(), words.end()};
}

FormList formsBehind(std::string_view before, const FormList& forms) {
    FormList result;
    for (const std::string& form : forms) {
        result.push_back(std::string(before) + " " + form);
    }
    return result;
}

FormList joined(std::vector<FormList> lists) {
    FormList result;
    for (FormList& list : lists) {
        result.insert(result.end(), std::make_move_iterator(list.begin()),
                      std::make_move_iterator(list.end()));
    }
    return result;
}

} // namespace kestrelfen
