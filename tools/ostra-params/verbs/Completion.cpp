#include "catalogue/Sections.h"
#include "compare/Breaking.h"
#include "faults/Rules.h"
#include "output/OutputFile.h"
#include "output/Text.h"
#include "verbs/Verb.h"

#include <CLI/CLI.hpp>
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
    std::string help; ///< In one line.
    std::string type;
    Takes takes = Takes::nothing;
    std::vector<std::string> words = {};
};

struct Verb {
    std::string name;
    std::string help;
    std::vector<Option> options = {};
    std::vector<std::string> words = {}; ///< One of which comes first; else there are files.
};

std::string inOneLine(std::string text) {
    std::replace(text.begin(), text.end(), '\n', ' ');
    return text;
}

/// Returns the values among which an option or argument lets choose.
std::vector<std::string> wordsOf(const CLI::Option& option) {
    const std::string type = option.get_type_name();
    std::vector<std::string> words;
    if (const std::size_t brace = type.find('{'); brace != std::string::npos) {
        words = CLI::detail::split(type.substr(brace + 1, type.find('}') - brace - 1), ',');
    } else if (type == "CODE") {
        for (const Rule& rule : rules()) {
            words.emplace_back(rule.code);
        }
    } else if (type == "RULE") {
        for (const Compare::BreakingRule& rule : Compare::breakingRules()) {
            words.emplace_back(rule.code);
        }
    } else if (type == "KIND") {
        for (const Section& section : sections()) {
            words.emplace_back(section.id);
        }
    }
    return words;
}

Option describe(const CLI::Option& option) {
    const std::string type = option.get_type_name();
    Option described{"--" + option.get_lnames().front(), inOneLine(option.get_description()),
                     type.substr(0, type.find(':'))};
    described.words = wordsOf(option);
    described.takes = option.get_items_expected() == 0                    ? Takes::nothing
                      : described.words.empty() && type.find("FILE") != 0 ? Takes::word
                      : described.words.empty()                           ? Takes::file
                      : option.get_delimiter() == ','                     ? Takes::severalOfWords
                                                                          : Takes::oneOfWords;
    return described;
}

/// Returns the verbs as the program itself describes them.
std::vector<Verb> verbsOf(const CLI::App& program) {
    std::vector<Verb> verbs;
    for (const CLI::App* each : program.get_subcommands([](const CLI::App*) { return true; })) {
        Verb& verb = verbs.emplace_back(Verb{each->get_name(), inOneLine(each->get_description())});
        for (const CLI::Option* option : each->get_options()) {
            if (!option->get_lnames().empty()) {
                verb.options.push_back(describe(*option));
            } else if (verb.words.empty()) {
                verb.words = wordsOf(*option);
            }
        }
    }
    return verbs;
}

/// Returns a text between single quotes, in which a shell takes nothing but these, and perhaps others, for a sign.
std::string inQuotes(std::string_view text, std::string_view signs, std::string_view quote) {
    std::string result = "'";
    for (const char character : text) {
        result += character == '\''
                      ? std::string(quote)
                      : (signs.find(character) == std::string_view::npos ? "" : "\\") + std::string(1, character);
    }
    return result + "'";
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

std::string forBash(const std::vector<Verb>& verbs) {
    std::string options;
    std::string words;
    std::string lists;
    for (const Verb& verb : verbs) {
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

std::string forZsh(const std::vector<Verb>& verbs) {
    const auto quoted = [](std::string_view text) { return inQuotes(text, "", "'\\''"); };
    const auto escaped = [](std::string_view text) {
        return encoded(
            text, [](char sign) { return std::string_view("[]:\\").find(sign) == std::string::npos; }, "\\{:c}");
    };
    std::string names;
    std::string cases;
    for (const Verb& verb : verbs) {
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

std::string forFish(const std::vector<Verb>& verbs) {
    const auto quoted = [](std::string_view text) { return inQuotes(text, "\\", "\\'"); };
    std::string script =
        "# Completion of ostra-params for fish.\n\n"
        "complete -c ostra-params -n __fish_use_subcommand -f\n"
        "complete -c ostra-params -n __fish_use_subcommand -l help -d 'Print the verbs and exit'\n"
        "complete -c ostra-params -n __fish_use_subcommand -l version -d 'Print the version and exit'\n";
    for (const Verb& verb : verbs) {
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

Action addCompletion(CLI::App& program) {
    const auto shell = std::make_shared<std::string>();
    CLI::App* verb = program.add_subcommand("completion", "Print a script that lets a shell complete what is typed");
    verb->add_option("SHELL", *shell, "bash, zsh or fish")
        ->required()
        ->check(CLI::IsMember({"bash", "zsh", "fish"}))
        ->type_name("");
    verb->footer(details);
    return [shell, &program] {
        const std::vector<Verb> verbs = verbsOf(program);
        print(*shell == "bash" ? forBash(verbs) : *shell == "zsh" ? forZsh(verbs) : forFish(verbs));
        return Good;
    };
}

} // namespace Tool
