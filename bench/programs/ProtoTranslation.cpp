#include "programs/Translation.h"

#include <google/protobuf/descriptor.pb.h>
#include <google/protobuf/text_format.h>

#include <set>
#include <utility>

namespace Bench {

namespace {

using google::protobuf::DescriptorProto;
using google::protobuf::FieldDescriptorProto;
using google::protobuf::FileDescriptorProto;
using rapidjson::Value;

std::string textFormOf(const FileDescriptorProto& file) {
    std::string text;
    google::protobuf::TextFormat::PrintToString(file, &text);
    return text;
}

bool isOfCatalogue(std::string_view typeId) { return typeId.starts_with("acme."); }

/// Translates one schema into one message.
class FileTranslator {
public:
    explicit FileTranslator(const std::string& typeId) {
        file_.set_name(typeId);
        message_ = file_.add_message_type();
        message_->set_name(identifierOf(typeId));
    }

    FileDescriptorProto translate(const Value& schema) {
        addReference(*message_, "inherits", schema["inherits"][0].GetString());
        for (const char* section : {"constants", "properties"}) {
            if (schema.HasMember(section)) {
                for (const auto& definition : schema[section].GetArray()) {
                    addDefinition(*message_, definition);
                }
            }
        }
        file_.mutable_dependency()->Assign(imports_.begin(), imports_.end());
        return std::move(file_);
    }

private:
    void addDefinition(DescriptorProto& message, const Value& definition) {
        const std::string id = identifierOf(definition["id"].GetString());
        if (definition.HasMember("value")) {
            addValue(message, id, definition["value"]);
        } else if (definition["typedValue"].IsArray()) {
            int number = 0;
            for (const auto& each : definition["typedValue"].GetArray()) {
                addTypedValue(message, id + std::to_string(++number), each);
            }
        } else {
            addTypedValue(message, id, definition["typedValue"]);
        }
    }

    void addTypedValue(DescriptorProto& message, const std::string& id, const Value& value) {
        addReference(message, id, value["typeid"].GetString());
        for (const char* inlined : {"value", "typedValue"}) {
            if (value.HasMember(inlined)) {
                addValue(message, id + "_inline", value[inlined]);
            }
        }
    }

    void addValue(DescriptorProto& message, const std::string& id, const Value& value) {
        if (value.IsObject() && value.HasMember("typeid")) {
            addTypedValue(message, id, value);
        } else if (value.IsObject()) {
            DescriptorProto& nested = *message.add_nested_type();
            nested.set_name(id + "_type");
            for (const auto& [name, member] : value.GetObject()) {
                addValue(nested, identifierOf(name.GetString()), member);
            }
        } else if (value.IsArray()) {
            int number = 0;
            for (const auto& element : value.GetArray()) {
                addValue(message, id + std::to_string(++number), element);
            }
        } else {
            addScalar(message, id, value);
        }
    }

    static void addScalar(DescriptorProto& message, const std::string& id, const Value& value) {
        FieldDescriptorProto& field = addField(message, id);
        field.set_default_value(scalarText(value));
        if (value.IsString()) {
            field.set_type(FieldDescriptorProto::TYPE_STRING);
        } else if (value.IsBool()) {
            field.set_type(FieldDescriptorProto::TYPE_BOOL);
        } else {
            field.set_type(value.IsInt64() ? FieldDescriptorProto::TYPE_INT64 : FieldDescriptorProto::TYPE_DOUBLE);
        }
    }

    void addReference(DescriptorProto& message, const std::string& id, const std::string& typeId) {
        FieldDescriptorProto& field = addField(message, id);
        if (!isOfCatalogue(typeId)) {
            field.set_type(FieldDescriptorProto::TYPE_STRING);
            field.set_default_value(typeId);
            return;
        }
        field.set_type(FieldDescriptorProto::TYPE_MESSAGE);
        field.set_type_name(std::string(".").append(identifierOf(typeId)));
        imports_.insert(typeId);
    }

    static FieldDescriptorProto& addField(DescriptorProto& message, const std::string& name) {
        FieldDescriptorProto& field = *message.add_field();
        field.set_name(name);
        field.set_number(message.field_size());
        field.set_label(FieldDescriptorProto::LABEL_OPTIONAL);
        return field;
    }

    std::set<std::string> imports_;
    FileDescriptorProto file_;
    DescriptorProto* message_;
};

} // namespace

std::vector<std::string> protoFiles(const Catalogue& catalogue) {
    std::vector<std::string> files;
    for (const Schema& schema : catalogue) {
        rapidjson::Document document;
        document.Parse(schema.text.c_str());
        files.push_back(textFormOf(FileTranslator(schema.typeId).translate(document)));
    }
    return files;
}

} // namespace Bench
