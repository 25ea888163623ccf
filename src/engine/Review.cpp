#include "engine/Review.h"

#include "engine/AnyUnits.h"
#include "engine/FaultData.h"
#include "engine/Messages.h"
#include "engine/Resolution.h"
#include "model/Access.h"
#include "model/MakeRef.h"
#include "schema/Hash.h"
#include "schema/Inspection.h"
#include "schema/Schema.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <tuple>
#include <unordered_map>
#include <utility>

namespace Parameters::Internal {

namespace {

using TextId = std::size_t;

/// What is known of a text once it is read.
struct ReadText {
    static constexpr std::size_t unknownKind = StoreOrder::size;
    static constexpr std::size_t unit = unknownKind + 1;

    const std::string* key;
    const std::string* text;
    std::string_view typeId = {}; // that of what is pending, or its own, if it could be read
    Texts ownTypeId = {};         // of what is not pending
    std::size_t kind = unknownKind;
    int pass = 0;
    bool isPending = false; // in the registry, until resolution
    bool isFaulty = false;
};

/// Whether a fault leaves open what a text is: an installed units library may refuse one for any reason.
bool isOfNoBase(const FaultData& fault) {
    return fault.code == EngineMessages::messages("base-unrecognized").code ||
           fault.code == EngineMessages::messages("unit-refused").code;
}

class Review {
public:
    Review(Registry& registry, Units::UnitsEngine& units) : registry_(registry), units_(units) {}

    void read(const std::string& key, const std::string& text);
    void resolve(Outcome outcome);
    std::vector<Fault> faults();

private:
    struct TextFault {
        TextId text;
        FaultData data;
    };
    /// Something that a text names and that is not there.
    struct Missing {
        TextId text;
        Unresolved cause;
        std::string named; // a copy, where the cause has a view
        std::size_t occurrence;
    };

    bool isTaken(const Directory::Key& key);
    static void tellTaken(const Ostra::Schema& schema);
    std::vector<Ostra::DocumentFault> faultsReadAgain(TextId id, bool isTaken);
    template <class K>
    bool readAs(const Ostra::Schema& schema, const Directory::Key& typeId, TextId id);
    void readUnit(TextId id, bool isTaken);

    FaultData emptyFault(TextId id, const Ostra::Message& message) const;
    std::vector<FaultData> faultsOf(TextId id, std::vector<Ostra::DocumentFault>&& found);
    std::optional<TextId> isTakenBy(const FaultData& fault, TextId id);
    template <class UnitFault>
    FaultData faultOf(TextId id, UnitFault&& unitFault) const;
    void addFaults(TextId id, std::vector<FaultData>&& faults);

    std::optional<TextId> textOf(std::string_view typeId);
    Fault::Place placeIn(TextId id, Ostra::Spot spot) const {
        return {*texts_[id].key, std::move(spot.pointer), spot.begin, spot.end};
    }
    const Fault::Place& placeOfTypeId(TextId id);

    void addMissing(TextId id, const Resolution::Fault& fault);
    void tellMissing();
    void tellMissing(std::span<const Missing> missing);
    bool isConsequence(const Missing& missing, TextId named) const;
    void findRoots();

