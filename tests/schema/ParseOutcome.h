#pragma once

#include <rapidjson/error/error.h>

#include <cstddef>
#include <ostream>
#include <string>

namespace Ostra {

/// What came of a text: where it is faulty and why, or its values as a list of events.
struct ParseOutcome {
    rapidjson::ParseErrorCode code = rapidjson::kParseErrorNone;
    std::size_t offset = 0;
    std::string events;

    bool operator==(const ParseOutcome&) const = default;
};

std::ostream& operator<<(std::ostream& stream, const ParseOutcome& outcome);

/// What RapidJSON's default flags make of a text, with the differences that are meant: numbers are rounded correctly,
/// and a byte 0 does not end the text. Recurses with the depth of the text.
ParseOutcome outcomeByDefaultFlags(const std::string& text);

/// What this library's parser makes of a text.
ParseOutcome outcomeOf(const std::string& text);

} // namespace Ostra
