#include "verbs/CheckFormats.h"

#include "catalogue/Input.h"
#include "output/Json.h"
#include "output/Text.h"

#include <fmt/format.h>

#include <iterator>

namespace Tool {

std::string faultsAsText(const Catalogue& catalogue) {
    std::string text;
    for (const Fault& fault : catalogue.faults()) {
        text += (fault.place ? toString(*fault.place) + ": " : std::string()) + printable(fault.message) + "\n";
        text += fault.hint.empty() ? std::string() : "    hint: " + printable(fault.hint) + "\n";
    }
    return text;
}

std::string summaryAsText(const Catalogue& catalogue) {
    constexpr auto line = "{:<24}{:>10}\n";
    std::string text = fmt::format(line, "kind", "objects");
    for (const Section& section : sections()) {
        fmt::format_to(std::back_inserter(text), line, section.plural, catalogue.count(section));
    }
    fmt::format_to(std::back_inserter(text), line, "total", catalogue.objects().size());
    return text + fmt::format("{} in {}: {}\n", counted(catalogue.schemas(), "schema"),
                              counted(catalogue.files(), "file"), counted(catalogue.faults().size(), "fault"));
}

std::string checkAsJson(const Catalogue& catalogue) {
    Json faults = Json::array();
    for (const Fault& fault : catalogue.faults()) {
        Json entry = Json::object();
        if (fault.place) {
            entry["file"] = nameOf(fault.place->file);
            entry["line"] = fault.place->line;
            entry["column"] = fault.place->column;
        }
        entry["message"] = fault.message;
        if (!fault.hint.empty()) {
            entry["hint"] = fault.hint;
        }
        faults.push_back(std::move(entry));
    }
    Json objects = Json::object();
    for (const Section& section : sections()) {
        objects[std::string(section.id)] = catalogue.count(section);
    }
    return toText({{"files", catalogue.files()},
                   {"schemas", catalogue.schemas()},
                   {"faults", std::move(faults)},
                   {"objects", std::move(objects)}});
}

} // namespace Tool
