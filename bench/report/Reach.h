#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

namespace Bench {

/// One ratio: a benchmark beside the floor that it is held to, and how far from it the library may be.
struct Reach {
    std::string_view ratio;
    std::string_view ours;
    std::string_view floor;
    std::size_t size;
    std::size_t floorSize;
    std::optional<double> atMost; ///< absent where the ratio is only there to compare with
    std::optional<double> goal;
};

/// A ratio of two benchmarks on the same catalogue.
constexpr Reach at(std::size_t size, std::string_view ratio, std::string_view ours, std::string_view floor,
                   std::optional<double> atMost = {}, std::optional<double> goal = {}) {
    return {ratio, ours, floor, size, size, atMost, goal};
}

inline constexpr std::size_t small = 10'000;
inline constexpr std::size_t middle = 100'000;
inline constexpr std::size_t large = 1'000'000;

/// Everything that is measured, and what is to be reached. Times and bytes are spread over the items of a benchmark.
inline constexpr std::array reaches = {
    at(small, "ingest / RapidJSON DOM parse", "ingest", "rapidjson-dom", 1.1, 0.8),
    at(middle, "ingest / RapidJSON DOM parse", "ingest", "rapidjson-dom", 1.35, 1.0),
    at(large, "ingest / RapidJSON DOM parse", "ingest", "rapidjson-dom", 1.9, 1.5),
    at(small, "batch ingest / RapidJSON DOM parse", "ingest-batch", "rapidjson-dom", 1.0, 0.7),
    at(middle, "batch ingest / RapidJSON DOM parse", "ingest-batch", "rapidjson-dom"),
    at(small, "ingest / nlohmann parse", "ingest", "nlohmann-json", 0.53, 0.27),
    at(small, "ingest / Protocol Buffers from text", "ingest", "protobuf", 0.08, 0.04),
    at(small, "ingest / Avro C", "ingest", "avro"),
    at(small, "heap a schema / bytes of its text", "heap-after", "text-bytes", 0.6, 0.5),
    at(middle, "heap a schema / bytes of its text", "heap-after", "text-bytes", 0.6, 0.5),
    at(large, "heap a schema / bytes of its text", "heap-after", "text-bytes", 0.6, 0.5),
    at(small, "getX / unordered_map find", "get", "unordered-map-find", 1.5, 1.1),
    at(middle, "getX / unordered_map find", "get", "unordered-map-find", 1.5, 1.1),
    at(small, "isRegistered / unordered_map find", "is-registered", "unordered-map-find", 1.2, 1.0),
    at(middle, "isRegistered / unordered_map find", "is-registered", "unordered-map-find", 1.2, 1.0),
    at(small, "getAllX / copying a map", "list", "map-copy", 1.2, 1.0),
    at(middle, "getAllX / copying a map", "list", "map-copy", 1.2, 1.0),
    at(small, "getAllX / copying a map that lies in order", "list", "sorted-map-copy", 1.2, 1.0),
    at(middle, "getAllX / copying a map that lies in order", "list", "sorted-map-copy", 1.2, 1.0),
    at(middle, "first getAllX after loading / copying a map", "first-list", "map-copy", 5.0, 3.0),
    at(small, "kindOf / unordered_map find of a view", "kind-of", "unordered-map-find-view", 1.2),
    at(middle, "kindOf / unordered_map find of a view", "kind-of", "unordered-map-find-view", 1.2),
    at(small, "failed findX / failed unordered_map find", "find-absent", "unordered-map-find-absent", 1.2),
    at(middle, "failed findX / failed unordered_map find", "find-absent", "unordered-map-find-absent", 1.2),
    at(small, "name() / a shared record's name", "read-names", "read-plain-names", 1.2),
    at(middle, "name() / a shared record's name", "read-names", "read-plain-names", 1.2),
    at(small, "sorting by name() / sorting shared records", "sort-by-name", "sort-plain-by-name", 1.3),
    at(middle, "sorting by name() / sorting shared records", "sort-by-name", "sort-plain-by-name", 1.3),
    at(small, "walking allX / walking a vector", "walk", "vector-walk", 1.5),
    at(middle, "walking allX / walking a vector", "walk", "vector-walk", 1.5),
    at(small, "dependentsOf all / multimap of strings", "dependents", "multimap-of-strings", 2.0),
    at(middle, "dependentsOf all / multimap of strings", "dependents", "multimap-of-strings", 2.0),
    at(small, "getSchema of all / RapidJSON Writer", "write", "rapidjson-writer", 0.8, 0.6),
    at(middle, "getSchema of all / RapidJSON Writer", "write", "rapidjson-writer", 1.0, 0.7),
    at(middle, "copying an engine / copying a map", "engine-copy", "map-copy", 0.005),
    at(middle, "one more schema in a full engine / in an empty one", "add-to-full", "add-to-empty", 1.6, 1.2),
    at(small, "findUnresolvable / resolveSchemas", "find-unresolvable", "resolve", 1.1, 1.0),
    at(middle, "findUnresolvable / resolveSchemas", "find-unresolvable", "resolve", 1.1, 1.0),
    at(small, "findFaults / registering and resolving in a copy", "find-faults", "try-batch", 1.15, 1.0),
    at(middle, "findFaults / registering and resolving in a copy", "find-faults", "try-batch", 1.15, 1.0),
    Reach{"growth: ingest of a schema at 1M / at 10k", "ingest", "ingest", large, small, 2.5, 2.0},
    at(middle, "peak memory during ingest / memory after", "heap-peak", "heap-after", 1.25, 1.1),
    at(large, "peak memory during ingest / memory after", "heap-peak", "heap-after", 1.25, 1.1),

    // What others cost, to compare with.
    at(small, "RapidJSON SAX parse / DOM parse", "rapidjson-sax", "rapidjson-dom"),
    at(middle, "RapidJSON SAX parse / DOM parse", "rapidjson-sax", "rapidjson-dom"),
    at(large, "RapidJSON SAX parse / DOM parse", "rapidjson-sax", "rapidjson-dom"),
    at(small, "nlohmann parse / DOM parse", "nlohmann-json", "rapidjson-dom"),
    at(middle, "nlohmann parse / DOM parse", "nlohmann-json", "rapidjson-dom"),
    at(large, "nlohmann parse / DOM parse", "nlohmann-json", "rapidjson-dom"),
    at(small, "Protocol Buffers from text / DOM parse", "protobuf", "rapidjson-dom"),
    at(small, "Avro C / DOM parse", "avro", "rapidjson-dom"),
    at(small, "find and copy of the handle / find", "unordered-map-find-and-copy", "unordered-map-find"),
    at(middle, "find and copy of the handle / find", "unordered-map-find-and-copy", "unordered-map-find"),
    at(middle, "first walk after loading / walking a vector", "first-walk", "vector-walk"),
    at(small, "failed findIntSpec / failed unordered_map find", "find-absent-spec", "unordered-map-find-absent"),
    at(middle, "failed findIntSpec / failed unordered_map find", "find-absent-spec", "unordered-map-find-absent"),
    at(small, "dependentsOf all / multimap of views", "dependents", "multimap-of-views"),
    at(middle, "dependentsOf all / multimap of views", "dependents", "multimap-of-views"),
};

/// The ratios that are held to something in instructions, too; the others of that table are only shown.
inline constexpr std::array instructionReaches = {
    at(small, "ingest / RapidJSON DOM parse", "ingest", "rapidjson-dom", 0.82, 0.75),
};

} // namespace Bench
