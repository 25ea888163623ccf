#pragma once

#include <parameters/BoolParameter.h>
#include <parameters/BoolSpec.h>
#include <parameters/Category.h>
#include <parameters/Enumeration.h>
#include <parameters/EnumerationParameter.h>
#include <parameters/Export.h>
#include <parameters/Fault.h>
#include <parameters/FloatRange.h>
#include <parameters/GeneralSpec.h>
#include <parameters/Identity.h>
#include <parameters/IntParameter.h>
#include <parameters/IntRange.h>
#include <parameters/IntSpec.h>
#include <parameters/KindInfo.h>
#include <parameters/MajorCategoryComponent.h>
#include <parameters/MeasurableParameter.h>
#include <parameters/MeasurableSpec.h>
#include <parameters/ParameterCore.h>
#include <parameters/ReferenceParameter.h>
#include <parameters/ReferenceSpec.h>
#include <parameters/RegexStringRangeComponent.h>
#include <parameters/SetStringRangeComponent.h>
#include <parameters/SpecCore.h>
#include <parameters/StringParameter.h>
#include <parameters/StringRange.h>
#include <parameters/StringSpec.h>
#include <parameters/SubCategoryComponent.h>
#include <parameters/Taxon.h>
#include <parameters/UnrecognizedIdentifierException.h>
#include <parameters/ValidationException.h>
#include <parameters/ValueType.h>
#include <parameters/Views.h>

#include <units/UnitsEngine.h>

#include <cstddef>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Parameters {

namespace Internal {
class Engine;
} // namespace Internal

/// A registry of parameter definitions.
///
/// Schemas enter in two steps: registerSchema reads texts in any order and keeps them pending, resolveSchemas turns all
/// of them into objects. registerSchemas does both for a batch. Objects made in code enter by registerX at once.
/// Objects are never replaced or removed.
///
/// Every operation that throws, std::bad_alloc included, leaves the engine as it was, save where it says otherwise.
/// An engine is not to be used from two threads at once while one of them changes it; calls of const operations alone
/// may run side by side, and so may copies in different threads.
///
/// Costs are told in numbers of objects; where none is told, an operation costs the same however many the engine holds,
/// and time in proportion to the texts that it reads or writes. Beyond the limits (2^31 objects, 4 GiB of texts in one
/// object) std::length_error is thrown.
///
/// @include minimal.cpp
class PARAMETERS_EXPORT ParametersEngine {
public:
    /// Makes an empty engine. Nothing is registered beforehand: built-in identifiers are recognised, not stored.
    ParametersEngine();

    /// @name Copying
    /// @{

    /// Copies an engine with all that it holds; the two are independent afterwards. What they hold is shared until one
    /// of them changes, so that the cost does not grow with the number of objects (the units engine is copied as it
    /// is); the first change of either then costs a copy of its tables.
    ParametersEngine(const ParametersEngine& other);
    ParametersEngine& operator=(const ParametersEngine& other);
    /// @}

    /// @name Moving
    /// @{

    /// Takes over another engine whole, its units engine too. A moved-from engine may only be destroyed or assigned to.
    ParametersEngine(ParametersEngine&& other) noexcept;
    ParametersEngine& operator=(ParametersEngine&& other) noexcept;
    /// @}

    /// Destroys the engine. What it has handed out stays as it is.
    ~ParametersEngine();

    /// Returns the version of the library that runs, such as "1.0.0". The one that a program was compiled with is
    /// PARAMETERS_VERSION of parameters/Version.h.
    static std::string libraryVersion();

    /// @name Objects by type identifier
    /// @{

    /// Returns the object of a kind and type identifier. Only resolved objects are found. Disciplines, groups and
    /// Boolean, integer, reference and string specs have a built-in object: an identifier that contains the version
    /// prefix of the kind's built-in identifier gives that object under exactly this identifier. Costs one look-up, and
    /// no copy: what is returned shares its data with the engine.
    /// @throws UnrecognizedIdentifierException "Could not find K with typeid T.", where K is the kind's name: "integer
    ///         range", "Boolean spec" and so on.
    Enumeration getEnumeration(const std::string& typeId) const;
    FloatRange getFloatRange(const std::string& typeId) const;
    IntRange getIntRange(const std::string& typeId) const;
    StringRange getStringRange(const std::string& typeId) const;
    Taxon getDiscipline(const std::string& typeId) const;
    BoolSpec getBoolSpec(const std::string& typeId) const;
    GeneralSpec getGeneralSpec(const std::string& typeId) const;
    IntSpec getIntSpec(const std::string& typeId) const;
    MeasurableSpec getMeasurableSpec(const std::string& typeId) const;
    ReferenceSpec getReferenceSpec(const std::string& typeId) const;
    StringSpec getStringSpec(const std::string& typeId) const;
    Taxon getGroup(const std::string& typeId) const;
    EnumerationParameter getEnumerationParameter(const std::string& typeId) const;
    BoolParameter getBoolParameter(const std::string& typeId) const;
    IntParameter getIntParameter(const std::string& typeId) const;
    MeasurableParameter getMeasurableParameter(const std::string& typeId) const;
    ReferenceParameter getReferenceParameter(const std::string& typeId) const;
    StringParameter getStringParameter(const std::string& typeId) const;
    Taxon getDomain(const std::string& typeId) const;
    Category getCategory(const std::string& typeId) const;
    /// @}

