#include "programs/Groups.h"

int main(int argc, char** argv) {
    using namespace Bench;
    return runBenchmarks({ingestBenchmarks(), parserBenchmarks(), linkerBenchmarks(), lookupBenchmarks(),
                          listBenchmarks(), writeBenchmarks(), engineBenchmarks()},
                         argc, argv);
}
