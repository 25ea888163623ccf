// Loads a folder of schema files, one schema a file, and shows parameters with what they name.
//   show_parameters FOLDER              shows the first parameter of each kind
//   show_parameters FOLDER TYPEID...    shows the objects of these type identifiers, of whatever kind

#include "Files.h"

#include <parameters/Kinds.h>
#include <parameters/ParametersEngine.h>

#include <exception>
#include <iostream>
#include <string>
#include <string_view>

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

std::string quoted(std::string_view text) { return " \"" + std::string(text) + "\""; }

std::string describe(const StringRange& range) {
    if (const auto* regex = range.regexStringRangeComponent()) {
        return "matching " + regex->getRegex();
    }
    const auto* set = range.setStringRangeComponent();
    if (set == nullptr) {
        return "any text";
    }
    std::string values = "one of";
    for (const std::string_view value : set->allowedValues()) {
        values += quoted(value);
    }
    return values;
}

/// For what the library may add one day.
template <class Parameter>
std::string valuesOf(const Parameter&) {
    return "as the spec says";
}

std::string valuesOf(const BoolParameter&) { return "true or false"; }
std::string valuesOf(const IntParameter& parameter) { return describe(parameter.range()); }
std::string valuesOf(const StringParameter& parameter) { return describe(parameter.range()); }

std::string valuesOf(const MeasurableParameter& parameter) {
    return describe(parameter.range()) + " in " + parameter.spec().storageUnit().getName();
}

std::string valuesOf(const EnumerationParameter& parameter) {
    std::string values = "one of";
    for (const auto& [identifier, integer] : parameter.enumeration().values()) {
        values += quoted(identifier) + " (" + std::to_string(integer) + ")";
    }
    return values;
}

std::string valuesOf(const ReferenceParameter& parameter) {
    const Category* category = parameter.spec().category();
    return "a reference to " + (category != nullptr ? "an object of " + category->getName() : "any object");
}

template <class Kind>
void show(const ParametersEngine& engine, Kind, const typename Kind::Value& object) {
    std::cout << Kind::info.word() << ' ' << object << '\n';
    if constexpr (Kind::info.isParameter()) {
        std::cout << "  name    " << object.name() << '\n'
                  << "  group   " << object.core().group().name() << '\n'
                  << "  spec    " << object.spec().name() << '\n'
                  << "  values  " << valuesOf(object) << '\n';
    } else {
        std::cout << "  named by " << engine.dependentsOf(object.typeId()).size() << " objects\n";
    }
}

void showFirstOfEachKind(const ParametersEngine& engine) {
    forEachKind(Kinds::Parameters{}, [&](auto kind) {
        const auto parameters = kind.all(engine);
        if (!parameters.empty()) {
            show(engine, kind, parameters[0]);
        }
    });
}

//! [kind]
/// Shows the object of a type identifier that comes from elsewhere, and of which the kind is not known.
void showAny(const ParametersEngine& engine, std::string_view typeId) {
    const auto info = engine.kindOf(typeId);
    if (!info || engine.isPending(typeId)) {
        std::cout << "no object " << typeId << '\n';
        return;
    }
    visitKind(*info, [&](auto kind) { show(engine, kind, *kind.find(engine, typeId)); });
}
//! [kind]

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::cerr << "usage: show_parameters FOLDER [TYPEID...]\n";
        return 2;
    }
    try {
        ParametersEngine engine;
        printErrors(std::cerr, engine.registerSoundSchemas(textsIn(argv[1])));
        if (argc == 2) {
            showFirstOfEachKind(engine);
        }
        for (int i = 2; i < argc; ++i) {
            showAny(engine, argv[i]);
        }
    } catch (const std::exception& fault) {
        std::cerr << fault.what() << '\n';
        return 1;
    }
}
