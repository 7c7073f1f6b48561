// What the library needs of the fluid model, its units and its messages, held against the
// stand-in; and the texts of the library's own exceptions and messages.
#include "IOException.h"
#include "Messages.h"
#include "TestSupport.h"

#include "FluidBench/Common/Exceptions.h"
#include "FluidBench/Common/Units.h"
#include "FluidBench/Model/Characterisation.h"
#include "FluidBench/Model/ComponentLibrary.h"
#include "FluidBench/Model/CompositionalFluid.h"
#include "FluidBench/Utilities/Equations.h"

#include <limits>
#include <stdexcept>

using namespace Orv::FluidBench;
using namespace FluidBenchTest;
using namespace Impl::IO;
using Common::ErrorReport;
using Common::Message;
using Common::PropertyOutOfRangeException;
using Common::pvtEnumErrorCode;
using Common::pvtEnumErrorType;
using Common::pvtEnumHCForm;
using Common::RelatedPropertyOutOfRangeException;
using Common::Units;
using Model::CompositionalFluid;
using Model::FluidComponent;
using Names = std::vector<std::string>;

namespace {

using Source = Common::pvtEnumPropertySource;
using FC = FluidComponent;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr auto set = Common::pvtEnumBICType::ReservoirEoS;

struct Property {
    const char* name;
    void (FC::*put)(double);
    double (FC::*get)() const;
    Source (FC::*source)() const;
    bool mayBeNegative;
};

const Property properties[] = {
    {"M", &FC::SetMolecularWeight, &FC::GetMolecularWeight, &FC::GetMolecularWeightSource, false},
    {"Pc", &FC::SetPcrit, &FC::GetPcrit, &FC::GetPcritSource, false},
    {"Tc", &FC::SetTcrit, &FC::GetTcrit, &FC::GetTcritSource, false},
    {"Vc", &FC::SetVcrit, &FC::GetVcrit, &FC::GetVcritSource, false},
    {"Vv", &FC::SetVcritViscosity, &FC::GetVcritViscosity, &FC::GetVcritViscositySource, false},
    {"Zc", &FC::SetZcrit, &FC::GetZcrit, &FC::GetZcritSource, false},
    {"w", &FC::SetAcf, &FC::GetAcf, &FC::GetAcfSource, true},
    {"P", &FC::SetParachor, &FC::GetParachor, &FC::GetParachorSource, false},
    {"s", &FC::SetEoSVolumeShift, &FC::GetEoSVolumeShift, &FC::GetEoSVolumeShiftSource, true},
    {"A", &FC::SetOmegaA, &FC::GetOmegaA, &FC::GetOmegaASource, false},
    {"B", &FC::SetOmegaB, &FC::GetOmegaB, &FC::GetOmegaBSource, false},
    {"H", &FC::SetHeatVapourisation, &FC::GetHeatVapourisation, &FC::GetHeatVapourisationSource,
     false},
    {"x", &FC::SetThermExpCoeff, &FC::GetThermExpCoeff, &FC::GetThermExpCoeffSource, true}};

} // namespace

TEST(Exceptions, HoldTheirWholeText) {
    EXPECT_STREQ(IOFileNotFound("a/b.txt").what(), "File 'a/b.txt' could not be found.");
    const IOInvalidIndex copy = IOInvalidIndex("Common Plotting Object", -12345);
    EXPECT_STREQ(copy.what(), "No Common Plotting Object with index (-12345) is available. Check "
                              "available Common Plotting Objects.");
    EXPECT_STREQ(IOUnsupportedEoS().what(), "Unsupported EoS encountered");
    EXPECT_STREQ(IOUnsupportedViscosityModel().what(), "Unsupported viscosity model encountered");
}

