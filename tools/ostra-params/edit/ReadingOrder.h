#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace Tool {

/// The order in which the library reads the constants and properties of schemas. The library itself is asked.
class ReadingOrder {
public:
    /// Returns for each of some ids its rank in the order in which a schema of a base has them read from a table,
    /// "constants" or "properties". Ids that it does not read by name come last, and are all of one rank. Base and ids
    /// are JSON strings as they are written.
    std::vector<std::size_t> ranksOf(std::string_view base, std::string_view table,
                                     const std::vector<std::string_view>& ids);

private:
    using Ranks = std::unordered_map<std::string, std::size_t>;

    const Ranks& ask(const std::string& question);

    std::unordered_map<std::string, Ranks> answers_; // by the schema that was asked about
};

} // namespace Tool
