#include "schema/AllocationWatch.h"
#include "support/SchemaTexts.h"

#include <parameters/ParametersEngine.h>
#include <parameters/ValidationException.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

// What takes long only when much is registered is seen in the memory that it asks for, whatever else the machine does.

namespace {

using Parameters::ParametersEngine;
using Parameters::Taxon;
using Parameters::ValidationException;
using Support::disciplineText;

template <class Operation>
std::size_t bytesOf(Operation&& operation) {
    const Ostra::AllocationWatch watch;
    operation();
    return watch.bytes();
}

std::string nameOf(int number) { return "discipline " + std::to_string(number); }

class Costs : public testing::Test {
protected:
    void SetUp() override {
        if (!Ostra::AllocationWatch::sees([] { const ParametersEngine other; })) {
            GTEST_SKIP() << "requests for memory are not seen in this build";
        }
    }

    /// Expects that eight times as many calls ask for hardly more than eight times as much.
    template <class Add>
    static void expectProportional(Add add) {
        const auto bytesOfMany = [&](int count) {
            ParametersEngine engine;
            return bytesOf([&] {
                for (int number = 0; number < count; ++number) {
                    add(engine, number);
                }
            });
        };
        EXPECT_LT(bytesOfMany(4000), 12 * bytesOfMany(500));
    }
};

TEST_F(Costs, OfResolvingOneSchemaAfterTheOtherGrowWithTheirNumber) {
    expectProportional([](ParametersEngine& engine, int number) {
        engine.registerSchema(disciplineText(nameOf(number)));
        engine.resolveSchemas();
    });
}

TEST_F(Costs, OfRegisteringOneSchemaAfterTheOtherGrowWithTheirNumber) {
    expectProportional(
        [](ParametersEngine& engine, int number) { engine.registerSchema(disciplineText(nameOf(number))); });
}

TEST_F(Costs, OfRegisteringOneObjectAfterTheOtherGrowWithTheirNumber) {
    expectProportional(
        [](ParametersEngine& engine, int number) { engine.registerDiscipline(Taxon(nameOf(number), "Name")); });
}

/// What is named by what was withdrawn is forgotten, though something else waits all the time.
TEST_F(Costs, OfWhatWasWithdrawnAreGivenBack) {
    ParametersEngine engine;
    const auto addAndWithdraw = [&](int count) {
        for (int number = 0; number < count; ++number) {
            const std::string group = "a group that is not there " + std::to_string(number);
            engine.registerSchema(Support::boolParameterText("parameter", group, "a spec that is not there"));
            engine.discardPending("parameter");
        }
    };
    engine.registerSchema(Support::boolParameterText("waits", "a group that is not there", "a spec that is not there"));
    addAndWithdraw(500);
    const Ostra::AllocationWatch watch;
    addAndWithdraw(500);
    EXPECT_EQ(watch.liveBlocks(), 0);
    EXPECT_EQ(engine.findUnresolvable().size(), 1U);
}

class CostsOfACopy : public Costs {
protected:
    void SetUp() override {
        Costs::SetUp();
        for (int number = 0; number < 2000; ++number) {
            original.registerSchema(disciplineText(nameOf(number)));
        }
        original.resolveSchemas();
        original.registerSchema(disciplineText("pending"));
    }

    /// What it takes to give a copy tables of its own.
    std::size_t bytesOfTables() const {
        ParametersEngine copy = original;
        return bytesOf([&] { copy.registerDiscipline(Taxon("another", "Name")); });
    }

    /// Expects that the operation leaves a copy its share in the tables.
    template <class Operation>
    void expectShared(Operation operation) const {
        ParametersEngine copy = original;
        EXPECT_LT(bytesOf([&] { operation(copy); }), bytesOfTables() / 4);
    }

    ParametersEngine original;
};

TEST_F(CostsOfACopy, AreLowUntilItChanges) {
    EXPECT_LT(bytesOf([this] { const ParametersEngine copy = original; }), bytesOfTables() / 4);
    EXPECT_GT(bytesOfTables(), 20000U);
}

TEST_F(CostsOfACopy, AreLowWhenAnObjectIsRefused) {
    expectShared([](ParametersEngine& copy) {
        EXPECT_THROW(copy.registerDiscipline(Taxon(nameOf(1), "Name")), ValidationException);
        EXPECT_THROW(copy.registerDiscipline(Taxon("", "Name")), ValidationException);
    });
}

TEST_F(CostsOfACopy, AreLowWhenAnObjectThatNamesWhatIsMissingIsRefused) {
    expectShared([](ParametersEngine& copy) {
        EXPECT_THROW(copy.registerGeneralSpec(Parameters::GeneralSpec(
                         Parameters::SpecCore("spec", "Name", Taxon("a discipline that is not there", "Name")))),
                     ValidationException);
    });
}

TEST_F(CostsOfACopy, AreLowWhenASchemaIsRefused) {
    expectShared([](ParametersEngine& copy) {
        EXPECT_THROW(copy.registerSchema(disciplineText(nameOf(1))), ValidationException);
        EXPECT_THROW(copy.registerSchema("{}"), ValidationException);
        EXPECT_THROW(copy.registerSchema(Support::namedText("new", "no base of a kind", "Name")), ValidationException);
    });
}

TEST_F(CostsOfACopy, AreLowWhenNothingIsDiscarded) {
    expectShared([](ParametersEngine& copy) {
        EXPECT_FALSE(copy.discardPending("unknown"));
        EXPECT_FALSE(copy.discardPending(nameOf(1)));
    });
}

TEST_F(CostsOfACopy, AreLowWhenNothingIsResolved) {
    original.resolveSchemas();
    expectShared([](ParametersEngine& copy) { copy.resolveSchemas(); });
}

} // namespace
