// The store that the deck interpreter writes into, the keywords that count, and the units of decks.
#include "DeckUnitSystems.h"
#include "FluidBench/Common/Exceptions.h"
#include "Kes/Core/Service/Measurements/UnitManager.h"
#include "Kes/KesModel/Log.h"
#include "Kes/SimFluid/StdTracerModel.h"
#include "PVOCompositionalModelAdaptor.h"
#include "PVOFluidModelsAdaptor.h"
#include "PVOKeywordModelValidator.h"

#include <gtest/gtest.h>

#include <functional>
#include <iostream>
#include <limits>
#include <sstream>
#include <stdexcept>

using namespace Orv::FluidBench;
using namespace Orv::FluidBench::Impl::IO;
using namespace Orv::Kes::SimFluid;
using Orv::Kes::Core::DeckManager::IKeyword;
using Orv::Kes::Core::DeckManager::KeywordIterator;
using Orv::Kes::Core::Service::Measurements::UnitManager;
using Names = std::set<std::string>;

namespace {

template <typename Exception>
std::string TextOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const Exception& exception) {
        return exception.what();
    }
    return "(not thrown)";
}

const std::string notImplemented = "The method or operation is not implemented.";
const std::string noAqueousComponents = "ERROR: aqueous soluble components not yet supported";
const std::string invalidIndex = "ERROR: attempting to access component with invalid index";

} // namespace

TEST(DeckStoreTest, MakesNamesOfCompositionalModelsUnique) {
    PVOFluidModelsAdaptor models;
    EXPECT_EQ(models.getCompositionalModelNames(), Names());
    EXPECT_EQ(models.makeCompositionalModel("R")->getName(), "R");
    EXPECT_EQ(models.makeCompositionalModel("R")->getName(), "R_2");
    EXPECT_EQ(models.makeCompositionalModel("R")->getName(), "R_3");
    models.deleteCompositionalModel("R_2");
    models.deleteCompositionalModel("unknown");
    EXPECT_EQ(models.getCompositionalModelNames(), (Names{"R", "R_3"}));

    // Asking for a name takes it, also through a constant store.
    const PVOFluidModelsAdaptor& constant = models;
    EXPECT_EQ(constant.getCompositionalModel("asked"), nullptr);
    EXPECT_TRUE(models.getCompositionalModelNames().contains("asked"));
    EXPECT_EQ(models.makeCompositionalModel("asked")->getName(), "asked_2");
    EXPECT_EQ(models.getCompositionalModel("R"), constant.getCompositionalModel("R"));
}

TEST(DeckStoreTest, KeepsOneTracerWhateverItsName) {
    PVOFluidModelsAdaptor models;
    EXPECT_EQ(models.getTracerModelNames(), Names{"dummy"});
    EXPECT_EQ(models.getSeparatorModelNames(), Names{"dummy"});
    const ITracerModel* const tracer = models.makeTracerModel("A");
    EXPECT_EQ(models.getTracerModel("B"), tracer);
    EXPECT_EQ(models.getTracerModelNames(), Names{"dummy"});
    models.deleteTracerModel("B");
    EXPECT_EQ(models.makeTracerModel("B")->getName(), "A");
    models.deleteTracerModel("A");
    EXPECT_EQ(models.getTracerModel("B")->getName(), "B");
}

