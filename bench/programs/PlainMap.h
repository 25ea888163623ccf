#pragma once

#include "catalogue/Catalogue.h"

#include <parameters/MeasurableParameter.h>

#include <map>
#include <memory>
#include <string>

namespace Bench {

/// What a registry without an engine would hold of one kind.
using PlainMap = std::map<std::string, std::shared_ptr<const Parameters::MeasurableParameter>>;

/// The measurable parameters of a catalogue, put into a map in the order of the catalogue.
const PlainMap& plainMap(const Catalogue& catalogue);

} // namespace Bench
