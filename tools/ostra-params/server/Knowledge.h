#pragma once

#include "catalogue/Catalogue.h"
#include "faults/Finding.h"
#include "server/Workspace.h"

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Tool::Lsp {

/// A stretch of the text of a file.
struct Spot {
    const File* file;
    std::size_t begin;
    std::size_t end;
};

/// Something wrong with a file, and where in its text.
struct Problem {
    Finding finding;
    Spot spot;
    std::optional<Spot> other = {};
    std::optional<Spot> root = {};
};

/// What the files of a snapshot are as a catalogue. It never changes, and is made without looking at anything else.
class Knowledge {
public:
    /// What is half typed, and so no JSON, is to the others what it was before.
    Knowledge(Snapshot snapshot, const Knowledge* before);

    std::size_t revision() const { return snapshot_.revision; }
    const std::vector<File>& files() const { return snapshot_.files; }
    /// Returns what the catalogue was made of.
    const std::vector<KnownFile>& known() const { return known_; }
    const Catalogue& catalogue() const { return *catalogue_; }
    /// Returns what is wrong, by the name of the file.
    const std::map<std::string, std::vector<Problem>>& problems() const { return problems_; }
    /// Returns a file of the snapshot that is about schemas; nullptr when there is none of this name.
    const File* find(const std::string& name) const;

private:
    /// Returns what a file was when it was last whole; nothing when it is not known to have been so.
    Text wholeOf(const std::string& name) const;
    class Spots;
    void addProblems(const std::vector<Finding>& findings, Spots& spots, bool isSyntax);

    Snapshot snapshot_;
    std::map<std::string, const File*> index_;
    std::map<std::string, Text> whole_;                      // of open files, with JSON alone in them
    std::map<std::string, std::vector<std::size_t>> broken_; // lines in which the parts begin that are none
    std::vector<KnownFile> known_;
    std::unique_ptr<Loader> halfTyped_; // of the broken parts alone
    std::unique_ptr<Catalogue> catalogue_;
    std::map<std::string, std::vector<Problem>> problems_;
};

} // namespace Tool::Lsp
