// What the test of the debuggers' printers looks at: values that are alive while stop() runs.

#include <parameters/ParametersEngine.h>

#include <array>
#include <cstdint>
#include <cstring>
#include <new>
#include <optional>
#include <string>
#include <vector>

using namespace Parameters;

namespace {

/// A handle as it lies in memory.
struct Handle {
    const void* data;
};

/// Data of a value, whose first word nearly always is the address of its texts, behind the number of its owners.
struct Shared {
    std::int32_t owners;
    std::int32_t destroy;
    std::array<std::uintptr_t, 4> data;
};

Shared sharedBy(std::int32_t owners, const void* texts) {
    return {owners, 0, {reinterpret_cast<std::uintptr_t>(texts)}};
}

/// The handle of a value, whose memory is read as the program may not.
Handle handleOf(const Taxon& taxon) {
    Handle handle{};
    static_assert(sizeof handle == sizeof taxon);
    std::memcpy(&handle, static_cast<const void*>(&taxon), sizeof handle);
    return handle;
}

} // namespace

extern "C" void stop() {}

Taxon copyOf(const Taxon& taxon) { return taxon; }

int main() {
    const Taxon taxon("pumps:group.operation-1.0.0", "Operation");
    const ParameterCore parameterCore("pumps:parameter.flow-1.0.0", "Flow", taxon, "what it moves", "12", false);
    const SpecCore specCore("pumps:spec.flow-1.0.0", "Volume Flow");
    const BoolSpec boolSpec(specCore);
    const IntSpec intSpec(specCore);
    const StringSpec stringSpec(specCore);
    const GeneralSpec generalSpec(specCore);
    const Units::Unit unit("pumps:unit.litrePerSecond-1.0.0", "Litre per Second", "l/s");
    const Units::Unit shortUnit("m", "Metre", "m");
    const MeasurableSpec measurableSpec(specCore, {unit}, unit);
    const MajorCategoryComponent majorComponent(Taxon("pumps:domain.hydraulics-1.0.0", "Hydraulics"), {});
    const SubCategoryComponent subComponent("pumps:category.pump-1.0.0");
    const Category category("pumps:category.pump-1.0.0", "Pump", majorComponent);
    const ReferenceSpec referenceSpec(specCore, category);
    const IntRange intRange("pumps:range.stages-1.0.0", true, -1, true, 12);
    const IntRange boundedBelow("pumps:range.stages-1.0.0", true, 9223372036854775807, false, 0);
    const FloatRange floatRange("pumps:range.flow-1.0.0", false, 0, true, 2.5);
    const SetStringRangeComponent set({"cast", "welded"});
    const SetStringRangeComponent emptySet{std::vector<std::string>{}};
    const SetStringRangeComponent longSet(std::vector<std::string>(5000, std::string(96, 'a')));
    const RegexStringRangeComponent regex("K[0-9]{1,3}");
    const StringRange stringRange("pumps:range.housing-1.0.0", set);
    const Enumeration enumeration("pumps:enumeration.drive-1.0.0", {{"Electric", 1}, {"Diesel", 2}});
    const BoolParameter boolParameter(parameterCore);
    const IntParameter intParameter(parameterCore, intRange);
    const StringParameter stringParameter(parameterCore, stringRange);
    const EnumerationParameter enumerationParameter(parameterCore, generalSpec, enumeration);
    const MeasurableParameter measurableParameter(parameterCore, measurableSpec, floatRange);
    const ReferenceParameter referenceParameter(parameterCore, true);
    const std::vector<Fault> faults = ParametersEngine().findFaults({{"text", "[]"}});

    [[maybe_unused]] const Taxon& reference = taxon;
    const Taxon copy = copyOf(taxon);
    const std::vector<Taxon> taxons = {taxon};
    const ParameterCore partOfParameter = intParameter.getCore();
    const ParameterCore builtIn = ParameterCore("pumps:parameter.other-1.0.0", "Other", "", "", true);
    const Taxon group = builtIn.getGroup();

    const Taxon anyBytes(std::string("a\0b\xff\n", 5), "L\xc3\xa4nge \xe2\x82");
    const Taxon exact(std::string(200, 't'), "");
    const Taxon lengthy(std::string(1 << 20, 't'), std::string(199, 'n') + "\xc3\xa4");

    auto* gone = new Taxon("pumps:group.gone-1.0.0", "Gone");
    gone->~Taxon();
    [[maybe_unused]] const Handle null{};
    [[maybe_unused]] const Handle nowhere = {reinterpret_cast<const void*>(1)};

    const void* texts = nullptr;
    std::memcpy(&texts, handleOf(taxon).data, sizeof texts);
    const Shared byNobody = sharedBy(0, texts);
    const Shared byFewer = sharedBy(-1, texts);
    [[maybe_unused]] const Handle unowned = {&byNobody.data};
    [[maybe_unused]] const Handle nonsense = {&byFewer.data};

    // Blocks of texts: owners, count, ends, and bytes.
    const std::array<std::uint32_t, 6> released = {0, 2, 0, 0};
    const std::array<std::uint32_t, 6> disordered = {1, 3, 0, 2, 1, 0};
    const std::array<std::uint32_t, 6> endless = {1, 2, 0, 0xffffffff};
    const std::array<std::uint32_t, 6> single = {1, 1, 0};
    const std::vector<std::uint32_t> countless(1 << 16, 0xffffffff);
    const std::array<Shared, 5> blocks = {sharedBy(1, released.data()), sharedBy(1, disordered.data()),
                                          sharedBy(1, endless.data()), sharedBy(1, single.data()),
                                          sharedBy(1, countless.data())};
    [[maybe_unused]] const Handle ofReleased = {&blocks[0].data};
    [[maybe_unused]] const Handle ofDisordered = {&blocks[1].data};
    [[maybe_unused]] const Handle ofEndless = {&blocks[2].data};
    [[maybe_unused]] const Handle ofSingle = {&blocks[3].data};
    [[maybe_unused]] const Handle ofCountless = {&blocks[4].data};

    // A range whose flags are neither true nor false.
    const Shared flags = {1, 0, {reinterpret_cast<std::uintptr_t>(texts), 0, 0, 0x0202}};
    [[maybe_unused]] const Handle ofFlags = {&flags.data};

    // The beginning of a fault: length and address of its code, which is at the end of all memory.
    const Shared far = {1, 0, {100, ~std::uintptr_t{7}}};
    [[maybe_unused]] const Handle ofFar = {&far.data};

    [[maybe_unused]] const auto& taxonAsFault = reinterpret_cast<const Fault&>(taxon);
    [[maybe_unused]] const auto& farAsFault = reinterpret_cast<const Fault&>(ofFar);
    [[maybe_unused]] const auto& taxonAsUnit = reinterpret_cast<const Units::Unit&>(taxon);
    [[maybe_unused]] const auto& taxonAsComponent = reinterpret_cast<const MajorCategoryComponent&>(taxon);
    [[maybe_unused]] const auto& flagsAsRange = reinterpret_cast<const IntRange&>(ofFlags);
    [[maybe_unused]] const auto& rangeAsTaxon = reinterpret_cast<const Taxon&>(intRange);
    stop();
    ::operator delete(gone);
}
