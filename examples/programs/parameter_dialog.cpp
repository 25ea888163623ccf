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
#include <map>
#include <optional>
#include <regex>
#include <sstream>
#include <string>

using namespace Parameters;

namespace {

/// What may be entered for a parameter: a hint, and what is wrong with a text ("" if nothing is).
struct Entry {
    std::string hint;
    std::function<std::string(const std::string&)> complaintAbout;
};

/// One row: how the parameter is shown, and what may be entered.
struct Row {
    std::string group;
    std::string name;
    bool readOnly;
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
    if (const auto set = range.getSetStringRangeComponent()) {
        const auto values = set->getAllowedValues();
        return std::find(values.begin(), values.end(), text) != values.end() ? "" : "not one of the allowed values";
    }
    const auto regex = range.getRegexStringRangeComponent();
    return !regex || std::regex_match(text, std::regex(regex->getRegex())) ? "" : "must match " + regex->getRegex();
}
//! [text]

std::string complaintAbout(const Enumeration& enumeration, const std::string& text) {
    for (const auto& [identifier, integer] : enumeration.getValues()) {
        if (identifier == text) {
            return "";
        }
    }
    return "not one of the choices";
}

/// Returns the symbol with a blank before it, or nothing for a unit without one.
std::string suffixOf(const Units::Unit& unit) { return unit.getSymbol().empty() ? "" : " " + unit.getSymbol(); }

/// Values are entered in the storage unit; the others are those in which they may be shown.
std::string hintOf(const MeasurableSpec& spec) {
    std::string hint = "number" + suffixOf(spec.getStorageUnit());
    for (const Units::Unit& unit : spec.getApplicableUnits()) {
        if (unit != spec.getStorageUnit()) {
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

// Values are cheap to copy and never change, so that an entry keeps the range that it needs.

std::optional<Entry> entryOf(const IntParameter& parameter) {
    return Entry{"whole number",
                 [range = parameter.getRange()](const std::string& text) { return complaintAbout(range, text, ""); }};
}

std::optional<Entry> entryOf(const MeasurableParameter& parameter) {
    const MeasurableSpec spec = parameter.getSpec();
    return Entry{hintOf(spec), [spec, range = parameter.getRange()](const std::string& text) {
                     return complaintAbout(range, text, suffixOf(spec.getStorageUnit()));
                 }};
}

std::optional<Entry> entryOf(const StringParameter& parameter) {
    return Entry{"text",
                 [range = parameter.getRange()](const std::string& text) { return complaintAbout(range, text); }};
}

std::optional<Entry> entryOf(const EnumerationParameter& parameter) {
    return Entry{"choice", [enumeration = parameter.getEnumeration()](const std::string& text) {
                     return complaintAbout(enumeration, text);
                 }};
}

std::optional<Entry> entryOf(const BoolParameter& parameter) {
    return Entry{parameter.getSpec().getCore().getName(),
                 [](const std::string& text) { return text == "yes" || text == "no" ? "" : "yes or no"; }};
}

std::map<std::string, Row> rowsOf(const ParametersEngine& engine) {
    std::map<std::string, Row> rows;
    forEachKind(Kinds::Parameters{}, [&](auto kind) {
        for (const auto& [typeId, parameter] : kind.getAll(engine)) {
            const ParameterCore core = parameter.getCore();
            if (const auto entry = entryOf(parameter)) {
                rows[typeId] = {core.getGroup().getName(), core.getName(), core.isReadOnly(), *entry};
            }
        }
    });
    return rows;
}

void list(const std::map<std::string, Row>& rows) {
    std::multimap<std::string, const Row*> groups;
    for (const auto& [typeId, row] : rows) {
        groups.emplace(row.group, &row);
    }
    std::string heading;
    for (const auto& [group, row] : groups) {
        if (group != heading) {
            heading = group;
            std::cout << heading << '\n';
        }
        std::cout << "  " << row->name << " (" << row->entry.hint << ")" << (row->readOnly ? ", read-only" : "")
                  << '\n';
    }
}

int run(const ParametersEngine& engine, int argc, char** argv) {
    const auto rows = rowsOf(engine);
    if (argc == 2) {
        list(rows);
        return 0;
    }
    const Row& row = rows.at(argv[2]);
    const std::string complaint = row.readOnly ? "read-only" : row.entry.complaintAbout(argv[3]);
    std::cout << row.name << ": " << (complaint.empty() ? "accepted" : complaint) << '\n';
    return complaint.empty() ? 0 : 1;
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
        return run(engine, argc, argv);
    } catch (const std::exception& fault) {
        std::cerr << fault.what() << '\n';
        return 1;
    }
}
