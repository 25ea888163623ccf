#include "schema/SmallStack.h"
#include "support/Messages.h"
#include "support/SchemaTexts.h"

#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

// Type identifiers that were chosen to break the tables that they are kept in.

namespace {

using Parameters::ParametersEngine;
using Parameters::UnrecognizedIdentifierException;
using Parameters::ValidationException;
using Support::boolParameterText;
using Support::boolSpecText;
using Support::disciplineText;
using Support::groupText;
using Support::messageOf;
using Support::unitText;

constexpr std::size_t million = 1'000'000;

/// Typeids that differ in their last bytes only.
std::string longTypeId(const char* end) { return std::string(million, 'x') + end; }

void useLongTypeIds() {
    ParametersEngine engine;
    const auto missing = engine.registerSchema(boolParameterText(longTypeId("p"), longTypeId("g"), longTypeId("s")));
    EXPECT_EQ(missing.first, (std::set<std::string>{longTypeId("g"), longTypeId("s")}));
    engine.registerSchema(groupText(longTypeId("g")));
    engine.registerSchema(boolSpecText(longTypeId("s"), longTypeId("d")));
    EXPECT_EQ(engine.findUnresolvable().size(), 2U);
    engine.registerSchema(disciplineText(longTypeId("d")));
    engine.resolveSchemas();
    EXPECT_EQ(engine.getBoolParameter(longTypeId("p")).getCore().getGroup().getTypeId(), longTypeId("g"));
    EXPECT_EQ(engine.getDependencies(longTypeId("p")), (std::set<std::string>{longTypeId("g"), longTypeId("s")}));
    EXPECT_EQ(messageOf<UnrecognizedIdentifierException>([&] { engine.getGroup(longTypeId("s")); }),
              "Could not find group with typeid " + longTypeId("s") + ".");
}

TEST(HostileNames, MayBeAMillionBytesLong) { useLongTypeIds(); }

TEST(HostileNames, MayBeAMillionBytesLongOnASmallStack) { Ostra::runOnSmallStack(useLongTypeIds); }

TEST(HostileNames, MayConsistOfBeginningsOfBuiltInIdentifiers) {
    std::string typeId;
    while (typeId.size() < million) {
        typeId += "norvex.spec:disciplin norvex.norvex.parameter:grou";
    }
    ParametersEngine engine;
    engine.registerSchema(groupText(typeId));
    engine.resolveSchemas();
    EXPECT_EQ(engine.getGroup(typeId).getName(), "Name");
}

TEST(HostileNames, MayHoldQuotesControlBytesAndByteZero) {
    const std::string typeId("\"}\\\0\x01\x1f\n\x7f\xff{\"typeid\"", 18);
    ParametersEngine engine;
    engine.registerSchema(groupText(typeId));
    engine.registerSchema(boolParameterText("p", typeId, "norvex.spec:spec.bool-1.0.0"));
    engine.resolveSchemas();
    EXPECT_EQ(engine.getBoolParameter("p").getCore().getGroup().getTypeId(), typeId);
    EXPECT_EQ(
        engine.getSchema(typeId),
        R"({"typeid":"\"}\\\u0000\u0001\u001F\n)"
        "\x7f\xff"
        R"({\"typeid\"","inherits":["norvex.parameter:group-1.0.0"],"constants":[{"id":"name","value":"Name"}]})");
}

TEST(HostileNames, AreToldApartBehindAByteZero) {
    ParametersEngine engine;
    engine.registerSchema(groupText(std::string("a\0b", 3)));
    engine.registerSchema(groupText(std::string("a\0c", 3)));
    engine.registerSchema(groupText("a"));
    engine.resolveSchemas();
    EXPECT_EQ(engine.getAllGroups().size(), 3U);
}

/// Stands for the built-in object of six kinds at once.
const std::string manyPrefixes = "norvex.spec:discipline-1.norvex.parameter:group-1.norvex.spec:spec.bool-1."
                                 "norvex.spec:spec.int64-2.norvex.spec:spec.reference-1.norvex.spec:spec.string-2.";

TEST(HostileNames, WithSeveralBuiltInPrefixesAreTaken) {
    ParametersEngine engine;
    EXPECT_TRUE(engine.isRegistered(manyPrefixes));
    EXPECT_EQ(messageOf<ValidationException>([&] { engine.registerSchema(groupText(manyPrefixes)); }),
              "Schema with typeid " + manyPrefixes + " is already registered.");
}

TEST(HostileNames, WithSeveralBuiltInPrefixesStandForEachOfThem) {
    const ParametersEngine engine;
    EXPECT_EQ(engine.getDiscipline(manyPrefixes).getName(), "Common");
    EXPECT_EQ(engine.getGroup(manyPrefixes).getName(), "Other");
    EXPECT_EQ(engine.getBoolSpec(manyPrefixes).getCore().getName(), "Yes/No");
    EXPECT_EQ(engine.getIntSpec(manyPrefixes).getCore().getName(), "Integer");
    EXPECT_EQ(engine.getReferenceSpec(manyPrefixes).getCore().getName(), "Reference");
    EXPECT_EQ(engine.getStringSpec(manyPrefixes).getCore().getName(), "Text");
    EXPECT_EQ(engine.getGroup(manyPrefixes).getTypeId(), manyPrefixes);
    EXPECT_EQ(engine.getStringSpec(manyPrefixes).getCore().getTypeId(), manyPrefixes);
}

