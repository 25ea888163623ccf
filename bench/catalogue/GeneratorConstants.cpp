#include "catalogue/Generator.h"

#include <vector>

namespace Bench {

namespace {

Kind specOf(Kind parameter) {
    switch (parameter) {
    case Kind::boolParameter:
        return Kind::boolSpec;
    case Kind::enumerationParameter:
        return Kind::generalSpec;
    case Kind::stringParameter:
        return Kind::stringSpec;
    case Kind::intParameter:
        return Kind::intSpec;
    default:
        return Kind::measurableSpec;
    }
}

std::string_view builtInSpecOf(Kind parameter) {
    switch (parameter) {
    case Kind::boolParameter:
        return "norvex.spec:spec.bool-1.0.0";
    case Kind::stringParameter:
        return "norvex.spec:spec.string-2.3.0";
    case Kind::intParameter:
        return "norvex.spec:spec.int64-2.0.0";
    default:
        return {};
    }
}

std::string object(std::string_view members) {
    std::string json = R"(,"value":{)";
    json += members;
    return json += '}';
}

} // namespace

void Generator::addSpecDetails(SchemaText& schema, Kind kind) {
    if (kind == Kind::discipline || kind == Kind::domain || kind == Kind::group) {
        return;
    }
    if (random_.percent(80)) {
        schema.reference("discipline", random_.percent(10) ? "norvex.spec:discipline-1.3.0" : oneOf(Kind::discipline));
    }
    if (kind == Kind::measurableSpec) {
        addApplicableUnits(schema);
    }
    if (kind == Kind::referenceSpec && random_.percent(50)) {
        schema.reference("category", oneOf(Kind::category));
    }
}

void Generator::addApplicableUnits(SchemaText& schema) {
    std::vector<std::string> units;
    for (std::uint32_t count = 1 + random_.below(8); count > 0; --count) {
        units.push_back(oneOf(Kind::unit));
    }
    schema.references("applicableUnits", units).reference("storageUnit", units.front());
}

void Generator::addCategoryDetails(SchemaText& schema, bool major) {
    if (!major) {
        schema.reference("parent", nameOf(Kind::category, 2 * random_.below(counts_[Kind::category] / 2)).typeId);
        return;
    }
    schema.reference("domain", oneOf(Kind::domain));
    if (random_.percent(70)) {
        schema.references("disciplines", {oneOf(Kind::discipline), "norvex.spec:discipline-1.0.0"});
    }
}

void Generator::addParameterCore(SchemaText& schema, const Name& name) {
    schema.text("name", name.display);
    if (random_.percent(55)) {
        schema.text("description", sentence());
    }
    if (random_.percent(35)) {
        schema.text("sampleText", random_.percent(50) ? "12.5" : "Level 1 \xE2\x86\x92 Room 1.014");
    }
    if (random_.percent(85)) {
        schema.reference("group", random_.percent(5) ? "norvex.parameter:group-1.2.0" : oneOf(Kind::group));
    }
    if (random_.percent(30)) {
        schema.value("readOnly", random_.percent(50) ? "true" : "false");
    }
}

void Generator::addSpec(SchemaText& schema, Kind kind) {
    const std::string_view builtIn = builtInSpecOf(kind);
    if (builtIn.empty() || random_.percent(60)) {
        schema.reference("spec", oneOf(specOf(kind)));
    } else if (random_.percent(50)) {
        schema.reference("spec", builtIn);
    }
}

void Generator::addReferenceSpec(SchemaText& schema) {
    if (random_.percent(30)) {
        const std::string category = R"({"category":{"typeid":)" + quoted(oneOf(Kind::category)) + "}}";
        schema.reference("spec", "norvex.talmo.spec:familyType-1.0.0", R"(,"typedValue":)" + category);
    } else if (random_.percent(80)) {
        schema.reference("spec", random_.percent(30) ? "norvex.spec:spec.reference-1.1.0" : oneOf(Kind::referenceSpec));
    }
}

void Generator::addNumericRange(SchemaText& schema, Kind range, std::string_view base) {
    if (random_.percent(50)) {
        schema.reference("range", oneOf(range), random_.percent(30) ? object("") : "");
    } else if (random_.percent(70)) {
        std::string members = R"("fromBottom":true,"bottomBoundary":)" + boundary(range);
        members += random_.percent(60) ? R"(,"fromTop":true,"topBoundary":)" + boundary(range) : R"(,"fromTop":false)";
        schema.reference("range", base, object(members));
    }
}

void Generator::addStringRange(SchemaText& schema) {
    if (random_.percent(40)) {
        schema.reference("range", oneOf(Kind::stringRange), random_.percent(30) ? object("") : "");
    } else if (random_.percent(40)) {
        schema.reference("range", "norvex.range:range.string.set.static-1.0.0",
                         object(R"("allowedValues":)" + allowedValues()));
    } else if (random_.percent(60)) {
        schema.reference("range", "norvex.range:range.string.regex-1.0.0", object(R"("regex":)" + quoted(regex())));
    } else if (random_.percent(60)) {
        schema.reference("range", "norvex.range:range.string-1.0.0", object(""));
    }
}

void Generator::addBounds(SchemaText& schema, Kind range) {
    const bool fromBottom = random_.percent(80);
    schema.value("fromBottom", fromBottom ? "true" : "false");
    if (fromBottom) {
        schema.value("bottomBoundary", boundary(range));
    }
    const bool fromTop = random_.percent(70);
    schema.value("fromTop", fromTop ? "true" : "false");
    if (fromTop) {
        schema.value("topBoundary", boundary(range));
    }
}

std::string Generator::oneOf(Kind kind) { return nameOf(kind, random_.below(counts_[kind])).typeId; }

std::string Generator::boundary(Kind range) {
    if (random_.percent(1)) {
        return range == Kind::floatRange ? "1.7976931348623157e+308" : "-9223372036854775808";
    }
    std::string number = random_.percent(25) ? "-" : "";
    number += std::to_string(random_.below(2000));
    if (range == Kind::floatRange && random_.percent(60)) {
        number += '.' + std::to_string(random_.below(1000));
    }
    return number;
}

std::string Generator::allowedValues() {
    std::string list = R"(["S235","Flat Oval","R-410A")";
    for (std::uint32_t number = 1 + random_.below(5); number > 0; --number) {
        list += R"(,"EI )" + std::to_string(30 * number) + '"';
    }
    return list += ']';
}

std::string Generator::choices() {
    std::string list = R"({"id":"none","value":-1})";
    for (std::uint32_t number = 2 + random_.below(6); number > 0; --number) {
        list += R"(,{"id":"class )" + std::to_string(number) + R"(","value":)" + std::to_string(10 * number) + '}';
    }
    return list;
}

std::string Generator::regex() { return "^[A-Z]{" + std::to_string(1 + random_.below(5)) + R"(}\\d*$)"; }

std::string Generator::sentence() {
    switch (random_.below(4)) {
    case 0:
        return "";
    case 1:
        return R"(Value that the equipment is designed for; \"as built\" values go elsewhere.)";
    case 2:
        return "Taken from the manufacturer's data sheet\\n(see schedule \xC2\xA7 4." +
               std::to_string(random_.below(30)) + "). Kept up to date by the discipline in charge.";
    default:
        return "Shown in schedules and on drawings at scale 1:50 and above.";
    }
}

} // namespace Bench
