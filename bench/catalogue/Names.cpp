#include "catalogue/Names.h"

#include <array>
#include <span>
#include <string_view>

namespace Bench {

namespace {

/// A word as typeids have it, and as people read it.
struct Word {
    std::string_view id;
    std::string_view display;
};

constexpr std::array<Word, 4> trades = {{{"acme.hvac", "HVAC"},
                                         {"acme.structure", "Structure"},
                                         {"acme.electrical", "Electrical"},
                                         {"acme.plumbing", "Plumbing"}}};

constexpr std::array<Word, 16> equipment = {{{"supplyDiffuser", "Supply Diffuser"},
                                             {"column", "Column"},
                                             {"distributionPanel", "Distribution Panel"},
                                             {"washBasin", "Wash Basin"},
                                             {"airHandlingUnit", "Air Handling Unit"},
                                             {"purlin", "Purlin"},
                                             {"transformer", "Transformer"},
                                             {"greaseSeparator", "Grease Separator"},
                                             {"fireDamper", "Fire Damper"},
                                             {"anchorBolt", "Anchor Bolt"},
                                             {"inverter", "Inverter"},
                                             {"waterMeter", "Water Meter"},
                                             {"heatPump", "Heat Pump"},
                                             {"groundBeam", "Ground Beam"},
                                             {"luminaire", "Luminaire"},
                                             {"storageTank", "Storage Tank"}}};

constexpr std::array<Word, 7> quantities = {{{"supplyTemperature", "Supply Temperature"},
                                             {"axialForce", "Axial Force"},
                                             {"ratedCurrent", "Rated Current"},
                                             {"volumeFlow", "Volume Flow"},
                                             {"heatOutput", "Heat Output"},
                                             {"cutLength", "Cut Length"},
                                             {"soundPowerLevel", "Sound Power Level \xE2\x80\x93 octave band"}}};
constexpr std::array<Word, 5> counts = {{{"serviceInterval", "Service Interval"},
                                         {"yearInstalled", "Year Installed"},
                                         {"speedSteps", "Speed Steps"},
                                         {"spareWays", "Spare Ways"},
                                         {"fixtureUnits", "Fixture Units"}}};
constexpr std::array<Word, 5> texts = {{{"materialGrade", "Material Grade"},
                                        {"refrigerant", "Refrigerant"},
                                        {"gridAxis", "Grid Axis"},
                                        {"cableType", "Cable Type"},
                                        {"manufacturer", "Manufacturer (R\xC3\xB6hren & Co.)"}}};
constexpr std::array<Word, 3> options = {
    {{"isInsulated", "Insulated"}, {"hasFilter", "Has Filter"}, {"emergencySupply", "Emergency Supply"}}};
constexpr std::array<Word, 3> choices = {
    {{"controlMode", "Control Mode"}, {"earthingSystem", "Earthing System"}, {"pipeJoint", R"(Joint \"as built\")"}}};
constexpr std::array<Word, 3> targets = {
    {{"servedRoom", "Served Room"}, {"hostElement", "Host Element"}, {"structuralMaterial", "Structural Material"}}};
constexpr std::array<Word, 5> units = {{{"M3-PER-SEC", "Cubic Metre per Second"},
                                        {"KiloW-PER-M2", "Kilowatt per Square Metre"},
                                        {"DEG_C", "Degree Celsius"},
                                        {"MilliMOL-PER-L", "Millimole per Litre"},
                                        {"PA", "Pascal"}}};
constexpr std::array<Word, 4> headings = {{{"thermal", "Thermal"},
                                           {"phasing", "Phasing"},
                                           {"identity", "Identity"},
                                           {"loads", "Electrical \xE2\x80\x93 Loads"}}};

/// Which words a kind is named with, and what its typeids have before them.
struct Vocabulary {
    std::string_view room;
    std::span<const Word> words;
    bool ofATrade; ///< typeids begin with the trade, names with a piece of its equipment
};

Vocabulary vocabularyOf(Kind kind) {
    switch (kind) {
    case Kind::unit:
        return {"acme.unit:", units, false};
    case Kind::discipline:
        return {"acme.discipline:", headings, false};
    case Kind::domain:
        return {"acme.domain:", headings, false};
    case Kind::group:
        return {"acme.group:", headings, false};
    case Kind::enumeration:
        return {":enum.", choices, true};
    case Kind::floatRange:
        return {"acme.range:float.", quantities, false};
    case Kind::intRange:
        return {"acme.range:int.", counts, false};
    case Kind::stringRange:
        return {"acme.range:string.", texts, false};
    case Kind::boolSpec:
        return {":spec.", options, true};
    case Kind::generalSpec:
        return {":spec.choice.", choices, true};
    case Kind::intSpec:
        return {":spec.", counts, true};
    case Kind::stringSpec:
        return {":spec.", texts, true};
    case Kind::referenceSpec:
        return {":spec.", targets, true};
    case Kind::measurableSpec:
        return {":spec.", quantities, true};
    case Kind::category:
        return {"acme.category:", equipment, false};
    case Kind::boolParameter:
        return {":parameter.", options, true};
    case Kind::enumerationParameter:
        return {":parameter.", choices, true};
    case Kind::referenceParameter:
        return {":parameter.", targets, true};
    case Kind::stringParameter:
        return {":parameter.", texts, true};
    case Kind::intParameter:
        return {":parameter.", counts, true};
    case Kind::measurableParameter:
        return {":parameter.", quantities, true};
    }
    return {};
}

/// Takes the next digit of an index in the number system of a list, and returns the word that it stands for.
const Word& take(std::span<const Word> words, std::size_t& index) {
    const Word& word = words[index % words.size()];
    index /= words.size();
    return word;
}

} // namespace

Name nameOf(Kind kind, std::size_t index) {
    const Vocabulary vocabulary = vocabularyOf(kind);
    Name name;
    std::size_t rest = index;
    if (vocabulary.ofATrade) {
        // Every fourth piece of equipment is of the same trade.
        name.typeId += trades[rest % trades.size()].id;
        name.typeId += vocabulary.room;
        const Word& piece = take(equipment, rest);
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
