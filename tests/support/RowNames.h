#pragma once

#include <gtest/gtest.h>

#include <concepts>
#include <ostream>
#include <string>
#include <string_view>
#include <tuple>

namespace Support {

/// A row of a table, or anything else that has a name.
template <class Row>
concept Named = requires(const Row& row) {
    { row.name } -> std::convertible_to<std::string_view>;
};

/// Names a test after the row of the table that it is given.
inline const auto nameOfRow = [](const auto& test) { return std::string(test.param.name); };

/// Names a test after its rows of two tables.
inline const auto nameOfBothRows = [](const auto& test) {
    return std::string(std::get<0>(test.param).name) + std::get<1>(test.param).name;
};

} // namespace Support

/// Prints rows of all tables by their names; GoogleTest would show their bytes, which need not even be initialised.
template <Support::Named Row>
class testing::internal::UniversalPrinter<Row> {
public:
    // NOLINTNEXTLINE(readability-identifier-naming): GoogleTest calls it
    static void Print(const Row& row, std::ostream* out) { *out << row.name; }
};
