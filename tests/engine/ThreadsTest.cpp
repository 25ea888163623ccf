#include "ProjectFolder.h"
#include "support/Catalogue.h"
#include "support/Picture.h"
#include "support/SchemaTexts.h"
#include "support/Tally.h"

#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <thread>
#include <vector>

namespace {

using Parameters::BoolParameter;
using Parameters::ParameterCore;
using Parameters::ParametersEngine;
using Parameters::Taxon;
using Support::boolParameterText;
using Support::boolSpecText;
using Support::disciplineText;
using Support::groupText;
using Support::pictureOf;

constexpr int threadCount = 4;

Support::Tally& threadsTried = Support::addTally("threads beside others");
Support::Tally& callsTried = Support::addTally("calls in threads beside others");

/// Runs the same in several threads at once; the work returns how many calls it made.
template <class Work>
void inThreads(Work work) {
    std::vector<std::thread> threads;
    threads.reserve(threadCount);
    for (int i = 0; i < threadCount; ++i) {
        threads.emplace_back([&work, i] { callsTried.add(work(i)); });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    threadsTried.add(threadCount);
}

/// Returns how many calls a picture took: one for each object, its schema and its dependencies.
long callsFor(const std::string& picture) {
    long calls = 0;
    for (const char* line : {"\n  got", "\n  schema", "\n  depends"}) {
        for (auto at = picture.find(line); at != std::string::npos; at = picture.find(line, at + 1)) {
            ++calls;
        }
    }
    return calls;
}

/// Returns an engine with objects whose lists nobody has asked for yet, and with pending schemas.
ParametersEngine loaded() {
    ParametersEngine engine;
    for (int i = 0; i < 40; ++i) {
        const std::string number = std::to_string(i);
        engine.registerSchema(disciplineText("d" + number));
        engine.registerSchema(groupText("g" + number));
        engine.registerSchema(boolSpecText("s" + number, "d" + number));
        engine.registerSchema(boolParameterText("p" + number, "g" + number, "s" + number));
    }
    engine.resolveSchemas();
    engine.registerSchema(groupText("pending"));
    return engine;
}

/// Asks everything that const operations answer; returns all answers as one text.
std::string everythingAbout(const ParametersEngine& engine) {
    const BoolParameter parameter(ParameterCore("new", "New", Taxon("g1", ""), "", "", false));
    std::string result = pictureOf(engine, {"d1", "pending", "x", "norvex.spec:discipline-1.0.0"});
    result += engine.getSchema(parameter);
    result += std::to_string(engine.getDependencies(parameter).size());
    result += std::to_string(engine.readValueType(boolParameterText("new", "x", "y")));
    result += engine.readBoolParameter(boolParameterText("new", "g1", "s1")).getSpec().getCore().getName();
    result += engine.getDiscipline("norvex.spec:discipline-1.3.0").getName();
    try {
        engine.getDomain("x");
    } catch (const Parameters::UnrecognizedIdentifierException& exception) {
        result += exception.what();
    }
    return result;
}

TEST(Threads, ReadOneEngineAtOnce) {
    const ParametersEngine engine = loaded();
    std::vector<std::string> answers(threadCount);
    inThreads([&](int i) {
        std::string& answer = answers[static_cast<std::size_t>(i)];
        answer = everythingAbout(engine);
        return callsFor(answer);
    });
    EXPECT_EQ(answers, std::vector<std::string>(threadCount, everythingAbout(engine)));
}

TEST(Threads, ReadACatalogueOfEveryKindAtOnce) {
    std::map<std::string, std::string> batch;
    for (const std::string& text : Support::textsIn(OSTRA_SOURCE_DIR "/examples/catalogue")) {
        batch.emplace(std::to_string(batch.size()), text);
    }
    ParametersEngine loadedEngine;
    loadedEngine.registerSchemas(batch);
    const ParametersEngine engine(loadedEngine); // one whose lists nobody has asked for
    std::vector<std::string> pictures(threadCount);
    inThreads([&](int i) {
        std::string& picture = pictures[static_cast<std::size_t>(i)];
        picture = pictureOf(engine);
        return callsFor(picture);
    });
    EXPECT_EQ(pictures, std::vector<std::string>(threadCount, pictureOf(engine)));
    EXPECT_EQ(engine.findUnresolvable().size(), 0U);
}

TEST(Threads, AskForTheSameListAtOnce) {
    const ParametersEngine engine = loaded();
    std::vector<std::size_t> sizes(threadCount);
    inThreads([&](int i) {
        for (int again = 0; again < 20; ++again) {
            sizes[static_cast<std::size_t>(i)] += engine.getAllBoolParameters().size();
        }
        return 20;
    });
    EXPECT_EQ(sizes, std::vector<std::size_t>(threadCount, 800));
}

TEST(Threads, AskForTheSameListAtOnceAfterItHasGrown) {
    ParametersEngine engine = loaded();
    EXPECT_EQ(engine.getAllGroups().size(), 40U);
    engine.resolveSchemas();
    std::vector<std::size_t> sizes(threadCount);
    inThreads([&](int i) {
        sizes[static_cast<std::size_t>(i)] = engine.getAllGroups().size();
        return 1;
    });
    EXPECT_EQ(sizes, std::vector<std::size_t>(threadCount, 41));
}

TEST(Threads, AskForTheSameViewsAndDependentsAtOnceWhileTheyAreMade) {
    const ParametersEngine engine = loaded();
    std::vector<std::size_t> sizes(threadCount);
    std::vector<const void*> places(threadCount);
    inThreads([&](int i) {
        const auto thread = static_cast<std::size_t>(i);
        for (int again = 0; again < 20; ++again) {
            sizes[thread] += engine.allBoolParameters().size() + engine.dependentsOf("s1").size();
        }
        places[thread] = engine.allBoolParameters().begin();
        return 41;
    });
    EXPECT_EQ(sizes, std::vector<std::size_t>(threadCount, 820));
    EXPECT_EQ(places, std::vector<const void*>(threadCount, engine.allBoolParameters().begin()));
}

TEST(Threads, CopyOneEngineAtOnceAndChangeTheirCopies) {
    const ParametersEngine engine = loaded();
    std::vector<std::size_t> sizes(threadCount);
    inThreads([&](int i) {
        ParametersEngine copy(engine);
        for (int again = 0; again < 5; ++again) {
            copy.registerDiscipline(Taxon("new" + std::to_string(again), "New"));
            sizes[static_cast<std::size_t>(i)] += copy.getAllDisciplines().size();
        }
        copy.resolveSchemas();
        EXPECT_EQ(copy.getGroup("pending").getName(), "Name");
        return 12;
    });
    EXPECT_EQ(sizes, std::vector<std::size_t>(threadCount, 41 + 42 + 43 + 44 + 45));
    EXPECT_EQ(engine.getAllDisciplines().size(), 40U);
}

TEST(Threads, ChangeCopiesThatWereMadeInOneThread) {
    const ParametersEngine engine = loaded();
    std::vector<ParametersEngine> copies(threadCount, engine);
    inThreads([&](int i) {
        ParametersEngine& copy = copies[static_cast<std::size_t>(i)];
        EXPECT_EQ(copy.getAllGroups().size(), 40U);
        copy.resolveSchemas();
        EXPECT_EQ(copy.getAllGroups().size(), 41U);
        copy = ParametersEngine();
        return 3;
    });
    EXPECT_EQ(engine.getAllGroups().size(), 40U);
}

TEST(Threads, ChangeTheOriginalWhileOthersReadAndDropCopies) {
    ParametersEngine engine = loaded();
    std::vector<ParametersEngine> copies(threadCount, engine);
    inThreads([&](int i) {
        if (i == 0) {
            engine.resolveSchemas();
            engine.registerDiscipline(Taxon("new", "New"));
            return 2;
        }
        EXPECT_EQ(copies[static_cast<std::size_t>(i)].getAllDisciplines().size(), 40U);
        copies[static_cast<std::size_t>(i)] = ParametersEngine();
        return 1;
    });
    EXPECT_EQ(engine.getAllDisciplines().size(), 41U);
    EXPECT_EQ(copies[0].getAllDisciplines().size(), 40U);
}

// What is pending is shared by copies until they resolve it, each with what it has itself.
TEST(Threads, ResolveInCopiesWhatWasPendingInOne) {
    ParametersEngine engine;
    for (int i = 0; i < 50; ++i) {
        engine.registerSchema(boolParameterText("p" + std::to_string(i), "g", "s"));
    }
    std::vector<ParametersEngine> copies(threadCount, engine);
    engine = ParametersEngine();
    inThreads([&](int thread) {
        ParametersEngine& copy = copies[static_cast<std::size_t>(thread)];
        const std::string name = "Group of " + std::to_string(thread);
        copy.registerSchemas({{"g", groupText("g", name)}, {"s", boolSpecText("s", "norvex.spec:discipline-1.0.0")}});
        for (const BoolParameter& parameter : copy.allBoolParameters()) {
            EXPECT_EQ(parameter.getCore().getGroup().getName(), name);
        }
        EXPECT_EQ(copy.allBoolParameters().size(), 50U);
        return 52;
    });
}

TEST(Threads, ShareObjectsThatWereHandedOut) {
    const ParametersEngine engine = loaded();
    const BoolParameter parameter = engine.getBoolParameter("p1");
    inThreads([&](int) {
        std::vector<BoolParameter> copies(50, parameter);
        EXPECT_EQ(copies.back().getSpec().getCore().getDiscipline().getTypeId(), "d1");
        return 4;
    });
    EXPECT_EQ(parameter.getCore().getTypeId(), "p1");
}

TEST(Threads, MakeBuiltInObjectsAtOnce) {
    std::vector<std::string> names(threadCount);
    inThreads([&](int i) {
        names[static_cast<std::size_t>(i)] =
            ParametersEngine().getBoolSpec("norvex.spec:spec.bool-1.0.0").getCore().getDiscipline().getName();
        return 1;
    });
    EXPECT_EQ(names, std::vector<std::string>(threadCount, "Common"));
}

} // namespace