    /// @name Objects by type identifier, if they are there
    /// @{

    /// Returns the object that getX does, or nothing where that would throw. Costs one look-up; nothing is copied, and
    /// for what is not there nothing is thrown.
    [[nodiscard]] std::optional<Enumeration> findEnumeration(std::string_view typeId) const;
    [[nodiscard]] std::optional<FloatRange> findFloatRange(std::string_view typeId) const;
    [[nodiscard]] std::optional<IntRange> findIntRange(std::string_view typeId) const;
    [[nodiscard]] std::optional<StringRange> findStringRange(std::string_view typeId) const;
    [[nodiscard]] std::optional<Taxon> findDiscipline(std::string_view typeId) const;
    [[nodiscard]] std::optional<BoolSpec> findBoolSpec(std::string_view typeId) const;
    [[nodiscard]] std::optional<GeneralSpec> findGeneralSpec(std::string_view typeId) const;
    [[nodiscard]] std::optional<IntSpec> findIntSpec(std::string_view typeId) const;
    [[nodiscard]] std::optional<MeasurableSpec> findMeasurableSpec(std::string_view typeId) const;
    [[nodiscard]] std::optional<ReferenceSpec> findReferenceSpec(std::string_view typeId) const;
    [[nodiscard]] std::optional<StringSpec> findStringSpec(std::string_view typeId) const;
    [[nodiscard]] std::optional<Taxon> findGroup(std::string_view typeId) const;
    [[nodiscard]] std::optional<EnumerationParameter> findEnumerationParameter(std::string_view typeId) const;
    [[nodiscard]] std::optional<BoolParameter> findBoolParameter(std::string_view typeId) const;
    [[nodiscard]] std::optional<IntParameter> findIntParameter(std::string_view typeId) const;
    [[nodiscard]] std::optional<MeasurableParameter> findMeasurableParameter(std::string_view typeId) const;
    [[nodiscard]] std::optional<ReferenceParameter> findReferenceParameter(std::string_view typeId) const;
    [[nodiscard]] std::optional<StringParameter> findStringParameter(std::string_view typeId) const;
    [[nodiscard]] std::optional<Taxon> findDomain(std::string_view typeId) const;
    [[nodiscard]] std::optional<Category> findCategory(std::string_view typeId) const;
    /// @}

    /// @name All objects of a kind
    /// @{

    /// Returns all resolved objects of a kind by type identifier, in its byte order; built-in objects are not among
    /// them. Costs time in proportion to their number; the first list after a change also sorts what is new. Who lists
    /// a kind again has it kept from then on until the next change, some 150 bytes an object.
    std::map<std::string, Enumeration> getAllEnumerations() const;
    std::map<std::string, FloatRange> getAllFloatRanges() const;
    std::map<std::string, IntRange> getAllIntRanges() const;
    std::map<std::string, StringRange> getAllStringRanges() const;
    std::map<std::string, Taxon> getAllDisciplines() const;
    std::map<std::string, BoolSpec> getAllBoolSpecs() const;
    std::map<std::string, GeneralSpec> getAllGeneralSpecs() const;
    std::map<std::string, IntSpec> getAllIntSpecs() const;
    std::map<std::string, MeasurableSpec> getAllMeasurableSpecs() const;
    std::map<std::string, ReferenceSpec> getAllReferenceSpecs() const;
    std::map<std::string, StringSpec> getAllStringSpecs() const;
    std::map<std::string, Taxon> getAllGroups() const;
    std::map<std::string, EnumerationParameter> getAllEnumerationParameters() const;
    std::map<std::string, BoolParameter> getAllBoolParameters() const;
    std::map<std::string, IntParameter> getAllIntParameters() const;
    std::map<std::string, MeasurableParameter> getAllMeasurableParameters() const;
    std::map<std::string, ReferenceParameter> getAllReferenceParameters() const;
    std::map<std::string, StringParameter> getAllStringParameters() const;
    std::map<std::string, Taxon> getAllDomains() const;
    std::map<std::string, Category> getAllCategories() const;
    /// @}

