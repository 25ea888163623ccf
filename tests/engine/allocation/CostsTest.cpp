#include "schema/AllocationWatch.h"
#include "support/SchemaTexts.h"

#include <parameters/ParametersEngine.h>
#include <parameters/ValidationException.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <new>
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

/// What was in order stays in order.
TEST_F(Costs, OfAListAreLowWhenOneMoreIsAdded) {
    ParametersEngine engine;
    for (int number = 0; number < 2000; ++number) {
        engine.registerDiscipline(Taxon(nameOf(number), "Name"));
    }
    const auto list = [&] { static_cast<void>(engine.allDisciplines()); };
    const std::size_t ofTheFirst = bytesOf(list);
    engine.registerDiscipline(Taxon("another", "Name"));
    EXPECT_LT(2 * bytesOf(list), ofTheFirst);
}

/// What is named by what was withdrawn is forgotten, though something else waits all the time.
TEST_F(Costs, OfWhatWasWithdrawnAreGivenBack) {
    ParametersEngine engine;
    const auto addAndWithdraw = [&](int begin, int end) {
        for (int number = begin; number < end; ++number) {
            const std::string group = "a group that is not there " + std::to_string(number);
            engine.registerSchema(Support::boolParameterText("parameter", group, "a spec that is not there"));
            engine.discardPending("parameter");
        }
    };
    engine.registerSchema(Support::boolParameterText("waits", "a group that is not there", "a spec that is not there"));
    addAndWithdraw(0, 500);
    const Ostra::AllocationWatch watch;
    addAndWithdraw(500, 1000);
    EXPECT_EQ(watch.liveBlocks(), 0);
    EXPECT_EQ(engine.findUnresolvable().size(), 1U);
}

/// As it is, too, when nothing else waits.
TEST_F(Costs, OfTheLastThatIsNamedAreGivenBack) {
    ParametersEngine engine;
    engine.registerGroup(Taxon("group", "Name"));
    engine.registerBoolSpec(Parameters::BoolSpec(Parameters::SpecCore("spec", "Name")));
    engine.registerSchema(Support::boolParameterText("parameter", "group", "spec"));
    engine.discardPending("parameter"); // there is room for what is pending now
    const Ostra::AllocationWatch watch;
    engine.registerSchema(Support::boolParameterText("parameter", "a group that is not there", "spec"));
    engine.discardPending("parameter");
    EXPECT_EQ(watch.liveBlocks(), 0);
}

/// Whichever request for memory fails, what was named by then is forgotten.
TEST_F(Costs, OfWhatWasNotRegisteredAreGivenBack) {
    ParametersEngine engine;
    const std::string text =
        Support::boolParameterText("parameter", "a group that is not there", "a spec that is not there");
    engine.registerSchema(Support::boolParameterText("waits", "another group", "another spec"));
    engine.registerSchema(text);
    engine.discardPending("parameter"); // there is room for it now
    bool isRegistered = false;
    for (long failing = 0; !isRegistered; ++failing) {
        const Ostra::AllocationWatch watch(failing);
        try {
            engine.registerSchema(text);
            isRegistered = true;
        } catch (const std::bad_alloc&) {
            EXPECT_EQ(watch.liveBlocks(), 0) << "request " << failing;
        }
    }
}

/// Built-in objects are named as others are, and are forgotten when they are found.
TEST_F(Costs, OfWhatIsNamedAreGivenBackWhenItIsFound) {
    const auto blocksOf = [](auto versionOf) {
        ParametersEngine engine;
        const Ostra::AllocationWatch watch;
        for (int number = 100; number < 150; ++number) {
            const std::string version = std::to_string(versionOf(number));
            engine.registerSchema(Support::boolParameterText("parameter " + std::to_string(number),
                                                             "norvex.parameter:group-1.0.0",
                                                             "norvex.spec:spec.bool-1.0." + version));
        }
        engine.resolveSchemas();
        return watch.liveBlocks();
    };
    blocksOf([](int number) { return number; }); // makes what is made once
    EXPECT_EQ(blocksOf([](int number) { return number; }), blocksOf([](int) { return 100; }));
}

/// Nothing is left of what was pending: an engine has then what it has of objects.
TEST_F(Costs, OfWhatWasPendingAreGivenBackWhenItIsResolved) {
    const auto blocksOf = [](auto add) {
        ParametersEngine engine;
        const Ostra::AllocationWatch watch;
        add(engine);
        return watch.liveBlocks();
    };
    const auto addSchema = [](ParametersEngine& engine) {
        engine.registerSchema(disciplineText("discipline"));
        engine.resolveSchemas();
    };
    blocksOf(addSchema); // makes what is made once
    EXPECT_EQ(blocksOf(addSchema),
              blocksOf([](ParametersEngine& engine) { engine.registerDiscipline(Taxon("discipline", "Name")); }));
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
