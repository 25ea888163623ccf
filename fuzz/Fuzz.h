#pragma once

#include <parameters/ParametersEngine.h>

#include <cstddef>
#include <cstdint>
#include <set>
#include <string>

/// What the fuzzers call with each input.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace Fuzz {

/// Ends the process when something does not hold that must: the fuzzer keeps the input then.
void require(bool holds, const std::string& what);

/// Returns the type identifiers of all objects of all kinds, units left out.
std::set<std::string> objectsIn(const Parameters::ParametersEngine& engine);

/// Returns the message with which a call is refused, or nothing at all when it is not. Lets only the library's own
/// exceptions pass for a refusal.
template <class Call>
std::string refusalOf(Call&& call) {
    try {
        call();
    } catch (const Parameters::ValidationException& exception) {
        require(exception.what()[0] != '\0', "a refusal says why");
        return exception.what();
    } catch (const Units::ValidationException& exception) {
        require(exception.what()[0] != '\0', "a refusal says why");
        return exception.what();
    }
    return {};
}

/// Returns what an exception says of a message: what() ends with a byte 0, of which a message may quote some.
inline std::string asThrown(const std::string& message) { return message.c_str(); }

} // namespace Fuzz
