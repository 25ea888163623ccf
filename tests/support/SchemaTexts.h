#pragma once

#include <array>
#include <cstdio>
#include <string>
#include <vector>

namespace Support {

/// Returns the JSON string of any bytes.
inline std::string quoted(const std::string& bytes) {
    std::string result = "\"";
    for (const char character : bytes) {
        if (static_cast<unsigned char>(character) < 0x20) {
            std::array<char, 8> escape{};
            std::snprintf(escape.data(), escape.size(), "\\u%04X", static_cast<unsigned>(character));
            result += escape.data();
            continue;
        }
        if (character == '"' || character == '\\') {
            result += '\\';
        }
        result += character;
    }
    return result + '"';
}

/// Returns a constant with a plain value, which is given as JSON.
inline std::string constant(const std::string& id, const std::string& json) {
    return R"({"id": )" + quoted(id) + R"(, "value": )" + json + "}";
}

/// Returns a constant that names an object.
inline std::string typedConstant(const std::string& id, const std::string& typeId) {
    return R"({"id": )" + quoted(id) + R"(, "typedValue": {"typeid": )" + quoted(typeId) + "}}";
}

/// Returns a constant that names objects.
inline std::string typedConstants(const std::string& id, const std::vector<std::string>& typeIds) {
    std::string typedValues;
    for (const std::string& typeId : typeIds) {
        typedValues += (typedValues.empty() ? "" : ", ") + (R"({"typeid": )" + quoted(typeId) + "}");
    }
    return R"({"id": )" + quoted(id) + R"(, "typedValue": [)" + typedValues + "]}";
}

/// Returns a schema text; the constants are JSON, separated by commas.
inline std::string schemaText(const std::string& typeId, const std::string& base, const std::string& constants) {
    return R"({"typeid": )" + quoted(typeId) + R"(, "inherits": [)" + quoted(base) + R"(], "constants": [)" +
           constants + "]}";
}

/// Returns a schema text whose only constant is its name.
inline std::string namedText(const std::string& typeId, const std::string& base, const std::string& name) {
    return schemaText(typeId, base, constant("name", quoted(name)));
}

inline std::string disciplineText(const std::string& typeId, const std::string& name = "Name") {
    return namedText(typeId, "norvex.spec:discipline-1.0.0", name);
}

inline std::string domainText(const std::string& typeId, const std::string& name = "Name") {
    return namedText(typeId, "norvex.talmo.category:domain-1.0.0", name);
}

inline std::string groupText(const std::string& typeId, const std::string& name = "Name") {
    return namedText(typeId, "norvex.parameter:group-1.0.0", name);
}

inline std::string unitText(const std::string& typeId, const std::string& name = "Name") {
    return namedText(typeId, "norvex.unit:unit-1.0.0", name);
}

/// Returns the text of a Boolean spec that names a discipline.
inline std::string boolSpecText(const std::string& typeId, const std::string& discipline) {
    return schemaText(typeId, "norvex.spec:spec.bool-1.0.0",
                      constant("name", R"("Name")") + ", " + typedConstant("discipline", discipline));
}

/// Returns the text of a general spec that names a discipline.
inline std::string generalSpecText(const std::string& typeId, const std::string& discipline) {
    return schemaText(typeId, "norvex.spec:spec-1.0.0",
                      constant("name", R"("Name")") + ", " + typedConstant("discipline", discipline));
}

/// Returns the text of a Boolean parameter that names a group and a spec.
inline std::string boolParameterText(const std::string& typeId, const std::string& group, const std::string& spec) {
    return schemaText(typeId, "norvex.parameter:parameter.bool-2.0.0",
                      constant("name", R"("Name")") + ", " + typedConstant("group", group) + ", " +
                          typedConstant("spec", spec));
}

/// Returns the text of a major category of a domain, which disciplines use.
inline std::string majorCategoryText(const std::string& typeId, const std::string& domain,
                                     const std::vector<std::string>& disciplines = {}) {
    return schemaText(typeId, "norvex.talmo.category:majorCategory-1.0.0",
                      constant("name", R"("Name")") + ", " + typedConstant("domain", domain) + ", " +
                          typedConstants("disciplines", disciplines));
}

inline std::string subCategoryText(const std::string& typeId, const std::string& parent) {
    return schemaText(typeId, "norvex.talmo.category:subCategory-1.0.0",
                      constant("name", R"("Name")") + ", " + typedConstant("parent", parent));
}

/// Returns the text of a measurable spec with all constants.
inline std::string measurableSpecText(const std::string& typeId, const std::string& storageUnit,
                                      const std::vector<std::string>& applicableUnits = {},
                                      const std::string& discipline = "norvex.spec:discipline-1.0.0") {
    return schemaText(typeId, "norvex.spec:spec.measurable-2.0.0",
                      constant("name", R"("Name")") + ", " + typedConstant("discipline", discipline) + ", " +
                          typedConstants("applicableUnits", applicableUnits) + ", " +
                          typedConstant("storageUnit", storageUnit));
}

/// Returns the text of a reference spec that is limited to a category.
inline std::string referenceSpecText(const std::string& typeId, const std::string& category) {
    return schemaText(typeId, "norvex.spec:spec.reference-1.0.0",
                      constant("name", R"("Name")") + ", " + typedConstant("category", category));
}

} // namespace Support
