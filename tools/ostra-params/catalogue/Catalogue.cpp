#include "catalogue/Catalogue.h"

#include "output/Json.h"

namespace Tool {

Catalogue::Catalogue(const std::vector<std::string>& paths) : Loader(paths) { describe(); }

Catalogue::Catalogue(const std::vector<KnownFile>& files) : Loader(files) { describe(); }

void Catalogue::describe() {
    objects_ = describeAll(engine());
    mustHaveAll(objects_);
    for (const Object& object : objects_) {
        index_.emplace(object.typeId, &object);
    }
    for (Object& object : objects_) {
        for (Property& property : object.properties) {
            for (Value& value : property.values) {
                if (!value.typeId.empty() && value.text.empty()) {
                    value.text = nameOf(value.typeId);
                }
            }
        }
    }
}

const Object* Catalogue::find(std::string_view typeId) const {
    const auto found = index_.find(typeId);
    return found == index_.end() ? nullptr : found->second;
}

std::string Catalogue::nameOf(const std::string& typeId) const {
    const Object* object = find(typeId);
    return object == nullptr ? std::string() : object->name;
}

std::vector<Link> Catalogue::dependencies(const Object& object) const {
    std::vector<Link> links;
    for (const Property& property : object.properties) {
        for (const Value& value : property.values) {
            if (property.isOwn && !value.typeId.empty()) {
                links.push_back({property.name, value.typeId});
            }
        }
    }
    return links;
}

std::vector<Link> Catalogue::dependents(const std::string& typeId) const {
    std::vector<Link> links;
    for (const Parameters::Identity& dependent : engine().dependentsOf(typeId)) {
        for (const Link& link : dependencies(*find(dependent.typeId))) {
            if (link.typeId == typeId) {
                links.push_back({link.property, std::string(dependent.typeId)});
            }
        }
    }
    return links;
}

std::string Catalogue::schemaOf(const Object& object) const {
    // Units are the units library's, which hands out no texts.
    return object.section == &sectionOfUnits() ? compact(*sourceOf(object).text) : engine().getSchema(object.typeId);
}

} // namespace Tool
