#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace CLI {
class App;
} // namespace CLI

namespace Tool {

class Catalogue;
struct Object;

/// What the program tells the shell.
enum ExitCode {
    Good = 0,
    Bad = 1,     ///< Faults, or differences.
    Unusable = 2 ///< Wrong usage, or an input or output that fails.
};

/// Does what a verb is for, after the arguments are read.
using Action = std::function<ExitCode()>;

/// Each adds a verb to the program and returns its action.
/// @{
Action addCheck(CLI::App& program);
Action addList(CLI::App& program);
Action addShow(CLI::App& program);
Action addDeps(CLI::App& program);
Action addExport(CLI::App& program);
Action addDiff(CLI::App& program);
Action addFormat(CLI::App& program);
Action addRename(CLI::App& program);
Action addFix(CLI::App& program);
Action addCompletion(CLI::App& program);
Action addReport(CLI::App& program);
Action addNew(CLI::App& program);
Action addJsonSchema(CLI::App& program);
Action addLsp(CLI::App& program);
/// @}

/// Adds the paths of a catalogue to a verb: required, or the working folder when none is given.
void addPaths(CLI::App& verb, std::vector<std::string>& paths, bool isRequired);

/// Refuses standard input among the paths of what is changed in place.
/// @throws InputError
void mustBeFiles(const std::vector<std::string>& paths);

/// Adds an argument that must be given, and not be empty, to a verb.
void addRequired(CLI::App& verb, const std::string& name, std::string& value, const std::string& help,
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
void addTypeId(CLI::App& verb, std::string& typeId);

/// Returns the object of a typeid, or the only one whose typeid has the text in it.
/// @throws NotFound
const Object& findObject(const Catalogue& catalogue, const std::string& text);

} // namespace Tool
