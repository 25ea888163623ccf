#pragma once

#include "output/Json.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace Tool {

/// Returns the values of many things, or the one value that all of them have.
Json columnOf(std::vector<Json> values);

/// Returns how many bytes two texts begin with alike; only as far as there is ASCII, so that it is as many characters
/// to a script.
std::size_t sharedBeginning(std::string_view one, std::string_view other);

/// Returns texts that resemble each other as how long each one's beginning is that the one before it has, too, and
/// what follows.
Json withSharedBeginnings(const std::vector<std::string_view>& texts);

/// Values, each of which is kept once.
class Cells {
public:
    /// Returns the number of a value, which is a new one if there is none like it.
    std::size_t add(Json value);

    /// Returns the values that do not stand in their places, those that are used most first. Nothing may be added then.
    Json table();

    /// Returns a column of values, once there is a table: each is a text that is used nowhere else, or its number
    /// there.
    Json column(const std::vector<std::size_t>& numbers) const;

private:
    struct Cell {
        Json value;
        std::size_t uses = 0;
        std::size_t place = 0; ///< In the table.
    };

    static bool standsInPlace(const Cell& cell) { return cell.uses == 1 && cell.value.is_string(); }

    std::unordered_map<std::string, std::size_t> numbers_;
    std::vector<Cell> cells_;
};

} // namespace Tool
