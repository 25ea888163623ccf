#include "catalogue/Catalogue.h"

#include "output/Json.h"

namespace Tool {

Catalogue::Catalogue(const std::vector<std::string>& paths) : Loader(paths), objects_(describeAll(engine())) {
    mustHaveAll(objects_);
    for (std::size_t place = 0; place < objects_.size(); ++place) {
        index_.emplace(objects_[place].typeId, place);
    }
    for (Object& object : objects_) {
        for (Property& property : object.properties) {
            for (Value& value : property.values) {
                if (!value.typeId.empty() && value.text.empty()) {
                    value.text = nameOf(value.typeId);
                }
            }
        }
        for (const Link& link : dependencies(object)) {
            dependents_[link.typeId].push_back({link.property, object.typeId});
        }
    }
}

const Object* Catalogue::find(const std::string& typeId) const {
    const auto found = index_.find(typeId);
    return found == index_.end() ? nullptr : &objects_[found->second];
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

const std::vector<Link>& Catalogue::dependents(const std::string& typeId) const {
    static const std::vector<Link> none;
    const auto found = dependents_.find(typeId);
    return found == dependents_.end() ? none : found->second;
}

std::string Catalogue::schemaOf(const Object& object) const {
    // Units are the units library's, which hands out no texts.
    return object.section == &sectionOfUnits() ? compact(*sourceOf(object).text) : engine().getSchema(object.typeId);
}

} // namespace Tool