TEST(HostileNames, WithSeveralBuiltInPrefixesCanBeNamedInEachRole) {
    ParametersEngine engine;
    const auto missing = engine.registerSchema(boolParameterText("p", manyPrefixes, manyPrefixes));
    EXPECT_EQ(missing.first, std::set<std::string>{});
    engine.resolveSchemas();
    EXPECT_EQ(engine.getBoolParameter("p").getCore().getGroup().getName(), "Other");
    EXPECT_EQ(engine.getBoolParameter("p").getSpec().getCore().getName(), "Yes/No");
    EXPECT_EQ(engine.getDependencies("p"), std::set<std::string>{manyPrefixes});
}

TEST(HostileNames, OfABaseWithSeveralBuiltInPrefixesGoToTheKindThatIsAskedFirst) {
    ParametersEngine engine;
    engine.registerSchema(Support::namedText("x", manyPrefixes, "Name"));
    engine.resolveSchemas();
    EXPECT_EQ(engine.getAllDisciplines().size(), 1U);
}

TEST(HostileNames, MayDifferInOneBitOfManyBytes) {
    ParametersEngine engine;
    std::map<std::string, std::string> batch;
    for (int i = 0; i < 100'000; ++i) {
        std::string typeId(100, i % 2 == 0 ? 'a' : 'b');
        for (int bit = 0; bit < 17; ++bit) {
            typeId[static_cast<std::size_t>(bit) * 5] = ((i >> bit) & 1) == 0 ? '0' : '1';
        }
        batch.emplace(typeId, groupText(typeId));
    }
    engine.registerSchemas(batch);
    EXPECT_EQ(engine.getAllGroups().size(), batch.size());
}

/// Returns 2^17 strings of which the hash that most standard libraries on 64 bits take is the same, whatever its seed:
/// in each pair of blocks of eight bytes, flipping the highest bit of both, after each has been mixed, cancels out.
std::vector<std::string> stringsOfOneHash() {
    constexpr std::uint64_t factor = 0xC6A4A7935BD1E995;
    constexpr std::uint64_t inverse = 0x5F7A0EA7E59B19BD;
    static_assert(factor * inverse == 1);
    const auto unmixed = [](std::uint64_t mixed) {
        const std::uint64_t product = mixed * inverse;
        return (product ^ (product >> 47)) * inverse;
    };
    std::vector<std::string> strings{""};
    for (std::uint64_t pair = 0; pair < 17; ++pair) {
        std::vector<std::string> longer;
        for (const std::string& string : strings) {
            for (const std::uint64_t flip : {std::uint64_t{0}, std::uint64_t{1} << 63}) {
                const std::uint64_t blocks[] = {unmixed(pair ^ flip), unmixed(flip)};
                std::string bytes(sizeof blocks, '\0');
                std::memcpy(bytes.data(), blocks, sizeof blocks);
                longer.push_back(string + bytes);
            }
        }
        strings.swap(longer);
    }
    return strings;
}

class NamesOfOneHash : public testing::Test {
protected:
    void SetUp() override {
        const std::hash<std::string> hash;
        if (hash(names_.front()) != hash(names_.back())) {
            GTEST_SKIP() << "This standard library hashes in another way.";
        }
    }

    const std::vector<std::string>& names() const { return names_; }

private:
    const std::vector<std::string> names_ = stringsOfOneHash();
};

TEST_F(NamesOfOneHash, DoNotSlowDownAnEngine) {
    ParametersEngine engine;
    for (const std::string& name : names()) {
        engine.registerGroup({name, "Name"});
    }
    EXPECT_EQ(engine.getAllGroups().size(), names().size());
    EXPECT_EQ(engine.getGroup(names().back()).getTypeId(), names().back());
}

TEST_F(NamesOfOneHash, DoNotSlowDownAUnitsEngine) {
    Units::UnitsEngine engine;
    for (const std::string& name : names()) {
        engine.registerSchema(unitText(name));
    }
    engine.resolveSchemas();
    EXPECT_EQ(engine.getAllUnits().size(), names().size());
    EXPECT_EQ(engine.getUnit(names().back()).getTypeId(), names().back());
}

TEST(HostileNames, OfManyBytesDoNotSlowDownDiscardingOthers) {
    constexpr int count = 100'000;
    ParametersEngine engine;
    for (int i = 0; i < count; ++i) {
        engine.registerSchema(groupText(std::to_string(i)));
    }
    const std::string longName(16 * million, 'x');
    engine.registerSchema(groupText(longName));
    for (int i = count; i-- > 0;) {
        ASSERT_TRUE(engine.discardPending(std::to_string(i)));
    }
    engine.resolveSchemas();
    EXPECT_EQ(engine.getAllGroups().count(longName), 1U);
}

} // namespace
