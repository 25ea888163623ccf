#include "programs/Groups.h"

int main(int argc, char** argv) {
    using namespace Bench;
    return runBenchmarks(
        {
            ingestBenchmarks(),
            parserBenchmarks(),
            linkerBenchmarks(),
            lookupBenchmarks(),
            listBenchmarks(),
            writeBenchmarks(),
            engineBenchmarks(),
#ifdef OSTRA_BENCH_VIEWS
            findBenchmarks(),
            nameBenchmarks(),
            walkBenchmarks(),
            dependentsBenchmarks(),
#endif
        },
        argc, argv);
}
