#pragma once

#include "catalogue/Source.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace Tool {

/// Something wrong with a catalogue, or something in it that is probably not meant.
struct Finding {
    std::string code;
    bool isError = true;
    std::string message;
    std::size_t source = 0; ///< The number of the text; of a file that cannot be read, that of the next one.
    Place place = {};
    std::string typeId = {}; ///< Of the schema, as far as it is known.
    std::string name = {};   ///< What the finding is about.
    std::string expected = {};
    std::string nearest = {};
    std::optional<Place> other = {};
    std::optional<Place> root = {};         ///< Of what is but a consequence.
    std::optional<std::size_t> rootSource = {};
    std::string hint = {}; ///< What may help to mend it; often empty.
};

} // namespace Tool
