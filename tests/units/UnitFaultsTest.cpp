#include <units/Fault.h>
#include <units/UnitsEngine.h>

#include "support/SchemaTexts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Support::unitText;
using testing::IsEmpty;
using Units::Fault;
using Units::UnitsEngine;

using Lines = std::vector<std::string>;

/// Registers a text if it is sound, and shows its faults: code, name and near name, and the bytes that are pointed at.
Lines registered(UnitsEngine& engine, const std::string& text) {
    Lines lines;
    for (const Fault& fault : engine.registerSoundSchema(text)) {
        std::string line = fault.isError ? "" : "warning ";
        line += std::string(fault.code) + " " + fault.name + "/" + fault.nearestName + " at " + fault.place.pointer +
                " " + text.substr(fault.place.begin, fault.place.end - fault.place.begin);
        lines.push_back(fault.other ? line + " beside " + fault.other->pointer : line);
    }
    return lines;
}

Lines faultsOf(const std::string& text) {
    UnitsEngine engine;
    return registered(engine, text);
}

std::string unitWith(const std::string& constants) {
    return R"({"typeid":"u","inherits":["norvex.unit:unit-1.0.0"],"constants":[)" + constants + "]}";
}

TEST(RegisterSoundSchema, RegistersAUnitWithoutFaults) {
    UnitsEngine engine;
    EXPECT_THAT(engine.registerSoundSchema(unitWith(R"({"id":"symbol","value":"s"},{"id":"name","value":"N"})")),
                IsEmpty());
    EXPECT_TRUE(engine.isRegistered("u"));
    EXPECT_TRUE(engine.getAllUnits().empty());
    engine.resolveSchemas();
    EXPECT_EQ(engine.getUnit("u").getName(), "N");
    EXPECT_EQ(engine.getUnit("u").getSymbol(), "s");
}

TEST(RegisterSoundSchema, RegistersAUnitWithWarnings) {
    UnitsEngine engine;
    EXPECT_EQ(registered(engine, unitWith(R"({"id":"Symbol","value":"s"},{"id":"name","value":"N","more":1})")),
              (Lines{R"(warning constant-unknown Symbol/symbol at /constants/0/id "Symbol")",
                     "warning member-unknown more/ at /constants/1/more 1"}));
    engine.resolveSchemas();
    EXPECT_EQ(engine.getUnit("u").getSymbol(), "");
}

TEST(RegisterSoundSchema, TellsEveryFaultAndRegistersNothing) {
    UnitsEngine engine;
    EXPECT_EQ(registered(engine, unitWith(R"(1,{"id":"symbol","value":2},{"id":"Name","value":3})")),
              (Lines{"definition-object-expected / at /constants/0 1",
                     R"(constant-undefined name/Name at /constants/2/id "Name")",
                     "string-expected symbol/ at /constants/1/value 2"}));
    EXPECT_FALSE(engine.isRegistered("u"));
    engine.resolveSchemas();
    EXPECT_TRUE(engine.getAllUnits().empty());
}

TEST(RegisterSoundSchema, RefusesATypeIdThatIsTaken) {
    UnitsEngine engine;
    engine.registerSchema(unitText("u", "First"));
    EXPECT_EQ(registered(engine, unitText("u", "Second")), (Lines{R"(typeid-taken u/ at /typeid "u")"}));
    engine.resolveSchemas();
    EXPECT_EQ(
        registered(engine, unitText("u", "")),
        (Lines{R"(typeid-taken u/ at /typeid "u")", R"(non-empty-string-expected name/ at /constants/0/value "")"}));
    EXPECT_EQ(engine.getUnit("u").getName(), "First");
}

TEST(RegisterSoundSchema, RefusesWhatIsNoUnit) {
    EXPECT_EQ(
        faultsOf(Support::groupText("g")),
        (Lines{R"(base-unrecognized norvex.parameter:group-1.0.0/ at /inherits/0 "norvex.parameter:group-1.0.0")"}));
    EXPECT_EQ(faultsOf("[]"), (Lines{"typeid-missing typeid/ at  []"}));
    EXPECT_EQ(faultsOf("1"), (Lines{"typeid-missing typeid/ at  1"}));
    EXPECT_EQ(faultsOf("{\"typeid\" \"u\"}"), (Lines{"json-syntax / at  \"u\"}"}));
}

TEST(RegisterSoundSchema, SaysWhatRegisterSchemaThrows) {
    for (const std::string& text : {unitText("u", ""), unitWith(""), unitWith("0"), Support::groupText("g"),
                                    std::string("?"), std::string("{}")}) {
        std::string thrown;
        try {
            UnitsEngine().registerSchema(text);
        } catch (const Units::ValidationException& exception) {
            thrown = exception.what();
        }
        const auto faults = UnitsEngine().registerSoundSchema(text);
        ASSERT_FALSE(faults.empty()) << text;
        EXPECT_EQ(faults[0].message, thrown);
        EXPECT_TRUE(faults[0].isError);
    }
}

TEST(RegisterSoundSchema, LeavesACopyAlone) {
    UnitsEngine engine;
    const UnitsEngine copy = engine;
    engine.registerSoundSchema(unitText("u"));
    EXPECT_FALSE(copy.isRegistered("u"));
}

} // namespace
