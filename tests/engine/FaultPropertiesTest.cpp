#include "ProjectFolder.h"
#include "support/Catalogue.h"
#include "support/Faults.h"
#include "support/MutatedTexts.h"
#include "support/Picture.h"
#include "support/RowNames.h"
#include "support/Tally.h"

#include <parameters/ParametersEngine.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <rapidjson/document.h>
#include <rapidjson/pointer.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

// What holds for whatever is wrong, tried with texts of catalogues and of the fuzzers' corpus that are changed at
// random.

namespace {

using Parameters::Fault;
using Parameters::ParametersEngine;
using Support::bytesOf;
using Support::errorsAmong;
using Support::lineOf;
using Support::Lines;
using Support::MutatedTexts;
using Support::Texts;

Support::Tally& triedTexts = Support::addTally("changed texts whose faults were told");
Support::Tally& toldFaults = Support::addTally("faults that were told of them");

struct TextSource {
    const char* name;
    const char* path; // null where there is none
    std::size_t rounds;
};

/// Returns the catalogue by keys that are no typeids.
Texts catalogueIn(const std::string& folder) {
    Texts texts;
    for (const std::string& text : Support::textsIn(folder)) {
        texts.emplace("text " + std::to_string(texts.size()), text);
    }
    return texts;
}

std::vector<std::string> corpusOfTheFuzzer() {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(OSTRA_SOURCE_DIR "/fuzz/corpus/schema_text")) {
        files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    std::vector<std::string> texts;
    for (const auto& file : files) {
        std::ifstream stream(file, std::ios::binary);
        texts.emplace_back(std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>());
    }
    return texts;
}

/// Returns the message with which texts are refused or do not resolve in an engine; nothing if they do.
std::string refusalBy(ParametersEngine& engine, const Texts& texts) {
    try {
        engine.registerSchemas(texts);
    } catch (const std::logic_error& exception) {
        return exception.what();
    }
    return {};
}

rapidjson::Document parsed(const std::string& text) {
    rapidjson::Document document;
    document.Parse<rapidjson::kParseFullPrecisionFlag>(text.data(), text.size());
    return document;
}

/// Returns a value as text; two objects in which a name stands twice cannot be compared otherwise.
std::string written(const rapidjson::Value& value) {
    rapidjson::StringBuffer buffer;
    rapidjson::Writer writer(buffer);
    value.Accept(writer);
    return {buffer.GetString(), buffer.GetSize()};
}

/// Returns, written, the values that a pointer leads to: of several members of one name it does not say which.
Lines valuesAt(const std::string& pointer, const rapidjson::Document& document) {
    if (pointer.empty()) {
        return {written(document)};
    }
    const rapidjson::Pointer whole(pointer.data(), pointer.size());
    const rapidjson::Pointer holder(pointer.data(), pointer.rfind('/'));
    EXPECT_TRUE(whole.IsValid()) << pointer;
    const rapidjson::Value* const in = holder.Get(document);
    const rapidjson::Value* const first = whole.Get(document);
    if (in == nullptr || first == nullptr) {
        return {};
    }
    Lines values{written(*first)};
    const auto& last = whole.GetTokens()[whole.GetTokenCount() - 1];
    if (in->IsObject()) {
        for (const auto& member : in->GetObject()) {
            if (std::string(member.name.GetString(), member.name.GetStringLength()) ==
                std::string(last.name, last.length)) {
                values.push_back(written(member.value));
            }
        }
    }
    return values;
}

/// Checks that the bytes of a place are the value that its pointer leads to.
void checkPlace(const Fault::Place& place, const Texts& texts) {
    const std::string& text = texts.at(place.text);
    ASSERT_LE(place.begin, place.end);
    ASSERT_LE(place.end, text.size());
    const auto whole = parsed(text);
    ASSERT_FALSE(whole.HasParseError());
    const auto part = parsed(bytesOf(place, texts));
    ASSERT_FALSE(part.HasParseError()) << bytesOf(place, texts);
    EXPECT_THAT(valuesAt(place.pointer, whole), testing::Contains(written(part))) << place.pointer;
}

void checkFault(const Fault& fault, const Texts& texts) {
    SCOPED_TRACE(Support::lineOf(fault, texts));
    EXPECT_FALSE(fault.message().empty());
    if (fault.code() == "json-syntax") {
        EXPECT_EQ(fault.place().pointer, "");
        EXPECT_EQ(fault.place().end, texts.at(fault.place().text).size());
        return;
    }
    checkPlace(fault.place(), texts);
    if (fault.otherPlace()) {
        checkPlace(*fault.otherPlace(), texts);
    }
    if (fault.code() == "member-duplicate") {
        EXPECT_EQ(fault.otherPlace().value().pointer, fault.place().pointer);
        EXPECT_GT(fault.otherPlace().value().begin, fault.place().end);
    }
}

bool areSame(const Fault::Place& one, const Fault::Place& other) {
    return one.text == other.text && one.pointer == other.pointer && one.begin == other.begin && one.end == other.end;
}

/// Checks that what is called a consequence is that of an error that is none.
void checkRoots(const std::vector<Fault>& faults) {
    for (const Fault& fault : faults) {
        if (fault.root()) {
            EXPECT_TRUE(fault.isError());
            EXPECT_TRUE(std::any_of(faults.begin(), faults.end(), [&](const Fault& other) {
                return other.isError() && !other.root() && areSame(other.place(), *fault.root());
            })) << fault.message();
        }
    }
}

class FaultProperties : public testing::TestWithParam<TextSource> {
protected:
    void SetUp() override {
        if (GetParam().path == nullptr) {
            GTEST_SKIP() << "OSTRA_CATALOGUE names no folder.";
        }
        catalogue = catalogueIn(GetParam().path);
        ASSERT_FALSE(catalogue.empty()) << "no schema text in " << GetParam().path;
        for (const auto& [key, text] : catalogue) {
            keys.push_back(key);
        }
    }

