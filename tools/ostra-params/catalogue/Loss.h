#pragma once

#include "catalogue/Headings.h"
#include "catalogue/Object.h"

#include <stdexcept>
#include <vector>

namespace Tool {

/// A schema was registered and became no object: a fault of this program, not of the catalogue.
class Loss : public std::logic_error {
public:
    using std::logic_error::logic_error;
};

/// Makes sure that each sound schema is one of the objects, so that no verb passes a catalogue on with less in it.
/// @throws Loss if one is not. Its message names them.
void mustHaveAll(const std::vector<Object>& objects, const Headings& headings);

} // namespace Tool
