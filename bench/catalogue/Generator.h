#pragma once

#include "catalogue/Catalogue.h"
#include "catalogue/Names.h"
#include "catalogue/Random.h"
#include "catalogue/SchemaText.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace Bench {

/// How many schemas of each kind a catalogue of some size has.
class Counts {
public:
    explicit Counts(std::size_t size);

    std::uint32_t operator[](Kind kind) const { return counts_[static_cast<std::size_t>(kind)]; }

private:
    std::array<std::uint32_t, kindCount> counts_{};
};

/// Makes the schemas of a catalogue, kind by kind.
class Generator {
public:
    Generator(const Counts& counts, Random& random) : counts_(counts), random_(random) {}

    Catalogue makeAll();

private:
    std::string textOf(Kind kind, std::size_t index, const Name& name);
    std::string parameter(Kind kind, const Name& name);

    void addSpecDetails(SchemaText& schema, Kind kind);
    void addApplicableUnits(SchemaText& schema);
    void addCategoryDetails(SchemaText& schema, bool major);
    void addParameterCore(SchemaText& schema, const Name& name);
    void addSpec(SchemaText& schema, Kind kind);
    void addReferenceSpec(SchemaText& schema);
    void addNumericRange(SchemaText& schema, Kind range, std::string_view base);
    void addBounds(SchemaText& schema, Kind range);
    void addStringRange(SchemaText& schema);

    /// Picks a schema of a kind, and returns its typeid.
    std::string oneOf(Kind kind);
    std::string boundary(Kind range);
    std::string allowedValues();
    std::string choices();
    std::string regex();
    std::string sentence();

    Counts counts_;
    Random& random_;
};

} // namespace Bench
