#include "programs/Groups.h"

int main(int argc, char** argv) { return Bench::runBenchmarks({Bench::memoryBenchmarks()}, argc, argv); }
