#include "generator/Generator.h"

#include <vector>

namespace Bench {

namespace {

std::string object(std::string_view members) {
    std::string json = R"(,"value":{)";
    json += members;
    return json += '}';
}

} // namespace

std::string inMinor(std::string_view identifier, int minor) {
    const std::size_t major = identifier.find('.', identifier.rfind('-'));
    return std::string(identifier.substr(0, major + 1)) + std::to_string(minor) + ".0";
}

void Generator::addDiscipline(SchemaText& schema) {
    if (percent(80)) {
        schema.reference("discipline",
                         percent(10) ? inMinor(baseOf<Kinds::Discipline>, 3) : oneOf<Kinds::Discipline>());
    }
}

void Generator::addApplicableUnits(SchemaText& schema) {
    std::vector<std::string> units;
    for (std::uint32_t count = 1 + random_.below(8); count > 0; --count) {
        units.push_back(oneOf<Unit>());
    }
    schema.references("applicableUnits", units).reference("storageUnit", units.front());
}

void Generator::addParameterCore(SchemaText& schema, const Name& name) {
    schema.text("name", name.display);
    if (percent(55)) {
        schema.text("description", sentence());
    }
    if (percent(35)) {
        schema.text("sampleText", percent(50) ? "12.5" : "Level 1 \xE2\x86\x92 Room 1.014");
    }
    if (percent(85)) {
        schema.reference("group", percent(5) ? inMinor(baseOf<Kinds::Group>, 2) : oneOf<Kinds::Group>());
    }
    if (percent(30)) {
        schema.value("readOnly", percent(50) ? "true" : "false");
    }
}

void Generator::addNumericRange(SchemaText& schema, const Stock& ranges, std::string_view base, bool isFloat) {
    if (percent(50)) {
        const std::string value = percent(30) ? object("") : "";
        schema.reference("range", oneOf(ranges, 1), value);
    } else if (percent(70)) {
        const auto [bottom, top] = boundaries(isFloat);
        std::string members = R"("fromBottom":true,"bottomBoundary":)" + bottom;
        members += percent(60) ? R"(,"fromTop":true,"topBoundary":)" + top : R"(,"fromTop":false)";
        schema.reference("range", base, object(members));
    }
}

void Generator::addStringRange(SchemaText& schema) {
    constexpr auto bases = Kinds::StringRange::info.bases(); // of any text, of a set, of a regular expression
    if (percent(40)) {
        const std::string value = percent(30) ? object("") : "";
        schema.reference("range", oneOf<Kinds::StringRange>(), value);
    } else if (percent(40)) {
        schema.reference("range", bases[1], object(R"("allowedValues":)" + allowedValues()));
    } else if (percent(60)) {
        schema.reference("range", bases[2], object(R"("regex":)" + quoted(regex())));
    } else if (percent(60)) {
        schema.reference("range", bases[0], object(""));
    }
}

void Generator::addBounds(SchemaText& schema, bool isFloat) {
    const auto [bottom, top] = boundaries(isFloat);
    const bool fromBottom = percent(80);
    schema.value("fromBottom", fromBottom ? "true" : "false");
    if (fromBottom) {
        schema.value("bottomBoundary", bottom);
    }
    const bool fromTop = percent(70);
    schema.value("fromTop", fromTop ? "true" : "false");
    if (fromTop) {
        schema.value("topBoundary", top);
    }
}

std::string Generator::oneOf(const Stock& stock, std::uint32_t step) {
    return nameOf(stock.vocabulary, step * random_.below(stock.count / step)).typeId;
}

std::pair<std::string, std::string> Generator::boundaries(bool isFloat) {
    std::pair<std::string, std::string> both{boundary(isFloat), boundary(isFloat)};
    if (std::stod(both.first) > std::stod(both.second)) {
        std::swap(both.first, both.second); // else nothing lies between them
    }
    return both;
}

std::string Generator::boundary(bool isFloat) {
    if (percent(1)) {
        return isFloat ? "1.7976931348623157e+308" : "-9223372036854775808";
    }
    std::string number = percent(25) ? "-" : "";
    number += std::to_string(random_.below(2000));
    if (isFloat && percent(60)) {
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