    /// @name All objects of a kind, as they lie in the engine
    /// @{

    /// Shows the objects that getAllX copies, in the same order. The view is good until the engine is next used for
    /// anything that is not const, or destroyed; a handle copied from it is good for itself. Costs the same however
    /// many there are; the first view after objects were added sorts these, and is kept until more are, some 20 bytes
    /// an object.
    [[nodiscard]] ArrayView<Enumeration> allEnumerations() const;
    [[nodiscard]] ArrayView<FloatRange> allFloatRanges() const;
    [[nodiscard]] ArrayView<IntRange> allIntRanges() const;
    [[nodiscard]] ArrayView<StringRange> allStringRanges() const;
    [[nodiscard]] ArrayView<Taxon> allDisciplines() const;
    [[nodiscard]] ArrayView<BoolSpec> allBoolSpecs() const;
    [[nodiscard]] ArrayView<GeneralSpec> allGeneralSpecs() const;
    [[nodiscard]] ArrayView<IntSpec> allIntSpecs() const;
    [[nodiscard]] ArrayView<MeasurableSpec> allMeasurableSpecs() const;
    [[nodiscard]] ArrayView<ReferenceSpec> allReferenceSpecs() const;
    [[nodiscard]] ArrayView<StringSpec> allStringSpecs() const;
    [[nodiscard]] ArrayView<Taxon> allGroups() const;
    [[nodiscard]] ArrayView<EnumerationParameter> allEnumerationParameters() const;
    [[nodiscard]] ArrayView<BoolParameter> allBoolParameters() const;
    [[nodiscard]] ArrayView<IntParameter> allIntParameters() const;
    [[nodiscard]] ArrayView<MeasurableParameter> allMeasurableParameters() const;
    [[nodiscard]] ArrayView<ReferenceParameter> allReferenceParameters() const;
    [[nodiscard]] ArrayView<StringParameter> allStringParameters() const;
    [[nodiscard]] ArrayView<Taxon> allDomains() const;
    [[nodiscard]] ArrayView<Category> allCategories() const;
    /// @}

    /// @name Of any kind
    /// @{

    /// Returns the kind of the object, or else of the pending schema, of that type identifier; nothing where there is
    /// none: built-in identifiers and units have no kind. Costs one look-up.
    [[nodiscard]] std::optional<KindInfo> kindOf(std::string_view typeId) const noexcept;

    /// Returns whether a schema of that type identifier is registered and not yet resolved. Costs one look-up.
    [[nodiscard]] bool isPending(std::string_view typeId) const noexcept;

    /// Returns how many objects getAllX returns: of a kind, or of all kinds together.
    /// @{
    [[nodiscard]] std::size_t countObjects(KindInfo kind) const noexcept;
    [[nodiscard]] std::size_t countObjects() const noexcept;
    /// @}

    /// Shows what names this type identifier: every object of which getDependencies tells it, kind by kind in the order
    /// of Kinds::All, by the bytes of the type identifiers within a kind. It may be that of an object, of a unit or a
    /// built-in one; what nothing names has no dependents. The parameters of a group are its dependents, and so are the
    /// specs of a discipline.
    ///
    /// The view is good until the engine is next used for anything that is not const, or destroyed. Costs one look-up;
    /// the first time after objects were added all that all objects name is gathered, and kept until more are, some 24
    /// bytes for each that an object names.
    /// @snippet dialog_lists.cpp dependents
    [[nodiscard]] ArrayView<Identity> dependentsOf(std::string_view typeId) const;
    /// @}

    /// @name Registering objects made in code
    /// @{

