#include "schema/BuiltIn.h"

#include "support/RowNames.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace Ostra::BuiltIn {

namespace {

struct Row {
    const char* name;
    Identifier identifier;
    std::string_view full;
    std::string_view prefix;
    std::string_view displayName;

    friend void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }
};

const std::vector<Row> reservedRows = {
    {"StringRange", stringRange, "norvex.range:range.string-1.0.0", "norvex.range:range.string-1.", ""},
    {"SetStringRange", setStringRange, "norvex.range:range.string.set.static-1.0.0",
     "norvex.range:range.string.set.static-1.", ""},
    {"RegexStringRange", regexStringRange, "norvex.range:range.string.regex-1.0.0",
     "norvex.range:range.string.regex-1.", ""},
    {"FloatRange", floatRange, "norvex.range:range.float64.bounded.static-1.0.0",
     "norvex.range:range.float64.bounded.static-1.", ""},
    {"IntRange", intRange, "norvex.range:range.int64.bounded.static-1.0.0",
     "norvex.range:range.int64.bounded.static-1.", ""},
    {"FamilyType", familyType, "norvex.talmo.spec:familyType-1.0.0", "norvex.talmo.spec:familyType-1.", "Family Type"},
    {"BoolSpec", boolSpec, "norvex.spec:spec.bool-1.0.0", "norvex.spec:spec.bool-1.", "Yes/No"},
    {"IntSpec", intSpec, "norvex.spec:spec.int64-2.0.0", "norvex.spec:spec.int64-2.", "Integer"},
    {"ReferenceSpec", referenceSpec, "norvex.spec:spec.reference-1.0.0", "norvex.spec:spec.reference-1.", "Reference"},
    {"StringSpec", stringSpec, "norvex.spec:spec.string-2.0.0", "norvex.spec:spec.string-2.", "Text"},
    {"Discipline", discipline, "norvex.spec:discipline-1.0.0", "norvex.spec:discipline-1.", "Common"},
    {"Group", group, "norvex.parameter:group-1.0.0", "norvex.parameter:group-1.", "Other"},
};

const std::vector<Row> unreservedRows = {
    {"Domain", domain, "norvex.talmo.category:domain-1.0.0", "norvex.talmo.category:domain-1.", ""},
    {"GeneralSpec", generalSpec, "norvex.spec:spec-1.0.0", "norvex.spec:spec-1.", ""},
    {"MeasurableSpec", measurableSpec, "norvex.spec:spec.measurable-2.0.0", "norvex.spec:spec.measurable-2.", ""},
    {"EnumerationParameter", enumerationParameter, "norvex.parameter:parameter-2.0.0", "norvex.parameter:parameter-2.",
     ""},
    {"BoolParameter", boolParameter, "norvex.parameter:parameter.bool-2.0.0", "norvex.parameter:parameter.bool-2.", ""},
    {"IntParameter", intParameter, "norvex.parameter:parameter.int64-3.0.0", "norvex.parameter:parameter.int64-3.", ""},
    {"MeasurableParameter", measurableParameter, "norvex.parameter:parameter.measurable-3.0.0",
     "norvex.parameter:parameter.measurable-3.", ""},
    {"ReferenceParameter", referenceParameter, "norvex.parameter:parameter.reference-2.0.0",
     "norvex.parameter:parameter.reference-2.", ""},
    {"RangedReferenceParameter", rangedReferenceParameter, "norvex.parameter:parameter.reference.ranged-2.0.0",
     "norvex.parameter:parameter.reference.ranged-2.", ""},
    {"StringParameter", stringParameter, "norvex.parameter:parameter.string-3.0.0",
     "norvex.parameter:parameter.string-3.", ""},
    {"MajorCategory", majorCategory, "norvex.talmo.category:majorCategory-1.0.0",
     "norvex.talmo.category:majorCategory-1.", ""},
    {"SubCategory", subCategory, "norvex.talmo.category:subCategory-1.0.0", "norvex.talmo.category:subCategory-1.", ""},
};

std::vector<Row> allRows() {
    std::vector<Row> rows = reservedRows;
    rows.insert(rows.end(), unreservedRows.begin(), unreservedRows.end());
    return rows;
}

class BuiltInIdentifier : public testing::TestWithParam<Row> {};

TEST_P(BuiltInIdentifier, HasItsFullForm) { EXPECT_EQ(GetParam().identifier.full(), GetParam().full); }

TEST_P(BuiltInIdentifier, HasThePrefixUpToTheDotAfterItsMajorVersion) {
    EXPECT_EQ(GetParam().identifier.prefix(), GetParam().prefix);
}

TEST_P(BuiltInIdentifier, HasItsDisplayName) { EXPECT_EQ(GetParam().identifier.displayName(), GetParam().displayName); }

TEST_P(BuiltInIdentifier, IsInItsFullForm) { EXPECT_TRUE(GetParam().identifier.isIn(GetParam().full)); }

TEST_P(BuiltInIdentifier, IsInOtherMinorVersions) {
    EXPECT_TRUE(GetParam().identifier.isIn(std::string(GetParam().prefix) + "27.3"));
}

TEST_P(BuiltInIdentifier, IsInItsBarePrefix) { EXPECT_TRUE(GetParam().identifier.isIn(GetParam().prefix)); }

TEST_P(BuiltInIdentifier, IsInALongerText) {
    const std::string longer = std::string("before\0", 7) + std::string(GetParam().prefix) + "x and more";
    EXPECT_TRUE(GetParam().identifier.isIn(longer));
}

