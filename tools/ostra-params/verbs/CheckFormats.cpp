#include "verbs/CheckFormats.h"

#include "catalogue/Input.h"
#include "catalogue/Sections.h"
#include "output/Text.h"
#include "system/System.h"

#include <fmt/format.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <iterator>
#include <map>
#include <numeric>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace Tool {

namespace {

/// Writes what is shown of each fold: a finding, and what there is to say below it.
std::string folded(const std::vector<Finding>& findings, bool isAll,
                   const std::function<std::string(const Finding&, const std::string&)>& write) {
    std::string text;
    for (const Fold& fold : fold(findings)) {
        const std::string rest = summaryOf(fold);
        text += write(*fold.shown, rest.empty() || isAll ? std::string() : rest + "; --all shows each.");
        for (const Finding* finding : fold.folded) {
            text += isAll ? write(*finding, "") : std::string();
        }
    }
    return text;
}

std::string lineOf(const Finding& finding, const std::string& rest) {
    return toString(finding.place) + ": " + (finding.isError ? "" : "warning: ") + printable(finding.message) +
           (finding.isError ? "" : " [" + finding.code + "]") + "\n" +
           (finding.hint.empty() ? "" : "    hint: " + printable(finding.hint) + "\n") +
           (rest.empty() ? "" : "    " + rest + "\n");
}

/// Escapes what would end a command or, in a property of one, the property.
std::string escaped(std::string_view text, bool isProperty) {
    const std::string_view special = isProperty ? "%\r\n:," : "%\r\n";
    return encoded(text, [&](char byte) { return special.find(byte) == std::string_view::npos; });
}

std::string commandOf(const Finding& finding, const std::string& rest) {
    const Place& place = finding.place;
    std::string where = "file=" + escaped(printable(nameOf(*place.file)), true);
    if (place.line != 0) {
        fmt::format_to(std::back_inserter(where), ",line={},col={},endLine={},endColumn={}", place.line, place.column,
                       place.endLine, place.endColumn);
    }
    std::string text = printable(finding.message);
    text += finding.hint.empty() ? "" : "\nHint: " + printable(finding.hint);
    text += rest.empty() ? "" : "\n" + rest;
    return fmt::format("::{} {},title={}::{}\n", finding.isError ? "error" : "warning", where,
                       escaped(finding.code, true), escaped(text, false));
}

Json asJson(const Finding& finding) {
    Json json{{"code", finding.code},
              {"severity", finding.isError ? "error" : "warning"},
              {"message", finding.message},
              {"typeid", finding.typeId}};
    json.update(placeAsJson(finding.place));
    json.update({{"name", finding.name}, {"expected", finding.expected}, {"nearest", finding.nearest}});
    json["other"] = finding.other ? placeAsJson(*finding.other) : Json();
    json["root"] = finding.root ? placeAsJson(*finding.root) : Json();
    json["hint"] = finding.hint;
    return json;
}

/// Returns a path as a URI: relative where the path is, so that it means the same in another checkout.
std::string uriOf(const std::string& path) {
    const std::filesystem::path file = System::pathOf(path);
    const std::string normal = System::textOf(path == standardInput ? file : file.lexically_normal());
    if (!file.is_absolute()) {
        return percentEncoded(normal, "/-._~");
    }
    const std::string root = System::textOf(file.root_name()); // such as C: or //server, where there are such
    const std::string scheme = root.starts_with("//") ? "file:" : root.empty() ? "file://" : "file:///";
    return scheme + root + percentEncoded(normal.substr(root.size()), "/-._~");
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
    for (const auto& [place, text] :
         {std::pair(finding.other, "The other side"), std::pair(finding.root, "What this follows from")}) {
        if (place) {
            Json location{{"id", related.size() + 1}};
            location.update(locationOf(*place));
            location["message"] = {{"text", text}};
            related.push_back(std::move(location));
        }
    }
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

std::string findingsAsText(const std::vector<Finding>& findings, bool isAll) { return folded(findings, isAll, lineOf); }

std::string findingsAsCommands(const std::vector<Finding>& findings, bool isAll) {
    return folded(findings, isAll, commandOf);
}

std::string summaryAsText(Loader& catalogue, const std::vector<Finding>& findings) {
    constexpr auto line = "{:<24}{:>10}\n";
    const std::vector<std::size_t> counts = catalogue.counts();
    std::string text = fmt::format(line, "kind", "objects");
    for (const Section& section : sections()) {
        fmt::format_to(std::back_inserter(text), line, section.plural, counts[indexOf(section)]);
    }
    fmt::format_to(std::back_inserter(text), line, "total", std::reduce(counts.begin(), counts.end()));
    const auto errors =
        static_cast<std::size_t>(std::count_if(findings.begin(), findings.end(), std::mem_fn(&Finding::isError)));
    const std::size_t warnings = findings.size() - errors;
    return text + fmt::format("{} in {}: {}{}\n", counted(catalogue.schemas(), "schema"),
                              counted(catalogue.files(), "file"), counted(errors, "fault"),
                              warnings == 0 ? "" : ", " + counted(warnings, "warning"));
}

std::string checkAsJson(Loader& catalogue, const std::vector<Finding>& findings) {
    Json faults = Json::array();
    for (const Finding& finding : findings) {
        faults.push_back(asJson(finding));
    }
    Json objects = Json::object();
    const std::vector<std::size_t> counts = catalogue.counts();
    for (const Section& section : sections()) {
        objects[std::string(section.id)] = counts[indexOf(section)];
    }
    return toText({{"files", catalogue.files()},
                   {"schemas", catalogue.schemas()},
                   {"faults", std::move(faults)},
                   {"objects", std::move(objects)}});
}

std::string findingsAsSarif(const std::vector<Finding>& findings, std::span<const Rule> table) {
    Json rulesOfLog = Json::array();
    std::unordered_map<std::string_view, std::size_t> indices;
    for (const Rule& rule : table) {
        indices.emplace(rule.code, rulesOfLog.size());
        rulesOfLog.push_back(asJson(rule));
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
    const Json driver{
        {"name", "ostra-params"}, {"version", OSTRA_PARAMETERS_VERSION}, {"rules", std::move(rulesOfLog)}};
    Json run{{"tool", {{"driver", driver}}}, {"columnKind", "unicodeCodePoints"}, {"results", std::move(results)}};
    return toText({{"$schema", "https://json.schemastore.org/sarif-2.1.0.json"},
                   {"version", "2.1.0"},
                   {"runs", Json::array({std::move(run)})}});
}

Json placeAsJson(const Place& place) {
    Json json{{"file", nameOf(*place.file)}};
    if (place.line != 0) {
        json.update({{"line", place.line},
                     {"column", place.column},
                     {"endLine", place.endLine},
                     {"endColumn", place.endColumn},
                     {"pointer", place.pointer}});
    }
    return json;
}

} // namespace Tool
