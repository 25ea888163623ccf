#pragma once

#include <string>
#include <tuple>

namespace Support {

/// Names a test after the row of the table that it is given.
inline const auto nameOfRow = [](const auto& test) { return std::string(test.param.name); };

/// Names a test after its rows of two tables.
inline const auto nameOfBothRows = [](const auto& test) {
    return std::string(std::get<0>(test.param).name) + std::get<1>(test.param).name;
};

} // namespace Support
