#include "catalogue/Sections.h"
#include "compare/Breaking.h"
#include "faults/Rules.h"
#include "output/OutputFile.h"
#include "output/Text.h"
#include "verbs/Verb.h"

#include <fmt/format.h>

#include <algorithm>
#include <memory>

namespace Tool {

namespace {

constexpr const char* details =
    R"script(The script knows the verbs, options and values of this program. Installing puts one
where each shell looks for it; others load it themselves:

  bash  source <(ostra-params completion bash)
  zsh   eval "$(ostra-params completion zsh)"
  fish  ostra-params completion fish | source)script";

/// What may stand behind an option.
enum class Takes { nothing, word, oneOfWords, severalOfWords, file };

struct Option {
    std::string name; ///< With its hyphens.
    std::string help;
    std::string type;
    std::vector<std::string> words;
    Takes takes;
};

struct Completed {
    std::string name; ///< Of a verb.
    std::string help;
    std::vector<Option> options = {};
    std::vector<std::string> words = {}; ///< One of which comes first; else there are files.
};

/// Returns the values among which an option or argument lets choose.
std::vector<std::string> wordsOf(const ArgumentHelp& argument) {
    std::vector<std::string> words = argument.words;
    if (argument.type == "CODE" && words.empty()) {
        for (const Rule& rule : rules()) {
            words.emplace_back(rule.code);
        }
    } else if (argument.type == "RULE") {
        for (const Compare::BreakingRule& rule : Compare::breakingRules()) {
            words.emplace_back(rule.code);
        }
    } else if (argument.type == "KIND") {
        for (const Section& section : sections()) {
            words.emplace_back(section.id);
        }
    }
    return words;
}

Option describe(const ArgumentHelp& argument) {
    Option option{argument.name, argument.text, argument.type, wordsOf(argument), Takes::nothing};
    if (argument.hasValue) {
        option.takes = !option.words.empty()             ? argument.isList ? Takes::severalOfWords : Takes::oneOfWords
                       : argument.type.find("FILE") == 0 ? Takes::file
                                                         : Takes::word;
    }
    return option;
}

/// Returns the verbs as the program itself describes them.
std::vector<Completed> verbsOf(const CommandLine& program) {
    std::vector<Completed> verbs;
    for (const VerbHelp& help : program.help()) {
        Completed& verb = verbs.emplace_back(Completed{help.name, help.text});
        for (const ArgumentHelp& argument : help.arguments) {
            if (!argument.name.empty()) {
                verb.options.push_back(describe(argument));
            } else if (verb.words.empty()) {
                verb.words = wordsOf(argument);
            }
        }
    }
    return verbs;
}

/// Returns a text between single quotes, in which a shell takes nothing but these, and perhaps others, for a sign.
std::string inQuotes(std::string_view text, std::string_view signs, std::string_view quote) {
    std::string result = "'";
    for (const char character : text) {
        if (character == '\'') {
            result += quote;
            continue;
        }
        if (signs.find(character) != std::string_view::npos) {
            result += '\\';
        }
        result += character;
    }
    result += '\'';
    return result;
}

constexpr const char* bash = R"script(# Completion of ostra-params for bash.

_ostra_params() {{
    local current=${{COMP_WORDS[COMP_CWORD]}} previous=${{COMP_WORDS[COMP_CWORD - 1]}} verb=${{COMP_WORDS[1]}}
    local -A options=(
{}    )
    local -A words=(
{}    )
    local -A lists=(
{}    )
    COMPREPLY=()
    if ((COMP_CWORD == 1)); then
        mapfile -t COMPREPLY < <(compgen -W "${{!options[*]}} --help --version" -- "$current")
    elif [[ -v lists["$verb $previous"] ]]; then
        local last=${{current##*,}}
        mapfile -t COMPREPLY < <(compgen -P "${{current%"$last"}}" -W "${{lists["$verb $previous"]}}" -- "$last")
    elif [[ -v words["$verb $previous"] ]]; then
        mapfile -t COMPREPLY < <(compgen -W "${{words["$verb $previous"]}}" -- "$current")
    elif ((COMP_CWORD == 2)) && [[ -v words["$verb"] ]]; then
        mapfile -t COMPREPLY < <(compgen -W "${{words["$verb"]}}" -- "$current")
    elif [[ $current == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "${{options["$verb"]}}" -- "$current")
    else
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -f -- "$current")
    fi
}}

complete -F _ostra_params ostra-params
)script";

std::string forBash(const std::vector<Completed>& verbs) {
    std::string options;
    std::string words;
    std::string lists;
    for (const Completed& verb : verbs) {
        std::string names;
        for (const Option& option : verb.options) {
            names += (names.empty() ? "" : " ") + option.name;
            if (option.takes == Takes::word || !option.words.empty()) {
                (option.takes == Takes::severalOfWords ? lists : words) +=
                    fmt::format("        [\"{} {}\"]=\"{}\"\n", verb.name, option.name, fmt::join(option.words, " "));
            }
        }
        options += fmt::format("        [{}]=\"{}\"\n", verb.name, names);
        words +=
            verb.words.empty() ? "" : fmt::format("        [\"{}\"]=\"{}\"\n", verb.name, fmt::join(verb.words, " "));
    }
    return fmt::format(bash, options, words, lists);
}

constexpr const char* zsh = R"script(#compdef ostra-params
# Completion of ostra-params for zsh.

_ostra-params() {{
    local -a verbs=(
{}    )
    if ((CURRENT == 2)); then
        _describe -t verbs verb verbs
        _arguments '--help[Print the verbs and exit]' '--version[Print the version and exit]'
        return
    fi
    shift words
    ((CURRENT--))
    case $words[1] in
{}    esac
}}

compdef _ostra-params ostra-params
)script";

std::string forZsh(const std::vector<Completed>& verbs) {
    const auto quoted = [](std::string_view text) { return inQuotes(text, "", "'\\''"); };
    const auto escaped = [](std::string_view text) {
        return encoded(
            text, [](char sign) { return std::string_view("[]:\\").find(sign) == std::string::npos; }, "\\{:c}");
    };
    std::string names;
    std::string cases;
    for (const Completed& verb : verbs) {
        names += "        " + quoted(verb.name + ":" + escaped(verb.help)) + "\n";
        cases += fmt::format("        {}) _arguments", verb.name);
        for (const Option& option : verb.options) {
            std::string specification =
                (option.takes == Takes::severalOfWords ? "*" : "") + option.name + "[" + escaped(option.help) + "]";
            if (option.takes != Takes::nothing) {
                specification += ":" + option.type + ":";
            }
            specification += option.takes == Takes::file ? "_files"
                             : option.takes == Takes::severalOfWords
                                 ? fmt::format("_sequence compadd - {}", fmt::join(option.words, " "))
                             : option.takes == Takes::oneOfWords ? fmt::format("({})", fmt::join(option.words, " "))
                                                                 : "";
            cases += " \\\n            " + quoted(specification);
        }
        cases += " \\\n            " +
                 (verb.words.empty() ? quoted("*:path:_files")
                                     : quoted(fmt::format("1:word:({})", fmt::join(verb.words, " ")))) +
                 " ;;\n";
    }
    return fmt::format(zsh, names, cases);
}

std::string forFish(const std::vector<Completed>& verbs) {
    const auto quoted = [](std::string_view text) { return inQuotes(text, "\\", "\\'"); };
    std::string script =
        "# Completion of ostra-params for fish.\n\n"
        "complete -c ostra-params -n __fish_use_subcommand -f\n"
        "complete -c ostra-params -n __fish_use_subcommand -l help -d 'Print the verbs and exit'\n"
        "complete -c ostra-params -n __fish_use_subcommand -l version -d 'Print the version and exit'\n";
    for (const Completed& verb : verbs) {
        script += fmt::format("\ncomplete -c ostra-params -n __fish_use_subcommand -f -a {} -d {}\n", verb.name,
                              quoted(verb.help));
        const std::string line = fmt::format("complete -c ostra-params -n '__fish_seen_subcommand_from {}'", verb.name);
        if (!verb.words.empty()) {
            script += fmt::format("{} -f -a {}\n", line, quoted(fmt::format("{}", fmt::join(verb.words, " "))));
        }
        for (const Option& option : verb.options) {
            const std::string words = fmt::format("{}", fmt::join(option.words, " "));
            const std::string values = option.takes == Takes::nothing ? ""
                                       : option.takes == Takes::file  ? " -r"
                                       : option.takes == Takes::word  ? " -x"
                                       : option.takes == Takes::severalOfWords
                                           ? " -x -a '(__fish_append , " + words + ")'"
                                           : " -x -a '" + words + "'";
            script += fmt::format("{} -l {}{} -d {}\n", line, option.name.substr(2), values, quoted(option.help));
        }
    }
    return script;
}

} // namespace

void addCompletion(CommandLine& program) {
    const auto shell = std::make_shared<std::string>();
    const Verb verb = program.addVerb("completion", "Print a script that lets a shell complete what is typed");
    verb.add("SHELL", *shell, "", "bash, zsh or fish").required().oneOf({"bash", "zsh", "fish"});
    verb.footer(details);
    verb.does([shell, &program] {
        const std::vector<Completed> verbs = verbsOf(program);
        print(*shell == "bash" ? forBash(verbs) : *shell == "zsh" ? forZsh(verbs) : forFish(verbs));
        return Good;
    });
}

} // namespace Tool
