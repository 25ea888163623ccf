#include "harness/Fixtures.h"
#include "programs/Groups.h"
#include "programs/Translation.h"

#include <avro/schema.h>
#include <google/protobuf/descriptor.h>
#include <google/protobuf/descriptor.pb.h>
#include <google/protobuf/text_format.h>

#include <deque>
#include <stdexcept>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace Bench {

namespace {

using google::protobuf::FileDescriptorProto;

/// Files on their way into a pool, which takes a file only after those that it imports.
class Linker {
public:
    explicit Linker(google::protobuf::DescriptorPool& pool) : pool_(pool) {}

    void read(const std::string& text) {
        FileDescriptorProto& file = files_.emplace_back();
        if (!google::protobuf::TextFormat::ParseFromString(text, &file)) {
            throw std::runtime_error("Protocol Buffers refuse " + text);
        }
        byName_.emplace(file.name(), &file);
    }

    void linkAll() {
        for (const FileDescriptorProto& file : files_) {
            link(file);
        }
    }

private:
    /// Imports are four deep at most.
    void link(const FileDescriptorProto& file) {
        if (!linked_.insert(&file).second) {
            return;
        }
        for (const std::string& import : file.dependency()) {
            link(*byName_.at(import));
        }
        if (pool_.BuildFile(file) == nullptr) {
            throw std::runtime_error("Protocol Buffers cannot link " + file.name());
        }
    }

    google::protobuf::DescriptorPool& pool_;
    std::deque<FileDescriptorProto> files_;
    std::unordered_map<std::string_view, const FileDescriptorProto*> byName_;
    std::unordered_set<const FileDescriptorProto*> linked_;
};

void protocolBuffers(const Catalogue& catalogue, Measurement& measurement) {
    const auto& texts = once(catalogue, [](const Catalogue& schemas) { return protoFiles(schemas); });
    google::protobuf::DescriptorPool pool;
    Linker linker(pool);
    measurement.time([&] {
        for (const std::string& text : texts) {
            linker.read(text);
        }
        linker.linkAll();
    });
}

/// Schemas of Avro, given back at the end.
class AvroSchemas {
public:
    AvroSchemas() = default;
    AvroSchemas(const AvroSchemas&) = delete;
    AvroSchemas& operator=(const AvroSchemas&) = delete;
    ~AvroSchemas() {
        for (avro_schema_t schema : schemas_) {
            avro_schema_decref(schema);
        }
    }

    void read(const std::string& text) {
        avro_schema_t schema = nullptr;
        if (avro_schema_from_json_length(text.data(), text.size(), &schema) != 0) {
            throw std::runtime_error("Avro refuses " + text);
        }
        schemas_.push_back(schema);
    }

private:
    std::vector<avro_schema_t> schemas_;
};

void avro(const Catalogue& catalogue, Measurement& measurement) {
    const auto& texts = once(catalogue, [](const Catalogue& schemas) { return avroSchemas(schemas); });
    AvroSchemas schemas;
    measurement.time([&] {
        for (const std::string& text : texts) {
            schemas.read(text);
        }
    });
}

} // namespace

Benchmarks linkerBenchmarks() { return {{"protobuf", protocolBuffers}, {"avro", avro}}; }

} // namespace Bench
