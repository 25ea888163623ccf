#include "verbs/CommandLine.h"

#include "output/OutputFile.h"
#include "output/Text.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <string_view>

namespace Tool {

namespace {

std::string inOneLine(std::string text) {
    std::replace(text.begin(), text.end(), '\n', ' ');
    return text;
}

std::vector<const CLI::App*> verbsOf(const CLI::App& program) {
    return program.get_subcommands([](const CLI::App*) { return true; });
}

ArgumentHelp helpOf(const CLI::Option& option) {
    const std::string type = option.get_type_name(); // and its words: TYPE:{a,b}
    ArgumentHelp help{option.get_lnames().empty() ? "" : "--" + option.get_lnames().front(),
                      inOneLine(option.get_description()),
                      type.substr(0, type.find(':')),
                      {},
                      option.get_items_expected() != 0,
                      option.get_delimiter() == ','};
    if (const std::size_t brace = type.find('{'); brace != std::string::npos) {
        help.words = CLI::detail::split(type.substr(brace + 1, type.find('}') - brace - 1), ',');
    }
    return help;
}

/// Returns what to say of a verb that there is not; the library that reads the arguments takes it for a missing one.
std::string noVerb(const CLI::App& program, const std::vector<std::string>& arguments) {
    if (arguments.empty() || arguments.front().starts_with('-')) {
        return "a verb is required";
    }
    std::vector<std::string_view> names;
    for (const CLI::App* verb : verbsOf(program)) {
        names.emplace_back(verb->get_name());
    }
    return thereIsNo("verb", arguments.front(), names);
}

/// Says what is wrong with the arguments.
void complain(const CLI::App& program, const CLI::ParseError& error, const std::vector<std::string>& arguments) {
    const std::vector<CLI::App*> chosen = program.get_subcommands();
    const bool isMissing = dynamic_cast<const CLI::RequiredError*>(&error) != nullptr && chosen.empty();
    printError("ostra-params: " + (isMissing ? noVerb(program, arguments) : printable(error.what())) +
               "\n\"ostra-params" + (chosen.empty() ? "" : " " + chosen.front()->get_name()) +
               " --help\" tells more.\n");
}

} // namespace

Argument Argument::required(bool isRequired) const {
    option_->required(isRequired);
    return *this;
}

Argument Argument::check(const Check& check) const {
    option_->check(check);
    return *this;
}

Argument Argument::oneOf(const std::vector<std::string>& words) const {
    option_->check(CLI::IsMember(words));
    return *this;
}

Argument Argument::separatedByCommas() const {
    option_->delimiter(',')->allow_extra_args(false);
    return *this;
}

Argument Argument::excludes(Argument other) const {
    option_->excludes(other.option_);
    return *this;
}

Argument Verb::addFlag(const std::string& name, bool& isGiven, const std::string& help) const {
    return Argument(*verb_->add_flag(name, isGiven, help));
}

Argument Verb::add(const std::string& name, std::string& value, const std::string& type,
                   const std::string& help) const {
    return Argument(*verb_->add_option(name, value, help)->type_name(type));
}

Argument Verb::add(const std::string& name, std::vector<std::string>& values, const std::string& type,
                   const std::string& help) const {
    return Argument(*verb_->add_option(name, values, help)->type_name(type));
}

Argument Verb::add(const std::string& name, std::set<std::string, std::less<>>& values, const std::string& type,
                   const std::string& help) const {
    return Argument(*verb_->add_option(name, values, help)->type_name(type));
}

void Verb::footer(const std::string& text) const { verb_->footer(text); }

void Verb::afterReading(const std::function<void()>& look) const { verb_->parse_complete_callback(look); }

void refuseWithout(const std::string& needed) { throw CLI::RequiredError(needed); }

void refuseExtra(const std::vector<std::string>& arguments) { throw CLI::ExtrasError(arguments); }

void refuseWithout(const std::string& needed, const std::string& argument) {
    throw CLI::RequiresError(argument, needed);
}

CommandLine::CommandLine(const std::string& help, const std::string& footer)
    : program_(std::make_unique<CLI::App>(help, "ostra-params")) {
    program_->allow_windows_style_options(false); // which paths may look like
    program_->set_version_flag("--version", std::string("ostra-params ") + OSTRA_PARAMETERS_VERSION);
    program_->footer(footer);
    program_->get_formatter()->label("SUBCOMMAND", "VERB");
    program_->get_formatter()->label("REQUIRED", "(required)");
    program_->require_subcommand(1);
}

CommandLine::~CommandLine() = default;

Verb CommandLine::addVerb(const std::string& name, const std::string& help) {
    CLI::App* verb = program_->add_subcommand(name, help)->group("Verbs");
    return {*verb, actions_[verb]};
}

std::vector<VerbHelp> CommandLine::help() const {
    std::vector<VerbHelp> verbs;
    for (const CLI::App* each : verbsOf(*program_)) {
        VerbHelp& verb = verbs.emplace_back(VerbHelp{each->get_name(), inOneLine(each->get_description()), {}});
        for (const CLI::Option* option : each->get_options()) {
            verb.arguments.push_back(helpOf(*option));
        }
    }
    return verbs;
}

ExitCode CommandLine::run(const std::vector<std::string>& arguments) {
    try {
        program_->parse(std::vector<std::string>(arguments.rbegin(), arguments.rend())); // as it wants them
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() == 0) { // help, or the version
            program_->exit(error);
            return Good;
        }
        complain(*program_, error, arguments);
        return Unusable;
    }
    return actions_.at(program_->get_subcommands().front())();
}

} // namespace Tool