TEST(DeckStoreTest, RefusesTheKindsOfModelsThatNoFluidNeeds) {
    PVOFluidModelsAdaptor models;
    const PVOFluidModelsAdaptor& constant = models;
    const std::pair<const char*, std::function<void()>> refused[] = {
        {"makeBlackOilModel", [&] { models.makeBlackOilModel(""); }},
        {"makeSeparatorModel", [&] { models.makeSeparatorModel(""); }},
        {"makeSeparatorModel", [&] { models.makeSeparatorModel("", 1); }},
        {"getSeparatorModel", [&] { models.getSeparatorModel(""); }},
        {"getSeparatorModel", [&] { constant.getSeparatorModel(""); }},
        {"deleteSeparatorModel", [&] { models.deleteSeparatorModel(""); }},
        {"hasSeparatorModel", [&] { models.hasSeparatorModel("", 1); }},
        {"hasSeparatorModel", [&] { models.hasSeparatorModel(""); }},
        {"makeTrackingModel", [&] { models.makeTrackingModel(""); }},
        {"getTrackingModel", [&] { models.getTrackingModel(""); }},
        {"getTrackingModel", [&] { constant.getTrackingModel(""); }},
        {"deleteTrackingModel", [&] { models.deleteTrackingModel(""); }},
    };
    for (const auto& [operation, call] : refused) {
        EXPECT_EQ(TextOf<Common::MethodNotImplementedException>(call),
                  std::string("Method PVOFluidModelsAdaptor::") + operation +
                      " is not implemented.");
    }
}

TEST(DeckStoreTest, AModelMakesItsObjectsWhenAsked) {
    PVOCompositionalModelAdaptor model("F", Common::Units::METRIC);
    const PVOCompositionalModelAdaptor& constant = model;
    EXPECT_EQ(model.getInitialConditionNames(), Names());
    IInitialCondition& condition = model.makeInitialCondition("A");
    EXPECT_EQ(&model.getInitialCondition("B"), &condition);
    EXPECT_EQ(&constant.getInitialCondition("C"), &condition);
    EXPECT_EQ(model.getInitialConditionNames(), Names{"A"});
    model.deleteInitialCondition("B");
    EXPECT_EQ(model.getInitialConditionNames(), Names{"A"});
    model.deleteInitialCondition("A");
    EXPECT_EQ(model.getInitialConditionNames(), Names());
    EXPECT_EQ(constant.getInitialCondition("D").getName(), "D");

    constant.getWaterProperties();
    model.makeWaterProperties().setViscosity(0.4);
    EXPECT_EQ(constant.getWaterProperties().getViscosity(), 0.4);
    model.deleteWaterProperties();
    EXPECT_EQ(constant.getWaterProperties().getViscosity(), 0.0);
    model.getTemperatureTable().setNumTemperatures(2);
    EXPECT_EQ(constant.getTemperatureTable().getNumTemperatures(), 2);
    model.deleteTemperatureTable();
    EXPECT_EQ(constant.getTemperatureTable().getNumTemperatures(), 0);
}

TEST(DeckStoreTest, FindsComponentsByIndexAndName) {
    PVOCompositionalModelAdaptor model("F", Common::Units::METRIC);
    const PVOCompositionalModelAdaptor& constant = model;
    EXPECT_EQ(model.getNumComponents(), 0);
    EXPECT_EQ(model.getEquationOfState(), 0);
    EXPECT_EQ(model.getViscosityModel(), 0);
    EXPECT_EQ(model.getInterfacialTensionModel(), 0);
    for (const char* const name : {"C1", "C2", "C1"}) {
        model.makeComponent(name);
    }
    model.getComponent(1).setProperty(IComponent::PARACHOR, 108.0);
    model.getBinaryInteractionCoefficients().set(0, 1, 0.1);
    EXPECT_EQ(model.getNumComponents(), 3);
    EXPECT_EQ(model.getComponentIndex("C1"), 0);
    EXPECT_EQ(model.getComponentIndex("c1"), -1);
    EXPECT_TRUE(model.hasComponent("C2"));
    EXPECT_EQ(&constant.getComponent("C2"), &model.getComponent(1));
    EXPECT_EQ(TextOf<std::invalid_argument>([&] { constant.getComponent("C"); }),
              "Compositional Fluid Model F does not contain a component called 'C'.");
    for (const int index : {-1, 3}) {
        EXPECT_EQ(TextOf<std::runtime_error>([&] { constant.getComponent(index); }), invalidIndex);
        EXPECT_EQ(TextOf<std::runtime_error>([&] { model.deleteComponent(index); }), invalidIndex);
    }

    // The components behind a deleted one move down with all they have; the coefficients stay.
    model.deleteComponent(0);
    EXPECT_EQ(model.getComponent(0).getProperty(IComponent::PARACHOR), 108.0);
    EXPECT_EQ(model.getComponentIndex("C1"), 1);
    EXPECT_EQ(constant.getBinaryInteractionCoefficients().get(0, 1), 0.1);
}

