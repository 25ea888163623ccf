#include "catalogue/Sheet.h"

#include "output/Text.h"

#include <fmt/format.h>

#include <string_view>
#include <utility>
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

/// Returns what tells of another object: its typeid, the name that it goes by, and whether it is built in.
Json jsonOf(const Catalogue& catalogue, const std::string& typeId, const std::string& name) {
    return {{"typeid", typeId}, {"name", name}, {"builtIn", catalogue.find(typeId) == nullptr}};
}

Json jsonOf(const Catalogue& catalogue, const Value& value) {
    return value.typeId.empty() ? Json{{"text", value.text}} : jsonOf(catalogue, value.typeId, value.text);
}

Json jsonOf(const Catalogue& catalogue, const std::vector<Link>& links) {
    Json list = Json::array();
    for (const auto& [property, typeId] : links) {
        Json link{{"property", property}};
        link.update(jsonOf(catalogue, typeId, catalogue.nameOf(typeId)));
        list.push_back(std::move(link));
    }
    return list;
}

} // namespace

std::string sheetOf(const Catalogue& catalogue, const Object& object) {
    return fmt::format("{}{}{}  {}\n\n{}{}{}", printable(object.name), object.name.empty() ? "" : "\n",
                       object.section->label, printable(object.typeId), properties(catalogue, object),
                       links(catalogue, "depends on", catalogue.dependencies(object)),
                       links(catalogue, "named by", catalogue.dependents(object.typeId)));
}

Json jsonOf(const Catalogue& catalogue, const Object& object) {
    Json properties = Json::array();
    for (const Property& property : object.properties) {
        Json values = Json::array();
        for (const Value& value : property.values) {
            values.push_back(jsonOf(catalogue, value));
        }
        properties.push_back({{"name", property.name}, {"own", property.isOwn}, {"values", std::move(values)}});
    }
    const Place place = beginningOf(catalogue.sourceOf(object));
    return {{"typeid", object.typeId},
            {"kind", object.section->id},
            {"name", object.name},
            {"properties", std::move(properties)},
            {"file", nameOf(*place.file)},
            {"line", place.line},
            {"column", place.column},
            {"dependencies", jsonOf(catalogue, catalogue.dependencies(object))},
            {"dependents", jsonOf(catalogue, catalogue.dependents(object.typeId))}};
}

} // namespace Tool
