#include "schema/Constants.h"

#include "support/Complaint.h"
#include "support/Fault.h"
#include "support/Messages.h"
#include "support/RowNames.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace Ostra {

namespace {

using Support::Complaint;
using Support::complaintOf;
using Support::Complaints;
using Support::Fault;
using Support::messageOf;

/// A schema with the given text in place of its constants.
struct Defined {
    explicit Defined(const std::string& definitions)
        : text(R"({"typeid": "plant.spec:open", "inherits": ["b"], "constants": [)" + definitions + "]}") {}

    std::string text;
    Schema schema{text, Complaints::shared()};
    Constants constants{schema};
};

/// A schema whose one constant, "x", has the given value.
struct WithValue : Defined {
    explicit WithValue(const std::string& value) : Defined(R"({"id": "x", "value": )" + value + "}") {}
};

/// Returns what a reader says of a value that it refuses.
template <class Reader>
std::string refusalOf(const std::string& value) {
    const WithValue defined(value);
    return messageOf<Complaint>([&] { defined.constants.required<Reader>("x"); });
}

template <class Number>
Number read(const std::string& value);

template <>
std::int64_t read(const std::string& value) {
    return WithValue(value).constants.required<Integer>("x");
}

template <>
double read(const std::string& value) {
    return WithValue(value).constants.required<Number>("x");
}

template <class Reader>
std::vector<std::string> readAll(const std::string& value) {
    const WithValue defined(value);
    const auto views = defined.constants.required<Reader>("x");
    return {views.begin(), views.end()};
}

TEST(StringConstant, IsReadWhole) {
    const WithValue defined(R"("a\u0000b \"\\\u001f\u00e4")");
    EXPECT_EQ(defined.constants.required<String>("x"), std::string_view("a\0b \"\\\x1f\xc3\xa4", 9));
}

TEST(StringConstant, MayBeEmpty) { EXPECT_EQ(WithValue(R"("")").constants.required<String>("x"), ""); }

TEST(StringConstant, KeepsBytesThatAreNoUtf8) {
    const WithValue defined("\"\xff\xc3\"");
    EXPECT_EQ(defined.constants.required<String>("x"), "\xff\xc3");
}

TEST(NonEmptyStringConstant, IsReadWhole) {
    const WithValue defined(R"("\u0000")");
    EXPECT_EQ(defined.constants.required<NonEmptyString>("x"), std::string_view("\0", 1));
}

TEST(NonEmptyStringConstant, RefusesTheEmptyString) {
    EXPECT_EQ(refusalOf<NonEmptyString>(R"("")"), "Expected a non-empty string.");
}

class NoString : public testing::TestWithParam<const char*> {};

TEST_P(NoString, IsRefusedAsAString) { EXPECT_EQ(refusalOf<String>(GetParam()), "Expected a string."); }

TEST_P(NoString, IsRefusedAsANonEmptyString) {
    EXPECT_EQ(refusalOf<NonEmptyString>(GetParam()), "Expected a non-empty string.");
}

INSTANTIATE_TEST_SUITE_P(Types, NoString,
                         testing::Values("null", "true", "5", "1.5", "[]", R"(["a"])", "{}", R"({"typeid": "a"})"));

TEST(BooleanConstant, IsTrueOrFalse) {
    EXPECT_TRUE(WithValue("true").constants.required<Boolean>("x"));
    EXPECT_FALSE(WithValue("false").constants.required<Boolean>("x"));
}

class NoBoolean : public testing::TestWithParam<const char*> {};

TEST_P(NoBoolean, IsRefused) { EXPECT_EQ(refusalOf<Boolean>(GetParam()), "Expected a Boolean value."); }

INSTANTIATE_TEST_SUITE_P(Types, NoBoolean,
                         testing::Values("null", "0", "1", R"("true")", R"("")", "[]", "[true]", "{}"));

TEST(IntegerConstant, IsReadUpToBothLimits) {
    EXPECT_EQ(read<std::int64_t>("9223372036854775807"), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(read<std::int64_t>("-9223372036854775808"), std::numeric_limits<std::int64_t>::min());
}

TEST(IntegerConstant, IsReadAcrossTheLimitsOfShorterIntegers) {
    EXPECT_EQ(read<std::int64_t>("0"), 0);
    EXPECT_EQ(read<std::int64_t>("-0"), 0);
    EXPECT_EQ(read<std::int64_t>("-1"), -1);
    EXPECT_EQ(read<std::int64_t>("2147483648"), 2147483648);
    EXPECT_EQ(read<std::int64_t>("-2147483649"), -2147483649);
    EXPECT_EQ(read<std::int64_t>("4294967296"), 4294967296);
}

class NoInteger : public testing::TestWithParam<const char*> {};

TEST_P(NoInteger, IsRefused) { EXPECT_EQ(refusalOf<Integer>(GetParam()), "Expected an integer."); }

INSTANTIATE_TEST_SUITE_P(BeyondTheLimits, NoInteger,
                         testing::Values("9223372036854775808", "18446744073709551615", "18446744073709551616",
                                         "-9223372036854775809", "1e19"));
INSTANTIATE_TEST_SUITE_P(WithFractionOrExponent, NoInteger, testing::Values("1.0", "2.5", "1e2", "1E0", "-0.0", "0e0"));
INSTANTIATE_TEST_SUITE_P(Types, NoInteger, testing::Values("null", "true", R"("1")", "[]", "[1]", "{}"));

TEST(NumberConstant, IsReadWithFractionAndExponent) {
    EXPECT_EQ(read<double>("2.5"), 2.5);
    EXPECT_EQ(read<double>("-1e-300"), -1e-300);
    EXPECT_EQ(read<double>("1E2"), 100.0);
    EXPECT_EQ(read<double>("0.30000000000000004"), 0.1 + 0.2);
}

TEST(NumberConstant, MayBeAnInteger) {
    EXPECT_EQ(read<double>("3"), 3.0);
    EXPECT_EQ(read<double>("-3"), -3.0);
    EXPECT_EQ(read<double>("9223372036854775808"), 9223372036854775808.0);
    EXPECT_EQ(read<double>("18446744073709551615"), 18446744073709551616.0);
    EXPECT_EQ(read<double>("100000000000000000000"), 1e20);
}

TEST(NumberConstant, RoundsAnIntegerOfMoreThan53Bits) {
    EXPECT_EQ(read<double>("9007199254740993"), 9007199254740992.0);
    EXPECT_EQ(read<double>("-9007199254740995"), -9007199254740996.0);
}

TEST(NumberConstant, KeepsTheSignOfZero) {
    EXPECT_TRUE(std::signbit(read<double>("-0.0")));
    EXPECT_TRUE(std::signbit(read<double>("-1e-400")));
    EXPECT_FALSE(std::signbit(read<double>("0.0")));
}

class NoNumber : public testing::TestWithParam<const char*> {};

TEST_P(NoNumber, IsRefused) { EXPECT_EQ(refusalOf<Number>(GetParam()), "Expected a number."); }

INSTANTIATE_TEST_SUITE_P(Types, NoNumber, testing::Values("null", "false", R"("1.5")", "[]", "[1.5]", "{}"));

TEST(TypedValueConstant, IsItsTypeId) {
    const WithValue defined(R"({"typeid": "plant.discipline:civil\u0000"})");
    EXPECT_EQ(defined.constants.required<TypedValue>("x"), std::string_view("plant.discipline:civil\0", 23));
}

const std::vector<Fault> typedValueFaults = {
    {"Null", "null", "A typedValue must be an object."},
    {"String", R"("plant.discipline:civil")", "A typedValue must be an object."},
    {"Number", "5", "A typedValue must be an object."},
    {"True", "true", "A typedValue must be an object."},
    {"Array", R"([{"typeid": "a"}])", "A typedValue must be an object."},
    {"EmptyArray", "[]", "A typedValue must be an object."},
    {"NoMember", "{}", "A typedValue object may not be empty and must contain a typeid attribute only."},
    {"TwoMembers", R"({"typeid": "a", "value": 5})",
     "A typedValue object may not be empty and must contain a typeid attribute only."},
    {"TypeIdTwice", R"({"typeid": "a", "typeid": "a"})",
     "A typedValue object may not be empty and must contain a typeid attribute only."},
    {"OtherMember", R"({"value": "a"})", "A typedValue did not contain a typeid attribute."},
    {"OtherCase", R"({"TypeId": "a"})", "A typedValue did not contain a typeid attribute."},
    {"NulBehindTheName", R"({"typeid\u0000": "a"})", "A typedValue did not contain a typeid attribute."},
    {"EmptyTypeId", R"({"typeid": ""})", "A typeid attribute in a typedValue object may not be empty."},
    {"NullAsTypeId", R"({"typeid": null})", "A typeid attribute in a typedValue object may not be empty."},
    {"NumberAsTypeId", R"({"typeid": 5})", "A typeid attribute in a typedValue object may not be empty."},
    {"ObjectAsTypeId", R"({"typeid": {"typeid": "a"}})", "A typeid attribute in a typedValue object may not be empty."},
    {"CountBeforeName", R"({"a": 1, "b": 2})",
     "A typedValue object may not be empty and must contain a typeid attribute only."},
    {"CountBeforeEmptyTypeId", R"({"typeid": "", "b": 2})",
     "A typedValue object may not be empty and must contain a typeid attribute only."},
    {"NameBeforeEmptyValue", R"({"b": ""})", "A typedValue did not contain a typeid attribute."},
};

class RefusedTypedValue : public testing::TestWithParam<Fault> {};

TEST_P(RefusedTypedValue, FailsWithTheFirstFault) {
    EXPECT_EQ(refusalOf<TypedValue>(GetParam().text), GetParam().message);
}

TEST_P(RefusedTypedValue, FailsAlikeInAnArray) {
    EXPECT_EQ(refusalOf<TypedValues>(R"([{"typeid": "good"}, )" + GetParam().text + ", false]"), GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(TypedValues, RefusedTypedValue, testing::ValuesIn(typedValueFaults), Support::nameOfRow);

TEST(TypedValuesConstant, HasItsTypeIdsInTheirOrder) {
    EXPECT_EQ(readAll<TypedValues>(R"([{"typeid": "b"}, {"typeid": "a"}, {"typeid": "b"}])"),
              (std::vector<std::string>{"b", "a", "b"}));
}

TEST(TypedValuesConstant, MayBeEmpty) { EXPECT_TRUE(readAll<TypedValues>("[]").empty()); }

class NoTypedValues : public testing::TestWithParam<const char*> {};

TEST_P(NoTypedValues, IsRefused) {
    EXPECT_EQ(refusalOf<TypedValues>(GetParam()), "Expected an array of typedValue objects.");
}

INSTANTIATE_TEST_SUITE_P(Types, NoTypedValues,
                         testing::Values("null", "true", "5", R"("a")", "{}", R"({"typeid": "a"})"));

TEST(TypedValuesConstant, FailsWithItsFirstFaultyElement) {
    EXPECT_EQ(refusalOf<TypedValues>(R"([{"typeid": "a"}, {"typeid": ""}, {}, 5])"),
              "A typeid attribute in a typedValue object may not be empty.");
}

TEST(UniqueStringsConstant, HasItsStringsInTheirOrder) {
    EXPECT_EQ(readAll<UniqueStrings>(R"(["b", "a", "A", "", "ab"])"),
              (std::vector<std::string>{"b", "a", "A", "", "ab"}));
}

TEST(UniqueStringsConstant, TellsStringsApartBehindANul) {
    EXPECT_EQ(readAll<UniqueStrings>(R"(["a\u0000b", "a", "a\u0000c"])"),
              (std::vector<std::string>{std::string("a\0b", 3), "a", std::string("a\0c", 3)}));
}

TEST(UniqueStringsConstant, MayBeEmpty) { EXPECT_TRUE(readAll<UniqueStrings>("[]").empty()); }

const std::vector<Fault> uniqueStringsFaults = {
    {"Null", "null", "Expected an array."},
    {"String", R"("a")", "Expected an array."},
    {"Object", "{}", "Expected an array."},
    {"Number", "5", "Expected an array."},
    {"True", "true", "Expected an array."},
    {"NumberInside", R"(["a", 5])", "Expected an array of strings."},
    {"NullInside", "[null]", "Expected an array of strings."},
    {"ArrayInside", R"([["a"]])", "Expected an array of strings."},
    {"StringTwice", R"(["a", "b", "a"])", "Expected an array of unique strings."},
    {"EmptyStringTwice", R"(["", ""])", "Expected an array of unique strings."},
    {"StringTwiceInTwoSpellings", R"(["a", "\u0061"])", "Expected an array of unique strings."},
    {"StringTwiceBeforeNumber", R"(["a", "a", 5])", "Expected an array of unique strings."},
    {"NumberBeforeStringTwice", R"(["a", 5, "a"])", "Expected an array of strings."},
};

class RefusedUniqueStrings : public testing::TestWithParam<Fault> {};

TEST_P(RefusedUniqueStrings, FailsWithTheFirstFault) {
    EXPECT_EQ(refusalOf<UniqueStrings>(GetParam().text), GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(UniqueStrings, RefusedUniqueStrings, testing::ValuesIn(uniqueStringsFaults),
                         Support::nameOfRow);

TEST(Constants, FailWhereARequiredOneIsUndefined) {
    const Defined defined("");
    EXPECT_EQ(messageOf<Complaint>([&] { defined.constants.required<NonEmptyString>("name"); }),
              "Schema plant.spec:open has an undefined name constant.");
}

TEST(Constants, FailWhereARequiredOneIsSpeltOtherwise) {
    const Defined defined(R"({"id": "Name", "value": "a"}, {"id": "name\u0000", "value": "b"})");
    EXPECT_EQ(messageOf<Complaint>([&] { defined.constants.required<NonEmptyString>("name"); }),
              "Schema plant.spec:open has an undefined name constant.");
}

TEST(Constants, DoNotLookAmongTheProperties) {
    const std::string text = R"({"typeid": "t", "inherits": ["b"], "properties": [{"id": "name", "value": "a"}]})";
    const Schema schema(text, Complaints::shared());
    EXPECT_EQ(messageOf<Complaint>([&] { Constants(schema).required<String>("name"); }),
              "Schema t has an undefined name constant.");
}

TEST(Constants, NameATypeIdWholeWhenItHoldsANul) {
    const std::string text = R"({"typeid": "t\u0000u", "inherits": ["b"]})";
    const Schema schema(text, Complaints::shared());
    EXPECT_EQ(complaintOf([&] { Constants(schema).required<String>("spec"); }),
              std::string("Schema t\0u has an undefined spec constant.", 42));
}

TEST(Constants, GiveTheDefaultOfAnOptionalOneThatIsUndefined) {
    const Defined defined("");
    EXPECT_EQ(defined.constants.optional<String>("x", "usual"), "usual");
    EXPECT_TRUE(defined.constants.optional<Boolean>("x", true));
    EXPECT_EQ(defined.constants.optional<Integer>("x", 7), 7);
    EXPECT_EQ(defined.constants.optional<Number>("x", 2.5), 2.5);
    EXPECT_EQ(defined.constants.optional<TypedValue>("x", "usual"), "usual");
}

TEST(Constants, GiveTheValueOfAnOptionalOneThatIsDefined) {
    EXPECT_EQ(WithValue(R"("")").constants.optional<String>("x", "usual"), "");
    EXPECT_FALSE(WithValue("false").constants.optional<Boolean>("x", true));
    EXPECT_EQ(WithValue("0").constants.optional<Integer>("x", 7), 0);
}

TEST(Constants, DoNotTakeNullForUndefined) {
    const WithValue defined("null");
    EXPECT_EQ(messageOf<Complaint>([&] { defined.constants.optional<String>("x", "usual"); }), "Expected a string.");
}

TEST(Constants, ReadATypedValueWithAnyReader) {
    const Defined defined(R"({"id": "x", "typedValue": "a"})");
    EXPECT_EQ(defined.constants.required<String>("x"), "a");
}

TEST(Constants, ReadAValueAsATypedValue) {
    EXPECT_EQ(WithValue(R"({"typeid": "a"})").constants.required<TypedValue>("x"), "a");
}

TEST(Constants, PreferTheValueToTheTypedValue) {
    const Defined defined(R"({"id": "x", "typedValue": {"typeid": "a"}, "value": {"typeid": "b"}})");
    EXPECT_EQ(defined.constants.required<TypedValue>("x"), "b");
}

TEST(Constants, FailWhereADefinitionHasNoValue) {
    const Defined defined(R"({"id": "x"})");
    EXPECT_EQ(messageOf<Complaint>([&] { defined.constants.required<String>("x"); }),
              "A property definition must contain either a value or a typedValue.");
    EXPECT_EQ(messageOf<Complaint>([&] { defined.constants.optional<String>("x", "usual"); }),
              "A property definition must contain either a value or a typedValue.");
}

TEST(Constants, LeaveDefinitionsAloneThatNobodyAsksFor) {
    const Defined defined(R"({"id": "y"}, {"id": "x", "value": "a"}, {"id": "z", "value": null})");
    EXPECT_EQ(defined.constants.required<String>("x"), "a");
}

TEST(Constants, FindAValueForAReaderOfItsOwn) {
    const WithValue defined("[1, 2, 3]");
    const auto found = defined.constants.find("x");
    ASSERT_TRUE(found);
    EXPECT_EQ(found->toText(), "[1,2,3]");
}

TEST(Constants, FindNothingWhereNothingIsDefined) { EXPECT_FALSE(WithValue("5").constants.find("y")); }

} // namespace

} // namespace Ostra
