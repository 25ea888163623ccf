#pragma once

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace CLI {
class App;
class Option;
} // namespace CLI

namespace Tool {

/// What the program tells the shell.
enum ExitCode {
    Good = 0,
    Bad = 1,     ///< Faults, or differences.
    Unusable = 2 ///< Wrong usage, or an input or output that fails.
};

/// Does what a verb is for, after the arguments are read.
using Action = std::function<ExitCode()>;

/// Returns what is wrong with the text of an argument; nothing when it is right.
using Check = std::function<std::string(const std::string&)>;

/// An option of a verb, or what stands behind it without a name. What more is said of it returns it.
class Argument {
public:
    explicit Argument(CLI::Option& option) : option_(&option) {}

    Argument required(bool isRequired = true) const;
    Argument check(const Check& check) const; ///< Of each value.
    Argument oneOf(const std::vector<std::string>& words) const;
    Argument separatedByCommas() const; ///< Its values; a blank ends them.
    Argument excludes(Argument other) const;

private:
    CLI::Option* option_;
};

/// One of the things that the program does. What it reads from the arguments must live until the program has run.
class Verb {
public:
    Verb(CLI::App& verb, Action& action) : verb_(&verb), action_(&action) {}

    Argument addFlag(const std::string& name, bool& isGiven, const std::string& help) const;

    /// Adds an argument with its value, which help calls by its type: an option if the name begins with a hyphen.
    /// @{
    Argument add(const std::string& name, std::string& value, const std::string& type, const std::string& help) const;
    Argument add(const std::string& name, std::vector<std::string>& values, const std::string& type,
                 const std::string& help) const;
    Argument add(const std::string& name, std::set<std::string, std::less<>>& values, const std::string& type,
                 const std::string& help) const;
    /// @}

    /// Says what stands at the end of the verb's help.
    void footer(const std::string& text) const;

    /// Looks at the arguments together, once all are read.
    void afterReading(const std::function<void()>& look) const;

    void does(Action action) const { *action_ = std::move(action); }

private:
    CLI::App* verb_;
    Action* action_;
};

/// Each refuses the arguments when they are looked at together: since one is needed, by another one or by the verb, or
/// since there are more than the verb takes.
/// @{
[[noreturn]] void refuseWithout(const std::string& needed);
[[noreturn]] void refuseWithout(const std::string& needed, const std::string& argument);
[[noreturn]] void refuseExtra(const std::vector<std::string>& arguments);
/// @}

/// What the help says of an argument.
struct ArgumentHelp {
    std::string name; ///< With its hyphens; empty without a name.
    std::string text; ///< In one line, as that of a verb.
    std::string type;
    std::vector<std::string> words; ///< Among which it lets choose.
    bool hasValue;
    bool isList; ///< With commas.
};

/// What the help says of a verb.
struct VerbHelp {
    std::string name;
    std::string text;
    std::vector<ArgumentHelp> arguments;
};

/// The verbs of the program. The library that reads arguments is included by its source alone, as that would be most of
/// what a source takes to compile.
class CommandLine {
public:
    CommandLine(const std::string& help, const std::string& footer);
    CommandLine(const CommandLine&) = delete;
    CommandLine& operator=(const CommandLine&) = delete;
    ~CommandLine();

    Verb addVerb(const std::string& name, const std::string& help);

    /// Returns the verbs in the order in which they were added.
    std::vector<VerbHelp> help() const;

    /// Does what the arguments ask for, or says what is wrong with them.
    ExitCode run(const std::vector<std::string>& arguments);

private:
    std::unique_ptr<CLI::App> program_;
    std::map<const CLI::App*, Action> actions_;
};

} // namespace Tool
