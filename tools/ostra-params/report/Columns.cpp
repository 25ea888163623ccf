#include "report/Columns.h"

#include <algorithm>
#include <utility>

namespace Tool {

std::size_t sharedBeginning(std::string_view one, std::string_view other) {
    const std::size_t most = std::min(one.size(), other.size());
    std::size_t length = 0;
    while (length < most && one[length] == other[length] && static_cast<unsigned char>(one[length]) < 0x80) {
        ++length;
    }
    return length;
}

Json columnOf(std::vector<Json> values) {
    const auto isFirst = [&](const Json& value) { return value == values.front(); };
    if (!values.empty() && std::all_of(values.begin(), values.end(), isFirst)) {
        return std::move(values.front());
    }
    Json column = Json::array();
    for (Json& value : values) {
        column.push_back(std::move(value));
    }
    return column;
}

Json withSharedBeginnings(const std::vector<std::string_view>& texts) {
    Json shared = Json::array();
    Json rest = Json::array();
    std::string_view before;
    for (const std::string_view text : texts) {
        const std::size_t length = sharedBeginning(before, text);
        shared.push_back(length);
        rest.push_back(text.substr(length));
        before = text;
    }
    return {{"shared", std::move(shared)}, {"rest", std::move(rest)}};
}

std::size_t Cells::add(Json value) {
    // Texts are most, and need not be written as JSON to be told from all else.
    std::string key = value.is_string() ? '"' + value.get_ref<const std::string&>()
                                        : value.dump(-1, ' ', false, Json::error_handler_t::replace);
    const auto [found, isNew] = numbers_.emplace(std::move(key), cells_.size());
    if (isNew) {
        cells_.push_back({std::move(value)});
    }
    ++cells_[found->second].uses;
    return found->second;
}

Json Cells::table() {
    std::vector<Cell*> shared;
    for (Cell& cell : cells_) {
        if (!standsInPlace(cell)) {
            shared.push_back(&cell);
        }
    }
    std::stable_sort(shared.begin(), shared.end(),
                     [](const Cell* one, const Cell* other) { return one->uses > other->uses; });
    Json values = Json::array();
    for (Cell* cell : shared) {
        cell->place = values.size();
        values.push_back(cell->value);
    }
    return values;
}

Json Cells::column(const std::vector<std::size_t>& numbers) const {
    std::vector<Json> values;
    values.reserve(numbers.size());
    for (const std::size_t number : numbers) {
        const Cell& cell = cells_[number];
        values.push_back(standsInPlace(cell) ? cell.value : Json(cell.place));
    }
    return columnOf(std::move(values));
}

} // namespace Tool
