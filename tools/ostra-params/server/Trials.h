#pragma once

#include "server/Knowledge.h"

#include <map>
#include <memory>
#include <vector>

namespace Tool::Lsp {

/// Tries out which of the problems of a snapshot can be mended, and keeps what it found: editors ask with each movement
/// of the cursor.
class Trials {
public:
    explicit Trials(std::shared_ptr<const Knowledge> knowledge) : knowledge_(std::move(knowledge)) {}

    /// Returns those of some problems, which are misspelt names, that can be mended together without more errors than
    /// there are.
    const std::vector<const Problem*>& harmlessOf(const std::vector<const Problem*>& problems);

private:
    std::shared_ptr<const Knowledge> knowledge_;
    std::unique_ptr<Input> input_; // which is made when there is something to be tried
    std::map<std::vector<const Problem*>, std::vector<const Problem*>> harmless_;
};

} // namespace Tool::Lsp
