#include "catalogue/Catalogue.h"
#include "output/Json.h"
#include "output/OutputFile.h"
#include "output/Text.h"
#include "verbs/NamePattern.h"
#include "verbs/Verb.h"

#include <algorithm>
#include <memory>

namespace Tool {

namespace {

struct Options {
    std::vector<std::string> paths;
    std::vector<std::string> kinds;
    std::string name;
    bool isJson = false;
};

/// A pattern without a wildcard may stand anywhere in a name.
NamePattern patternOf(const std::string& text) {
    const bool isPlain = text.find_first_of("*?[") == std::string::npos;
    return NamePattern(isPlain ? "*" + text + "*" : text);
}

std::vector<const Object*> select(const Catalogue& catalogue, const Options& options) {
    const NamePattern pattern = patternOf(options.name);
    std::vector<const Object*> selected;
    for (const Object& object : catalogue.objects()) {
        const auto isOf = [&](const std::string& word) { return isMeant(*object.section, word); };
        const bool isOfKind = options.kinds.empty() || std::any_of(options.kinds.begin(), options.kinds.end(), isOf);
        if (isOfKind && (options.name.empty() || pattern.matches(object.name))) {
            selected.push_back(&object);
        }
    }
    return selected;
}

std::string asJson(const std::vector<const Object*>& objects) {
    Json list = Json::array();
    for (const Object* object : objects) {
        list.push_back({{"typeid", object->typeId}, {"kind", object->section->id}, {"name", object->name}});
    }
    return toText(list);
}

std::string asTable(const std::vector<const Object*>& objects) {
    std::vector<std::vector<std::string>> rows;
    rows.reserve(objects.size());
    for (const Object* object : objects) {
        rows.push_back({printable(object->typeId), std::string(object->section->label), printable(object->name)});
    }
    std::string table;
    for (const std::string& line : aligned(rows)) {
        table += line.substr(0, line.find_last_not_of(' ') + 1) + "\n";
    }
    return table;
}

std::string refuseUnknownKind(const std::string& word) {
    std::vector<std::string_view> names;
    for (const Section& section : sections()) {
        if (isMeant(section, word)) {
            return {};
        }
        names.insert(names.end(), {section.id, section.label, section.plural});
    }
    return thereIsNo("kind", word, names);
}

ExitCode list(const Options& options) {
    const Catalogue catalogue(options.paths);
    const std::vector<const Object*> objects = select(catalogue, options);
    print(options.isJson ? asJson(objects) : asTable(objects));
    return warnOfFaults(catalogue);
}

} // namespace

void addList(CommandLine& program) {
    const auto options = std::make_shared<Options>();
    const Verb verb = program.addVerb("list", "List the objects of a catalogue: typeid, kind and name");
    addPaths(verb, options->paths, false);
    verb.add("--kind", options->kinds, "KIND",
             "Only this kind, or these with commas between them;\nparameter, spec and range stand for all of them:\n" +
                 kindIds())
        .check(refuseUnknownKind)
        .separatedByCommas();
    verb.add("--name", options->name, "PATTERN",
             "Only names with this in them, or that match it as a\nwhole when it has wildcards (* ? [...]); "
             "case does\nnot matter");
    verb.addFlag("--json", options->isJson, "Print a JSON array");
    verb.does([options] { return list(*options); });
}

} // namespace Tool
