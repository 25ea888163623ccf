#include "ParseOutcome.h"
#include "RandomTexts.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace Ostra {

class RandomText : public testing::TestWithParam<std::uint64_t> {
protected:
    /// Compares what came of many texts, and asks that some be accepted and some refused.
    template <class Make>
    void compare(int texts, Make make) {
        int accepted = 0;
        for (int count = 0; count < texts; ++count) {
            const std::string text = make(random_);
            const ParseOutcome expected = outcomeByDefaultFlags(text);
            ASSERT_EQ(outcomeOf(text), expected) << "text: " << text;
            accepted += expected.code == rapidjson::kParseErrorNone ? 1 : 0;
        }
        EXPECT_GT(accepted, texts / 100);
        EXPECT_LT(accepted, texts);
    }

    RandomTexts random_{GetParam()};
};

TEST_P(RandomText, ThatIsValidMeansWhatItMeansToTheDefaultFlags) {
    compare(10'000, [](RandomTexts& random) { return random.valid(); });
}

TEST_P(RandomText, ThatIsMutatedMeansWhatItMeansToTheDefaultFlags) {
    compare(40'000, [](RandomTexts& random) { return random.mutated(); });
}

TEST_P(RandomText, OfTokensMeansWhatItMeansToTheDefaultFlags) {
    compare(40'000, [](RandomTexts& random) { return random.tokens(); });
}

TEST_P(RandomText, OfBytesMeansWhatItMeansToTheDefaultFlags) {
    compare(40'000, [](RandomTexts& random) { return random.bytes(); });
}

TEST_P(RandomText, OfOneNumberMeansWhatItMeansToTheDefaultFlags) {
    compare(20'000, [](RandomTexts& random) { return random.number(); });
}

INSTANTIATE_TEST_SUITE_P(Seed, RandomText, testing::Values(1U, 20'260'701U), testing::PrintToStringParamName());

} // namespace Ostra