    std::string anyKey() { return keys[random.below(keys.size())]; }

    Texts catalogue;
    std::vector<std::string> keys;
    MutatedTexts random{20};
};

/// Returns a text with another typeid than the one that its catalogue has.
std::string renamed(std::string text) {
    const std::size_t begin = text.find('"', text.find(':', text.find("\"typeid\""))) + 1;
    return text.replace(begin, text.find('"', begin) - begin, "another one");
}

TEST_P(FaultProperties, OfOneTextBeginWithWhatIsThrown) {
    ParametersEngine engine;
    engine.registerSchemas(catalogue);
    std::vector<std::string> originals = corpusOfTheFuzzer();
    for (const auto& [key, text] : catalogue) {
        originals.push_back(renamed(text));
    }
    for (std::size_t round = 0; round < GetParam().rounds && !HasFailure(); ++round) {
        const Texts texts{{"t", random.mutated(originals[random.below(originals.size())])}};
        SCOPED_TRACE(texts.at("t"));
        const auto faults = engine.findFaults(texts);
        ParametersEngine copy = engine;
        const std::string thrown = refusalBy(copy, texts);
        const Lines errors = errorsAmong(faults);
        EXPECT_EQ(errors.empty() ? "" : errors.front(), thrown);
        for (const Fault& fault : faults) {
            checkFault(fault, texts);
            EXPECT_EQ(fault.typeId(), faults.front().typeId());
        }
        checkRoots(faults);
        triedTexts.add(1);
        toldFaults.add(static_cast<long>(faults.size()));
    }
}

TEST_P(FaultProperties, OfManyTextsKeepOutNothingButThose) {
    for (std::size_t round = 0; round < GetParam().rounds / keys.size() + 1 && !HasFailure(); ++round) {
        Texts texts = catalogue;
        for (std::size_t count = 1 + random.below(5); count > 0; --count) {
            std::string& text = texts.at(anyKey());
            text = random.mutated(text);
        }
        ParametersEngine sound;
        const auto faults = sound.registerSoundSchemas(texts);
        EXPECT_EQ(Support::linesOf(ParametersEngine().findFaults(texts), texts), Support::linesOf(faults, texts));
        ParametersEngine throwing;
        const std::string thrown = refusalBy(throwing, texts);
        const Lines errors = errorsAmong(faults);
        EXPECT_EQ(errors.empty(), thrown.empty()) << thrown;
        if (!thrown.empty()) {
            EXPECT_THAT(errors, testing::Contains(thrown));
        }
        for (const Fault& fault : faults) {
            checkFault(fault, texts);
        }
        checkRoots(faults);
        for (const Fault& fault : faults) {
            if (fault.isError()) {
                texts.erase(fault.place().text);
            }
        }
        ParametersEngine rest;
        EXPECT_EQ(refusalBy(rest, texts), "");
        EXPECT_EQ(Support::pictureOf(sound), Support::pictureOf(rest));
        triedTexts.add(1);
        toldFaults.add(static_cast<long>(faults.size()));
    }
}

/// The values of a schema's definitions, which can be wrong one beside the other.
std::vector<std::string> valuesIn(const std::string& text) {
    std::vector<std::string> pointers;
    const auto document = parsed(text);
    for (const char* const array : {"constants", "properties"}) {
        const auto found = document.FindMember(array);
        if (found == document.MemberEnd()) {
            continue;
        }
        for (rapidjson::SizeType place = 0; place < found->value.Size(); ++place) {
            for (const char* const member : {"value", "typedValue"}) {
                if (found->value[place].HasMember(member)) {
                    pointers.push_back(std::string("/") + array + "/" + std::to_string(place) + "/" + member);
                }
            }
        }
    }
    return pointers;
}

/// Returns a text with values that are wrong in the places of some pointers.
std::string brokenAt(const std::vector<std::string>& pointers, const std::string& text) {
    auto document = parsed(text);
    for (const std::string& pointer : pointers) {
        rapidjson::Pointer(pointer.data(), pointer.size()).Set(document, rapidjson::Value(rapidjson::kNullType));
    }
    return written(document);
}

/// Returns the errors of a text as lines that do not tell where in the bytes they are.
std::multiset<std::string> errorsOf(const std::string& text, const ParametersEngine& engine) {
    std::multiset<std::string> lines;
    for (const Fault& fault : engine.findFaults({{"t", text}})) {
        if (fault.isError()) {
            lines.insert(fault.place().pointer + ": " + fault.message());
        }
    }
    return lines;
}

TEST_P(FaultProperties, GoOneByOneAsTheyAreMended) {
    ParametersEngine engine;
    engine.registerSchemas(catalogue);
    std::size_t mended = 0;
    for (std::size_t round = 0; round < GetParam().rounds / 4 && !HasFailure(); ++round) {
        const std::string text = renamed(catalogue.at(anyKey()));
        SCOPED_TRACE(text);
        ASSERT_EQ(errorsOf(text, engine).size(), 0U);
        std::vector<std::string> broken = valuesIn(text);
        while (!broken.empty()) {
            std::multiset<std::string> expected;
            for (const std::string& pointer : broken) {
                const auto alone = errorsOf(brokenAt({pointer}, text), engine);
                EXPECT_EQ(alone.size(), 1U) << pointer;
                expected.insert(alone.begin(), alone.end());
            }
            EXPECT_EQ(errorsOf(brokenAt(broken, text), engine), expected);
            broken.erase(broken.begin() + static_cast<std::ptrdiff_t>(random.below(broken.size())));
            ++mended;
        }
    }
    EXPECT_GT(mended, GetParam().rounds / 4);
}

/// Returns the errors that are no consequences of others, but for those of one text.
std::multiset<std::string> rootsIn(const Texts& texts, const std::string& except = {}) {
    std::multiset<std::string> lines;
    for (const Fault& fault : ParametersEngine().findFaults(texts)) {
        if (fault.isError() && !fault.root() && fault.place().text != except) {
            lines.insert(lineOf(fault, texts));
        }
    }
    return lines;
}

/// Texts that name each other are mended in any order. What is but a consequence is gone in the end.
TEST_P(FaultProperties, GoWithTheirRoots) {
    for (std::size_t round = 0; round < GetParam().rounds / keys.size() + 1 && !HasFailure(); ++round) {
        Texts texts = catalogue;
        std::vector<std::string> broken;
        while (broken.size() < 5) {
            std::string key = anyKey();
            const auto values = valuesIn(texts.at(key));
            if (!values.empty() && texts.at(key) == catalogue.at(key)) {
                texts.at(key) = brokenAt({values[random.below(values.size())]}, texts.at(key));
                broken.push_back(std::move(key));
            }
        }
        for (const std::string& key : broken) {
            const auto others = rootsIn(texts, key);
            EXPECT_LT(others.size(), rootsIn(texts).size()) << key;
            texts.at(key) = catalogue.at(key);
            EXPECT_EQ(rootsIn(texts), others) << key;
        }
        EXPECT_EQ(errorsAmong(ParametersEngine().findFaults(texts)), Lines());
    }
}

INSTANTIATE_TEST_SUITE_P(Folders, FaultProperties,
                         testing::Values(TextSource{"Examples", OSTRA_SOURCE_DIR "/examples/catalogue", 2000},
                                         TextSource{"Large", std::getenv("OSTRA_CATALOGUE"), 200}),
                         Support::nameOfRow);

} // namespace