    Registry& registry_;
    Units::UnitsEngine& units_;
    std::optional<Units::UnitsEngine> apart_; // a copy, for units that are not to be registered
    std::vector<ReadText> texts_;
    std::vector<TextId> asides_; // that are sound enough to look for what they name, but not to be registered
    std::vector<TextFault> faults_;
    std::vector<Missing> missing_;
    Ostra::Inspection inspection_;
    bool hasFaulty_ = false;
    std::unordered_map<std::string_view, TextId, Ostra::TextHash>
        byTypeId_; // the first text of each, as far as it is made
    std::size_t indexed_ = 0;
    std::unordered_map<TextId, Fault::Place> typeIdPlaces_;
    std::vector<std::pair<std::size_t, TextId>> consequences_; // which fault, and of which text
};

bool Review::isTaken(const Directory::Key& key) {
    return !key.typeId.empty() && (registry_.find(key) != nullptr || isReserved(key.typeId) ||
                                   AnyUnits::isRegistered(units_, key.typeId) || (hasFaulty_ && textOf(key.typeId)));
}

void Review::read(const std::string& key, const std::string& text) {
    const TextId id = texts_.size();
    const Ostra::Schema schema(text, inspection_);
    const Directory::Key typeId(schema.typeId());
    const bool taken = schema.isReadable() && isTaken(typeId);
    if (taken) {
        tellTaken(schema);
    }
    texts_.push_back({&key, &text});
    const bool isAccepted =
        schema.isReadable() && offer(schema, [&]<class K>() { return readAs<K>(schema, typeId, id); });
    if (!texts_[id].isPending && !schema.typeId().empty()) {
        texts_[id].ownTypeId = Texts{schema.typeId()};
        texts_[id].typeId = texts_[id].ownTypeId[0];
    }
    if (schema.isReadable() && !isAccepted) {
        readUnit(id, taken);
    } else {
        addFaults(id, faultsOf(id, inspection_.wantsLooks() ? faultsReadAgain(id, taken) : inspection_.faults()));
    }
    hasFaulty_ = hasFaulty_ || texts_[id].isFaulty;
}

void Review::tellTaken(const Ostra::Schema& schema) {
    schema.view().member("typeid")->report(EngineMessages::messages("typeid-taken"), {schema.typeId()});
}

/// Returns the faults of a text that has something that nobody reads.
std::vector<Ostra::DocumentFault> Review::faultsReadAgain(TextId id, bool isTaken) {
    inspection_.noteLooks();
    const Ostra::Schema schema(*texts_[id].text, inspection_);
    if (isTaken) {
        tellTaken(schema);
    }
    withKind(texts_[id].kind, [&]<class K>() { static_cast<void>(K::read(schema)); });
    schema.tellUnread();
    return inspection_.faults();
}

template <class K>
bool Review::readAs(const Ostra::Schema& schema, const Directory::Key& typeId, TextId id) {
    auto record = K::read(schema);
    if (!record) {
        return false;
    }
    schema.tellUnread();
    ReadText& read = texts_[id];
    read.kind = kindIndex<K>;
    if constexpr (KindWithPasses<K>) {
        read.pass = K::passOf(*record);
    }
    if (inspection_.hasErrors()) {
        asides_.push_back(id);
    } else {
        read.typeId = record->typeId();
        registry_.addPending<K>(std::move(*record), typeId, [](const auto&) {});
        read.isPending = true;
    }
    return true;
}

/// Lets the units library judge a text that is of no kind. Ours reads again what was read here, and more; another one
/// may have nothing but its exceptions.
void Review::readUnit(TextId id, bool isTaken) {
    const std::string& text = *texts_[id].text;
    std::vector<FaultData> found = faultsOf(id, inspection_.faults());
    const bool isRefused = isTaken || !found.empty(); // and what is wrong with it besides is all that matters
    if (isRefused && !apart_) {
        apart_.emplace(units_);
    }
    Units::UnitsEngine& units = isRefused ? *apart_ : units_;
    if (AnyUnits::tellsFaults<Units::UnitsEngine> || found.empty()) {
        std::vector<FaultData> all;
        const auto takeFault = [&](auto& fault) {
            if (!isTaken || fault.code != EngineMessages::messages("typeid-taken").code) { // which is told here
                all.push_back(faultOf(id, std::move(fault)));
            }
        };
        const auto takeRefusal = [&](const char* message) {
            all.push_back(emptyFault(id, EngineMessages::messages("unit-refused")));
            all.back().message = message;
        };
        AnyUnits::registerSound(units, text, takeFault, takeRefusal);
        if (isTaken) { // behind what was found before
            const std::size_t place = std::min(found.size() - 1, all.size());
            all.insert(all.begin() + static_cast<std::ptrdiff_t>(place), std::move(found.back()));
        }
        found = std::move(all);
    }
    if (std::none_of(found.begin(), found.end(), [](const FaultData& fault) { return isOfNoBase(fault); })) {
        texts_[id].kind = ReadText::unit;
    }
    addFaults(id, std::move(found));
}

/// A fault of a text as a whole.
FaultData Review::emptyFault(TextId id, const Ostra::Message& message) const {
    const ReadText& text = texts_[id];
    FaultData fault{};
    fault.code = message.code;
    fault.severity = severityOf(message);
    fault.typeId = text.typeId;
    fault.place = {*text.key, "", 0, text.text->size()};
    return fault;
}

std::vector<FaultData> Review::faultsOf(TextId id, std::vector<Ostra::DocumentFault>&& found) {
    std::vector<FaultData> faults;
    faults.reserve(found.size());
    for (Ostra::DocumentFault& each : found) {
        FaultData fault = emptyFault(id, *each.message);
        fault.message = std::move(each.sentence);
        fault.place = placeIn(id, std::move(each.place));
        fault.name = std::move(each.name);
        fault.nearestName = std::move(each.nearest);
        if (each.other) {
            fault.otherPlace = placeIn(id, *std::move(each.other));
        }
        if (const auto first = isTakenBy(fault, id)) {
            fault.otherPlace = placeOfTypeId(*first);
        }
        faults.push_back(std::move(fault));
    }
    return faults;
}

/// Returns the earlier text that has the typeid of a fault that says so.
std::optional<TextId> Review::isTakenBy(const FaultData& fault, TextId id) {
    if (fault.code != EngineMessages::messages("typeid-taken").code) {
        return std::nullopt;
    }
    const auto first = textOf(fault.typeId);
    return first != id ? first : std::nullopt;
}

template <class UnitFault>
FaultData Review::faultOf(TextId id, UnitFault&& unitFault) const {
    const auto placeOf = [this, id](auto& place) {
        return Fault::Place{*texts_[id].key, std::move(place.pointer), place.begin, place.end};
    };
    FaultData fault{};
    fault.code = unitFault.code;
    fault.severity = unitFault.isError ? Fault::Severity::error : Fault::Severity::warning;
    fault.message = std::move(unitFault.message);
    fault.typeId = texts_[id].typeId;
    fault.place = placeOf(unitFault.place);
    fault.name = std::move(unitFault.name);
    fault.nearestName = std::move(unitFault.nearestName);
    if (unitFault.other) {
        fault.otherPlace = placeOf(*unitFault.other);
    }
    return fault;
}

void Review::addFaults(TextId id, std::vector<FaultData>&& faults) {
    for (FaultData& fault : faults) {
        texts_[id].isFaulty = texts_[id].isFaulty || fault.severity == Fault::Severity::error;
        faults_.push_back({id, std::move(fault)});
    }
}

/// Returns the first text of that typeid.
std::optional<TextId> Review::textOf(std::string_view typeId) {
    for (; indexed_ < texts_.size(); ++indexed_) {
        byTypeId_.try_emplace(texts_[indexed_].typeId, indexed_);
    }
    const auto found = typeId.empty() ? byTypeId_.end() : byTypeId_.find(typeId);
    return found != byTypeId_.end() ? std::optional(found->second) : std::nullopt;
}

const Fault::Place& Review::placeOfTypeId(TextId id) {
    const auto [place, isNew] = typeIdPlaces_.try_emplace(id);
    if (isNew) {
        Ostra::Inspection inspection;
        const Ostra::JSON document(*texts_[id].text, inspection);
        place->second = placeIn(id, inspection.placeOfTypeId());
    }
    return place->second;
}

void Review::resolve(Outcome outcome) {
    units_.resolveSchemas();
    registry_.shrinkPending();
    Resolution resolution(registry_, units_);
    for (const Resolution::Fault& fault : resolution.run(Resolution::Stop::never)) {
        const auto id = textOf(fault.typeId);
        if (id && texts_[*id].isPending) { // or it was pending before
            addMissing(*id, fault);
        }
    }
    for (const TextId id : asides_) {
        const Ostra::Schema schema(*texts_[id].text, inspection_);
        withKind(texts_[id].kind, [&]<class K>() {
            const auto record = K::read(schema);
            for (const Resolution::Fault& fault : resolution.check<K>(*record)) {
                addMissing(id, fault);
            }
        });
    }
    tellMissing();
    if (outcome == Outcome::objects) {
        registry_.prepareCommit();
        forEachKind(StoreOrder{}, [&]<class K>() { registry_.commit<K>(resolution.built<K>()); });
        for (const ReadText& text : texts_) {
            if (text.isPending && text.isFaulty) {
                registry_.discardPending(text.typeId);
            }
        }
    }
}

void Review::addMissing(TextId id, const Resolution::Fault& fault) {
    texts_[id].isFaulty = true;
    missing_.push_back({id, fault.cause, std::string(fault.cause.named.typeId), fault.occurrence});
}

void Review::tellMissing() {
    std::stable_sort(missing_.begin(), missing_.end(),
                     [](const Missing& one, const Missing& other) { return one.text < other.text; });
    for (auto begin = missing_.begin(); begin != missing_.end();) {
        const auto end =
            std::find_if(begin, missing_.end(), [&](const Missing& missing) { return missing.text != begin->text; });
        tellMissing(std::span(begin, end));
        begin = end;
    }
}

/// Tells what one text names in vain: it is read once more, since where it names that was not kept.
void Review::tellMissing(std::span<const Missing> missing) {
    const TextId id = missing.front().text;
    const Ostra::Schema schema(*texts_[id].text, inspection_);
    withKind(texts_[id].kind, [&]<class K>() { static_cast<void>(K::read(schema)); });
    std::vector<Ostra::Inspection::Reference> references;
    for (const Missing& each : missing) {
        references.push_back({each.named, each.occurrence});
    }
    std::vector<Ostra::Spot> spots = inspection_.placesOf(references);
    for (std::size_t place = 0; place < missing.size(); ++place) {
        const Missing& each = missing[place];
        FaultData fault = emptyFault(id, *each.cause.message);
        fault.message = each.cause.sentence;
        fault.place = placeIn(id, std::move(spots[place]));
        fault.name = each.named;
        fault.expectedKind = each.cause.expected;
        if (const auto named = textOf(each.named)) {
            fault.otherPlace = placeOfTypeId(*named);
            if (isConsequence(each, *named)) {
                consequences_.emplace_back(faults_.size(), *named);
            }
        }
        faults_.push_back({id, std::move(fault)});
    }
}

/// Whether what is named would be there if only its own text were mended.
bool Review::isConsequence(const Missing& missing, TextId named) const {
    const ReadText& text = texts_[missing.text];
    const ReadText& other = texts_[named];
    if (!other.isFaulty || named == missing.text) {
        return false;
    }
    if (other.kind == ReadText::unknownKind) {
        return true;
    }
    bool isOfKind = other.kind == ReadText::unit && missing.cause.expected == Finder::unitWord;
    withKind(other.kind, [&]<class K>() { isOfKind = K::word == missing.cause.expected; });
    return isOfKind && (other.kind != text.kind || other.pass < text.pass);
}

/// Follows consequences to the first fault that is none. What is named is of a kind that is built before, or of an
/// earlier pass: they never lead back.
void Review::findRoots() {
    std::unordered_map<std::size_t, TextId> namedBy(consequences_.begin(), consequences_.end());
    std::unordered_map<TextId, std::size_t> rootOf; // of a text: its first error that is no consequence, else the first
    for (std::size_t number = 0; number < faults_.size(); ++number) {
        const auto& [text, fault] = faults_[number];
        if (fault.severity != Fault::Severity::error) {
            continue;
        }
        const auto [root, isNew] = rootOf.try_emplace(text, number);
        if (!isNew && namedBy.contains(root->second) && !namedBy.contains(number)) {
            root->second = number;
        }
    }
    for (const auto& [number, named] : consequences_) {
        std::size_t root = rootOf.at(named);
        for (auto next = namedBy.find(root); next != namedBy.end(); next = namedBy.find(root)) {
            root = rootOf.at(next->second);
        }
        faults_[number].data.root = faults_[root].data.place;
    }
}

std::vector<Fault> Review::faults() {
    findRoots();
    std::stable_sort(faults_.begin(), faults_.end(),
                     [](const TextFault& one, const TextFault& other) { return one.text < other.text; });
    std::vector<Fault> faults;
    faults.reserve(faults_.size());
    for (TextFault& fault : faults_) {
        faults.push_back(Access::make<Fault>(makeRef<FaultData>(std::move(fault.data))));
    }
    return faults;
}

} // namespace

std::vector<Fault> review(const std::map<std::string, std::string>& texts, Registry& registry,
                          Units::UnitsEngine& units, Outcome outcome) {
    Review review(registry, units);
    for (const auto& [key, text] : texts) {
        review.read(key, text);
    }
    review.resolve(outcome);
    return review.faults();
}

} // namespace Parameters::Internal
