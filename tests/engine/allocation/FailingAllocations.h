#pragma once

#include "schema/AllocationWatch.h"
#include "support/LeakyVectors.h"
#include "support/RowNames.h"
#include "support/Tally.h"

#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <functional>
#include <new>
#include <optional>
#include <set>
#include <string>
#include <utility>

namespace Support {

using Answers = std::set<std::string>;

/// Something that is done with an engine, and what it answers; after a change of the engine it needs no memory for
/// that.
struct Operation {
    std::string name;
    std::function<Answers(Parameters::ParametersEngine& engine)> apply;
};

inline Tally& operations = addTally("operations with memory that ends");
inline Tally& failedRequests = addTally("requests for memory that failed, one by one");

template <class Objects>
Answers keysOf(const Objects& objects) {
    Answers keys;
    for (const auto& entry : objects) {
        keys.insert(entry.first);
    }
    return keys;
}

/// How a call ended in which one request for memory was to fail.
struct Ending {
    bool reached; // whether there was a request of that number
    bool outOfMemory;
};

template <class Call>
Ending endingOf(Call&& call, long failingRequest) {
    Ostra::AllocationWatch watch(failingRequest);
    bool outOfMemory = false;
    try {
        call();
    } catch (const std::bad_alloc&) {
        outOfMemory = true;
    }
    failedRequests.add(outOfMemory ? 1 : 0);
    return {watch.requests() > failingRequest, outOfMemory};
}

/// Makes one request of an operation fail after the other, each in an engine of its own, which shares its tables with a
/// copy or does not.
class EveryAllocation {
public:
    using Prepare = std::function<Parameters::ParametersEngine()>;
    using Picture = std::function<std::string(const Parameters::ParametersEngine&)>;

    EveryAllocation(const Operation& operation, Prepare prepare, Picture pictureOf, bool shared)
        : operation_(operation), prepare_(std::move(prepare)), pictureOf_(std::move(pictureOf)), shared_(shared),
          before_(pictureOf_(prepare_())) {
        Parameters::ParametersEngine engine = prepare_();
        result_ = operation.apply(engine);
        after_ = pictureOf_(engine);
    }

    void fail() const {
        const bool leaksAreOurs = !vectorsLeak();
        long request = 0;
        const long blocks = Ostra::AllocationWatch::liveBlocksInProcess();
        while (failOne(request)) {
            if (leaksAreOurs) {
                EXPECT_EQ(Ostra::AllocationWatch::liveBlocksInProcess(), blocks) << "request " << request << " leaks";
            }
            ++request;
        }
        EXPECT_GT(request, 0) << "The operation asks for no memory at all.";
        operations.add(1);
        if (!leaksAreOurs && Ostra::AllocationWatch::liveBlocksInProcess() != blocks) {
            GTEST_SKIP() << "vectors of this standard library leak when copying an element throws";
        }
    }

private:
    /// Returns whether the operation has a request of that number.
    bool failOne(long request) const {
        Parameters::ParametersEngine engine = prepare_();
        const auto copy = shared_ ? std::make_optional(engine) : std::nullopt;
        Answers result;
        const Ending ending = endingOf([&] { result = operation_.apply(engine); }, request);
        if (ending.outOfMemory) {
            EXPECT_EQ(pictureOf_(engine), before_) << "request " << request;
            result = operation_.apply(engine);
        }
        EXPECT_EQ(result, result_) << "request " << request;
        EXPECT_EQ(pictureOf_(engine), after_) << "request " << request;
        EXPECT_EQ(copy ? pictureOf_(*copy) : before_, before_) << "request " << request;
        return ending.reached && !testing::Test::HasFailure();
    }

    const Operation& operation_;
    Prepare prepare_;
    Picture pictureOf_;
    bool shared_;
    std::string before_;
    std::string after_;
    Answers result_;
};

} // namespace Support
