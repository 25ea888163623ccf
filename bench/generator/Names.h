#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace Bench {

/// A word as typeids have it, and as it stands between the quotes of JSON for people to read.
struct Word {
    std::string_view id;
    std::string_view display;
};

namespace Words {
inline constexpr std::array<Word, 16> equipment = {{{"supplyDiffuser", "Supply Diffuser"},
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

inline constexpr std::array<Word, 7> quantities = {{{"supplyTemperature", "Supply Temperature"},
                                                    {"axialForce", "Axial Force"},
                                                    {"ratedCurrent", "Rated Current"},
                                                    {"volumeFlow", "Volume Flow"},
                                                    {"heatOutput", "Heat Output"},
                                                    {"cutLength", "Cut Length"},
                                                    {"soundPowerLevel", "Sound Power Level \xE2\x80\x93 octave band"}}};
inline constexpr std::array<Word, 5> counts = {{{"serviceInterval", "Service Interval"},
                                                {"yearInstalled", "Year Installed"},
                                                {"speedSteps", "Speed Steps"},
                                                {"spareWays", "Spare Ways"},
                                                {"fixtureUnits", "Fixture Units"}}};
inline constexpr std::array<Word, 5> texts = {{{"materialGrade", "Material Grade"},
                                               {"refrigerant", "Refrigerant"},
                                               {"gridAxis", "Grid Axis"},
                                               {"cableType", "Cable Type"},
                                               {"manufacturer", "Manufacturer (R\xC3\xB6hren & Co.)"}}};
inline constexpr std::array<Word, 3> options = {
    {{"isInsulated", "Insulated"}, {"hasFilter", "Has Filter"}, {"emergencySupply", "Emergency Supply"}}};
inline constexpr std::array<Word, 3> choices = {
    {{"controlMode", "Control Mode"}, {"earthingSystem", "Earthing System"}, {"pipeJoint", R"(Joint \"as built\")"}}};
inline constexpr std::array<Word, 3> targets = {
    {{"servedRoom", "Served Room"}, {"hostElement", "Host Element"}, {"structuralMaterial", "Structural Material"}}};
inline constexpr std::array<Word, 5> units = {{{"M3-PER-SEC", "Cubic Metre per Second"},
                                               {"KiloW-PER-M2", "Kilowatt per Square Metre"},
                                               {"DEG_C", "Degree Celsius"},
                                               {"MilliMOL-PER-L", "Millimole per Litre"},
                                               {"PA", "Pascal"}}};
inline constexpr std::array<Word, 4> headings = {{{"thermal", "Thermal"},
                                                  {"phasing", "Phasing"},
                                                  {"identity", "Identity"},
                                                  {"loads", "Electrical \xE2\x80\x93 Loads"}}};

} // namespace Words

/// Which words the schemas of a kind are named with, and what their typeids have before them.
struct Vocabulary {
    std::string_view room;
    std::span<const Word> words;
    bool ofATrade = false; ///< Typeids begin with the trade, names with a piece of its equipment.
};

/// A typeid and a display name, as it stands between the quotes of JSON.
struct Name {
    std::string typeId;
    std::string display;
};

/// Returns what the schema with an index of its kind is called; no two of a catalogue have the same typeid.
Name nameOf(const Vocabulary& vocabulary, std::size_t index);

} // namespace Bench
