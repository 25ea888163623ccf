#include "support/KindTypes.h"
#include "support/Refusal.h"
#include "support/Sentences.h"

#include <parameters/Kinds.h>
#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// What each kind names: how that is found, reported, told and missed. Units are missed with messages of their own; see
// MeasurableSpecTest.cpp.

namespace {

namespace Kinds = Parameters::Kinds;
using Parameters::ParametersEngine;
using Support::notFound;
using Support::Reference;
using Support::refusalBy;
using Support::sampleIdOf;
using Support::Shape;
using Support::unresolvable;

using TypeIds = std::set<std::string>;

/// Registers an object of a kind or, where there is none, a unit.
void addNamed(ParametersEngine& engine, const Reference& reference, const std::string& typeId) {
    if (engine.isRegistered(typeId)) {
        return;
    }
    if (!reference.kind) {
        engine.getUnitsEngine().registerSchema(Support::unitText(typeId));
        engine.getUnitsEngine().resolveSchemas();
    }
    Parameters::forEachKind([&](auto kind) {
        if (kind.info == reference.kind) {
            Support::addSample<decltype(kind)>(engine, typeId);
        }
    });
}

template <class Kind>
struct ReferencesOfEachKind : testing::Test {
    /// Returns the typeid by which everything is named that can be.
    static std::string nameAll(const Reference& reference) { return "my " + std::string(reference.id); }

    /// Calls visit(shape, reference) with each reference to an object.
    template <class Visitor>
    void forEachReference(Visitor&& visit) {
        for (const Shape& shape : shapes) {
            for (const Reference& reference : shape.form.references) {
                if (reference.kind) {
                    SCOPED_TRACE(reference.id);
                    visit(shape, reference);
                }
            }
        }
    }

    /// Returns the text of "p", which names one object by that typeid and else no more than it must.
    static std::string textNaming(const Shape& shape, const Reference& reference, const std::string& named) {
        return shape.text("p", "1", [&](const Reference& other) {
            return other.id == std::string_view(reference.id) ? named : Support::nameTheLeast(other);
        });
    }

    static ParametersEngine stocked(const Shape& shape) {
        ParametersEngine engine;
        Support::stock(engine, shape);
        return engine;
    }

    static void expectUnresolvable(ParametersEngine engine, const Shape& shape, const Reference& reference,
                                   const std::string& named) {
        const std::string text = textNaming(shape, reference, named);
        expectUnreadable(engine, text, reference, named);
        engine.registerSchema(text);
        EXPECT_EQ(refusalBy(engine, [&] { engine.resolveSchemas(); }), unresolvable(named, "p"));
    }

    static void expectUnreadable(ParametersEngine& engine, const std::string& text, const Reference& reference,
                                 const std::string& named) {
        if constexpr (Kind::valueType != Parameters::None) {
            EXPECT_EQ(refusalBy(engine, [&] { Kind::read(engine, text); }), notFound(*reference.kind, named));
        }
    }

    /// Expects that an engine binds no object that names something by that typeid.
    static void expectUnbound(ParametersEngine engine, const Shape& shape, const Reference& reference,
                              const std::string& named) {
        ParametersEngine donor = stocked(shape);
        addNamed(donor, reference, named);
        donor.registerSchema(textNaming(shape, reference, named));
        donor.resolveSchemas();
        const auto object = Kind::get(donor, "p");
        const std::string message = notFound(*reference.kind, named);
        EXPECT_EQ(refusalBy(engine, [&] { Kind::add(engine, object); }), message);
        if constexpr (Kind::valueType != Parameters::None) {
            EXPECT_EQ(refusalBy(engine, [&] { engine.getSchema(object); }), message);
            EXPECT_EQ(refusalBy(engine, [&] { engine.getDependencies(object); }), message);
        }
    }