TEST_P(BuiltInIdentifier, BeginsTextsWithItsPrefixAlone) {
    const std::string prefix(GetParam().prefix);
    EXPECT_TRUE(GetParam().identifier.begins(prefix));
    EXPECT_TRUE(GetParam().identifier.begins(prefix + "27.3"));
    EXPECT_FALSE(GetParam().identifier.begins("x" + prefix));
    EXPECT_FALSE(GetParam().identifier.begins(prefix.substr(0, prefix.size() - 1)));
    EXPECT_FALSE(GetParam().identifier.begins("?" + prefix.substr(1)));
    EXPECT_FALSE(GetParam().identifier.begins(""));
}

TEST_P(BuiltInIdentifier, IsNotInItsPrefixWithoutTheDot) {
    EXPECT_FALSE(GetParam().identifier.isIn(GetParam().prefix.substr(0, GetParam().prefix.size() - 1)));
}

TEST_P(BuiltInIdentifier, IsNotInAnotherMajorVersion) {
    std::string other(GetParam().full);
    other[other.size() - 5] = '4'; // the digit of "N.0.0"; none is at version 4
    EXPECT_FALSE(GetParam().identifier.isIn(other));
}

TEST_P(BuiltInIdentifier, IsNotInAMajorVersionThatBeginsWithItsOwn) {
    std::string other(GetParam().prefix);
    other.insert(other.size() - 1, "0");
    EXPECT_FALSE(GetParam().identifier.isIn(other + "0.0"));
}

TEST_P(BuiltInIdentifier, IsNotInTheEmptyText) { EXPECT_FALSE(GetParam().identifier.isIn("")); }

TEST_P(BuiltInIdentifier, IsInNoOtherIdentifier) {
    for (const Row& other : allRows()) {
        EXPECT_EQ(GetParam().identifier.isIn(other.full), other.full == GetParam().full) << other.full;
    }
}

INSTANTIATE_TEST_SUITE_P(All, BuiltInIdentifier, testing::ValuesIn(allRows()), Support::nameOfRow);

class ReservedIdentifier : public testing::TestWithParam<Row> {};

TEST_P(ReservedIdentifier, IsReserved) { EXPECT_TRUE(isReserved(GetParam().full)); }

TEST_P(ReservedIdentifier, IsReservedInOtherMinorVersions) {
    EXPECT_TRUE(isReserved(std::string(GetParam().prefix) + "9.9"));
}

TEST_P(ReservedIdentifier, IsReservedInsideALongerText) {
    EXPECT_TRUE(isReserved("plant." + std::string(GetParam().full) + ".copy"));
}

TEST_P(ReservedIdentifier, IsNotReservedInAnotherMajorVersion) {
    std::string other(GetParam().full);
    other[other.size() - 5] = '4';
    EXPECT_FALSE(isReserved(other));
}

INSTANTIATE_TEST_SUITE_P(Twelve, ReservedIdentifier, testing::ValuesIn(reservedRows), Support::nameOfRow);

class UnreservedIdentifier : public testing::TestWithParam<Row> {};

TEST_P(UnreservedIdentifier, IsNotReserved) { EXPECT_FALSE(isReserved(GetParam().full)); }

INSTANTIATE_TEST_SUITE_P(Twelve, UnreservedIdentifier, testing::ValuesIn(unreservedRows), Support::nameOfRow);

TEST(Reserved, AreTwelve) { EXPECT_EQ(reserved.size(), 12U); }

struct Ordinary {
    const char* name;
    std::string_view typeId;
};

class OrdinaryTypeId : public testing::TestWithParam<Ordinary> {};

TEST_P(OrdinaryTypeId, IsNotReserved) { EXPECT_FALSE(isReserved(GetParam().typeId)); }

INSTANTIATE_TEST_SUITE_P(Several, OrdinaryTypeId,
                         testing::Values(Ordinary{"Empty", ""}, Ordinary{"Plain", "plant.spec:open-1.0.0"},
                                         Ordinary{"OtherVendor", "plant.spec:discipline-1.0.0"},
                                         Ordinary{"OtherCase", "Norvex.spec:discipline-1.0.0"},
                                         Ordinary{"EarlierIntSpec", "norvex.spec:spec.int64-1.0.0"},
                                         Ordinary{"TornByANul", {"norvex.spec:disc\0ipline-1.0.0", 29}},
                                         Ordinary{"OwnNameInTheNamespace", "norvex.spec:mine-1.0.0"},
                                         Ordinary{"EnumerationBase", "Enum"}),
                         Support::nameOfRow);

TEST(Enumeration, IsABareWord) { EXPECT_EQ(enumeration, "Enum"); }

TEST(FindStart, FindsEachPlaceWhereAnIdentifierMayBegin) {
    const std::string_view typeId = "xnorvex norvex.xnorvex.";
    EXPECT_EQ(findStart(typeId), 8U);
    EXPECT_EQ(findStart(typeId, 8), 8U);
    EXPECT_EQ(findStart(typeId, 9), 16U);
    EXPECT_EQ(findStart(typeId, 17), std::string_view::npos);
}

TEST(FindStart, FindsNothingInOtherTexts) {
    for (const std::string_view typeId : {"", "x", "vex.", "norvex", "norve.x", "orvex.", "Norvex.", "plant.x-1.0.0"}) {
        EXPECT_EQ(findStart(typeId), std::string_view::npos) << typeId;
        EXPECT_EQ(findStart(typeId, 100), std::string_view::npos) << typeId;
    }
}

TEST(IsReserved, LooksAtEveryPlaceWhereAnIdentifierMayBegin) {
    EXPECT_TRUE(isReserved("norvex.x norvex.spec:spec-1.0.0 norvex.parameter:group-1.0.0"));
    EXPECT_TRUE(isReserved("norvex.norvex.parameter:group-1."));
    EXPECT_FALSE(isReserved("norvex.x norvex.spec:spec-1.0.0 norvex.parameter:group-2.0.0"));
}

} // namespace

} // namespace Ostra::BuiltIn
