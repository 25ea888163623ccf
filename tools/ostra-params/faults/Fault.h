#pragma once

#include "catalogue/Source.h"

#include <optional>
#include <string>

namespace Tool {

/// When a fault shows itself.
enum class Stage {
    reading,   ///< The text is no schema.
    resolution ///< The schema names something that is not there or does not fit.
};

/// Something wrong with a catalogue.
struct Fault {
    std::optional<Place> place; ///< Nothing for what is wrong with no schema in particular.
    std::string message;
    std::string hint; ///< What may help to mend it; often empty.
    Stage stage;
};

} // namespace Tool
