#pragma once

#include "support/Messages.h"
#include "support/Picture.h"

#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace Support {

/// Returns the message of the ValidationException with which the engine refuses a call. When the call leaves a trace in
/// the engine, the test fails.
template <class Call>
std::string refusalBy(Parameters::ParametersEngine& engine, Call&& call) {
    const std::string before = pictureOf(engine);
    std::string message = messageOf<Parameters::ValidationException>(std::forward<Call>(call));
    EXPECT_EQ(pictureOf(engine), before);
    return message;
}

/// Returns the message with which an engine refuses to register a text, without a trace.
inline std::string refusalOf(Parameters::ParametersEngine& engine, const std::string& text) {
    return refusalBy(engine, [&] { engine.registerSchema(text); });
}

} // namespace Support