TEST(DeckStoreTest, AnswersWhatAFluidDoesNotHave) {
    PVOCompositionalModelAdaptor model("F", Common::Units::METRIC);
    EXPECT_EQ(TextOf<std::runtime_error>([&] { model.getAqueousSolubleComponent(0); }),
              noAqueousComponents);
    EXPECT_EQ(TextOf<std::runtime_error>([&] { model.makeKValueTable(); }), notImplemented);
    model.setReservoirTemperature(350.0); // one of many that store nothing
    EXPECT_EQ(model.getReservoirTemperature(), 0.0);
    EXPECT_FALSE(model.hasAqueousSolubleComponent("C1"));
    EXPECT_EQ(model.getKValueTableNames(), Names());
}

TEST(DeckStoreTest, HasThreeAqueousSetsOfCoefficients) {
    PVOCompositionalModelAdaptor model("F", Common::Units::METRIC);
    const PVOCompositionalModelAdaptor& constant = model;
    model.getBinaryInteractionCoefficients().set(0, 1, 0.5);
    for (const int number : {1, 2, 3}) {
        EXPECT_EQ(constant.getAqueousBinaryInteractionCoefficients(number).get(0, 1), 0.0);
        model.getAqueousBinaryInteractionCoefficients(number).set(0, 1, number);
    }
    EXPECT_EQ(constant.getAqueousBinaryInteractionCoefficients(1).get(0, 1), 1.0);
    EXPECT_EQ(model.getBinaryInteractionCoefficients().get(0, 1), 0.5);
    for (const int number : {0, 4}) {
        EXPECT_EQ(TextOf<std::range_error>(
                      [&] { constant.getAqueousBinaryInteractionCoefficients(number); }),
                  "Invalid aqueous IBinaryInteractionCoefficients coefficient number (" +
                      std::to_string(number) + ") : must be 1, 2 or 3.");
    }
}

TEST(DeckStoreTest, AComponentHoldsNumbersByKeys) {
    PVOComponentAdaptor component("N");
    component.setProperty(4, 1.0);
    component.setProperty(4, 0.0);
    component.setDensity(7, 1);
    component.setViscosity(7, 2);
    component.setAttribute3(3);
    EXPECT_TRUE(component.hasProperty(4));
    EXPECT_EQ(component.getAttribute1(), 0);

    PVOComponentAdaptor copy = component;
    component.deleteProperty(4);
    component.deleteProperty(5);
    component.setDensity(7, 9);
    EXPECT_FALSE(component.hasProperty(4));
    EXPECT_EQ(copy.getProperty(4), 0.0);
    EXPECT_EQ(copy.getDensity(7), 1);
    EXPECT_EQ(copy.getViscosity(7), 2);
    EXPECT_EQ(copy.getAttribute3(), 3);
    EXPECT_EQ(TextOf<std::range_error>([&] { component.getProperty(4); }),
              "Component 'N' does not have property ");
    EXPECT_EQ(TextOf<std::range_error>([&] { component.getDensity(8); }),
              "Component 'N' does not have density ");
    EXPECT_EQ(TextOf<std::range_error>([&] { component.getViscosity(8); }),
              "Component 'N' does not have viscosity ");
}

