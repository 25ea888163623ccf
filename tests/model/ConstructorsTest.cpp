#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

// Every public constructor is called with braces, literals, temporaries and constants in each place: that this compiles
// is most of what is tested.

namespace {

using Parameters::BoolParameter;
using Parameters::BoolSpec;
using Parameters::Category;
using Parameters::Enumeration;
using Parameters::EnumerationParameter;
using Parameters::FloatRange;
using Parameters::GeneralSpec;
using Parameters::IntParameter;
using Parameters::IntRange;
using Parameters::IntSpec;
using Parameters::MajorCategoryComponent;
using Parameters::MeasurableParameter;
using Parameters::MeasurableSpec;
using Parameters::ParameterCore;
using Parameters::ReferenceParameter;
using Parameters::ReferenceSpec;
using Parameters::RegexStringRangeComponent;
using Parameters::SetStringRangeComponent;
using Parameters::SpecCore;
using Parameters::StringParameter;
using Parameters::StringRange;
using Parameters::StringSpec;
using Parameters::SubCategoryComponent;
using Parameters::Taxon;

const std::string constant = "x";
const std::vector<std::string> constants{"a", "b"};
const Taxon taxon("x", "X");
const SpecCore specCore("x", "X");
const ParameterCore parameterCore("x", "X", "", "", true);
const Units::Unit unit("m", "Metre", "m");

std::string temporary() { return "x"; }

TEST(Constructor, OfATaxonTakesWhateverIsAString) {
    EXPECT_EQ(Taxon({}, {}).typeId(), "");
    EXPECT_EQ(Taxon("x", "X").name(), "X");
    EXPECT_EQ(Taxon(temporary(), temporary()).typeId(), "x");
    EXPECT_EQ(Taxon(constant, constant).typeId(), "x");
    EXPECT_EQ(Taxon({"x"}, {'X', 'Y'}).name(), "XY");
}

TEST(Constructor, OfAComponentTakesBracesAsWhatItIsMadeOf) {
    EXPECT_TRUE(SetStringRangeComponent({}).allowedValues().empty());
    EXPECT_EQ(SetStringRangeComponent({"a"}).allowedValues().size(), 1U);
    EXPECT_EQ(SetStringRangeComponent({"a", "b"}).allowedValues().size(), 2U);
    EXPECT_EQ(SetStringRangeComponent({constant, temporary(), "c"}).allowedValues().size(), 3U);
    EXPECT_EQ(SetStringRangeComponent(constants).getAllowedValues(), constants);
    EXPECT_EQ(SetStringRangeComponent(std::vector<std::string>{"a"}).allowedValues()[0], "a");

    EXPECT_EQ(RegexStringRangeComponent({}).regex(), "");
    EXPECT_EQ(RegexStringRangeComponent("a").regex(), "a");
    EXPECT_EQ(RegexStringRangeComponent(temporary()).regex(), "x");
    EXPECT_EQ(RegexStringRangeComponent(constant).regex(), "x");

    EXPECT_EQ(SubCategoryComponent({}).parentCategory(), "");
    EXPECT_EQ(SubCategoryComponent("a").parentCategory(), "a");
    EXPECT_EQ(SubCategoryComponent(temporary()).parentCategory(), "x");
    EXPECT_EQ(SubCategoryComponent(constant).parentCategory(), "x");

    EXPECT_TRUE(MajorCategoryComponent({"x", "X"}, {}).disciplines().empty());
    EXPECT_EQ(MajorCategoryComponent(taxon, {taxon}).disciplines().size(), 1U);
    EXPECT_EQ(MajorCategoryComponent(Taxon("x", "X"), {{"y", "Y"}, {"z", "Z"}}).disciplines()[1].name(), "Z");
    EXPECT_EQ(MajorCategoryComponent({constant, constant}, std::vector<Taxon>{taxon}).domain().name(), "x");
}

TEST(Constructor, OfARangeTakesBracesAsItsTypeIdOrItsLimitation) {
    EXPECT_EQ(IntRange({}, true, 1, false, {}).typeId(), "");
    EXPECT_EQ(IntRange("x", true, 1, false, 2).getTopBoundary(), 2);
    EXPECT_EQ(IntRange(constant, {}, {}, {}, {}).typeId(), "x");
    EXPECT_EQ(IntRange({}, {}, {}, {}).typeId(), "norvex.range:range.int64.bounded.static-1.0.0");
    EXPECT_EQ(FloatRange({}, true, 1, false, {}).typeId(), "");
    EXPECT_EQ(FloatRange(temporary(), true, 1, false, 2).getTopBoundary(), 2);
    EXPECT_EQ(FloatRange({}, {}, {}, {}).typeId(), "norvex.range:range.float64.bounded.static-1.0.0");

    const StringRange any{};
    EXPECT_EQ(StringRange().typeId(), any.typeId());
    EXPECT_EQ(StringRange({}).typeId(), any.typeId());
    EXPECT_EQ(StringRange(SetStringRangeComponent({})).setStringRangeComponent()->allowedValues().size(), 0U);
    EXPECT_EQ(StringRange(RegexStringRangeComponent({})).regexStringRangeComponent()->regex(), "");
    EXPECT_EQ(StringRange({}, SetStringRangeComponent({"a"})).typeId(), "");
    EXPECT_EQ(StringRange("x", RegexStringRangeComponent("a")).typeId(), "x");
    EXPECT_EQ(StringRange(constant, SetStringRangeComponent(constants)).typeId(), "x");
}

TEST(Constructor, OfAnEnumerationTakesBracesAsItsValues) {
    EXPECT_TRUE(Enumeration({}, {}).values().empty());
    EXPECT_EQ(Enumeration("x", {{"a", 1}}).values().size(), 1U);
    EXPECT_EQ(Enumeration(constant, {{constant, 1}, {temporary(), 2}}).values()[1].integer, 2);
    EXPECT_EQ(Enumeration(temporary(), std::vector<std::pair<std::string, std::int64_t>>{}).typeId(), "x");
}

TEST(Constructor, OfACategoryTakesBracesAsItsStrings) {
    EXPECT_NE(Category({}, {}, MajorCategoryComponent(taxon, {})).majorCategoryComponent(), nullptr);
    EXPECT_NE(Category("x", constant, SubCategoryComponent({})).subCategoryComponent(), nullptr);
    EXPECT_NE(Category("x", "X", MajorCategoryComponent(taxon, {})).majorCategoryComponent(), nullptr);
}

TEST(Constructor, OfASpecTakesBracesAsItsCore) {
    EXPECT_EQ(SpecCore({}, {}).name(), "");
    EXPECT_EQ(SpecCore("x", constant, {"d", "D"}).discipline().name(), "D");
    EXPECT_EQ(SpecCore({}, {}, taxon).discipline().name(), "X");
    EXPECT_EQ(BoolSpec({"x", "X"}).name(), "X");
    EXPECT_EQ(BoolSpec(specCore).name(), "X");
    EXPECT_EQ(GeneralSpec({constant, temporary()}).name(), "x");
    EXPECT_EQ(GeneralSpec(specCore).name(), "X");
    EXPECT_EQ(IntSpec({"x", "X", taxon}).core().discipline().typeId(), "x");
    EXPECT_EQ(IntSpec(SpecCore("x", "X")).name(), "X");
    EXPECT_EQ(StringSpec({"x", "X"}).name(), "X");
    EXPECT_EQ(StringSpec(specCore).name(), "X");
    EXPECT_EQ(ReferenceSpec({"x", "X"}, {}).category(), nullptr);
    EXPECT_NE(ReferenceSpec(specCore, Category("c", "C", SubCategoryComponent("p"))).category(), nullptr);
    EXPECT_EQ(ReferenceSpec(specCore, std::nullopt).category(), nullptr);
    EXPECT_TRUE(MeasurableSpec({"x", "X"}, {}, {"m", "Metre", "m"}).applicableUnits().empty());
    EXPECT_EQ(MeasurableSpec(specCore, {unit, {"k", "K", ""}}, unit).applicableUnits().size(), 2U);
}

TEST(Constructor, OfAParameterTakesBracesAsItsParts) {
    EXPECT_EQ(ParameterCore({}, {}, {}, {}, {}).name(), "");
    EXPECT_EQ(ParameterCore("x", constant, temporary(), "s", true).description(), "x");
    EXPECT_EQ(ParameterCore("x", "X", {"g", "G"}, {}, {}, {}).group().name(), "G");
    EXPECT_EQ(ParameterCore({}, {}, taxon, {}, {}, true).group().name(), "X");
    EXPECT_EQ(BoolParameter({"x", "X", "", "", true}).name(), "X");
    EXPECT_EQ(BoolParameter(parameterCore).name(), "X");
    EXPECT_EQ(BoolParameter(parameterCore, BoolSpec({"s", "S"})).spec().name(), "S");
    EXPECT_EQ(IntParameter(parameterCore, {true, 1, false, 0}).range().getBottomBoundary(), 1);
    EXPECT_EQ(IntParameter(parameterCore, IntSpec({"s", "S"}), {"r", true, 1, false, 0}).range().typeId(), "r");
    EXPECT_EQ(StringParameter(parameterCore, {}).range().typeId(), "norvex.range:range.string-1.0.0");
    EXPECT_EQ(StringParameter(parameterCore, StringSpec({"s", "S"}), {}).spec().name(), "S");
    EXPECT_EQ(MeasurableParameter(parameterCore, {specCore, {}, unit}, {true, 1, false, 0}).range().getBottomBoundary(),
              1);
    EXPECT_FALSE(ReferenceParameter(parameterCore, {}).isRanged());
    EXPECT_TRUE(ReferenceParameter(parameterCore, ReferenceSpec({specCore, {}}), true).isRanged());
    EXPECT_EQ(ReferenceParameter(parameterCore, Category("c", "C", SubCategoryComponent("p")), {}).spec().name(),
              "Family Type");
    EXPECT_EQ(EnumerationParameter(parameterCore, GeneralSpec({"s", "S"}), {"e", {{"a", 1}}}).enumeration().typeId(),
              "e");
}

} // namespace
