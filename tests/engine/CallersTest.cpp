#include "support/Engines.h"
#include "support/SchemaTexts.h"

#include <parameters/Format.h>
#include <parameters/Kinds.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <type_traits>
#include <vector>

// How applications call what takes a type identifier: all of this has compiled since the first version, and must go on.

namespace {

using Parameters::BoolParameter;
using Parameters::ParametersEngine;

/// What other libraries have: something that becomes a string when it must.
struct Convertible {
    operator std::string() const { return "x"; } // NOLINT(google-explicit-constructor): that is the point
};

const ParametersEngine& engineWithX() {
    static const ParametersEngine engine = Support::engineOf(
        {Support::boolParameterText("x", "norvex.parameter:group-1.0.0", "norvex.spec:spec.bool-1.0.0")});
    return engine;
}

TEST(Caller, HandsOverWhateverBecomesAString) {
    const ParametersEngine& engine = engineWithX();
    const std::string string = "x";
    const char* const pointer = "x";
    EXPECT_TRUE(engine.isRegistered("x"));
    EXPECT_TRUE(engine.isRegistered(string));
    EXPECT_TRUE(engine.isRegistered(pointer));
    EXPECT_TRUE(engine.isRegistered({'x'}));
    EXPECT_TRUE(engine.isRegistered({"x"}));
    EXPECT_TRUE(engine.isRegistered(Convertible()));
    EXPECT_FALSE(engine.isRegistered({}));
    EXPECT_EQ(engine.getBoolParameter("x").getCore().getTypeId(), "x");
    EXPECT_EQ(engine.getBoolParameter({"x"}).getCore().getTypeId(), "x");
    EXPECT_EQ(engine.getBoolParameter(Convertible()).getCore().getTypeId(), "x");
    EXPECT_THROW(engine.getBoolParameter({}), Parameters::UnrecognizedIdentifierException);
}

TEST(Caller, TakesTheAddressOfAnOperation) {
    const ParametersEngine& engine = engineWithX();
    const std::vector<std::string> typeIds{"y", "x"};
    // NOLINTNEXTLINE(modernize-avoid-bind): callers do
    const auto isRegistered = std::bind(&ParametersEngine::isRegistered, &engine, std::placeholders::_1);
    EXPECT_TRUE(std::any_of(typeIds.begin(), typeIds.end(), isRegistered));
    const auto get = std::mem_fn(&ParametersEngine::getBoolParameter);
    EXPECT_EQ(get(engine, "x").getCore().getTypeId(), "x");
    BoolParameter (ParametersEngine::*const member)(const std::string&) const = &ParametersEngine::getBoolParameter;
    EXPECT_EQ((engine.*member)("x").getCore().getTypeId(), "x");
    std::string (Parameters::ParameterCore::*const getName)() const = &Parameters::ParameterCore::getName;
    EXPECT_EQ((engine.getBoolParameter("x").getCore().*getName)(), "Name");
    bool (Parameters::ParameterCore::*const isReadOnly)() const = &Parameters::ParameterCore::isReadOnly;
    EXPECT_FALSE((engine.getBoolParameter("x").getCore().*isReadOnly)());
}

TEST(Caller, FindsByWhateverIsAString) {
    const ParametersEngine& engine = engineWithX();
    EXPECT_TRUE(engine.findBoolParameter("x"));
    EXPECT_TRUE(engine.findBoolParameter(std::string("x")));
    EXPECT_TRUE(engine.findBoolParameter(std::string_view("xy", 1)));
    EXPECT_FALSE(engine.findBoolParameter({}));
}

TEST(Caller, FormatsValuesAndKinds) {
    const ParametersEngine& engine = engineWithX();
    const auto parameter = engine.getBoolParameter("x");
    EXPECT_EQ(fmt::format("{} {:>3} {}", parameter, parameter.core(), parameter.spec()),
              "x   x norvex.spec:spec.bool-1.0.0");
    EXPECT_EQ(fmt::format("{} {}", parameter.spec().core(), parameter.core().group()),
              "norvex.spec:spec.bool-1.0.0 norvex.parameter:group-1.0.0");
    EXPECT_EQ(fmt::format("{:<15}|", Parameters::Kinds::BoolParameter::info), "bool-parameter |");
    EXPECT_EQ(fmt::format("{:.7}", engine.dependentsOf("norvex.spec:spec.bool-1.0.0")[0]), "bool-pa");
    EXPECT_EQ(fmt::format("{}", engine.dependentsOf("norvex.spec:spec.bool-1.0.0")[0]), "bool-parameter x");
    EXPECT_EQ(fmt::format("{}", Units::Unit("acme:m", "Metre", "m")), "acme:m");
    EXPECT_FALSE((fmt::is_formattable<Parameters::MajorCategoryComponent>::value));
}

} // namespace
