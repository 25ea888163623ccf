#pragma once

#include "output/Json.h"

namespace Tool {

class Catalogue;

/// Returns what the script of the report's page reads of a catalogue. There may be very many objects, so whatever they
/// have in common stands there once:
///
/// - "kinds" stand in the order of the page. Objects come kind by kind, and are known by their numbers in this order;
///   numbers beyond the last one are those of "builtIns".
/// - A column has a value for each of many objects, or is the one value that all of them have.
/// - A cell is a text or, where that stands elsewhere too, its number among the "values": a text, the number of an
///   object, or a list of these.
/// - "shapes" are what some objects consist of: their kind, their properties, and the pieces of their schema texts.
///   Between pieces stands what belongs there: -1 for the typeid, -2 for the name, the number of one of the shape's
///   "literals", [property, value] for what a value says or the typeid that it names, [property, text] for all values
///   of a property, with a text between them. "cells" and "literals" have a column for each.
Json pageDataOf(const Catalogue& catalogue);

} // namespace Tool