TEST(DeckStoreTest, CoefficientsAreSymmetricAndSparse) {
    PVOBinaryInteractionCoefficientsAdaptor coefficients;
    coefficients.set(1, 2, 0.1);
    EXPECT_EQ(coefficients.get(2, 1), 0.1);
    coefficients.set(2, 1, 0.2);
    EXPECT_EQ(coefficients.get(1, 2), 0.2);
    coefficients.set(1, 2, -0.0);
    EXPECT_EQ(coefficients.get(1, 2), 0.0);
    coefficients.set(3, 3, 0.5);
    EXPECT_EQ(coefficients.get(3, 3), 0.0);
    coefficients.set(0, 1, std::numeric_limits<double>::quiet_NaN());
    EXPECT_NE(coefficients.get(0, 1), coefficients.get(0, 1));

    // Any indices in any order, with gaps.
    constexpr int lowest = std::numeric_limits<int>::min();
    constexpr int highest = std::numeric_limits<int>::max();
    const std::pair<int, int> pairs[] = {{9, 4}, {highest, lowest}, {4, 30}, {0, 4}, {4, 12}};
    for (const auto& [i, j] : pairs) {
        coefficients.set(i, j, i + 0.5);
    }
    coefficients.set(4, 12, 0.0);
    for (const auto& [i, j] : pairs) {
        EXPECT_EQ(coefficients.get(j, i), j == 12 ? 0.0 : i + 0.5) << i << ' ' << j;
    }
    EXPECT_EQ(coefficients.get(4, 10), 0.0);
}

TEST(DeckStoreTest, AdmitsFluidKeywordsToTheLetter) {
    class Keyword : public IKeyword {
    public:
        explicit Keyword(std::string name) : name_(std::move(name)) {}
        const std::string& getName() const override { return name_; }

    private:
        std::string name_;
    };
    const PVOKeywordModelValidator validator;
    EXPECT_EQ(validator.getKeywordValidator1(), nullptr);
    EXPECT_EQ(validator.getKeywordValidator2(), nullptr);
    EXPECT_EQ(validator.getKeywordValidator4(), nullptr);
    const auto* const fluids = validator.getFluidsKeywordValidator();
    // Which keywords these are, the test of reading them holds.
    for (const auto& [name, isValid] : {std::pair{"MW", true},
                                        {"MWS", true},
                                        {"", false},
                                        {"tcrit", false},
                                        {"TCRIT ", false},
                                        {"TCRI", false},
                                        {"NCOMPS", false},
                                        {"PRCORR", false},
                                        {"LBCCOEF", false}}) {
        EXPECT_EQ(fluids->isValidKeyword(std::string(name)), isValid) << name;
        EXPECT_EQ(fluids->isValidKeyword(KeywordIterator(Keyword(name))), isValid) << name;
    }
}

TEST(DeckStoreTest, ConvertsDeckValuesByTheirUnitSystem) {
    using Common::Units;
    struct Case {
        int units;
        const char* system;
        double pressure, density, temperature, molarVolume; // of one unit
    };
    const double foot = 0.3048 * 0.3048 * 0.3048;
    const Case cases[] = {
        {0, "KESTREL_METRIC", 1e5, 1.0, 1.0, 1.0},
        {1, "KESTREL_FIELD", 6894.757293168361, 0.45359237 / foot, 5.0 / 9.0, foot / 0.45359237},
        {2, "KESTREL_LAB", 101325.0, 1000.0, 1.0, 1e-3},
        {3, "KESTREL_PVT-M", 101325.0, 1.0, 1.0, 1.0},
        {4, "KESTREL_METRIC", 1e5, 1.0, 1.0, 1.0},
    };
    for (const Case& c : cases) {
        const auto units = static_cast<Units::UNIT_TYPE>(c.units);
        EXPECT_EQ(GetDeckUnitSystem(units).GetName(), c.system);
        EXPECT_DOUBLE_EQ(ConvertToCanonical(2.0, "Pressure", units), 2.0 * c.pressure);
        EXPECT_DOUBLE_EQ(ConvertToCanonical(2.0, "Density", units), 2.0 * c.density);
        EXPECT_DOUBLE_EQ(ConvertToCanonical(2.0, "AbsoluteTemperature", units),
                         2.0 * c.temperature);
        EXPECT_DOUBLE_EQ(ConvertToCanonical(2.0, "MolarVolume", units), 2.0 * c.molarVolume);
    }
    EXPECT_THROW(ConvertToCanonical(2.0, "Colour", Units::METRIC), std::invalid_argument);
    EXPECT_THROW(UnitManager::GetUnitManager().GetUnitSystem("KESTREL"), std::invalid_argument);
    EXPECT_EQ(UnitTypeOf(Common::pvtEnumPVOUnitSystemType::Metric), Units::METRIC);
    EXPECT_EQ(UnitTypeOf(Common::pvtEnumPVOUnitSystemType::Field), Units::FIELD);
    EXPECT_EQ(UnitTypeOf(static_cast<Common::pvtEnumPVOUnitSystemType>(9)), Units::METRIC);
}

