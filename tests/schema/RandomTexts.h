#pragma once

#include <cstdint>
#include <random>
#include <string>

namespace Ostra {

/// Makes texts that are JSON, nearly JSON or no JSON at all; the same for a seed on every machine.
class RandomTexts {
public:
    explicit RandomTexts(std::uint64_t seed) : random_(seed) {}

    /// Returns a valid text, nested a few levels deep, with blanks anywhere.
    std::string valid();
    /// Returns a schema-like or other valid text with a few bytes changed.
    std::string mutated();
    /// Returns pieces of JSON in no order.
    std::string tokens();
    /// Returns any bytes.
    std::string bytes();
    /// Returns a number, sometimes a faulty one, of a size that RapidJSON's own conversion survives.
    std::string number();

private:
    std::size_t below(std::size_t bound) { return static_cast<std::size_t>(random_() % bound); }
    bool chance(std::size_t in) { return below(in) == 0; }
    char byte();
    std::string blanks();
    std::string digits(std::size_t maxCount);
    std::string string();
    std::string stringPart();
    std::string value(int depth);
    std::string container(int depth, bool object);

    std::mt19937_64 random_;
};

} // namespace Ostra
