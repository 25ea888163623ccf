#include "programs/Groups.h"

#include <benchmark/benchmark.h>
#include <nlohmann/json.hpp>
#include <rapidjson/document.h>
#include <rapidjson/reader.h>

namespace Bench {

namespace {

/// One document for all texts, emptied before each, so that its memory stays in the processor's caches.
void rapidjsonDOM(const Catalogue& catalogue, Measurement& measurement) {
    rapidjson::Document document;
    measurement.time([&] {
        for (const Schema& schema : catalogue) {
            document.SetNull();
            document.GetAllocator().Clear();
            document.Parse(schema.text.c_str());
            benchmark::DoNotOptimize(document.IsObject());
        }
    });
}

void rapidjsonSAX(const Catalogue& catalogue, Measurement& measurement) {
    rapidjson::BaseReaderHandler<> handler;
    rapidjson::Reader reader;
    measurement.time([&] {
        for (const Schema& schema : catalogue) {
            rapidjson::StringStream text(schema.text.c_str());
            benchmark::DoNotOptimize(reader.Parse(text, handler));
        }
    });
}

void nlohmannJSON(const Catalogue& catalogue, Measurement& measurement) {
    measurement.time([&] {
        for (const Schema& schema : catalogue) {
            benchmark::DoNotOptimize(nlohmann::json::parse(schema.text));
        }
    });
}

} // namespace

Benchmarks parserBenchmarks() {
    return {{"rapidjson-dom", rapidjsonDOM}, {"rapidjson-sax", rapidjsonSAX}, {"nlohmann-json", nlohmannJSON}};
}

} // namespace Bench
