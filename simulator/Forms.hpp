#pragma once

#include "Arguments.hpp"
#include "base/Enumeration.hpp"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kestrelfen {

/// What may follow a command's name, as far as the words are the language's own; a star stands for any word.
using FormList = std::vector<std::string>;
using Forms = FormList (*)();

/// Takes one of these words, or throws a ScenarioError that lists them.
std::string_view takeOneOf(std::span<const std::string_view> words, Arguments& arguments);

FormList formsOf(std::span<const std::string_view> words);

/// Each of `forms` behind `before`.
FormList formsBehind(std::string_view before, const FormList& forms);

/// The forms of named rows: a row without forms of its own has its name alone.
template <typename Rows>
FormList formsOfAll(const Rows& rows) {
    FormList result;
    for (const auto& [name, meaning, forms] : rows) {
        const FormList own = forms ? formsBehind(name, forms()) : FormList{std::string(name)};
        result.insert(result.end(), own.begin(), own.end());
    }
    return result;
}

FormList joined(std::vector<FormList> lists);

template <typename Case>
FormList rawValueForms() {
    FormList forms;
    for (const auto& row : EnumerationTable<Case>::rows) {
        forms.emplace_back(row.rawValue);
    }
    return forms;
}

/// The names that stand first in each row of a table.
template <typename Table>
FormList firstWordForms(const Table& table) {
    FormList forms;
    for (const auto& row : table) {
        const auto& [name, meaning] = row;
        forms.emplace_back(name);
    }
    return forms;
}

} // namespace kestrelfen
