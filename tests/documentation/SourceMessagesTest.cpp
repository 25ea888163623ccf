#include "documentation/SourceMessages.h"

#include "support/RowNames.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using Documentation::messagesIn;
using testing::ElementsAre;
using testing::IsEmpty;

struct Source {
    const char* name;
    const char* text;
    const char* pattern;
};

class SourceMessage : public testing::TestWithParam<Source> {};

TEST_P(SourceMessage, IsFound) {
    const auto messages = messagesIn(GetParam().text);
    EXPECT_THAT(messages.patterns, ElementsAre(GetParam().pattern));
    EXPECT_THAT(messages.strays, IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Sources, SourceMessage,
    testing::Values(Source{"OfAFailure", R"(value.fail("Expected a string.");)", "Expected a string."},
                    Source{"OfAFailureOfTheOwnObject", R"(fail("Expected a string.");)", "Expected a string."},
                    Source{"ThatAFactoryRaises", R"(factory_->raise("Not finite: " + name);)", "Not finite: *"},
                    Source{"ThatIsThrown", R"(throw ValidationException("No typeid.");)", "No typeid."},
                    Source{"ThatIsThrownWithItsNamespace", R"(throw std::length_error("Too long.");)", "Too long."},
                    Source{"WithThingsInserted",
                           R"(fail("Schema " + std::string(schema.typeId()) + " has no " + id + ".");)",
                           "Schema * has no *."},
                    Source{"WithACallThatHasALiteralInserted", R"(fail("No " + name("x") + " here.");)", "No * here."},
                    Source{"OverSeveralLines", "fail(\"Schema \"\n     \"is // wrong \" // why\n     + id);",
                           "Schema is // wrong *"},
                    Source{"ThatIsConverted", R"(fail(std::string("Expected ") + name);)", "Expected *"},
                    Source{"ThatBeginsInAVariable",
                           R"(const std::string subject = "Range " + id; fail(subject + " is wrong.");)",
                           "Range * is wrong."},
                    Source{"WithEscapes", R"(fail("Say \"yes\" now.");)", "Say \"yes\" now."}),
    Support::nameOfRow);

TEST(SourceMessages, HasBothSidesOfAConditional) {
    EXPECT_THAT(
        messagesIn(R"(throw Fault("Parent " + id + (binds() ? " of sub " : " of schema ") + own + ".");)").patterns,
        ElementsAre("Parent * of schema *.", "Parent * of sub *."));
}

TEST(SourceMessages, HasNothingOfWhatHandsAMessageOn) {
    EXPECT_THAT(messagesIn("void fail(const std::string& message) const { throw Fault(message); }").patterns,
                IsEmpty());
}

TEST(SourceMessages, HasNothingOfComments) {
    EXPECT_THAT(messagesIn("// fail(\"Expected a string.\");\n").patterns, IsEmpty());
}

TEST(SourceMessages, NamesASentenceThatIsThrownInAnUnknownWay) {
    EXPECT_THAT(messagesIn(R"(report("Something is wrong.");)").strays, ElementsAre("Something is wrong."));
}

TEST(SourceMessages, NamesASentenceInAVariableThatNothingThrows) {
    EXPECT_THAT(messagesIn(R"(auto text = "Something is wrong."; report(text);)").strays,
                ElementsAre("Something is wrong."));
}

TEST(SourceMessages, TakesTheWordOfAKindForAName) {
    EXPECT_THAT(messagesIn(R"(static constexpr std::string_view word = "integer range";)").strays, IsEmpty());
}

} // namespace
