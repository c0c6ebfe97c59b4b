#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

namespace kestrelfen {

/// One case of an enumeration that is stored by its raw value.
template <typename Case>
struct EnumerationRow {
    Case value;
    std::string_view rawValue;
    std::string_view label = {};
    std::string_view caption = {};
};

/// Specialised for each enumeration with string raw values: a constexpr array `rows`, in case order.
template <typename Case>
struct EnumerationTable;

/// Whether each row of the table stands at the place that its case's number gives.
template <typename Case>
constexpr bool rowsAreInCaseOrder() {
    std::size_t index = 0;
    for (const auto& row : EnumerationTable<Case>::rows) {
        if (static_cast<std::size_t>(row.value) != index++) {
            return false;
        }
    }
    return true;
}

template <typename Case>
constexpr const EnumerationRow<Case>& enumerationRow(Case value) {
    static_assert(rowsAreInCaseOrder<Case>());
    return EnumerationTable<Case>::rows[static_cast<std::size_t>(value)];
}

template <typename Case>
constexpr std::string_view rawValue(Case value) {
    return enumerationRow(value).rawValue;
}

template <typename Case>
constexpr std::string_view label(Case value) {
    return enumerationRow(value).label;
}

template <typename Case>
constexpr std::string_view caption(Case value) {
    return enumerationRow(value).caption;
}

template <typename Case>
constexpr std::optional<Case> fromRawValue(std::string_view raw) {
    for (const auto& row : EnumerationTable<Case>::rows) {
        if (row.rawValue == raw) {
            return row.value;
        }
    }
    return std::nullopt;
}

template <typename Case>
constexpr auto allCases() {
    std::array<Case, EnumerationTable<Case>::rows.size()> cases{};
    for (std::size_t index = 0; index < cases.size(); ++index) {
        cases[index] = EnumerationTable<Case>::rows[index].value;
    }
    return cases;
}

} // namespace kestrelfen
