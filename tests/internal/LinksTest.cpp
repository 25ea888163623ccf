#include "model/Links.h"

#include "model/MakeRef.h"
#include "model/Taxon.h"
#include "model/TrailingStrings.h"

#include <parameters/Taxon.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>

namespace Parameters::Internal {

namespace {

struct Data {
    using Strings = TrailingStrings<2>::Views;

    Taxon one = Access::none<Taxon>();
    TrailingStrings<2> strings;
    int number = 0;
    Taxon other = Access::none<Taxon>();

    auto links() { return std::tie(one, other); }
};

Data dataWithNumber(int number) { return {Access::none<Taxon>(), {}, number, Access::none<Taxon>()}; }

using DataLinks = LinksOf<Data>;

static_assert(std::is_same_v<DataLinks, Links<Taxon, Taxon>>);
static_assert(std::is_nothrow_default_constructible_v<DataLinks>);
static_assert(std::is_nothrow_move_constructible_v<DataLinks>);
static_assert(std::is_nothrow_move_assignable_v<DataLinks>);

TEST(LinksOfData, AreNoneAtFirst) { EXPECT_TRUE(DataLinks().isNone()); }

TEST(LinksOfData, GoWhereTheyBelong) {
    DataLinks links{Taxon("a", "A"), Taxon("b", "B")};
    EXPECT_FALSE(links.isNone());
    Data data;
    links.moveInto(data);
    EXPECT_EQ(data.one.getName(), "A");
    EXPECT_EQ(data.other.getName(), "B");
    EXPECT_TRUE(links.isNone());
}

TEST(LinksOfData, AreMoved) {
    DataLinks links{Taxon("a", "A"), Taxon("b", "B")};
    DataLinks moved(std::move(links));
    EXPECT_TRUE(links.isNone()); // NOLINT(bugprone-use-after-move): that is what is asked
    DataLinks assigned;
    assigned = std::move(moved);
    EXPECT_TRUE(moved.isNone()); // NOLINT(bugprone-use-after-move): the same
    Data data;
    assigned.moveInto(data);
    EXPECT_EQ(data.one.getName() + data.other.getName(), "AB");
}

TEST(LinksOfData, LetGoOfWhatTheyReplace) {
    const Taxon replaced("a", "A");
    DataLinks links{replaced, Taxon("b", "B")};
    links = DataLinks();
    EXPECT_TRUE(Access::shared(replaced).isSole());
}

TEST(TrailingStrings, LieBehindTheData) {
    const auto data = makeRefWith<Data>({"first", std::string_view("\0", 1)}, dataWithNumber(7));
    EXPECT_EQ(data->number, 7);
    EXPECT_EQ(data->strings[0], "first");
    EXPECT_EQ(data->strings[1], std::string_view("\0", 1));
    EXPECT_EQ(static_cast<const void*>(data->strings[0].data()), &*data + 1);
    EXPECT_EQ(data->strings.views(), (Data::Strings{"first", std::string_view("\0", 1)}));
}

TEST(TrailingStrings, MayBeEmpty) {
    const auto data = makeRefWith<Data>({"", ""}, Data{});
    EXPECT_EQ(data->strings.views(), (Data::Strings{"", ""}));
}

TEST(TrailingStrings, OfACopyAreItsOwn) {
    auto data = makeRefWith<Data>({"first", "second"}, dataWithNumber(7));
    const auto copy = makeRefWith<Data>(data->strings.views(), *data);
    EXPECT_NE(copy->strings[0].data(), data->strings[0].data());
    data = {};
    EXPECT_EQ(copy->number, 7);
    EXPECT_EQ(copy->strings.views(), (Data::Strings{"first", "second"}));
}

#if SIZE_MAX > 0xFFFFFFFF
TEST(TrailingStrings, AreNotLongerThanTheirPlacesCount) {
    const std::string_view huge("", std::size_t{1} << 31); // which nobody reads
    EXPECT_THROW(static_cast<void>(makeRefWith<Data>({huge, huge}, Data{})), std::length_error);
}
#endif

} // namespace

} // namespace Parameters::Internal
