#pragma once

#include "generator/Catalogue.h"

#include <map>
#include <memory>
#include <string>

namespace Bench {

/// What a registry without an engine would hold of a parameter.
struct PlainParameter {
    std::string typeId;
    std::string name;
    std::string description;
    std::string sampleText;
    std::string group;
    std::string spec;
    bool readOnly;
};

/// What such a registry would hold of one kind.
using PlainMap = std::map<std::string, std::shared_ptr<const PlainParameter>>;

/// The measurable parameters of a catalogue, put into a map in the order of the catalogue.
const PlainMap& plainMap(const Catalogue& catalogue);

} // namespace Bench
