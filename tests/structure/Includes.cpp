#include "structure/Includes.h"

#include <algorithm>
#include <cstddef>
#include <regex>

namespace Structure {
namespace {

/// What the sources under a folder may include of this project, by the beginning of the name; other names with a
/// folder in them are third parties'.
struct Rule {
    std::string_view folder;
    std::vector<std::string_view> ours;
    bool mayUseThirdParties;
    bool mayUseSystem = true;                    ///< Headers that are not on every system.
    std::vector<std::string_view> notThese = {}; ///< Of third parties.
};

const std::vector<Rule> rules = {
    {"src/schema/", {"schema/"}, true},
    {"src/model/", {"model/", "schema/", "parameters/", "units/"}, true},
    {"src/engine/", {"engine/", "model/", "schema/", "parameters/", "units/"}, true},
    {"include/parameters/Format.h", {"parameters/", "fmt/format.h"}, false},       // for those who use it
    {"include/parameters/Ref.h", {"parameters/", "sys/single_threaded.h"}, false}, // where there is one
    {"include/", {"parameters/", "units/"}, false},
    {"units/include/", {"units/"}, false},
    {"units/src/", {"schema/", "units/"}, true},
    {"tools/ostra-params/system/", {}, true},
    {"tools/ostra-params/verbs/CommandLine.cpp", {}, true, false},
    {"tools/", {"parameters/", "units/", "schema/Spelling.h"}, true, false, {"CLI/"}}, // which takes long to compile
};

const std::vector<std::string_view> rooms = {"engine/", "model/", "schema/", "parameters/", "units/"};

bool startsWithOneOf(std::string_view name, const std::vector<std::string_view>& beginnings) {
    return std::any_of(beginnings.begin(), beginnings.end(),
                       [&](std::string_view beginning) { return name.starts_with(beginning); });
}

bool isOfSystem(std::string_view name) {
    return name.starts_with("sys/") || (name.ends_with(".h") && name.find('/') == std::string_view::npos);
}

bool isAllowed(std::string_view name, const Rule& rule) {
    if ((isOfSystem(name) && !rule.mayUseSystem) || startsWithOneOf(name, rule.notThese)) {
        return false;
    }
    if (startsWithOneOf(name, rule.ours)) {
        return true;
    }
    const bool isOurs = startsWithOneOf(name, rooms) || name.find("..") != std::string_view::npos;
    const bool isStandard = name.find_first_of("/.") == std::string_view::npos;
    return !isOurs && (isStandard || rule.mayUseThirdParties);
}

} // namespace

std::vector<std::string> faultsOfIncludes(std::string_view path, std::string_view text) {
    static const std::regex include("^\\s*#\\s*include\\s*[<\"]([^>\"]*)[>\"]");
    const auto rule =
        std::find_if(rules.begin(), rules.end(), [&](const Rule& each) { return path.starts_with(each.folder); });
    std::vector<std::string> faults;
    if (rule == rules.end()) {
        return {std::string(path) + ": no rule says what this may include"};
    }
    std::size_t number = 0;
    while (!text.empty()) {
        const std::string line(text.substr(0, text.find('\n')));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
        ++number;
        std::smatch match;
        if (std::regex_search(line, match, include) && !isAllowed(match[1].str(), *rule)) {
            faults.push_back(std::string(path) + ":" + std::to_string(number) + ": " + line);
        }
    }
    return faults;
}

} // namespace Structure
