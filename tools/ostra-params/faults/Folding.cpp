#include "faults/Finding.h"

#include "output/Text.h"

#include <fmt/format.h>

#include <unordered_map>

namespace Tool {

namespace {

/// Findings that are alike.
struct Group {
    std::size_t shown = 0;
    std::size_t last = 0; ///< The fold of the last one that is shown.
};

/// What is alike has one of these; nothing is like an error that has none.
std::string likenessOf(const Finding& finding) {
    const bool isMissing = (finding.code == "dependency-missing" || finding.code == "unit-missing") && !finding.other;
    return finding.isError && !isMissing ? std::string() : finding.code + " " + finding.name + " " + finding.expected;
}

/// Returns the finding from which another one follows in the end; itself when it follows from none of these.
const Finding& rootOf(const Finding& finding, const std::unordered_map<std::size_t, const Finding*>& firstErrors) {
    constexpr std::size_t longest = 100; // a chain of dependencies is not deep, but may be a circle
    const Finding* root = &finding;
    for (std::size_t i = 0; i < longest && root->rootSource; ++i) {
        const auto found = firstErrors.find(*root->rootSource);
        if (found == firstErrors.end() || found->second == &finding) {
            return finding;
        }
        root = found->second;
    }
    return root->rootSource ? finding : *root;
}

} // namespace

std::vector<Fold> fold(const std::vector<Finding>& findings) {
    constexpr std::size_t mostWarnings = 3; // alike
    constexpr std::size_t mostOfOneCode = 10;
    std::unordered_map<std::size_t, const Finding*> firstErrors; // of each text, that of its own before others
    for (const Finding& finding : findings) {
        const auto [first, isNew] = firstErrors.emplace(finding.source, &finding);
        if (finding.isError && (!first->second->isError || (first->second->rootSource && !finding.rootSource))) {
            first->second = &finding;
        }
    }
    std::vector<Fold> folds;
    std::unordered_map<const Finding*, std::size_t> foldOf;
    std::unordered_map<std::string, Group> alike;
    for (const Finding& finding : findings) {
        if (&rootOf(finding, firstErrors) != &finding) {
            continue;
        }
        const std::string likeness = likenessOf(finding);
        Group& ofName = alike[likeness];
        Group& ofCode = finding.isError ? ofName : alike[finding.code];
        const bool isFirst = ofName.shown == 0;
        const std::size_t most = finding.isError ? 1 : isFirst ? mostOfOneCode : mostWarnings;
        Group& group = isFirst ? ofCode : ofName;
        if (likeness.empty() || group.shown < most) {
            ofCode.shown += finding.isError ? 0 : 1;
            ++ofName.shown;
            ofCode.last = ofName.last = folds.size();
            folds.push_back({&finding});
        } else {
            ++folds[group.last].alike;
            folds[group.last].folded.push_back(&finding);
        }
        foldOf.emplace(&finding, group.last);
    }
    for (const Finding& finding : findings) {
        if (const Finding& root = rootOf(finding, firstErrors); &root != &finding) {
            Fold& of = folds[foldOf.at(&root)];
            ++of.consequences;
            of.folded.push_back(&finding);
        }
    }
    return folds;
}

std::string summaryOf(const Fold& fold) {
    std::string text;
    if (fold.alike > 0) {
        text = fold.shown->isError
                   ? counted(fold.alike, "other") + (fold.alike == 1 ? " names it, too" : " name it, too")
                   : fmt::format("and {} more of these", fold.alike);
    }
    if (fold.consequences > 0) {
        text += (text.empty() ? "" : "; ") + counted(fold.consequences, "fault") +
                (fold.consequences == 1 ? " follows" : " follow");
    }
    return text;
}

} // namespace Tool
