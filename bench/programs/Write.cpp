#include "harness/Fixtures.h"
#include "programs/Groups.h"

#include <benchmark/benchmark.h>
#include <rapidjson/document.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <memory>
#include <utility>

namespace Bench {

using Parameters::ParametersEngine;

namespace {

/// Parsed documents that share their memory.
struct Documents {
    std::unique_ptr<rapidjson::MemoryPoolAllocator<>> memory = std::make_unique<rapidjson::MemoryPoolAllocator<>>();
    std::vector<rapidjson::Value> roots;
};

const std::vector<std::string>& writable(const Catalogue& catalogue) {
    return once(catalogue, [](const Catalogue& schemas) {
        std::vector<std::string> typeIds;
        for (const Schema& schema : schemas) {
            if (!schema.isUnit()) {
                typeIds.push_back(schema.typeId);
            }
        }
        return typeIds;
    });
}

/// Documents of the texts that the engine writes, so that both write the same bytes.
const Documents& documents(const Catalogue& catalogue) {
    return once(catalogue, [](const Catalogue& schemas) {
        const ParametersEngine& engine = resolvedEngine(schemas);
        Documents result;
        for (const std::string& typeId : writable(schemas)) {
            rapidjson::Document document(result.memory.get());
            document.Parse(engine.getSchema(typeId).c_str());
            result.roots.push_back(std::move(document.Move()));
        }
        return result;
    });
}

void write(const Catalogue& catalogue, Measurement& measurement) {
    const ParametersEngine& engine = resolvedEngine(catalogue);
    const auto& typeIds = writable(catalogue);
    measurement.setItems(typeIds.size());
    measurement.time([&] {
        for (const std::string& typeId : typeIds) {
            benchmark::DoNotOptimize(engine.getSchema(typeId));
        }
    });
}

void rapidjsonWriter(const Catalogue& catalogue, Measurement& measurement) {
    const Documents& ready = documents(catalogue);
    rapidjson::StringBuffer buffer;
    measurement.setItems(ready.roots.size());
    measurement.time([&] {
        for (const rapidjson::Value& root : ready.roots) {
            buffer.Clear();
            rapidjson::Writer<rapidjson::StringBuffer> writer(buffer);
            root.Accept(writer);
            benchmark::DoNotOptimize(buffer.GetString());
        }
    });
}

} // namespace

Benchmarks writeBenchmarks() { return {{"write", write}, {"rapidjson-writer", rapidjsonWriter}}; }

} // namespace Bench