    const std::vector<Shape> shapes = Support::shapesOf<Kind>();
};

TYPED_TEST_SUITE(ReferencesOfEachKind, Support::TestedKinds<Kinds::All>, Support::NameOfKind);

TYPED_TEST(ReferencesOfEachKind, AreMissedWhereNothingIsThere) {
    this->forEachReference([&](const Shape& shape, const Reference& reference) {
        this->expectUnresolvable(this->stocked(shape), shape, reference, "x");
        this->expectUnbound(this->stocked(shape), shape, reference, "x");
    });
}

TYPED_TEST(ReferencesOfEachKind, AreMissedWhereAnObjectOfAnotherKindIs) {
    this->forEachReference([&](const Shape& shape, const Reference& reference) {
        Parameters::forEachKind([&](auto other) {
            if (other.info != reference.kind) {
                ParametersEngine engine = this->stocked(shape);
                Support::addSample<decltype(other)>(engine, "x");
                this->expectUnresolvable(engine, shape, reference, "x");
                this->expectUnbound(engine, shape, reference, "x");
            }
        });
        ParametersEngine engine = this->stocked(shape);
        addNamed(engine, {{}, "unit", true}, "x");
        this->expectUnresolvable(engine, shape, reference, "x");
    });
}

TYPED_TEST(ReferencesOfEachKind, AreMissedWhereTheSchemaIsThatNamesThem) {
    this->forEachReference([&](const Shape& shape, const Reference& reference) {
        this->expectUnresolvable(this->stocked(shape), shape, reference, "p");
    });
}

TYPED_TEST(ReferencesOfEachKind, AreBoundToNothingThatIsOnlyPending) {
    this->forEachReference([&](const Shape& shape, const Reference& reference) {
        ParametersEngine engine = this->stocked(shape);
        Parameters::forEachKind([&](auto kind) {
            if (kind.info == reference.kind) {
                Support::stock(engine, Support::mainShapeOf<decltype(kind)>());
                engine.registerSchema(Support::sampleText<decltype(kind)>("x"));
            }
        });
        this->expectUnbound(engine, shape, reference, "x");
        this->expectUnreadable(engine, this->textNaming(shape, reference, "x"), reference, "x");
    });
}

TYPED_TEST(ReferencesOfEachKind, AreNoBuiltInObjectsOfOtherMajorVersionsOrKinds) {
    this->forEachReference([&](const Shape& shape, const Reference& reference) {
        for (const std::string_view base : reference.kind->bases()) {
            const std::string other = Support::ofMajorVersion(base, "7");
            this->expectUnresolvable(this->stocked(shape), shape, reference, other);
            this->expectUnbound(this->stocked(shape), shape, reference, other);
            if (!reference.mayBeBuiltIn() && !reference.kind->isRange()) {
                this->expectUnresolvable(this->stocked(shape), shape, reference, std::string(base));
            }
        }
        Parameters::forEachKind([&](auto other) {
            if (other.info != reference.kind && (other.info.isRange() || !other.info.builtInName().empty())) {
                for (const std::string_view base : other.info.bases()) {
                    this->expectUnresolvable(this->stocked(shape), shape, reference, std::string(base));
                }
            }
        });
    });
}

TYPED_TEST(ReferencesOfEachKind, AreReportedAsMissingUnlessTheyAreThere) {
    for (const Shape& shape : this->shapes) {
        const std::string text = shape.text("p", "1", this->nameAll);
        TypeIds missing;
        TypeIds missingUnits;
        ParametersEngine stocked;
        for (const Reference& reference : shape.form.references) {
            (reference.kind ? missing : missingUnits).insert(this->nameAll(reference));
            addNamed(stocked, reference, this->nameAll(reference));
        }
        EXPECT_EQ(ParametersEngine().registerSchema(text), std::pair(missing, missingUnits));
        EXPECT_EQ(stocked.registerSchema(text), std::pair(TypeIds(), TypeIds()));
    }
}

TYPED_TEST(ReferencesOfEachKind, AreFoundAndToldAsDependencies) {
    for (const Shape& shape : this->shapes) {
        ParametersEngine engine;
        engine.registerSchema(shape.text("p", "1", this->nameAll));
        TypeIds expected;
        for (const Reference& reference : shape.form.references) {
            expected.insert(this->nameAll(reference));
            addNamed(engine, reference, this->nameAll(reference));
        }
        engine.resolveSchemas();
        const auto object = TypeParam::get(engine, "p");
        EXPECT_EQ(TypeParam::getDependencies(engine, object), expected);
        for (const std::string& named : expected) {
            EXPECT_NE(Support::describe(object).find(Support::shown(named)), std::string::npos) << named;
        }
        if constexpr (TypeParam::valueType != Parameters::None) {
            engine = ParametersEngine();
            for (const Reference& reference : shape.form.references) {
                addNamed(engine, reference, this->nameAll(reference));
            }
            EXPECT_EQ(engine.getDependencies(object), expected);
            EXPECT_EQ(engine.getDependencies(TypeParam::read(engine, shape.text("q", "1", this->nameAll))), expected);
            EXPECT_FALSE(engine.isRegistered("q"));
        }
    }
}

TYPED_TEST(ReferencesOfEachKind, AreBuiltInObjectsWhereTheyAreLeftOut) {
    for (const Shape& shape : this->shapes) {
        ParametersEngine engine = this->stocked(shape);
        EXPECT_EQ(engine.registerSchema(shape.text("p", "1", Support::nameTheLeast)), std::pair(TypeIds(), TypeIds()));
        engine.resolveSchemas();
        TypeIds expected;
        for (const Reference& reference : shape.form.references) {
            if (reference.required) {
                expected.insert(sampleIdOf(reference.kind));
            } else if (const auto typeId = reference.defaultTypeId(); !typeId.empty()) {
                expected.insert(std::string(typeId));
            }
        }
        EXPECT_EQ(TypeParam::getDependencies(engine, TypeParam::get(engine, "p")), expected);
    }
}

/// An object of a built-in major version is built in by whatever typeid contains that.
TYPED_TEST(ReferencesOfEachKind, KeepTheTypeIdOfABuiltInObjectAndItsName) {
    this->forEachReference([&](const Shape& shape, const Reference& reference) {
        if (!reference.mayBeBuiltIn()) {
            return;
        }
        const std::string prefix = Support::versionPrefixOf(reference.kind->bases()[0]);
        for (const std::string& named : {prefix + "3.0", "my " + prefix + "x"}) {
            ParametersEngine engine = this->stocked(shape);
            EXPECT_EQ(engine.registerSchema(this->textNaming(shape, reference, named)),
                      std::pair(TypeIds(), TypeIds()));
            engine.resolveSchemas();
            const std::string picture = Support::describe(TypeParam::get(engine, "p"));
            const std::string expected =
                "(" + Support::shown(named) + " " + Support::shown(std::string(reference.kind->builtInName()));
            EXPECT_NE(picture.find(expected), std::string::npos) << picture;
            EXPECT_EQ(engine.getDependencies("p").count(named), 1U);
            EXPECT_NE(engine.getSchema("p").find(R"({"typeid":")" + named + R"("})"), std::string::npos) << named;
        }
    });
}

} // namespace