TEST(Messages, KeepTheirParameterAndRaiseTheFlagByTheirCode) {
    const std::string name = "b{}c.txt";
    const Message message = CantOpenForWriting(name);
    EXPECT_EQ(message.GetText(), "The file 'b{}c.txt' can't be opened for writing.");
    EXPECT_EQ(message.GetParameters(), Names{name});
    const auto general = pvtEnumErrorType::General;
    EXPECT_EQ(Message(general, pvtEnumErrorCode::Error, 3369, name.c_str()).GetText(),
              message.GetText());

    ErrorReport report;
    report.Add(FreeText(pvtEnumErrorCode::Information, "Told."));
    report.Add(Message(general, pvtEnumErrorCode::Warning, 7));
    EXPECT_FALSE(report.HasErrors());
    report.Add(message);
    report.Add(FreeText(pvtEnumErrorCode::Information, "Told"));
    const ErrorReport moved = std::move(report);
    EXPECT_TRUE(moved.HasErrors());
    EXPECT_EQ(MessageIds(moved), (std::vector<std::int32_t>{1001, 7, 3369, 1001}));
    EXPECT_EQ(moved.GetMessages().front().GetText(), moved.GetMessages().back().GetText());
    std::vector<std::int32_t> ids;
    for (const Message& each : ErrorReport(moved).GetMessages()) { // the report goes at once
        ids.push_back(each.GetMessageId());
    }
    EXPECT_EQ(ids, MessageIds(moved));
}

TEST(FluidComponents, KeepASourcePerProperty) {
    for (const Property& property : properties) {
        const auto isSetIn = [](const FluidComponent& component) {
            std::string names;
            for (const Property& each : properties) {
                if ((component.*each.source)() != Source::NoValue) {
                    names += each.name;
                }
            }
            return names;
        };
        FluidComponent component("C1");
        EXPECT_EQ(isSetIn(component), "");
        for (const double bad : {infinity, -infinity, notANumber}) {
            EXPECT_THROW((component.*property.put)(bad), PropertyOutOfRangeException)
                << property.name;
        }
        EXPECT_EQ(isSetIn(component), "");
        (component.*property.put)(0.0);
        EXPECT_EQ(isSetIn(component), property.name);
        (component.*property.put)(0.5);
        if (property.mayBeNegative) {
            (component.*property.put)(-0.5);
        } else {
            EXPECT_THROW((component.*property.put)(-0.5), PropertyOutOfRangeException)
                << property.name;
        }
        EXPECT_EQ((FluidComponent(component).*property.get)(), property.mayBeNegative ? -0.5 : 0.5)
            << property.name;
    }
    EXPECT_THROW(FluidComponent("  "), Common::EmptyComponentNameException);
}

TEST(FluidComponents, OmegaBMustBeBelowOmegaA) {
    struct {
        double a;
        double b;
        bool fit;
    } const cases[] = {{0.457235529, 0.077796074, true},
                       {0.42748, 0.08664, true},
                       {0.0, 0.1, true},
                       {0.1, 0.0, true},
                       {0.1, 0.1, false},
                       {0.07, 0.4, false}};
    for (const auto& [a, b, fit] : cases) {
        FluidComponent aFirst("C1");
        FluidComponent bFirst("C1");
        aFirst.SetOmegaA(a);
        bFirst.SetOmegaB(b);
        if (fit) {
            EXPECT_NO_THROW(aFirst.SetOmegaB(b));
            EXPECT_NO_THROW(bFirst.SetOmegaA(a));
        } else {
            EXPECT_THROW(aFirst.SetOmegaB(b), RelatedPropertyOutOfRangeException);
            EXPECT_THROW(bFirst.SetOmegaA(a), RelatedPropertyOutOfRangeException);
            EXPECT_EQ(bFirst.GetOmegaASource(), Source::NoValue);
        }
    }
}

