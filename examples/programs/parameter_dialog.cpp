// What a dialog needs: all parameters by group, each with what may be entered, and a check of what was entered.
//   parameter_dialog FOLDER                 lists the rows of the dialog
//   parameter_dialog FOLDER TYPEID TEXT     checks the text that was entered for a parameter

#include "Files.h"

#include <parameters/ParametersEngine.h>

#include <algorithm>
#include <exception>
#include <functional>
#include <iostream>
#include <map>
#include <regex>
#include <sstream>
#include <string>

using namespace Parameters;

namespace {

/// One row: how the parameter is shown, and what is wrong with a text that is entered ("" if nothing is).
struct Row {
    std::string group;
    std::string name;
    std::string hint;
    bool readOnly;
    std::function<std::string(const std::string&)> complaintAbout;
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

template <class Parameter, class Complaint>
void add(std::map<std::string, Row>& rows, const Parameter& parameter, const std::string& hint, Complaint complaint) {
    const ParameterCore core = parameter.getCore();
    rows[core.getTypeId()] = {core.getGroup().getName(), core.getName(), hint, core.isReadOnly(), complaint};
}

/// Values are cheap to copy and never change, so that a row keeps the range that it needs. References are picked from
/// the model, not entered, and have no row.
std::map<std::string, Row> rowsOf(const ParametersEngine& engine) {
    std::map<std::string, Row> rows;
    for (const auto& [typeId, parameter] : engine.getAllIntParameters()) {
        add(rows, parameter, "whole number",
            [range = parameter.getRange()](const std::string& text) { return complaintAbout(range, text, ""); });
    }
    for (const auto& [typeId, parameter] : engine.getAllMeasurableParameters()) {
        const MeasurableSpec spec = parameter.getSpec();
        add(rows, parameter, hintOf(spec), [spec, range = parameter.getRange()](const std::string& text) {
            return complaintAbout(range, text, suffixOf(spec.getStorageUnit()));
        });
    }
    for (const auto& [typeId, parameter] : engine.getAllStringParameters()) {
        add(rows, parameter, "text",
            [range = parameter.getRange()](const std::string& text) { return complaintAbout(range, text); });
    }
    for (const auto& [typeId, parameter] : engine.getAllEnumerationParameters()) {
        add(rows, parameter, "choice", [enumeration = parameter.getEnumeration()](const std::string& text) {
            return complaintAbout(enumeration, text);
        });
    }
    for (const auto& [typeId, parameter] : engine.getAllBoolParameters()) {
        add(rows, parameter, parameter.getSpec().getCore().getName(),
            [](const std::string& text) { return text == "yes" || text == "no" ? "" : "yes or no"; });
    }
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
        std::cout << "  " << row->name << " (" << row->hint << ")" << (row->readOnly ? ", read-only" : "") << '\n';
    }
}

int run(const ParametersEngine& engine, int argc, char** argv) {
    const auto rows = rowsOf(engine);
    if (argc == 2) {
        list(rows);
        return 0;
    }
    const Row& row = rows.at(argv[2]);
    const std::string complaint = row.readOnly ? "read-only" : row.complaintAbout(argv[3]);
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
        engine.registerSchemas(textsIn(argv[1]));
        return run(engine, argc, argv);
    } catch (const std::exception& fault) {
        std::cerr << fault.what() << '\n';
        return 1;
    }
}