    /// Registers an object made in code. What it names by type identifier must be registered and resolved, or built in.
    /// In most places the registered object takes the place of the one given; a spec keeps its discipline as it is.
    /// @ref md_docs_engine_life "The life of an engine" tells what holds for each kind.
    /// @throws ValidationException "Typeid must not be empty."
    /// @throws ValidationException "Schema with typeid T is already registered." if T names anything at all: a schema
    ///         or object of any kind, or a unit; or if it contains a reserved identifier.
    /// @throws ValidationException "Could not find K with typeid T." if the object names something that is not there.
    /// @throws ValidationException if the object itself is faulty: an enumeration without values or with one twice, a
    ///         string range with a value twice, a string parameter whose range is not what its base says, a subcategory
    ///         of a subcategory, a family type without a category. @ref md_docs_errors "Errors" has the messages.
    void registerEnumeration(const Enumeration& enumeration);
    void registerFloatRange(const FloatRange& range);
    void registerIntRange(const IntRange& range);
    void registerStringRange(const StringRange& range);
    void registerDiscipline(const Taxon& discipline);
    void registerBoolSpec(const BoolSpec& spec);
    void registerGeneralSpec(const GeneralSpec& spec);
    void registerIntSpec(const IntSpec& spec);
    void registerMeasurableSpec(const MeasurableSpec& spec);
    void registerReferenceSpec(const ReferenceSpec& spec);
    void registerStringSpec(const StringSpec& spec);
    void registerGroup(const Taxon& group);
    void registerEnumerationParameter(const EnumerationParameter& parameter);
    void registerBoolParameter(const BoolParameter& parameter);
    void registerIntParameter(const IntParameter& parameter);
    void registerMeasurableParameter(const MeasurableParameter& parameter);
    void registerReferenceParameter(const ReferenceParameter& parameter);
    void registerStringParameter(const StringParameter& parameter);
    void registerDomain(const Taxon& domain);
    void registerCategory(const Category& category);
    /// @}

    /// Returns whether a type identifier is taken: by a schema, resolved or not, by an object, by a unit, or because it
    /// contains the version prefix of a reserved identifier: that of a built-in object or of a base of ranges.
    bool isRegistered(const std::string& typeId) const;

    /// Returns what isRegistered does, for those who have a view or a literal: no string is made of it.
    [[nodiscard]] bool isTaken(std::string_view typeId) const;

    /// Returns the units engine, through which units can be registered and resolved directly, under any type identifier
    /// that no unit has: it does not know which are taken in this engine. The reference is good until the engine is
    /// assigned to or destroyed; when the engine is moved, it belongs to the new one. An engine whose units engine was
    /// moved from may only be assigned to or destroyed.
    Units::UnitsEngine& getUnitsEngine();

    /// Returns what values a parameter schema describes; None for other kinds, for enumeration parameters, and for a
    /// text that its kind refuses. Nothing is registered, and whether the type identifier is taken does not matter.
    /// @throws ValidationException if the text is no schema: it is not JSON, or its "typeid", "inherits", "constants"
    ///         or "properties" are not what they must be.
    ValueType readValueType(const std::string& schemaText) const;

    /// @name Reading parameters without registering them
    /// @{

    /// Returns the parameter that a schema text describes, with what it names as registered. Nothing is registered.
    /// @throws ValidationException if the text is no schema, or one with a fault that its kind finds.
    /// @throws ValidationException "Inheritance from an incorrect base schema." if the text is of another kind.
    /// @throws ValidationException "Schema with typeid T is already registered."
    /// @throws ValidationException "Could not find K with typeid T." if it names something that is not registered.
    BoolParameter readBoolParameter(const std::string& schemaText) const;
    IntParameter readIntParameter(const std::string& schemaText) const;
    MeasurableParameter readMeasurableParameter(const std::string& schemaText) const;
    ReferenceParameter readReferenceParameter(const std::string& schemaText) const;
    StringParameter readStringParameter(const std::string& schemaText) const;
    /// @}

    /// Registers a schema; its object is there after resolveSchemas. Unit schemas are not accepted.
    /// @return the type identifiers that the schema names and that are not registered yet: schemas first, then units.
    /// @throws ValidationException if the text is no schema, or one with a fault that its kind finds.
    /// @throws ValidationException "Schema with typeid T is already registered." if T is that of a schema or object, of
    ///         a unit, or contains a reserved identifier.
    /// @throws ValidationException "Inheritance from an unrecognized base schema." if it is of no kind of this engine.
    ///
    /// An application that gets its schemas one by one asks for what is missing until nothing is:
    /// @snippet register_missing.cpp missing
    std::pair<std::set<std::string>, std::set<std::string>> registerSchema(const std::string& schemaText);

    /// Registers schemas, unit schemas among them, in ascending order of their keys, then resolves. The keys are type
    /// identifiers; entries whose key is taken are passed over unread, so that a batch may be registered again. Texts
    /// under other names, such as those of files, are for registerSoundSchemas. Costs what registerSchema for each
    /// entry and resolveSchemas do.
    /// @throws ValidationException as registerSchema and resolveSchemas do. Entries before a refused one stay pending,
    ///         entries after it are not looked at, and nothing is resolved.
    /// @throws Units::ValidationException if the units engine refuses a schema that no kind of this engine accepts.
    void registerSchemas(const std::map<std::string, std::string>& schemas);

