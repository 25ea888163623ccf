#include "Fuzz.h"

#include "schema/ExceptionFactory.h"
#include "schema/JSON.h"
#include "schema/ParseOutcome.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>
#include <string>

// The parser against RapidJSON's default flags: same values, or same fault at the same place. What is accepted and
// written means the same when it is read again.

namespace {

/// The default flags recurse with the depth of a text.
constexpr std::ptrdiff_t maxContainers = 500;

std::string shown(const Ostra::ParseOutcome& outcome) {
    std::ostringstream text;
    text << outcome;
    return text.str();
}

std::string rewritten(const std::string& text) {
    return Ostra::JSON(text, Ostra::ExceptionFactoryOf<std::runtime_error>::shared()).toText();
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(data, data + size);
    if (std::count_if(text.begin(), text.end(), [](char c) { return c == '[' || c == '{'; }) > maxContainers) {
        return -1;
    }
    const auto outcome = Ostra::outcomeOf(text);
    const auto expected = Ostra::outcomeByDefaultFlags(text);
    Fuzz::require(outcome == expected, shown(outcome) + " is " + shown(expected));
    if (outcome.code == rapidjson::kParseErrorNone) {
        const std::string written = rewritten(text);
        Fuzz::require(rewritten(written) == written, "what was written is written again");
        const auto again = Ostra::outcomeOf(written);
        Fuzz::require(again == outcome, shown(again) + " is " + shown(outcome));
    }
    return 0;
}
