#include "catalogue/Input.h"
#include "edit/FileChange.h"
#include "edit/Layout.h"
#include "faults/Finding.h"
#include "output/OutputFile.h"
#include "output/Text.h"
#include "verbs/CheckFormats.h"
#include "verbs/Verb.h"

#include <parameters/ParametersEngine.h>

#include <algorithm>
#include <map>
#include <memory>
#include <optional>

namespace Tool {

namespace {

struct Options {
    std::vector<std::string> paths;
    bool isCheck = false;
    bool isDiff = false;
};

constexpr const char* details = R"(Members, constants and properties come in the order of the reference, unknown
ones behind them; two blanks for each level; what is short stands in one line.
A line of an .ndjson file stays a line, without blanks. What was written stays
as it was, to the byte: names, numbers, strings, and what is repeated or unknown.
Prints the names of the files that change. Standard input is written to
standard output. What is no JSON is reported and stays.

Exit codes:
  0  done; with --check or --diff, nothing would change
  1  with --check or --diff, something would change; or a text is no JSON
  2  wrong usage, or a path that cannot be read or written)";

/// The sources of one file, by their numbers.
struct File {
    std::string name;
    std::size_t begin;
    std::size_t end;
};

std::vector<File> filesOf(const Input& input) {
    std::vector<File> files;
    const std::string* last = nullptr;
    for (std::size_t number = 0; number < input.sources().size(); ++number) {
        const Source& source = input.sources()[number];
        if (source.file != last) {
            files.push_back({*source.file, number, number});
            last = source.file;
        }
        files.back().end = number + 1;
    }
    return files;
}

/// Lays out all files.
class Formatter {
public:
    explicit Formatter(const std::vector<std::string>& paths) : input_(paths), isFaulty_(input_.sources().size()) {
        for (const File& file : filesOf(input_)) {
            if (file.name == standardInput) {
                output_ = {nameOf(file.name), given(file), formatted(file)};
                continue;
            }
            FileChange change{file.name, bytesOf(file.name), formatted(file)};
            if (change.before != change.after) {
                changes_.push_back(std::move(change));
            }
        }
    }

    /// Returns the files that change.
    const std::vector<FileChange>& changes() const { return changes_; }
    /// Returns standard input, if it was read.
    const std::optional<FileChange>& output() const { return output_; }

    /// Returns what could not be laid out, as it cannot be read or is no JSON.
    std::vector<Finding> findings() const {
        std::map<std::string, std::string> texts;
        for (const auto& [key, text] : input_.texts()) {
            if (isFaulty_[Input::numberOf(key)]) {
                texts.emplace(key, text);
            }
        }
        const Headings headings(input_.sources(), isFaulty_);
        std::vector<Finding> findings = findingsOf(input_, headings, Parameters::ParametersEngine().findFaults(texts));
        std::erase_if(findings, [](const Finding& finding) { return !finding.isError; });
        return findings;
    }

private:
    static bool isOfLines(const File& file) {
        return file.name == standardInput ? file.end - file.begin > 1 : holdsLines(file.name);
    }

    std::string formatted(const File& file) {
        std::string text;
        for (std::size_t number = file.begin; number < file.end; ++number) {
            const std::string& given = *input_.sources()[number].text;
            const auto laidOut = isOfLines(file) ? Layout::ofLine(given) : Layout::ofFile(given);
            isFaulty_[number] = !laidOut;
            text += laidOut.value_or(given);
            text += isOfLines(file) ? "\n" : "";
        }
        return text;
    }

    /// Returns what standard input was, but for empty lines, which cannot be read again.
    std::string given(const File& file) const {
        std::string text;
        for (std::size_t number = file.begin; number < file.end; ++number) {
            text += *input_.sources()[number].text;
            text += isOfLines(file) ? "\n" : "";
        }
        return text;
    }

    Input input_;
    std::vector<bool> isFaulty_;
    std::vector<FileChange> changes_;
    std::optional<FileChange> output_;
};

std::string namesOf(const std::vector<FileChange>& changes) {
    std::string names;
    for (const FileChange& change : changes) {
        names += printable(change.file) + "\n";
    }
    return names;
}

ExitCode format(const Options& options) {
    const Formatter formatter(options.paths);
    const std::vector<Finding> findings = formatter.findings();
    std::vector<FileChange> changes = formatter.changes();
    const bool isToBeWritten = !options.isCheck && !options.isDiff;
    if (isToBeWritten) {
        apply(changes);
        print(formatter.output() ? formatter.output()->after : namesOf(changes));
    } else {
        if (formatter.output() && formatter.output()->before != formatter.output()->after) {
            changes.push_back(*formatter.output());
        }
        print(options.isDiff ? asDiff(changes) : namesOf(changes));
    }
    printError(findingsAsText(findings));
    return !findings.empty() || (!isToBeWritten && !changes.empty()) ? Bad : Good;
}

} // namespace

void addFormat(CommandLine& program) {
    const auto options = std::make_shared<Options>();
    const Verb verb = program.addVerb("fmt", "Lay schemas out in one canonical form");
    addPaths(verb, options->paths, true);
    const Argument check = verb.addFlag("--check", options->isCheck, "Write nothing; print what would change");
    verb.addFlag("--diff", options->isDiff, "Write nothing; print the changes, as patch takes them").excludes(check);
    verb.footer(details);
    verb.does([options] { return format(*options); });
}

} // namespace Tool
