#include "catalogue/Input.h"
#include "output/Json.h"
#include "output/Text.h"
#include "verbs/CheckFormats.h"

#include <array>
#include <filesystem>
#include <utility>

namespace Tool {

namespace {

struct Rule {
    const char* id;
    const char* description;
};

constexpr std::array rules{
    Rule{"schema", "The text is a well-formed schema of a known kind."},
    Rule{"dependency", "What a schema names is there and fits."},
};

const Rule& ruleOf(const Fault& fault) { return rules[fault.stage == Stage::reading ? 0 : 1]; }

/// Returns a path as a URI: relative where the path is, so that it means the same in another checkout.
std::string uriOf(const std::filesystem::path& file) {
    const std::string path = (file == standardInput ? file : file.lexically_normal()).generic_string();
    return (file.is_absolute() ? "file://" : "") + percentEncoded(path, "/-._~");
}

Json resultOf(const Fault& fault) {
    Json result{{"ruleId", ruleOf(fault).id},
                {"level", "error"},
                {"message", {{"text", fault.message + (fault.hint.empty() ? "" : "\nHint: " + fault.hint)}}}};
    if (fault.place) {
        const Json region{{"startLine", fault.place->line}, {"startColumn", fault.place->column}};
        const Json place{{"artifactLocation", {{"uri", uriOf(fault.place->file)}}}, {"region", region}};
        result["locations"] = Json::array({{{"physicalLocation", place}}});
    }
    return result;
}

} // namespace

std::string checkAsSarif(const Catalogue& catalogue) {
    Json ruleTable = Json::array();
    for (const Rule& rule : rules) {
        ruleTable.push_back({{"id", rule.id}, {"shortDescription", {{"text", rule.description}}}});
    }
    Json results = Json::array();
    for (const Fault& fault : catalogue.faults()) {
        results.push_back(resultOf(fault));
    }
    const Json driver{{"name", "ostra-params"}, {"version", OSTRA_PARAMETERS_VERSION}, {"rules", std::move(ruleTable)}};
    Json run{{"tool", {{"driver", driver}}}, {"columnKind", "unicodeCodePoints"}, {"results", std::move(results)}};
    return toText({{"$schema", "https://json.schemastore.org/sarif-2.1.0.json"},
                   {"version", "2.1.0"},
                   {"runs", Json::array({std::move(run)})}});
}

} // namespace Tool