TEST(Fluids, KeepComponentsInOrderAndCoefficientsByName) {
    CompositionalFluid fluid("fluid");
    fluid.SetComponent(FluidComponent("b"), 0.5);
    fluid.SetComponent(FluidComponent("a"), 0.0);
    fluid.SetBIC("b", "a", 0.25);
    fluid.SetComponent(FluidComponent("c"), 0.125);
    FluidComponent heavier("b");
    heavier.SetMolecularWeight(20.0);
    fluid.SetComponent(heavier, 0.75);
    for (const double bad : {-0.1, infinity, notANumber}) {
        EXPECT_THROW(fluid.SetComponent(FluidComponent("d"), bad), PropertyOutOfRangeException);
    }
    EXPECT_THROW(fluid.SetBIC("a", "c", notANumber), PropertyOutOfRangeException);
    EXPECT_THROW(fluid.SetBIC("a", "missing", 0.0), std::invalid_argument);
    EXPECT_THROW(fluid.SetBIC("a", "a", 0.0), std::invalid_argument);
    EXPECT_THROW(fluid.GetComponentFraction("missing"), std::invalid_argument);

    CompositionalFluid copy("");
    copy = fluid;
    fluid = CompositionalFluid("");
    EXPECT_TRUE(fluid.ListComponents().empty());
    EXPECT_EQ(copy.ListComponents(), (Names{"b", "a", "c"}));
    EXPECT_EQ(copy.GetOrderedComponents().front().GetMolecularWeight(), 20.0);
    EXPECT_EQ(copy.GetComponentFraction("b"), 0.75);
    EXPECT_EQ(copy.GetBIC("a", "b", set), 0.25);
    EXPECT_EQ(copy.GetBICSource("b", "a", set), Source::User);
    EXPECT_EQ(copy.GetBICSource("c", "a", set), Source::NoValue);
    EXPECT_EQ(copy.GetBICSource("b", "missing", set), Source::NoValue);
}

TEST(Fluids, GlobalNamesBelongToOneComponentEach) {
    CompositionalFluid fluid("fluid");
    fluid.SetComponent(FluidComponent("a"), 0.25);
    fluid.SetComponent(FluidComponent("b"), 0.75);
    EXPECT_THROW(fluid.SetGlobalName("a", "b"), std::invalid_argument);
    fluid.SetGlobalName("b", "global");
    EXPECT_THROW(fluid.SetComponent(FluidComponent("global"), 0.0), std::invalid_argument);
    fluid.SetGlobalName("a", "b"); // is free now
    fluid.SetComponent(FluidComponent("b"), 0.5);
    EXPECT_EQ(fluid.ListComponentsGlobalNames(), (Names{"b", "global"}));
    EXPECT_EQ(fluid.GetComponentFractionByGlobalName("b"), 0.25);
    EXPECT_EQ(fluid.GetComponentFractionByGlobalName("global"), 0.5);
    EXPECT_FALSE(fluid.HasComponentWithGlobalName("a"));
}

// The values come from fractions of the exact definitions.
TEST(UnitConversions, FollowFromExactDefinitions) {
    struct {
        double (*convert)(double);
        double from;
        double to;
    } const cases[] = {{Units::Pressure_Pa_To_bar, 123456.0, 1.23456},
                       {Units::Pressure_Pa_To_psi, 1e7, 1450.377377302092},
                       {Units::Pressure_bar_To_Pa, 1.5, 150000.0},
                       {Units::Pressure_psi_To_Pa, 14.7, 101352.93220957491},
                       {Units::Temperature_K_To_C, 350.0, 76.85},
                       {Units::Temperature_K_To_F, 350.0, 170.33},
                       {Units::Temperature_K_To_R, 350.0, 630.0},
                       {Units::Temperature_F_To_K, 160.0, 344.2611111111111},
                       {Units::Density_kgm3_To_lbft3, 1000.0, 62.42796057614461},
                       {Units::Density_gmcc_To_kgm3, 0.85, 850.0},
                       {Units::Depth_m_to_ft, 1000.0, 3280.839895013123},
                       {Units::GOR_m3m3_To_Mscfstb, 100.0, 0.5614583333333333},
                       {Units::GOR_scfstb_To_m3m3, 600.0, 106.86456400742115},
                       {Units::MolarVolume_m3gmmol_To_m3kgmol, 0.0986e-3, 0.0986},
                       {Units::MolarVolume_m3gmmol_To_ft3lbmol, 0.0986e-3, 1.5794204886724699},
                       {Units::Viscosity_Pas_To_cp, 0.25e-3, 0.25},
                       {Units::Viscosity_cp_To_Pas, 0.25, 0.00025},
                       {Units::VolumeRatio_m3m3_to_bblbbl, 1.5, 1.5},
                       {Units::VolumeRatio_m3m3_to_bblmscf, 0.005, 0.8905380333951762},
                       {Units::VolumeRatio_m3m3_to_mscfbbl, 100.0, 0.5614583333333333},
                       {Units::SpecificHeatCapacity_JPerkgK_to_btuPerlbF, 4186.8, 1.0},
                       {Units::SpecificLatentHeatOfVaporization_JPerkg_To_btuPerlb, 2326.0, 1.0},
                       {Units::Compressibility_perPa_To_perpsi, 1e-9, 6.894757293168361e-06}};
    for (const auto& each : cases) {
        EXPECT_DOUBLE_EQ(each.convert(each.from), each.to);
    }
}

