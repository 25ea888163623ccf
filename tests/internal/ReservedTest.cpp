#include "engine/Kinds.h"

#include "support/RowNames.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace Parameters::Internal {

namespace {

struct Row {
    const char* name;
    std::string_view typeId; // of version N.0.0, with one digit
};

std::string otherMinorVersion(std::string_view typeId) {
    return std::string(typeId.substr(0, typeId.size() - 3)) + "9.9";
}

std::string otherMajorVersion(std::string_view typeId) {
    std::string other(typeId);
    other[other.size() - 5] = '4'; // none is at version 4
    return other;
}

class ReservedIdentifier : public testing::TestWithParam<Row> {};

TEST_P(ReservedIdentifier, IsReserved) { EXPECT_TRUE(isReserved(GetParam().typeId)); }

TEST_P(ReservedIdentifier, IsReservedInOtherMinorVersions) {
    EXPECT_TRUE(isReserved(otherMinorVersion(GetParam().typeId)));
}

TEST_P(ReservedIdentifier, IsReservedInsideALongerText) {
    EXPECT_TRUE(isReserved("plant." + std::string(GetParam().typeId) + ".copy"));
}

TEST_P(ReservedIdentifier, IsNotReservedInAnotherMajorVersion) {
    EXPECT_FALSE(isReserved(otherMajorVersion(GetParam().typeId)));
}

INSTANTIATE_TEST_SUITE_P(Twelve, ReservedIdentifier,
                         testing::Values(Row{"StringRange", "norvex.range:range.string-1.0.0"},
                                         Row{"SetStringRange", "norvex.range:range.string.set.static-1.0.0"},
                                         Row{"RegexStringRange", "norvex.range:range.string.regex-1.0.0"},
                                         Row{"FloatRange", "norvex.range:range.float64.bounded.static-1.0.0"},
                                         Row{"IntRange", "norvex.range:range.int64.bounded.static-1.0.0"},
                                         Row{"FamilyType", "norvex.talmo.spec:familyType-1.0.0"},
                                         Row{"BoolSpec", "norvex.spec:spec.bool-1.0.0"},
                                         Row{"IntSpec", "norvex.spec:spec.int64-2.0.0"},
                                         Row{"ReferenceSpec", "norvex.spec:spec.reference-1.0.0"},
                                         Row{"StringSpec", "norvex.spec:spec.string-2.0.0"},
                                         Row{"Discipline", "norvex.spec:discipline-1.0.0"},
                                         Row{"Group", "norvex.parameter:group-1.0.0"}),
                         Support::nameOfRow);

class FreeTypeId : public testing::TestWithParam<Row> {};

TEST_P(FreeTypeId, IsNotReserved) { EXPECT_FALSE(isReserved(GetParam().typeId)); }

INSTANTIATE_TEST_SUITE_P(
    Bases, FreeTypeId,
    testing::Values(Row{"Domain", "norvex.talmo.category:domain-1.0.0"}, Row{"GeneralSpec", "norvex.spec:spec-1.0.0"},
                    Row{"MeasurableSpec", "norvex.spec:spec.measurable-2.0.0"},
                    Row{"EnumerationParameter", "norvex.parameter:parameter-2.0.0"},
                    Row{"BoolParameter", "norvex.parameter:parameter.bool-2.0.0"},
                    Row{"IntParameter", "norvex.parameter:parameter.int64-3.0.0"},
                    Row{"MeasurableParameter", "norvex.parameter:parameter.measurable-3.0.0"},
                    Row{"ReferenceParameter", "norvex.parameter:parameter.reference-2.0.0"},
                    Row{"RangedReferenceParameter", "norvex.parameter:parameter.reference.ranged-2.0.0"},
                    Row{"StringParameter", "norvex.parameter:parameter.string-3.0.0"},
                    Row{"MajorCategory", "norvex.talmo.category:majorCategory-1.0.0"},
                    Row{"SubCategory", "norvex.talmo.category:subCategory-1.0.0"}, Row{"Enumeration", "Enum"},
                    Row{"Unit", "norvex.unit:unit-1.0.0"}),
    Support::nameOfRow);

INSTANTIATE_TEST_SUITE_P(Ordinary, FreeTypeId,
                         testing::Values(Row{"Empty", ""}, Row{"Plain", "plant.spec:open-1.0.0"},
                                         Row{"OtherVendor", "plant.spec:discipline-1.0.0"},
                                         Row{"OtherCase", "Norvex.spec:discipline-1.0.0"},
                                         Row{"EarlierIntSpec", "norvex.spec:spec.int64-1.0.0"},
                                         Row{"TornByANul", {"norvex.spec:disc\0ipline-1.0.0", 29}},
                                         Row{"OwnNameInTheNamespace", "norvex.spec:mine-1.0.0"}),
                         Support::nameOfRow);

TEST(IsReserved, LooksAtEveryPlaceWhereAnIdentifierMayBegin) {
    EXPECT_TRUE(isReserved("norvex.x norvex.spec:spec-1.0.0 norvex.parameter:group-1.0.0"));
    EXPECT_TRUE(isReserved("norvex.norvex.parameter:group-1."));
    EXPECT_FALSE(isReserved("norvex.x norvex.spec:spec-1.0.0 norvex.parameter:group-2.0.0"));
}

template <class... Ks>
void expectNoneIsInAnother(KindList<Ks...> kinds) {
    forEachKind(kinds, [&]<class K>() {
        for (const std::string_view base : K::Public::info.bases()) {
            forEachKind(kinds, [&]<class Other>() {
                const bool isSame = std::is_same_v<K, Other>;
                EXPECT_EQ(Other::Public::info.isInheritedBy(base), isSame) << base;
            });
        }
    });
}

TEST(Bases, AreInNoOther) { expectNoneIsInAnother(StoreOrder{}); }

} // namespace

} // namespace Parameters::Internal
