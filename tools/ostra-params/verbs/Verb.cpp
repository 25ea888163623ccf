#include "verbs/Verb.h"

#include "catalogue/Catalogue.h"
#include "output/OutputFile.h"
#include "output/Text.h"
#include "verbs/CheckFormats.h"

#include <fmt/format.h>

#include <algorithm>

namespace Tool {

namespace {

std::string severalHave(const std::string& text, const std::vector<const Object*>& objects) {
    constexpr std::size_t most = 10;
    std::string message = fmt::format("{} typeids have {} in them:", objects.size(), printable(text));
    for (std::size_t i = 0; i < std::min(objects.size(), most); ++i) {
        message += "\n  " + printable(objects[i]->typeId);
    }
    return message + (objects.size() > most ? "\n  ..." : "");
}

} // namespace

void addPaths(const Verb& verb, std::vector<std::string>& paths, bool isRequired) {
    paths = {"."};
    verb.add("PATH", paths, "",
             std::string(".json files (one schema each), .ndjson and .jsonl files\n(one schema per line), folders "
                         "to be searched for such\nfiles at all depths, and - for standard input") +
                 (isRequired ? "" : "; the working folder\nwhen none is given"))
        .required(isRequired)
        .check(refuseEmpty);
}

void mustBeFiles(const std::vector<std::string>& paths) {
    if (std::find(paths.begin(), paths.end(), standardInput) != paths.end()) {
        throw InputError("Standard input cannot be changed in place.");
    }
}

void addRequired(const Verb& verb, const std::string& name, std::string& value, const std::string& help,
                 const std::string& type) {
    verb.add(name, value, type, help).required().check(refuseEmpty);
}

std::string refuseEmpty(const std::string& argument) { return argument.empty() ? "must not be empty" : ""; }

std::string kindIds() {
    std::vector<std::string_view> ids;
    ids.reserve(sections().size());
    for (const Section& section : sections()) {
        ids.push_back(section.id);
    }
    return listed(ids);
}

ExitCode warnOfFaults(const Catalogue& catalogue) {
    if (catalogue.leftOut() == 0) {
        return Good;
    }
    printError(fmt::format("ostra-params: {} left out; \"ostra-params check\" tells more.\n",
                           counted(catalogue.leftOut(), "faulty schema")));
    return Bad;
}

bool printFaults(const Catalogue& catalogue, std::string_view warningCode) {
    std::vector<Finding> faults = catalogue.findings();
    std::erase_if(faults, [&](const Finding& finding) { return !finding.isError && finding.code != warningCode; });
    printError(findingsAsText(faults));
    return !faults.empty();
}

void addTypeId(const Verb& verb, std::string& typeId) {
    addRequired(verb, "TYPEID", typeId, "The typeid of an object, or a part that no other has", "");
}

const Object& findObject(const Catalogue& catalogue, const std::string& text) {
    if (const Object* object = catalogue.find(text)) {
        return *object;
    }
    std::vector<const Object*> having;
    std::vector<std::string_view> typeIds;
    for (const Object& object : catalogue.objects()) {
        typeIds.emplace_back(object.typeId);
        if (object.typeId.find(text) != std::string::npos) {
            having.push_back(&object);
        }
    }
    if (having.size() == 1) {
        return *having.front();
    }
    if (having.size() > 1) {
        throw NotFound(severalHave(text, having));
    }
    warnOfFaults(catalogue); // what is looked for may be among what was left out
    const std::string question = didYouMean(text, typeIds);
    throw NotFound(fmt::format("There is no object with typeid {}.{}", printable(text),
                               question.empty() ? "" : " " + printable("Did" + question.substr(3))));
}

} // namespace Tool
