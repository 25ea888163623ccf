#include "support/KindTypes.h"

#include <parameters/Kinds.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

// That each view shows what its copy holds is checked wherever a value is described, in all tests.

namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;
using Parameters::ArrayView;
using Parameters::Category;
using Parameters::Enumeration;
using Parameters::EnumerationValues;
using Parameters::MajorCategoryComponent;
using Parameters::ParameterCore;
using Parameters::ReferenceSpec;
using Parameters::RegexStringRangeComponent;
using Parameters::SetStringRangeComponent;
using Parameters::SpecCore;
using Parameters::StringRange;
using Parameters::StringsView;
using Parameters::SubCategoryComponent;
using Parameters::Taxon;

TEST(View, LastsAsLongAsACopyOfItsValue) {
    auto parameter = std::make_unique<Parameters::IntParameter>(ParameterCore("x", "A name", "", "", false),
                                                                Parameters::IntRange(true, 7, false, 0));
    const Parameters::IntParameter copy(*parameter);
    const std::string_view name = parameter->core().name();
    const Parameters::IntRange& range = parameter->range();
    const Taxon& group = parameter->core().group();
    parameter.reset();
    EXPECT_EQ(name, "A name");
    EXPECT_EQ(range.getBottomBoundary(), 7);
    EXPECT_EQ(group.name(), "Other");
}

TEST(View, OfACoreLastsWithoutTheParameter) {
    auto parameter = std::make_unique<Parameters::BoolParameter>(ParameterCore("x", "A name", "", "", false));
    const ParameterCore core = parameter->core();
    parameter.reset();
    EXPECT_EQ(core.name(), "A name");
}

TEST(View, OfAStringHasAllItsBytes) {
    const std::string bytes("\xff\0\"a", 4);
    EXPECT_EQ(Taxon(bytes, bytes + "2").typeId(), bytes);
    EXPECT_EQ(Taxon(bytes, bytes + "2").getName(), Taxon(bytes, bytes + "2").name());
}

TEST(View, OfWhatIsNotThereIsNull) {
    const Category major("x", "X", MajorCategoryComponent(Taxon("d", "D"), {}));
    const Category sub("y", "Y", SubCategoryComponent("x"));
    EXPECT_EQ(major.subCategoryComponent(), nullptr);
    EXPECT_NE(major.majorCategoryComponent(), nullptr);
    EXPECT_EQ(sub.majorCategoryComponent(), nullptr);
    EXPECT_EQ(sub.subCategoryComponent()->parentCategory(), "x");
    EXPECT_EQ(StringRange().setStringRangeComponent(), nullptr);
    EXPECT_EQ(StringRange().regexStringRangeComponent(), nullptr);
    EXPECT_EQ(StringRange(RegexStringRangeComponent("a+")).setStringRangeComponent(), nullptr);
    EXPECT_EQ(StringRange(SetStringRangeComponent({"a"})).regexStringRangeComponent(), nullptr);
    EXPECT_EQ(ReferenceSpec(SpecCore("x", "X"), {}).category(), nullptr);
}

TEST(ArrayView, ShowsNothingByItself) {
    const ArrayView<Taxon> none;
    EXPECT_TRUE(none.empty());
    EXPECT_EQ(none.size(), 0U);
    EXPECT_EQ(none.begin(), none.end());
}

TEST(ArrayView, ShowsValuesInTheirPlace) {
    const MajorCategoryComponent component(Taxon("d", "D"), {Taxon("b", "B"), Taxon("a", "A")});
    const auto disciplines = component.disciplines();
    EXPECT_FALSE(disciplines.empty());
    EXPECT_EQ(disciplines.size(), 2U);
    EXPECT_EQ(disciplines[1].name(), "A");
    EXPECT_EQ(std::vector<Taxon>(disciplines.begin(), disciplines.end()), component.getDisciplines());
    EXPECT_EQ(&component.disciplines()[0], &disciplines[0]);
}

TEST(StringsView, ShowsNothingByItself) {
    const StringsView none;
    EXPECT_TRUE(none.empty());
    EXPECT_EQ(none.begin(), none.end());
    const SetStringRangeComponent empty({});
    EXPECT_TRUE(empty.allowedValues().empty());
    EXPECT_EQ(empty.allowedValues().begin(), empty.allowedValues().end());
}

TEST(StringsView, ShowsStringsInTheirOrder) {
    const SetStringRangeComponent component({"b", "", "a\0c"s, "d"});
    const StringsView values = component.allowedValues();
    EXPECT_EQ(values.size(), 4U);
    EXPECT_FALSE(values.empty());
    EXPECT_EQ(values[0], "b");
    EXPECT_EQ(values[1], "");
    EXPECT_EQ(values[2], "a\0c"sv);
    EXPECT_EQ(std::vector<std::string_view>(values.begin(), values.end()),
              (std::vector<std::string_view>{"b", "", "a\0c"sv, "d"}));
}

TEST(EnumerationValues, ShowsNothingByItself) {
    const EnumerationValues none;
    EXPECT_TRUE(none.empty());
    EXPECT_EQ(none.begin(), none.end());
    EXPECT_TRUE(Enumeration("x", {}).values().empty());
}

TEST(EnumerationValues, ShowsChoicesInTheirOrder) {
    const Enumeration enumeration("the typeid", {{"b", 2}, {"a", INT64_MIN}, {"", 3}});
    std::string shown;
    for (const auto [identifier, integer] : enumeration.values()) {
        shown += std::string(identifier) + "=" + std::to_string(integer) + ";";
    }
    EXPECT_EQ(shown, "b=2;a=-9223372036854775808;=3;");
    EXPECT_EQ(enumeration.values().size(), 3U);
    EXPECT_FALSE(enumeration.values().empty());
    EXPECT_EQ(enumeration.values()[2].integer, 3);
    const StringsView identifiers = enumeration.values().identifiers();
    EXPECT_EQ(std::find(identifiers.begin(), identifiers.end(), "a") - identifiers.begin(), 1);
}

TEST(ViewIterator, GoesWhereARandomAccessIteratorDoes) {
    const SetStringRangeComponent component({"a", "b", "c", "d"});
    const auto begin = component.allowedValues().begin();
    const auto end = component.allowedValues().end();
    EXPECT_EQ(end - begin, 4);
    EXPECT_EQ(begin[2], "c");
    EXPECT_EQ(*(begin + 1), "b");
    EXPECT_EQ(*(1 + begin), "b");
    EXPECT_EQ(*(end - 1), "d");
    auto it = begin;
    EXPECT_EQ(*it++, "a");
    EXPECT_EQ(*it, "b");
    EXPECT_EQ(*++it, "c");
    EXPECT_EQ(*it--, "c");
    EXPECT_EQ(*--it, "a");
    it += 3;
    EXPECT_EQ(*it, "d");
    it -= 2;
    EXPECT_EQ(*it, "b");
    EXPECT_TRUE(begin < end && end > begin && begin <= begin && begin >= begin && begin != end);
    EXPECT_FALSE(end < begin || begin > end || end <= begin || begin >= end || begin == end);
}

#if __cpp_lib_ranges
static_assert(std::random_access_iterator<StringsView::iterator>);
static_assert(std::random_access_iterator<EnumerationValues::iterator>);
#endif
static_assert(std::is_same_v<std::iterator_traits<StringsView::iterator>::reference, std::string_view>);

} // namespace
