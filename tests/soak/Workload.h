#pragma once

#include "generator/Catalogue.h"
#include "generator/Random.h"

#include <parameters/ParametersEngine.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace Soak {

/// Does to a few engines, at random, what an application may do in years: each round begins with none and ends with
/// none.
class Workload {
public:
    explicit Workload(std::uint64_t seed);

    /// @throws std::logic_error if something does not hold that must.
    void round();

    /// How often an operation was done and how often it was refused.
    struct Count {
        std::size_t done;
        std::size_t refused;
    };
    struct Operation {
        const char* name;
        bool (Workload::*apply)(); // returns false when it was refused
        std::uint32_t weight;
    };
    static const std::array<Operation, 13> operations;

    const Count& countOf(std::size_t operation) const { return counts_[operation]; }

private:
    using Engine = Parameters::ParametersEngine;

    bool registerText();
    bool registerTexts();
    bool registerBrokenText();
    bool registerBatch();
    bool registerObject();
    bool resolve();
    bool discard();
    bool read();
    bool list();
    bool exportObjects();
    bool copy();
    bool move();
    bool drop();

    Engine& engine();
    const Bench::Schema& schema();
    const Bench::Catalogue& catalogue() const { return catalogues_[catalogue_]; }
    std::vector<std::string> someTypeIds();

    Bench::Random random_;
    std::vector<Bench::Catalogue> catalogues_;
    std::size_t catalogue_ = 0; // that of the round
    std::vector<Engine> engines_;
    std::array<Count, 13> counts_{};
};

} // namespace Soak
