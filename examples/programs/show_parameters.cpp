// Loads a folder of schema files, one schema a file, and shows the first parameter of each kind with what it names.

#include "Files.h"

#include <parameters/Kinds.h>
#include <parameters/ParametersEngine.h>

#include <exception>
#include <iostream>
#include <string>

using namespace Parameters;

namespace {

std::string boundsOf(bool fromBottom, const std::string& bottom, bool fromTop, const std::string& top) {
    if (!fromBottom && !fromTop) {
        return "unbounded";
    }
    return (fromBottom ? "from " + bottom : "") + (fromBottom && fromTop ? " " : "") + (fromTop ? "to " + top : "");
}

template <class Range>
std::string describe(const Range& range) {
    return boundsOf(range.isBoundFromBottom(), std::to_string(range.getBottomBoundary()), range.isBoundFromTop(),
                    std::to_string(range.getTopBoundary()));
}

std::string describe(const StringRange& range) {
    if (const auto regex = range.getRegexStringRangeComponent()) {
        return "matching " + regex->getRegex();
    }
    const auto set = range.getSetStringRangeComponent();
    if (!set) {
        return "any text";
    }
    std::string values = "one of";
    for (const std::string& value : set->getAllowedValues()) {
        values += " \"" + value + "\"";
    }
    return values;
}

/// For what the library may add one day.
template <class Parameter>
std::string valuesOf(const Parameter&) {
    return "as the spec says";
}

std::string valuesOf(const BoolParameter&) { return "true or false"; }
std::string valuesOf(const IntParameter& parameter) { return describe(parameter.getRange()); }
std::string valuesOf(const StringParameter& parameter) { return describe(parameter.getRange()); }

std::string valuesOf(const MeasurableParameter& parameter) {
    return describe(parameter.getRange()) + " in " + parameter.getSpec().getStorageUnit().getName();
}

std::string valuesOf(const EnumerationParameter& parameter) {
    std::string values = "one of";
    for (const auto& [identifier, integer] : parameter.getEnumeration().getValues()) {
        values += " \"" + identifier + "\" (" + std::to_string(integer) + ")";
    }
    return values;
}

std::string valuesOf(const ReferenceParameter& parameter) {
    const auto category = parameter.getSpec().getCategory();
    return "a reference to " + (category ? "an object of " + category->getName() : std::string("any object"));
}

template <class Parameter>
void show(KindInfo kind, const Parameter& parameter) {
    std::cout << kind.word() << ' ' << parameter.getCore().getTypeId() << '\n'
              << "  name    " << parameter.getCore().getName() << '\n'
              << "  group   " << parameter.getCore().getGroup().getName() << '\n'
              << "  spec    " << parameter.getSpec().getCore().getName() << '\n'
              << "  values  " << valuesOf(parameter) << '\n';
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: show_parameters FOLDER\n";
        return 2;
    }
    try {
        ParametersEngine engine;
        printErrors(std::cerr, engine.registerSoundSchemas(textsIn(argv[1])));
        forEachKind(Kinds::Parameters{}, [&](auto kind) {
            const auto parameters = kind.getAll(engine);
            if (!parameters.empty()) {
                show(kind.info, parameters.begin()->second);
            }
        });
    } catch (const std::exception& fault) {
        std::cerr << fault.what() << '\n';
        return 1;
    }
}
