#include "support/SchemaTexts.h"

#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>

namespace {

using Parameters::IntParameter;
using Parameters::IntRange;
using Parameters::ParameterCore;
using Parameters::ParametersEngine;
using Support::namedText;
using Support::unitText;

/// Uses all that the library makes once and shares: the built-in objects, the ranges that stand where a schema has
/// none, and what raises the exceptions of both libraries.
void useWhatIsShared() {
    ParametersEngine engine;
    engine.registerSchema(namedText("bool", "norvex.parameter:parameter.bool-2.0.0", "Locked"));
    engine.registerSchema(namedText("int", "norvex.parameter:parameter.int64-3.0.0", "Stages"));
    engine.registerSchema(namedText("string", "norvex.parameter:parameter.string-3.0.0", "Remark"));
    engine.getUnitsEngine().registerSchema(unitText("unit"));
    engine.resolveSchemas();
    engine.registerIntParameter(
        IntParameter(ParameterCore("own", "Floor", "", "", false), IntRange(true, 1, false, 0)));
    std::cerr << engine.getBoolParameter("bool").getSpec().getCore().getName() << ' '
              << engine.getIntParameter("int").getCore().getGroup().getName() << ' '
              << engine.getStringParameter("string").getRange().getTypeId() << ' '
              << engine.getIntParameter("own").getRange().getTypeId() << '\n';
}

class AtTheEnd {
public:
    AtTheEnd() = default;
    AtTheEnd(const AtTheEnd&) = delete;
    AtTheEnd& operator=(const AtTheEnd&) = delete;
    ~AtTheEnd() {
        if (armed_) {
            std::cerr << "at the end: ";
            useWhatIsShared();
        }
    }

    void arm() { armed_ = true; }

private:
    bool armed_ = false;
};

// Made before anything in the library is, and so destroyed last.
[[gnu::init_priority(101)]] AtTheEnd atTheEnd;

TEST(EndOfProcess, LeavesAloneWhatTheLibrarySharesUntilNobodyCanUseIt) {
    const auto endProcess = [] {
        useWhatIsShared();
        atTheEnd.arm();
        std::exit(0);
    };
    EXPECT_EXIT(endProcess(), testing::ExitedWithCode(0),
                "at the end: Yes/No Other norvex.range:range.string-1.0.0 "
                "norvex.range:range.int64.bounded.static-1.0.0");
}

} // namespace
