#include "server/Knowledge.h"

#include "edit/Syntax.h"
#include "faults/Rules.h"
#include "output/Text.h"
#include "server/Outline.h"

#include <fmt/format.h>

#include <algorithm>
#include <set>
#include <unordered_map>
#include <utility>

namespace Tool::Lsp {

namespace {

std::size_t lineOf(std::string_view text, std::size_t offset) {
    return 1 +
           static_cast<std::size_t>(std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(offset), '\n'));
}

/// Returns whether the text means to be a schema: a folder may have other JSON in it.
bool isAboutSchemas(std::string_view text) {
    if (text.find("\"typeid\"") != std::string_view::npos) {
        return true;
    }
    if (text.find("\"inherits\"") == std::string_view::npos) {
        return false;
    }
    const Outline outline(text);
    const std::size_t base = outline.find(outline.root(), "inherits");
    return base != Outline::none && outline[base].type == Outline::Type::array;
}

/// Returns the lines of the second text in the places of those of the first in which a broken part begins, if there
/// are as many.
Text mended(const File& file, const std::vector<std::size_t>& broken, const Text& before) {
    const Text& text = file.text;
    if (!before || !holdsLines(file.name)) {
        return before ? before : text;
    }
    std::string result;
    std::size_t i = 0;
    std::size_t j = 0;
    for (std::size_t line = 1; i < text->size() && j < before->size(); ++line) {
        const std::size_t end = std::min(text->find('\n', i), text->size());
        const std::size_t endBefore = std::min(before->find('\n', j), before->size());
        const bool isBroken = std::binary_search(broken.begin(), broken.end(), line);
        result += isBroken ? before->substr(j, endBefore - j) : text->substr(i, end - i);
        result += '\n';
        i = end + 1;
        j = endBefore + 1;
    }
    return i >= text->size() && j >= before->size() ? std::make_shared<const std::string>(std::move(result)) : text;
}

/// Returns the file with the broken parts alone, where they stand.
KnownFile onlyBroken(const File& file, const std::vector<std::size_t>& broken) {
    if (!holdsLines(file.name)) {
        return {file.name, file.text};
    }
    std::string result;
    std::size_t line = 1;
    for (const char byte : *file.text) {
        const bool isKept = byte == '\n' || std::binary_search(broken.begin(), broken.end(), line);
        result += isKept ? std::string_view(&byte, 1) : std::string_view();
        line += byte == '\n' ? 1 : 0;
    }
    return {file.name, std::make_shared<const std::string>(std::move(result))};
}

std::set<std::string, std::less<>> usualLints() {
    std::set<std::string, std::less<>> codes;
    for (const Lint& lint : lints()) {
        if (lint.isDefault) {
            codes.emplace(lint.code);
        }
    }
    return codes;
}

} // namespace

/// Finds where places stand in texts; the lines of each are looked for once.
class Knowledge::Spots {
public:
    explicit Spots(const Knowledge& knowledge) : knowledge_(knowledge) {}

    Spot spotOf(const Place& place) {
        const File* const file = knowledge_.find(*place.file);
        return {file, offsetOf(*file->text, place.line, place.column),
                offsetOf(*file->text, place.endLine, place.endColumn)};
    }

private:
    /// Returns the offset of a column, which counts characters, in a line, which ends in "\n".
    std::size_t offsetOf(const std::string& text, std::size_t line, std::size_t column) {
        std::vector<std::size_t>& begins = begins_[&text];
        if (begins.empty()) {
            begins.push_back(text.starts_with(byteOrderMark) ? byteOrderMark.size() : 0);
            for (std::size_t i = text.find('\n'); i != std::string_view::npos; i = text.find('\n', i + 1)) {
                begins.push_back(i + 1);
            }
        }
        // What is half typed may have fewer lines now than the fault saw.
        std::size_t offset = begins[std::min(std::max<std::size_t>(line, 1), begins.size()) - 1];
        for (std::size_t i = 1; i < column && offset < text.size(); ++i) {
            do {
                ++offset;
            } while (offset < text.size() && !isFirstOfCharacter(text[offset]));
        }
        return offset;
    }

    const Knowledge& knowledge_;
    std::unordered_map<const std::string*, std::vector<std::size_t>> begins_; // of lines
};

Knowledge::Knowledge(Snapshot snapshot, const Knowledge* before) : snapshot_(std::move(snapshot)) {
    std::vector<KnownFile> halfTyped;
    std::erase_if(snapshot_.files, [](const File& file) { return !isAboutSchemas(*file.text); });
    for (const File& file : snapshot_.files) {
        index_.emplace(file.name, &file);
        if (!file.isOpen) {
            known_.push_back({file.name, file.text});
            continue;
        }
        std::vector<std::size_t> broken;
        for (const Part& part : partsOf(file.name, *file.text)) {
            if (!Syntax::read(part.text)) {
                broken.push_back(lineOf(*file.text, part.begin));
            }
        }
        Text whole =
            broken.empty() ? file.text : mended(file, broken, before == nullptr ? nullptr : before->wholeOf(file.name));
        if (!broken.empty()) {
            halfTyped.push_back(onlyBroken(file, broken));
            broken_.emplace(file.name, std::move(broken));
        }
        known_.push_back({file.name, whole});
        whole_.emplace(file.name, std::move(whole));
    }
    catalogue_ = std::make_unique<Catalogue>(known_);
    halfTyped_ = std::make_unique<Loader>(halfTyped);
    Spots spots(*this);
    addProblems(halfTyped_->findings(), spots, true);
    addProblems(catalogue_->findings(), spots, false);
    addProblems(lint(*catalogue_, usualLints()), spots, false);
}

void Knowledge::addProblems(const std::vector<Finding>& findings, Spots& spots, bool isSyntax) {
    const auto isBroken = [&](const Place& place) {
        const auto found = broken_.find(*place.file);
        return found != broken_.end() &&
               (!holdsLines(*place.file) || std::binary_search(found->second.begin(), found->second.end(), place.line));
    };
    // Without its folder a file cannot know what there is.
    const auto isUnknown = [&](const Finding& finding) {
        return !snapshot_.hasFolders && (finding.code == "dependency-missing" || finding.code == "unit-missing");
    };
    for (const Finding& finding : findings) {
        if (isBroken(finding.place) == isSyntax && !isUnknown(finding)) {
            Problem problem{finding, spots.spotOf(finding.place)};
            problem.other = finding.other ? std::optional(spots.spotOf(*finding.other)) : std::nullopt;
            problem.root = finding.root ? std::optional(spots.spotOf(*finding.root)) : std::nullopt;
            if (finding.code == "typeid-taken" && problem.other) { // whoever came later, both may be the wrong one
                Problem twin{finding, *problem.other, problem.spot};
                twin.finding.hint = fmt::format("it is that of {}.", toString(finding.place));
                problems_[*finding.other->file].push_back(std::move(twin));
            }
            problems_[*finding.place.file].push_back(std::move(problem));
        }
    }
}

Text Knowledge::wholeOf(const std::string& name) const {
    if (const auto found = whole_.find(name); found != whole_.end()) {
        return found->second;
    }
    const auto file = index_.find(name);
    return file == index_.end() ? nullptr : file->second->text;
}

const File* Knowledge::find(const std::string& name) const {
    const auto found = index_.find(name);
    return found == index_.end() ? nullptr : found->second;
}

} // namespace Tool::Lsp