TEST(ComponentLibraries, HoldConsistentCriticalPoints) {
    constexpr double gasConstant = 8.31446261815324; // J/(mol K)
    const Model::ComponentLibrary library(0);
    const Names nonHydrocarbons = {"H2", "N2", "CO", "CO2", "H2S", "H2O"};
    const Names hydrocarbons = {"C1", "C2", "C3", "iC4", "nC4", "iC5", "nC5", "C6"};
    double before = 0.0;
    for (const std::string& name : hydrocarbons) {
        const FluidComponent component = library.GetComponent(name);
        EXPECT_EQ(component.GetHydrocarbonForm(), pvtEnumHCForm::Hydrocarbon) << name;
        EXPECT_GT(component.GetTcrit(), before) << name;
        before = component.GetTcrit();
    }
    Names all = nonHydrocarbons;
    all.insert(all.end(), hydrocarbons.begin(), hydrocarbons.end());
    for (const std::string& name : all) {
        const FluidComponent c = library.GetComponent(name);
        EXPECT_NEAR(c.GetPcrit() * c.GetVcrit() / (gasConstant * c.GetTcrit()), c.GetZcrit(), 0.002)
            << name;
        EXPECT_EQ(c.GetParachorSource(), Source::Library);
    }
    EXPECT_EQ(library.GetComponent("CO2").GetHydrocarbonForm(), pvtEnumHCForm::NonHydrocarbon);
    EXPECT_THROW(library.GetComponent("C99"), std::invalid_argument);
    EXPECT_THROW(Model::ComponentLibrary(1), std::invalid_argument);
}

TEST(Characterisation, FillsInTheOneCriticalValueThatIsMissing) {
    const FluidComponent methane = Model::ComponentLibrary(0).GetComponent("C1");
    // Critical pressure, temperature, volume and Z-factor: properties 1, 2, 3 and 5.
    for (const std::size_t missing : {1U, 2U, 3U, 5U}) {
        FluidComponent component = methane;
        (component.*properties[missing].put)(0.0);
        CompositionalFluid fluid("fluid");
        fluid.SetComponent(component, 0.5);
        Model::Characterisation().CharacteriseFor(fluid, Model::CharacterisationControl());
        const FluidComponent whole = fluid.GetOrderedComponents().front();
        const double expected = (methane.*properties[missing].get)();
        EXPECT_NEAR((whole.*properties[missing].get)(), expected, 0.01 * expected);
        EXPECT_EQ(whole.GetVcritViscosity(), whole.GetVcrit());
        EXPECT_EQ(fluid.GetComponentFraction("C1"), 0.5);
    }
}

TEST(Comparisons, TakeTheToleranceFromTheLargerNumber) {
    using Utilities::Equations;
    EXPECT_TRUE(Equations::DoublesEqual(1.0, 1.5, 0.5));
    EXPECT_FALSE(Equations::DoublesEqual(notANumber, notANumber, 0.5));
    EXPECT_TRUE(Equations::RelativeDoublesEqual(1000.0, 999.0, 0.001));
    EXPECT_TRUE(Equations::RelativeDoublesEqual(-999.0, -1000.0, 0.001));
    EXPECT_FALSE(Equations::RelativeDoublesEqual(1000.0, 998.0, 0.001));
    EXPECT_TRUE(Equations::RelativeDoublesEqual(0.0, 0.0, 0.001));
    EXPECT_FALSE(Equations::RelativeDoublesEqual(0.0, 1e-12, 0.001));
}