    /// Returns everything that would be wrong if these texts, those of units among them, were registered and resolved
    /// in this engine, and what in them is passed over. None of it is an error exactly when they could be. Nothing is
    /// changed. The keys are names for the texts, such as those of their files.
    ///
    /// The faults come by text in the order of the keys; within a text what its readers come upon in their order, what
    /// nobody reads in the order of the text, then what it names and is not there. A text that is no JSON or has no
    /// base of a known kind has no faults beyond that; of two texts with one type identifier the second is at fault.
    /// What pending schemas of the engine lack is told by findUnresolvable.
    ///
    /// Costs little more than registering and resolving in a copy of the engine, the tables of which are copied, and
    /// time in proportion to the texts whatever is wrong with them.
    std::vector<Fault> findFaults(const std::map<std::string, std::string>& texts) const;

    /// Registers and resolves those of the texts that have no error, and returns the faults that findFaults would. What
    /// was pending is resolved as far as it can be, and stays pending otherwise. Costs what findFaults does.
    /// @snippet load_folder.cpp faults
    std::vector<Fault> registerSoundSchemas(const std::map<std::string, std::string>& texts);

    /// Turns all pending schemas, units first, into objects; schemas may name each other in whatever order they were
    /// registered. All or nothing: when it throws, pending schemas stay pending and no object is added, save that
    /// the units engine may have resolved its own. Costs time in proportion to the number of pending schemas, and to
    /// that of all units when a measurable spec is among them.
    /// @throws ValidationException "Dependency T in schema S is missing or does not represent an object of the expected
    ///         type."
    /// @throws ValidationException "Typeid T for storageUnit constant in measurable spec schema S does not belong to a
    ///         unit.", or "... in applicableUnits constant ...".
    /// @throws ValidationException "Parent T of subcategory schema S is not a major category."
    void resolveSchemas();

    /// Returns what resolveSchemas could not build now: the type identifier of each such pending schema, in byte order,
    /// with the message that resolution would raise for it. A schema that names one of these is among them. Empty
    /// exactly when resolveSchemas would succeed. Costs about what resolveSchemas does, and a copy of the units engine.
    /// findFaults tells more, and of texts that are not registered.
    /// @throws whatever the units engine throws when its pending units, which are tried on a copy, do not resolve.
    std::map<std::string, std::string> findUnresolvable() const;

    /// Withdraws a schema that is registered and not yet resolved; returns false when there is none of that type
    /// identifier. When all that findUnresolvable lists is discarded, resolveSchemas succeeds.
    bool discardPending(const std::string& typeId);

    /// Returns the type identifiers that a resolved object names, built-in ones included.
    /// @throws UnrecognizedIdentifierException "Could not find any object with typeid T.", also for the kinds that name
    ///         nothing: enumerations, ranges, disciplines, domains and groups.
    std::set<std::string> getDependencies(const std::string& typeId) const;

    /// @name Dependencies of parameters made in code
    /// @{

    /// Returns the type identifiers that a parameter made in code names, built-in ones included. It is checked as if it
    /// were registered.
    /// @throws ValidationException as registering it would.
    std::set<std::string> getDependencies(const BoolParameter& parameter) const;
    std::set<std::string> getDependencies(const IntParameter& parameter) const;
    std::set<std::string> getDependencies(const MeasurableParameter& parameter) const;
    std::set<std::string> getDependencies(const ReferenceParameter& parameter) const;
    std::set<std::string> getDependencies(const StringParameter& parameter) const;
    /// @}

    /// Returns the schema of a resolved object, as JSON text without blanks. It is written from the object and leaves
    /// out what equals its default.
    /// @throws UnrecognizedIdentifierException "Could not find any object with typeid T.", also for those built in.
    /// @throws ValidationException "Schema T has a number that is not finite." if a range's bound is infinite or no
    ///         number, which only one made in code can be.
    ///
    /// So a parameter goes from one engine to another with all that it needs:
    /// @snippet copy_parameter.cpp copy
    std::string getSchema(const std::string& typeId) const;

    /// @name Schemas of parameters made in code
    /// @{

    /// Returns the schema of a parameter made in code. It is checked as if it were registered.
    /// @throws ValidationException as registering it would.
    std::string getSchema(const BoolParameter& parameter) const;
    std::string getSchema(const IntParameter& parameter) const;
    std::string getSchema(const MeasurableParameter& parameter) const;
    std::string getSchema(const ReferenceParameter& parameter) const;
    std::string getSchema(const StringParameter& parameter) const;
    /// @}

private:
    std::unique_ptr<Internal::Engine> engine_;
};

} // namespace Parameters
