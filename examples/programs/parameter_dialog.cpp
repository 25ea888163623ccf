// What a dialog needs: all parameters by group, each with what may be entered, and a check of what was entered.
//   parameter_dialog FOLDER                 lists the rows of the dialog
//   parameter_dialog FOLDER TYPEID TEXT     checks the text that was entered for a parameter

#include "Files.h"

#include <parameters/Kinds.h>
#include <parameters/ParametersEngine.h>

#include <algorithm>
#include <exception>
#include <functional>
#include <iostream>
#include <optional>
#include <regex>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

using namespace Parameters;

namespace {

/// What may be entered for a parameter: a hint, and what is wrong with a text ("" if nothing is).
struct Entry {
    std::string hint;
    std::function<std::string(const std::string&)> complaintAbout;
};

/// One row: how the parameter is shown, and what may be entered.
struct Row {
    ParameterCore core;
    Entry entry;
};

//! [range]
/// The library describes a range and tests nothing; that bounds belong to the range is the choice of this dialog.
template <class Range>
std::string complaintAbout(const Range& range, const std::string& text, const std::string& unit) {
    auto value = range.getBottomBoundary();
    std::istringstream stream(text);
    std::ostringstream complaint;
    if (!(stream >> value) || !stream.eof()) {
        complaint << "not a number";
    } else if (range.isBoundFromBottom() && value < range.getBottomBoundary()) {
        complaint << "at least " << range.getBottomBoundary() << unit;
    } else if (range.isBoundFromTop() && value > range.getTopBoundary()) {
        complaint << "at most " << range.getTopBoundary() << unit;
    }
    return complaint.str();
}
//! [range]

//! [text]
std::string complaintAbout(const StringRange& range, const std::string& text) {
    if (const auto* set = range.setStringRangeComponent()) {
        const auto values = set->allowedValues();
        return std::find(values.begin(), values.end(), text) != values.end() ? "" : "not one of the allowed values";
    }
    const auto* regex = range.regexStringRangeComponent();
    return regex == nullptr || std::regex_match(text, std::regex(regex->getRegex()))
               ? ""
               : "must match " + regex->getRegex();
}
//! [text]

std::string complaintAbout(const Enumeration& enumeration, const std::string& text) {
    const auto identifiers = enumeration.values().identifiers();
    return std::find(identifiers.begin(), identifiers.end(), text) != identifiers.end() ? "" : "not one of the choices";
}

/// Returns the symbol with a blank before it, or nothing for a unit without one.
std::string suffixOf(const Units::Unit& unit) { return unit.getSymbol().empty() ? "" : " " + unit.getSymbol(); }

/// Values are entered in the storage unit; the others are those in which they may be shown.
std::string hintOf(const MeasurableSpec& spec) {
    std::string hint = "number" + suffixOf(spec.storageUnit());
    for (const Units::Unit& unit : spec.applicableUnits()) {
        if (unit != spec.storageUnit()) {
            hint += ", shown in" + suffixOf(unit) + " too";
        }
    }
    return hint;
}

/// References are picked from the model, not entered; and a kind that the library has added since has no row either.
template <class Parameter>
std::optional<Entry> entryOf(const Parameter&) {
    return std::nullopt;
}

// Values are cheap to copy and never change, so that an entry keeps the value that it needs.

std::optional<Entry> entryOf(const IntParameter& parameter) {
    return Entry{"whole number",
                 [range = parameter.range()](const std::string& text) { return complaintAbout(range, text, ""); }};
}

std::optional<Entry> entryOf(const MeasurableParameter& parameter) {
    return Entry{hintOf(parameter.spec()), [parameter](const std::string& text) {
                     return complaintAbout(parameter.range(), text, suffixOf(parameter.spec().storageUnit()));
                 }};
}

std::optional<Entry> entryOf(const StringParameter& parameter) {
    return Entry{"text", [range = parameter.range()](const std::string& text) { return complaintAbout(range, text); }};
}

std::optional<Entry> entryOf(const EnumerationParameter& parameter) {
    return Entry{"choice", [enumeration = parameter.enumeration()](const std::string& text) {
                     return complaintAbout(enumeration, text);
                 }};
}

std::optional<Entry> entryOf(const BoolParameter& parameter) {
    return Entry{parameter.spec().core().getName(),
                 [](const std::string& text) { return text == "yes" || text == "no" ? "" : "yes or no"; }};
}

/// Returns the row of a parameter, if it has one.
template <class Parameter>
std::optional<Row> rowOf(const Parameter& parameter) {
    auto entry = entryOf(parameter);
    return entry ? std::optional(Row{parameter.core(), *std::move(entry)}) : std::nullopt;
}

void list(const ParametersEngine& engine) {
    std::vector<Row> rows;
    forEachObject(engine, Kinds::Parameters{}, [&](auto, const auto& parameter) {
        if (auto row = rowOf(parameter)) {
            rows.push_back(*std::move(row));
        }
    });
    std::sort(rows.begin(), rows.end(), [](const Row& one, const Row& other) {
        return std::pair(one.core.group().name(), one.core.typeId()) <
               std::pair(other.core.group().name(), other.core.typeId());
    });
    std::string_view heading;
    for (const auto& [core, entry] : rows) {
        if (core.group().name() != heading) {
            heading = core.group().name();
            std::cout << heading << '\n';
        }
        std::cout << "  " << core.name() << " (" << entry.hint << ")" << (core.isReadOnly() ? ", read-only" : "")
                  << '\n';
    }
}

/// Returns whether a text may be entered for a parameter.
bool check(const ParametersEngine& engine, const char* typeId, const char* text) {
    std::optional<Row> row;
    forEachKind(Kinds::Parameters{}, [&](auto kind) {
        if (const auto parameter = kind.find(engine, typeId)) {
            row = rowOf(*parameter);
        }
    });
    if (!row) {
        std::cout << "no row for " << typeId << '\n';
        return false;
    }
    const std::string complaint = row->core.isReadOnly() ? "read-only" : row->entry.complaintAbout(text);
    std::cout << row->core.name() << ": " << (complaint.empty() ? "accepted" : complaint) << '\n';
    return complaint.empty();
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2 && argc != 4) {
        std::cerr << "usage: parameter_dialog FOLDER [TYPEID TEXT]\n";
        return 2;
    }
    try {
        ParametersEngine engine;
        printErrors(std::cerr, engine.registerSoundSchemas(textsIn(argv[1])));
        if (argc == 2) {
            list(engine);
            return 0;
        }
        return check(engine, argv[2], argv[3]) ? 0 : 1;
    } catch (const std::exception& fault) {
        std::cerr << fault.what() << '\n';
        return 1;
    }
}
