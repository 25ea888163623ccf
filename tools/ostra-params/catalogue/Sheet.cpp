#include "catalogue/Sheet.h"

#include "output/Text.h"

#include <fmt/format.h>

#include <string_view>
#include <vector>

namespace Tool {

namespace {

/// Rows of a label and what it is about.
using Rows = std::vector<std::vector<std::string>>;

std::string sheetOf(const Rows& rows) {
    std::string text;
    for (const std::string& line : aligned(rows)) {
        text += "  " + line + "\n";
    }
    return text;
}

std::string textOf(const Catalogue& catalogue, const Value& value) {
    if (value.typeId.empty()) {
        return printable(value.text);
    }
    const std::string name = value.text.empty() ? std::string() : printable(value.text) + "  ";
    return name + printable(value.typeId) + (catalogue.find(value.typeId) == nullptr ? "  (built in)" : "");
}

std::string properties(const Catalogue& catalogue, const Object& object) {
    Rows rows;
    for (const Property& property : object.properties) {
        std::string_view label = property.name;
        for (const Value& value : property.values) {
            rows.push_back({std::string(label), textOf(catalogue, value)});
            label = {}; // once for all values
        }
    }
    rows.push_back({"defined in", toString(beginningOf(catalogue.sourceOf(object)))});
    return sheetOf(rows);
}

std::string links(const Catalogue& catalogue, std::string_view relation, const std::vector<Link>& links) {
    Rows rows;
    for (const auto& [property, typeId] : links) {
        const std::string name = catalogue.nameOf(typeId);
        rows.push_back({std::string(property), printable(typeId) + (name.empty() ? "" : "  " + printable(name))});
    }
    return fmt::format("\n{} {}\n{}", relation, links.empty() ? "nothing" : counted(links.size(), "object"),
                       sheetOf(rows));
}

} // namespace

std::string sheetOf(const Catalogue& catalogue, const Object& object) {
    return fmt::format("{}{}{}  {}\n\n{}{}{}", printable(object.name), object.name.empty() ? "" : "\n",
                       object.section->label, printable(object.typeId), properties(catalogue, object),
                       links(catalogue, "depends on", catalogue.dependencies(object)),
                       links(catalogue, "named by", catalogue.dependents(object.typeId)));
}

} // namespace Tool
