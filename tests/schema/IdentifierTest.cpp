#include "schema/Identifier.h"

#include "support/RowNames.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace Ostra {

namespace {

struct Row {
    const char* name;
    Identifier identifier;
    std::string_view full;
    std::string_view prefix;
};

class IdentifierOf : public testing::TestWithParam<Row> {};

TEST_P(IdentifierOf, HasItsFullForm) { EXPECT_EQ(GetParam().identifier.full(), GetParam().full); }

TEST_P(IdentifierOf, HasThePrefixUpToTheDotAfterItsMajorVersion) {
    EXPECT_EQ(GetParam().identifier.prefix(), GetParam().prefix);
    EXPECT_EQ(Identifier::prefixOf(GetParam().full), GetParam().prefix);
}

TEST_P(IdentifierOf, IsInItsFullForm) { EXPECT_TRUE(GetParam().identifier.isIn(GetParam().full)); }

TEST_P(IdentifierOf, IsInOtherMinorVersions) {
    EXPECT_TRUE(GetParam().identifier.isIn(std::string(GetParam().prefix) + "27.3"));
}

TEST_P(IdentifierOf, IsInItsBarePrefix) { EXPECT_TRUE(GetParam().identifier.isIn(GetParam().prefix)); }

TEST_P(IdentifierOf, IsInALongerText) {
    const std::string longer = std::string("before\0", 7) + std::string(GetParam().prefix) + "x and more";
    EXPECT_TRUE(GetParam().identifier.isIn(longer));
}

TEST_P(IdentifierOf, BeginsTextsWithItsPrefixAlone) {
    const std::string prefix(GetParam().prefix);
    EXPECT_TRUE(GetParam().identifier.begins(prefix));
    EXPECT_TRUE(GetParam().identifier.begins(prefix + "27.3"));
    EXPECT_FALSE(GetParam().identifier.begins("x" + prefix));
    EXPECT_FALSE(GetParam().identifier.begins(prefix.substr(0, prefix.size() - 1)));
    EXPECT_FALSE(GetParam().identifier.begins("?" + prefix.substr(1)));
    EXPECT_FALSE(GetParam().identifier.begins(""));
}

TEST_P(IdentifierOf, IsNotInItsPrefixWithoutTheDot) {
    EXPECT_FALSE(GetParam().identifier.isIn(GetParam().prefix.substr(0, GetParam().prefix.size() - 1)));
}

TEST_P(IdentifierOf, IsNotInAnotherMajorVersion) {
    std::string other(GetParam().full);
    other[other.size() - 5] = '4'; // the digit of "N.0.0"; none is at version 4
    EXPECT_FALSE(GetParam().identifier.isIn(other));
}

TEST_P(IdentifierOf, IsNotInAMajorVersionThatBeginsWithItsOwn) {
    std::string other(GetParam().prefix);
    other.insert(other.size() - 1, "0");
    EXPECT_FALSE(GetParam().identifier.isIn(other + "0.0"));
}

TEST_P(IdentifierOf, IsNotInTheEmptyText) { EXPECT_FALSE(GetParam().identifier.isIn("")); }

INSTANTIATE_TEST_SUITE_P(Several, IdentifierOf,
                         testing::Values(Row{"AGroup", Identifier("norvex.parameter:group-1.0.0"),
                                             "norvex.parameter:group-1.0.0", "norvex.parameter:group-1."},
                                         Row{"AHigherVersion", Identifier("norvex.spec:spec.int64-2.0.0"),
                                             "norvex.spec:spec.int64-2.0.0", "norvex.spec:spec.int64-2."},
                                         Row{"ALongerVersion", Identifier("norvex.x:y-12.0.0"), "norvex.x:y-12.0.0",
                                             "norvex.x:y-12."}),
                         Support::nameOfRow);

TEST(IdentifierStart, IsFoundAtEachPlaceWhereAnIdentifierMayBegin) {
    const std::string_view typeId = "xnorvex norvex.xnorvex.";
    EXPECT_EQ(Identifier::findStart(typeId), 8U);
    EXPECT_EQ(Identifier::findStart(typeId, 8), 8U);
    EXPECT_EQ(Identifier::findStart(typeId, 9), 16U);
    EXPECT_EQ(Identifier::findStart(typeId, 17), std::string_view::npos);
}

TEST(IdentifierStart, IsNotFoundInOtherTexts) {
    for (const std::string_view typeId : {"", "x", "vex.", "norvex", "norve.x", "orvex.", "Norvex.", "plant.x-1.0.0"}) {
        EXPECT_EQ(Identifier::findStart(typeId), std::string_view::npos) << typeId;
        EXPECT_EQ(Identifier::findStart(typeId, 100), std::string_view::npos) << typeId;
    }
}

} // namespace

} // namespace Ostra
