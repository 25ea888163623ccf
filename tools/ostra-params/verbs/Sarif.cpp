#include "catalogue/Input.h"
#include "faults/Rules.h"
#include "output/Json.h"
#include "output/Text.h"
#include "verbs/CheckFormats.h"

#include <fmt/format.h>

#include <filesystem>
#include <map>
#include <unordered_map>
#include <utility>

namespace Tool {

namespace {

/// Returns a path as a URI: relative where the path is, so that it means the same in another checkout.
std::string uriOf(const std::string& path) {
    const std::filesystem::path file(path);
    const std::string normal = (path == standardInput ? file : file.lexically_normal()).generic_string();
    return (file.is_absolute() ? "file://" : "") + percentEncoded(normal, "/-._~");
}

Json locationOf(const Place& place) {
    Json physical{{"artifactLocation", {{"uri", uriOf(*place.file)}}}};
    if (place.line != 0) {
        physical["region"] = {{"startLine", place.line},
                              {"startColumn", place.column},
                              {"endLine", place.endLine},
                              {"endColumn", place.endColumn}};
    }
    return {{"physicalLocation", std::move(physical)}};
}

Json relatedLocations(const Finding& finding) {
    Json related = Json::array();
    const auto add = [&](const std::optional<Place>& place, const char* text) {
        if (place) {
            Json location{{"id", related.size() + 1}};
            location.update(locationOf(*place));
            location["message"] = {{"text", text}};
            related.push_back(std::move(location));
        }
    };
    add(finding.other, "The other side");
    add(finding.root, "What this follows from");
    return related;
}

Json asJson(const Rule& rule) {
    return {{"id", rule.code},
            {"shortDescription", {{"text", rule.message}}},
            {"help", {{"text", fmt::format("{}\n{}", rule.cause, rule.repair)}}}};
}

/// Tells findings apart by what stays when lines are added above, or other faults mended.
std::string fingerprintOf(const Finding& finding, std::map<std::string, int>& seen) {
    std::string identity;
    for (const std::string& part : {finding.code, uriOf(*finding.place.file), finding.typeId, finding.name}) {
        identity += part + '\0';
    }
    const int repetition = seen[identity]++;
    return fmt::format("{:016x}:{}", digestOf(identity), repetition);
}

} // namespace

std::string findingsAsSarif(const std::vector<Finding>& findings) {
    Json table = Json::array();
    std::unordered_map<std::string_view, std::size_t> indices;
    for (const Rule& rule : rules()) {
        indices.emplace(rule.code, table.size());
        table.push_back(asJson(rule));
    }
    Json results = Json::array();
    std::map<std::string, int> seen;
    for (const Finding& finding : findings) {
        Json result{{"ruleId", finding.code}};
        if (const auto index = indices.find(finding.code); index != indices.end()) {
            result["ruleIndex"] = index->second;
        }
        result["level"] = finding.isError ? "error" : "warning";
        result["message"]["text"] = finding.message + (finding.hint.empty() ? "" : "\nHint: " + finding.hint);
        result["locations"] = Json::array({locationOf(finding.place)});
        if (finding.other || finding.root) {
            result["relatedLocations"] = relatedLocations(finding);
        }
        result["partialFingerprints"]["ostraFault/v1"] = fingerprintOf(finding, seen);
        results.push_back(std::move(result));
    }
    const Json driver{{"name", "ostra-params"}, {"version", OSTRA_PARAMETERS_VERSION}, {"rules", std::move(table)}};
    Json run{{"tool", {{"driver", driver}}}, {"columnKind", "unicodeCodePoints"}, {"results", std::move(results)}};
    return toText({{"$schema", "https://json.schemastore.org/sarif-2.1.0.json"},
                   {"version", "2.1.0"},
                   {"runs", Json::array({std::move(run)})}});
}

} // namespace Tool
