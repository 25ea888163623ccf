#pragma once

#include "verbs/CommandLine.h"

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace Tool {

class Catalogue;
struct Object;

/// Each adds a verb to the program.
/// @{
void addCheck(CommandLine& program);
void addList(CommandLine& program);
void addShow(CommandLine& program);
void addDeps(CommandLine& program);
void addExport(CommandLine& program);
void addDiff(CommandLine& program);
void addFormat(CommandLine& program);
void addRename(CommandLine& program);
void addFix(CommandLine& program);
void addCompletion(CommandLine& program);
void addReport(CommandLine& program);
void addNew(CommandLine& program);
void addJsonSchema(CommandLine& program);
void addLsp(CommandLine& program);
/// @}

/// Adds the paths of a catalogue to a verb: required, or the working folder when none is given.
void addPaths(const Verb& verb, std::vector<std::string>& paths, bool isRequired);

/// Refuses standard input among the paths of what is changed in place.
/// @throws InputError
void mustBeFiles(const std::vector<std::string>& paths);

/// Adds an argument that must be given, and not be empty, to a verb.
void addRequired(const Verb& verb, const std::string& name, std::string& value, const std::string& help,
                 const std::string& type);

/// Returns what is wrong with an argument: that it is empty. A check for options of paths and typeids.
std::string refuseEmpty(const std::string& argument);

/// Returns the kinds as options name them, for the help of an option.
std::string kindIds();

/// Says on standard error that a catalogue has faults, if it has, and returns the exit code that says so, too.
ExitCode warnOfFaults(const Catalogue& catalogue);

/// Prints the faults of a catalogue on standard error, and warnings of a code; returns whether there are any.
bool printFaults(const Catalogue& catalogue, std::string_view warningCode = {});

/// There is no object of a typeid. Its message names those that may be meant.
struct NotFound : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Adds the typeid of an object to a verb.
void addTypeId(const Verb& verb, std::string& typeId);

/// Returns the object of a typeid, or the only one whose typeid has the text in it.
/// @throws NotFound
const Object& findObject(const Catalogue& catalogue, const std::string& text);

} // namespace Tool
