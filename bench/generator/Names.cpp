#include "generator/Names.h"

namespace Bench {

namespace {

constexpr std::array<Word, 4> trades = {{{"acme.hvac", "HVAC"},
                                         {"acme.structure", "Structure"},
                                         {"acme.electrical", "Electrical"},
                                         {"acme.plumbing", "Plumbing"}}};

/// Takes the next digit of an index in the number system of a list, and returns the word that it stands for.
const Word& take(std::span<const Word> words, std::size_t& index) {
    const Word& word = words[index % words.size()];
    index /= words.size();
    return word;
}

} // namespace

Name nameOf(const Vocabulary& vocabulary, std::size_t index) {
    Name name;
    std::size_t rest = index;
    if (vocabulary.ofATrade) {
        // Every fourth piece of equipment is of the same trade.
        name.typeId += trades[rest % trades.size()].id;
        name.typeId += vocabulary.room;
        const Word& piece = take(Words::equipment, rest);
        name.typeId += piece.id;
        name.typeId += '.';
        name.display += piece.display;
        name.display += ' ';
    } else {
        name.typeId += vocabulary.room;
    }
    const Word& word = take(vocabulary.words, rest);
    name.typeId += word.id;
    name.display += word.display;
    if (rest > 0) {
        name.typeId += ".zone" + std::to_string(rest);
        name.display += ", Zone " + std::to_string(rest);
    }
    name.typeId += "-1.0.0";
    return name;
}

} // namespace Bench