TEST(DeckStoreTest, TheSimulatorsTablesRefusePlacesThatTheyLack) {
    StdDepthTable table;
    table.clear(2);
    table.addRow(1000.0);
    table.setValue(0, 1, 0.25);
    EXPECT_EQ(table.getValue(0, 1), 0.25);
    StdTracerModel tracer("T");
    tracer.makeDepthTable(2);
    tracer.makeDepthTable(2).clear(3);
    EXPECT_EQ(tracer.getNumOfDepthTables(), 2);
    EXPECT_EQ(tracer.getNumOfDepthTablesOfType(2), 2);
    EXPECT_EQ(tracer.getNumOfDepthTablesOfType(1), 0);
    StdWaterProperties water;
    water.makeBrineComponent("NaCl");
    EXPECT_EQ(water.getBrineComponent(0).getName(), "NaCl");
    EXPECT_TRUE(water.hasBrineComponent("NaCl"));
    EXPECT_FALSE(water.hasBrineComponent("KCl"));
    StdTemperatureTable temperatures;
    temperatures.setNumTemperatures(1);
    temperatures.setNumComponents(2);
    temperatures.setProperty(0, 1, 0.5);
    EXPECT_EQ(temperatures.getProperty(0, 1), 0.5);
    const std::pair<const char*, std::function<void()>> refused[] = {
        {"A depth table has no row 1", [&] { table.getValue(1, 0); }},
        {"A depth table has no row -1", [&] { table.getDepth(-1); }},
        {"A depth table has no column 2", [&] { table.getValue(0, 2); }},
        {"A depth table has no column -1", [&] { table.setValue(0, -1, 1.0); }},
        {"A depth table can't have -1 columns", [&] { table.clear(-1); }},
        {"The tracer has no depth table 2 of type 2", [&] { tracer.getDepthTable(2, 2); }},
        {"The tracer has no depth table -1 of type 2", [&] { tracer.getDepthTable(2, -1); }},
        {"The tracer has no depth table 0 of type 1", [&] { tracer.deleteDepthTable(1, 0); }},
    };
    for (const auto& [text, call] : refused) {
        EXPECT_EQ(TextOf<std::out_of_range>(call), text);
    }
    EXPECT_EQ(TextOf<std::invalid_argument>([&] { water.getBrineComponent("KCl"); }),
              "The brine has no component called 'KCl'");
    EXPECT_THROW(water.getBrineComponent(1), std::out_of_range);
    EXPECT_THROW(temperatures.getProperty(1, 0), std::out_of_range);
    tracer.deleteDepthTable(2, 0);
    EXPECT_EQ(tracer.getNumOfDepthTables(), 1);
    tracer.deleteDepthTable(2, 0);
    EXPECT_FALSE(tracer.hasDepthTablesOfType(2));
}

TEST(DeckStoreTest, TheDefaultLoggerWritesUpToItsSeverity) {
    using Orv::Kes::KesModel::DefaultLogger;
    using Orv::Kes::KesModel::Log;
    const auto written = [](int most) {
        DefaultLogger logger;
        logger.setMaxSeverity(static_cast<Log::Severity>(most));
        std::ostringstream text;
        auto* const previous = std::cerr.rdbuf(text.rdbuf());
        for (int severity = 0; severity < 5; ++severity) {
            logger.write(static_cast<Log::Severity>(severity), "x");
        }
        std::cerr.rdbuf(previous);
        return text.str();
    };
    EXPECT_EQ(written(4), "fatal: x\nerror: x\nwarning: x\nnote: x\ndebug: x\n");
    EXPECT_EQ(written(1), "fatal: x\nerror: x\n");
}
