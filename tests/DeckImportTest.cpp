// Reading keyword decks: the deck's syntax, its unit system, and the fluid that comes of it.
#include "CapturedLog.h"
#include "PVOCompositionalModelAdaptor.h"
#include "PVOImporter.h"
#include "TestSupport.h"
#include "io/PVOFileReader.h"

#include <algorithm>
#include <filesystem>
#include <utility>

using namespace Orv::FluidBench;
using namespace FluidBenchTest;
using Common::ErrorReport;
using Common::pvtEnumBICType;
using Common::pvtEnumEoS;
using Common::pvtEnumHCForm;
using Common::pvtEnumPropertySource;
using Common::pvtEnumPVOErrorSeverityLevel;
using Common::pvtEnumPVOUnitSystemType;
using Common::pvtEnumStandardConditions;
using Common::pvtEnumViscosityMethod;
using Common::Units;
using Impl::IO::PVOCompositionalModelAdaptor;
using IO::PVOFileReader;
using Model::CompositionalFluid;
using Model::FluidComponent;
using Orv::Kes::KesModel::DefaultLogger;
using Orv::Kes::KesModel::Log;
using Orv::Kes::SimFluid::IComponent;
using Orv::Kes::SimFluid::IInitialCondition;
using Ids = std::vector<std::int32_t>;

namespace {

constexpr auto noValue = pvtEnumPropertySource::NoValue;
constexpr auto bicType = pvtEnumBICType::ReservoirEoS;

// What a read gives.
struct Outcome {
    CompositionalFluid fluid{"before"};
    Ids ids;
    bool failed = false;
    std::string reason; // of the last message
    std::string errors; // as told to the log
    std::string warnings;
    std::string debug;
    pvtEnumPVOUnitSystemType units{};
};

Outcome ReadDeck(const std::string& path, bool detectUnitSystem = false,
                 pvtEnumPVOUnitSystemType units = pvtEnumPVOUnitSystemType::Metric) {
    const CapturedLog log;
    PVOFileReader reader;
    reader.SetPVOName(path);
    reader.SetPVOUnitSystem(units);
    Outcome outcome;
    const ErrorReport report = reader.Read(outcome.fluid, detectUnitSystem);
    outcome.ids = MessageIds(report);
    outcome.failed = report.HasErrors();
    outcome.reason = outcome.ids.empty() ? "" : report.GetMessages().back().GetText();
    outcome.errors = log.Of(Log::Error);
    outcome.warnings = log.Of(Log::Warning);
    outcome.debug = log.Of(Log::Debug);
    outcome.units = reader.GetPVOUnitSystemToUse();
    return outcome;
}

class DeckImportTest : public testing::Test {
protected:
    Outcome ReadText(const std::string& text, bool detectUnitSystem = false) {
        return ReadDeck(folder.Write("deck.dat", text), detectUnitSystem);
    }

    TemporaryFolder folder;
};

const std::string twoComponents = "CNAMES\nC1 C2 /\n";

std::vector<double> Fractions(const CompositionalFluid& fluid) {
    std::vector<double> fractions;
    for (const std::string& name : fluid.ListComponents()) {
        fractions.push_back(fluid.GetComponentFraction(name));
    }
    return fractions;
}

std::vector<double> Values(const CompositionalFluid& fluid,
                           double (FluidComponent::*value)() const) {
    std::vector<double> values;
    for (const FluidComponent& component : fluid.GetOrderedComponents()) {
        values.push_back((component.*value)());
    }
    return values;
}

std::string ReplaceAll(std::string text, const std::string& from, const std::string& to) {
    for (std::size_t at = text.find(from); at != std::string::npos;
         at = text.find(from, at + to.size())) {
        text.replace(at, from.size(), to);
    }
    return text;
}

} // namespace

namespace Orv::FluidBench::Impl::IO {

// Reaches the steps of an import that no keyword of a deck leads to.
class ImporterProbe {
public:
    static ErrorReport Build(const PVOCompositionalModelAdaptor& model, CompositionalFluid& fluid,
                             pvtEnumPVOUnitSystemType units, bool characterise = false) {
        PVOImporter importer;
        importer.SetUnitSystem(units);
        ErrorReport report;
        importer.BuildFluid(model, characterise, fluid, report);
        return report;
    }
};

} // namespace Orv::FluidBench::Impl::IO

using Impl::IO::ImporterProbe;

TEST_F(DeckImportTest, FindsTheFluidInAWholeSimulationDeck) {
    const ForeignGlobalLocale foreign;
    std::filesystem::create_directory(folder.Path() / "include");
    folder.Write("include/names.inc",
                 ReplaceAll(ReadData("deck-import/include/names.inc"), "\n", "\r\n"));
    const std::string text = ReadData("deck-import/simulation.dat");
    for (const std::string& variant : {text, ReplaceAll(text, "\n", "\r\n")}) {
        const Outcome deck = ReadText(variant);
        ASSERT_EQ(deck.ids, Ids()) << deck.errors;
        const CompositionalFluid& fluid = deck.fluid;
        EXPECT_EQ(fluid.GetName(), "");
        EXPECT_EQ(fluid.ListComponents(), (std::vector<std::string>{"C1", "C 3", "C7+", "CO2"}));
        EXPECT_EQ(fluid.GetEoS(), pvtEnumEoS::SoaveRedlichKwongVolumeShift);
        EXPECT_EQ(fluid.GetViscosityCorrelation(), pvtEnumViscosityMethod::Pedersen);
        EXPECT_EQ(Fractions(fluid), (std::vector<double>{0.4, 0.3, 0.2, 0.1}));
        EXPECT_EQ(Values(fluid, &FluidComponent::GetMolecularWeight),
                  (std::vector<double>{16.043, 44.097, 142.285, 206.0}));
        EXPECT_EQ(Values(fluid, &FluidComponent::GetAcf),
                  (std::vector<double>{-0.011, 0.152, 0.49, 0.7}));
        EXPECT_EQ(Values(fluid, &FluidComponent::GetPcrit)[3], 21.1e5);
        EXPECT_EQ(Values(fluid, &FluidComponent::GetVcrit)[3], 0.6e-3);

        const std::vector<FluidComponent> components = fluid.GetOrderedComponents();
        EXPECT_EQ(components[0].GetZcritSource(), noValue);
        EXPECT_EQ(components[0].GetEoSVolumeShift(), -0.154);
        EXPECT_EQ(components[3].GetEoSVolumeShiftSource(), noValue);
        EXPECT_EQ(components[0].GetHydrocarbonForm(), pvtEnumHCForm::Hydrocarbon);
        EXPECT_EQ(components[3].GetHydrocarbonForm(), pvtEnumHCForm::NonHydrocarbon);
        EXPECT_EQ(fluid.GetBIC("C1", "C 3", bicType), 0.01);
        EXPECT_EQ(fluid.GetBIC("C7+", "C 3", bicType), 0.02);
        EXPECT_EQ(fluid.GetBIC("C1", "CO2", bicType), 0.05);
        EXPECT_EQ(fluid.GetBIC("C7+", "CO2", bicType), 0.0);
        EXPECT_NE(fluid.GetBICSource("C7+", "CO2", bicType), noValue);
        EXPECT_NE(deck.debug.find("line 11: keyword 'PERMX' is passed over."), std::string::npos);
    }
}

TEST_F(DeckImportTest, NamesOfNonHydrocarbonsCountToTheLetter) {
    const Outcome deck = ReadText("CNAMES\nH2 N2 H2S H2O CO2 CO co2 'N2 ' H2SO /\n");
    std::string forms;
    for (const FluidComponent& component : deck.fluid.GetOrderedComponents()) {
        forms += component.GetHydrocarbonForm() == pvtEnumHCForm::NonHydrocarbon ? 'n' : 'h';
    }
    EXPECT_EQ(forms, "nnnnnnhhh");
}

TEST_F(DeckImportTest, ReadsTheModelsOfADeck) {
    struct Case {
        const char* text;
        pvtEnumEoS eos;
        pvtEnumViscosityMethod viscosity;
    };
    constexpr auto lbc = pvtEnumViscosityMethod::LohrenzBrayClark;
    constexpr auto pedersen = pvtEnumViscosityMethod::Pedersen;
    const Case cases[] = {
        {"", pvtEnumEoS::PengRobinson, lbc},
        {"EOS\nPR /\n", pvtEnumEoS::PengRobinson, lbc},
        {"EOS\n'pr'\n/\nPRCORR\n", pvtEnumEoS::PengRobinson78, lbc},
        {"PRCORR\nEOS\n\"Pr\" /\nSSHIFT\n0 1* /", pvtEnumEoS::PengRobinson78VolumeShift, lbc},
        {"EOS\nPR /\nSSHIFT\n1* 0.1 /\n", pvtEnumEoS::PengRobinsonVolumeShift, lbc},
        {"EOS\nPR /\nSSHIFT\n2* /\n", pvtEnumEoS::PengRobinson, lbc},
        {"EOS\nRK /\nSSHIFT\n2*0.1 /\nPRCORR\n", pvtEnumEoS::RedlichKwong, lbc},
        {"EOS\nSRK /\nPEDERSEN\n", pvtEnumEoS::SoaveRedlichKwong, pedersen},
        {"EOS\nSRK /\nSSHIFT\n2*0 /\nLBCCOEF\n/\n", pvtEnumEoS::SoaveRedlichKwongVolumeShift,
         pedersen},
        {"LBCCOEF\n1 2 3 4 5 /\n", pvtEnumEoS::PengRobinson, lbc},
        {"LBCCOEF\n1 2 3 4 5 /\nPEDERSEN\n", pvtEnumEoS::PengRobinson, pedersen},
    };
    for (const Case& c : cases) {
        const Outcome deck = ReadText(twoComponents + c.text);
        EXPECT_EQ(deck.ids, Ids()) << c.text << deck.errors;
        EXPECT_EQ(deck.fluid.GetEoS(), c.eos) << c.text;
        EXPECT_EQ(deck.fluid.GetViscosityCorrelation(), c.viscosity) << c.text;
    }
    EXPECT_EQ(ReadText(twoComponents + "EOS\nZJ /\n").ids, Ids{3244});
    EXPECT_EQ(ReadText("NCOMPS\n0 /\nCNAMES\n/\n").ids, Ids());
    EXPECT_EQ(ReadText(twoComponents + "ZMFVD\n1 0.1 0.9 /\nZI\n0.3 0.7 /")
                  .fluid.GetComponentFraction("C1"),
              0.3);
}

TEST_F(DeckImportTest, TellsWhatIsWrongAndLeavesABlankFluid) {
    folder.Write("self.dat", "INCLUDE\n'self.dat' /\n");
    folder.Write("good.inc", "MW\n16 30 /\n");
    std::filesystem::create_directory(folder.Path() / "folder");
    struct Case {
        std::string text;
        const char* error; // how the log's sentence ends, from its line on
    };
    const std::string& c12 = twoComponents;
    const std::string manyNames = [] {
        std::string names = "CNAMES\n";
        for (int i = 0; i < 2049; ++i) {
            names += "P" + std::to_string(i) + '\n';
        }
        return names + "/\n";
    }();
    const Case cases[] = {
        {"", "line 1, keyword CNAMES: expected the names of the components, found no such keyword "
             "in the deck."},
        {"MW\n1 /\nTCRIT\n", "line 4, keyword CNAMES: expected the names of the components, found "
                             "no such keyword in the deck."},
        {std::string("\0\xFF\x80 MW\n\x01/\n", 10),
         "line 3, keyword CNAMES: expected the names of the components, found no such keyword in "
         "the deck."},
        {"CNAMES\n/\n",
         "line 2, keyword CNAMES: expected the names of the components, found none."},
        {"CNAMES\nC1 C2 C1 /\n",
         "line 2, keyword CNAMES: expected a name for each component alone, found 'C1' twice."},
        {"CNAMES\n'C1 C2 /\n",
         "line 2, keyword CNAMES: expected a name, found a quote that isn't closed on its line."},
        {"CNAMES\n'C1 'C2' /\n",
         "line 2, keyword CNAMES: expected a name, found a quote that isn't closed on its line."},
        {"CNAMES\nC1\n12 /\n", "line 3, keyword CNAMES: expected a name, found '12'."},
        {manyNames, "line 2050, keyword CNAMES: expected the names of the components, at most "
                    "2048, found 'P2048' behind 2048 of them."},
        {c12 + "MW\n16 30\n", "line 5, keyword MW: expected '/' behind as many numbers as "
                              "components (2), found the end of the file."},
        {c12 + "MW\n16 30\nTCRIT\n1 2 /\n",
         "line 5, keyword MW: expected a number or '/', found 'TCRIT'."},
        {c12 + "MW\n16 3O.5 /\n", "line 4, keyword MW: expected a number, found '3O.5'."},
        {c12 + "MW\n16 '30' /\n", "line 4, keyword MW: expected a number, found '30'."},
        {c12 + "MW\n16\n/\n", "line 5, keyword MW: expected as many numbers as components (2), "
                              "found '/' behind 1 of them."},
        {c12 + "MW\n16 2*30 /\n", "line 4, keyword MW: expected as many numbers as components (2), "
                                  "found '2*30' behind 1 of them."},
        {c12 + "MW\n1000000000*1 /\n", "line 4, keyword MW: expected as many numbers as components "
                                       "(2), found '1000000000*1' behind 0 of them."},
        {c12 + "ZMFVD\n1000000000* /\n", "line 4, keyword ZMFVD: expected rows of a depth and 2 "
                                         "fractions, found '1000000000*' behind 0 of them."},
        {c12 + "ZMFVD\n1 .5 .5 2 .5 /\n", "line 4, keyword ZMFVD: expected rows of a depth and 2 "
                                          "fractions, found a last row of 2 numbers."},
        {c12 + "MW\n-2*16 /\n", "line 4, keyword MW: expected a number, found '-2*16'."},
        {c12 + "MW\n0*16 16 30 /\n", "line 4, keyword MW: expected a number, found '0*16'."},
        {c12 + "MW\nnan 30 /\n", "line 4, keyword MW: expected a number, found 'nan'."},
        {c12 + "MW\n16 -inf /\n", "line 4, keyword MW: expected a number, found '-inf'."},
        {c12 + "MW\n16 1e999 /\n", "line 4, keyword MW: expected a number, found '1e999'."},
        {c12 + "BIC\n1 2 /\n", "line 4, keyword BIC: expected at most one number for each pair of "
                               "components (1), found '2' behind 1 of them."},
        {c12 + "NCOMPS\n3 /\n", "line 4, keyword NCOMPS: expected 2, the number of names under "
                                "CNAMES, found 3."},
        {c12 + "NCOMPS\n2 2 /\n",
         "line 4, keyword NCOMPS: expected one whole number, found '2' behind it."},
        {c12 + "FILEUNIT\nLAB /\n",
         "line 4, keyword FILEUNIT: expected one of the words METRIC FIELD, found 'LAB'."},
        {c12 + "ROCK\n1 2 /\nFILEUNIT 'FIELD' of oil /\n",
         "line 5, keyword FILEUNIT: expected one of the words METRIC FIELD, found 'of' behind 1"},
        {c12 + "ROCK\n1 2 /\nMW l6.04 30.07 /\n",
         "line 5, keyword MW: expected a number, found 'l6.04'."},
        {c12 + "ROCK\n1 2 /\nMW -inf 30.07 /\n",
         "line 5, keyword MW: expected a number, found '-inf'."},
        {c12 + "ZI\n0.5 0.5 /\nMW of the oil\n",
         "line 5, keyword MW: expected a number, found 'of'."},
        {"CNAMES\n" + std::string(100'000, '\'') + " /\n",
         "line 2, keyword CNAMES: expected a name, found a quote that isn't closed on its line."},
        {c12 + "COMPS\n-2 /\n", "line 4, keyword COMPS: expected one whole number, found '-2'."},
        {c12 + "EOS\nPR2 /\n",
         "line 4, keyword EOS: expected one of the words PR RK SRK ZJ, found 'PR2'."},
        {c12 + "LBCCOEF\n1 2 /\n",
         "line 4, keyword LBCCOEF: expected five numbers or none, found 2."},
        {c12 + "TCRITS\n1 /\n", "line 4, keyword TCRITS: expected as many numbers as components "
                                "(2), found '/' behind 1 of them."},
        {c12 + "SPECHG\n1* 2 /\n", "component 'C2' has a specific heat, which a fluid can't hold; "
                                   "expected a deck without SPECHA, SPECHB, SPECHG and SPECHH."},
        {c12 + "INCLUDE\n'none.inc' /\n",
         "line 3, keyword INCLUDE: expected a file to include, found no file of that name, '"},
        {c12 + "INCLUDE\n'folder' /\n",
         "line 3, keyword INCLUDE: expected a file to include, found a folder, '"},
        {c12 + "INCLUDE\n'self.dat' /\n",
         "line 1, keyword INCLUDE: expected a file that isn't being read already, found '"},
        {c12 + "INCLUDE\n/\n", "line 3, keyword INCLUDE: expected a path in quotes, found '/'."},
        {c12 + "INCLUDE\n'good.inc' 1 /\n",
         "line 3, keyword INCLUDE: expected '/' behind the path, found '1'."},
    };
    for (const Case& c : cases) {
        const Outcome deck = ReadText(c.text);
        EXPECT_EQ(deck.ids, Ids{3243}) << c.text;
        EXPECT_EQ(deck.fluid.NumberOfComponents(), 0) << c.text;
        EXPECT_EQ(deck.fluid.GetName(), "");
        EXPECT_NE(deck.errors.find(c.error), std::string::npos) << deck.errors << c.error;
        EXPECT_NE(deck.errors.find(folder.Path().string()), std::string::npos) << deck.errors;
    }
}

// What isn't read though somebody may have meant it.
TEST_F(DeckImportTest, HintsAtKeywordsThatAreNotTaken) {
    struct Case {
        std::string text;
        std::vector<double> molecularWeights;
        const char* hint;
    };
    const std::string mw = twoComponents + "MW\n16 30 /\n";
    const Case cases[] = {
        {mw + "FILEUNIT\nMETRIC /\nPRCORR\n", {16, 30}, ""},
        {"\xEF\xBB\xBF" + mw, {16, 30}, ""},
        {mw + "free text, and\n3 wells more\nMW\n17 31 /\n", {17, 31}, "a second time"},
        {twoComponents + "  MW\n\t16 30 /\n", {16, 30}, ""},
        {twoComponents + "ROCK\n1 /\n  MW\n16 30 /\n",
         {0, 0},
         "line 5: MW isn't taken for the keyword because it doesn't begin at the head of its "
         "line."},
        {twoComponents + "mw\n16 30 /\n",
         {0, 0},
         "line 3: mw isn't taken for the keyword MW because it isn't in capitals."},
        {twoComponents + "ROCK\n1 /\nMW of the oil\n",
         {0, 0},
         "line 5: MW isn't taken for the keyword because of the text behind it."},
        {twoComponents + "ROCK\n1 /\nINCLUDE mw.inc /\n",
         {0, 0},
         "line 5: INCLUDE isn't taken for the keyword because no path in quotes is behind it."},
        {mw + "MW\n17 31 /\n", {17, 31}, "line 5: MW stands a second time, and this time counts."},
        {twoComponents + "ROCK\n1 2\nMW\n16 30 /\n",
         {0, 0},
         "line 5: MW is data of the record that is open since line 4."},
        {mw + "ROCK\n1 2\n",
         {16, 30},
         "line 6: the record isn't closed by '/' before the end of the file."},
        {mw + "GRID\nMW\n17 31 /\n", {16, 30}, "line 6: MW isn't read in section GRID."},
        {mw + "GRID ====\nMW\n17 31 /\n", {16, 30}, "line 6: MW isn't read in section GRID."},
        {mw + "SKIP\nMW\n17 31 /\nENDSKIP\nEND\nMW\n18 32 /\n", {16, 30}, ""},
        {mw + "SKIP the rest\nEND of it\nMW\n17 31 /\n", {17, 31}, "a second time"},
        {mw + "SKIP\nMW\n17 31 /\n",
         {16, 30},
         "line 5: SKIP isn't closed by ENDSKIP before the end of the file."},
    };
    for (const Case& c : cases) {
        const Outcome deck = ReadText(c.text);
        EXPECT_EQ(Values(deck.fluid, &FluidComponent::GetMolecularWeight), c.molecularWeights)
            << c.text << deck.errors;
        EXPECT_TRUE(*c.hint == '\0' ? deck.warnings.empty()
                                    : deck.warnings.find(c.hint) != std::string::npos)
            << c.text << deck.warnings;
    }
}

TEST_F(DeckImportTest, BoundsIncludesAndHints) {
    for (int i = 0; i < 20; ++i) {
        folder.Write(std::to_string(i) + ".inc",
                     i == 16 ? "MW\n16 30 /\n" : "INCLUDE\n'" + std::to_string(i + 1) + ".inc' /");
    }
    EXPECT_EQ(ReadText(twoComponents + "INCLUDE\n'1.inc' /\n").ids, Ids());
    const Outcome deck = ReadText(twoComponents + "INCLUDE\n'0.inc' /\n");
    EXPECT_EQ(deck.ids, Ids{3243});
    EXPECT_NE(deck.errors.find("expected at most 16 includes in each other"), std::string::npos);

    folder.Write("empty.inc", "");
    std::string many = twoComponents;
    for (int i = 0; i < 10'000; ++i) {
        many += "INCLUDE\n'empty.inc' /\nmw\n";
    }
    const Outcome most = ReadText(many);
    EXPECT_EQ(most.ids, Ids()) << most.errors;
    EXPECT_EQ(std::ranges::count(most.warnings, '\n'), 50);
    EXPECT_NE(ReadText(many + "INCLUDE\n'empty.inc' /\n").errors.find("at most 10000 includes"),
              std::string::npos);
}

TEST_F(DeckImportTest, ReportsFilesAndValuesThatCannotBe) {
    const std::string missing = folder / "missing.dat";
    struct Case {
        std::string path;
        std::string reason;
    };
    const Case cases[] = {
        {missing, "File '" + missing + "' could not be found."},
        {"", "File '' could not be found."},
        {folder.Path().string(), "File '" + folder.Path().string() + "' could not be found."},
        {folder.Write("a", twoComponents + "PCRIT\n1 -1 /\n"),
         "The critical pressure of component 'C2' can't be negative"},
        {folder.Write("b", twoComponents + "ZI\n1 -1 /\n"),
         "The fraction of component 'C2' must be a finite number that isn't negative"},
        {folder.Write("c", "CNAMES\n' ' /\n"), "A fluid component must have a name"},
    };
    for (const Case& c : cases) {
        const Outcome deck = ReadDeck(c.path);
        EXPECT_EQ(deck.ids, (Ids{3242, 1001})) << c.path;
        EXPECT_EQ(deck.reason.substr(0, c.reason.size()), c.reason);
        EXPECT_EQ(deck.fluid.NumberOfComponents(), 0);
    }
}

// Whatever byte a deck ends at, what it gives stands in the whole deck.
TEST_F(DeckImportTest, ACutOffDeckGivesNothingElseThanTheWholeOne) {
    const std::string text = ReadData("deck-import/cut.dat");
    const CompositionalFluid whole = ReadText(text).fluid;
    ASSERT_EQ(whole.NumberOfComponents(), 2);
    int readable = 0;
    for (std::size_t length = 0; length < text.size(); ++length) {
        const Outcome deck = ReadText(text.substr(0, length));
        if (deck.failed) {
            EXPECT_EQ(deck.fluid.NumberOfComponents(), 0) << length;
            continue;
        }
        ++readable;
        ASSERT_EQ(deck.fluid.ListComponents(), whole.ListComponents()) << length;
        for (std::size_t i = 0; i < 2; ++i) {
            const FluidComponent cut = deck.fluid.GetOrderedComponents()[i];
            const FluidComponent full = whole.GetOrderedComponents()[i];
            EXPECT_TRUE(cut.GetMolecularWeightSource() == noValue ||
                        cut.GetMolecularWeight() == full.GetMolecularWeight())
                << length;
            EXPECT_TRUE(cut.GetTcritSource() == noValue || cut.GetTcrit() == full.GetTcrit())
                << length;
            const double fraction = Fractions(deck.fluid)[i];
            EXPECT_TRUE(fraction == 0.0 || fraction == Fractions(whole)[i]) << length;
        }
        const double coefficient = deck.fluid.GetBIC("C1", "C10", bicType);
        EXPECT_TRUE(coefficient == 0.0 || coefficient == 0.05) << length;
    }
    EXPECT_GT(readable, 10);
}

TEST_F(DeckImportTest, FindsTheUnitSystemFromTheText) {
    constexpr auto metric = pvtEnumPVOUnitSystemType::Metric;
    constexpr auto field = pvtEnumPVOUnitSystemType::Field;
    struct Case {
        const char* text;
        pvtEnumPVOUnitSystemType units;
    };
    const Case cases[] = {
        {"", field},
        {"METRIC\n", field},
        {"FILEUNIT\nMETRIC\n/\n", metric},
        {"FILEUNIT\r\nMETRIC /\r\n", metric},
        {"FILEUNIT\nFIELD", field},
        {"FILEUNIT", field},
        {"FILEUNIT METRIC\n\nMETRIC\n", field},
        {"FILEUNIT\n-- comment\nMETRIC\n", field},
        {"-- about FILEUNIT\n-- METRIC or FIELD\n", metric},
        {"TCRIT\n", field},
        {"--Units: K\nTCRIT\n", metric},
        {"-- Units: Kelvin\nTCRITS\n", metric},
        {"--units: k\nTCRIT\n", field},
        {"--Units: C\nTCRIT\n--Units: K\nTCRIT", metric},
        {"--Units: K\n\nTCRIT\n", field},
        {"Units: K Units: R\nTCRIT\n--Units: K\nTCRIT\n", field},
        {"--Units: K\nTCRIT\nFILEUNIT\nFIELD\n", metric},
        {"FILEUNIT\nFIELD\n--Units: K\nTCRIT\n", field},
        {"FILEUNIT\n--Units: K\nTCRIT\n", metric},
        {"--Units: C\nFILEUNIT TCRIT\nMETRIC\n", metric},
        {"FILEUNIT\nTCRIT Units: K\nTCRIT\n", metric},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(ReadText(c.text, true).units, c.units) << c.text;
    }
    // The system found is the one that the numbers are read in.
    const Outcome deck = ReadText(twoComponents + "--Units: R\nTCRIT\n180 1* /\n", true);
    EXPECT_DOUBLE_EQ(Values(deck.fluid, &FluidComponent::GetTcrit)[0], 100.0);
    EXPECT_EQ(ReadDeck(folder / "missing", true).units, metric); // as it was
    // Where nothing tells, the log does. A line of any length is seen from its head.
    EXPECT_NE(ReadText(twoComponents, true).warnings.find("taken as field units"),
              std::string::npos);
    const std::string longLine(300'000, ' ');
    EXPECT_EQ(ReadText("FILEUNIT" + longLine + "\nMETRIC" + longLine, true).units, metric);
    EXPECT_EQ(ReadText(longLine + "\nFILEUNIT\nMETRIC", true).units, metric);
}

TEST_F(DeckImportTest, SetsTheSeverityOfTheDefaultLoggerOnly) {
    auto* const logger = dynamic_cast<DefaultLogger*>(Log::getCurrentLogger());
    ASSERT_NE(logger, nullptr);
    EXPECT_EQ(PVOFileReader().GetPVOUnitSystemToUse(), pvtEnumPVOUnitSystemType::Metric);
    PVOFileReader first;
    first.SetPVOName(folder.Write("deck.dat", twoComponents));
    PVOFileReader reader = std::move(first);
    CompositionalFluid fluid("");
    for (const auto& [level, severity] :
         {std::pair{0, 0}, {2, 2}, {3, 3}, {4, 4}, {7, 1}, {-1, 1}, {1, 1}}) {
        reader.SetPVOErrorMessageSeverityLevel(static_cast<pvtEnumPVOErrorSeverityLevel>(level));
        reader.Read(fluid, false);
        EXPECT_EQ(logger->getMaxSeverity(), severity);
    }
}

TEST(FluidBuildingTest, TakesEveryPropertyThatAComponentCanHave) {
    PVOCompositionalModelAdaptor model("F", Units::FIELD);
    IComponent& source = model.makeComponent("C");
    for (int key = 0; key < 30; ++key) {
        if (key < IComponent::SPECIFIC_HEAT_A || key > IComponent::SPECIFIC_HEAT_H) {
            source.setProperty(key, 100.0 - key);
        }
    }
    source.setProperty(IComponent::REFERENCE_TEMPERATURE, 519.67);
    CompositionalFluid fluid("");
    EXPECT_EQ(MessageIds(ImporterProbe::Build(model, fluid, pvtEnumPVOUnitSystemType::Field)),
              Ids());
    const FluidComponent component = fluid.GetOrderedComponents()[0];
    const double cubicFoot = 0.3048 * 0.3048 * 0.3048;
    EXPECT_EQ(component.GetMolecularWeight(), 100.0);
    EXPECT_DOUBLE_EQ(component.GetPcrit(), 99.0 * 6894.757293168361);
    EXPECT_DOUBLE_EQ(component.GetTcrit(), 98.0 / 1.8);
    EXPECT_DOUBLE_EQ(component.GetVcrit(), 97.0 * cubicFoot / 0.45359237 / 1000.0);
    EXPECT_EQ(component.GetZcrit(), 96.0);
    EXPECT_EQ(component.GetAcf(), 94.0);
    EXPECT_EQ(component.GetParachor(), 93.0);
    EXPECT_EQ(component.GetEoSVolumeShift(), 92.0);
    EXPECT_EQ(component.GetOmegaA(), 91.0);
    EXPECT_EQ(component.GetOmegaB(), 90.0);
    EXPECT_DOUBLE_EQ(component.GetVcritViscosity(), 89.0 * cubicFoot / 0.45359237 / 1000.0);
    EXPECT_DOUBLE_EQ(component.GetReferenceDensity(), 83.0 * 0.45359237 / cubicFoot);
    EXPECT_EQ(component.GetReferenceDensityConditions(), pvtEnumStandardConditions::Fahrenheit60);
    EXPECT_EQ(component.GetHeatVapourisation(), 79.0);
    EXPECT_EQ(component.GetThermExpCoeff(), 74.0);
    EXPECT_EQ(Fractions(fluid), std::vector<double>{0.0});
}

TEST(FluidBuildingTest, AReferenceDensityNeedsStandardConditions) {
    struct Case {
        double temperature; // K
        int conditions;     // -1 for none
    };
    const Case cases[] = {{288.7, 0}, {290.5, 0},   {291.58, 0}, {291.6, 1}, {293.15, 1},
                          {285.9, 0}, {285.81, -1}, {300.0, -1}, {296.0, 1}, {296.09, -1}};
    for (const Case& c : cases) {
        PVOCompositionalModelAdaptor model("F", Units::METRIC);
        IComponent& source = model.makeComponent("C");
        source.setProperty(IComponent::REFERENCE_TEMPERATURE, c.temperature);
        source.setProperty(IComponent::REFERENCE_DENSITY, 800.0);
        CompositionalFluid fluid("");
        ImporterProbe::Build(model, fluid, pvtEnumPVOUnitSystemType::Metric);
        const FluidComponent component = fluid.GetOrderedComponents()[0];
        const bool isSet = component.GetReferenceDensitySource() != noValue;
        EXPECT_EQ(isSet ? static_cast<int>(component.GetReferenceDensityConditions()) : -1,
                  c.conditions)
            << c.temperature;
    }
}

TEST(FluidBuildingTest, ReportsEveryModelThatAFluidCannotHave) {
    PVOCompositionalModelAdaptor model("F", Units::METRIC);
    model.makeComponent("C1");
    model.makeComponent("C2");
    model.setEquationOfState(4);
    model.setViscosityModel(2);
    model.setInterfacialTensionModel(1);
    auto& table =
        model.makeInitialCondition("A").getDepthTable(IInitialCondition::TOTAL_COMPOSITION);
    table.clear(2);
    table.addRow(1.0);
    table.setValue(0, 1, 0.75);
    // The first component is refused half-way; the second one is read in full.
    for (const int i : {0, 1}) {
        IComponent& component = model.getComponent(i);
        component.setProperty(IComponent::OMEGA_A, 0.4);
        component.setProperty(IComponent::OMEGA_B, i == 0 ? 0.5 : 0.1);
        component.setProperty(IComponent::HEAT_OF_VAPORISATION, 7.0);
    }
    CompositionalFluid fluid("");
    const ErrorReport report = ImporterProbe::Build(model, fluid, pvtEnumPVOUnitSystemType::Metric);
    EXPECT_EQ(MessageIds(report), (Ids{3244, 3245, 3503, 3359}));
    EXPECT_EQ(report.GetMessages()[3].GetErrorCode(), Common::pvtEnumErrorCode::Warning);
    const std::vector<FluidComponent> components = fluid.GetOrderedComponents();
    EXPECT_EQ(components[0].GetOmegaA(), 0.4);
    EXPECT_EQ(components[0].GetOmegaBSource(), noValue);
    EXPECT_EQ(components[0].GetHeatVapourisationSource(), noValue);
    EXPECT_EQ(components[1].GetHeatVapourisation(), 7.0);
    EXPECT_EQ(Fractions(fluid), (std::vector<double>{0.0, 0.75}));
    EXPECT_NE(fluid.GetBICSource("C1", "C2", bicType), noValue);
}

TEST(FluidBuildingTest, CharacterisesWhenAskedTo) {
    PVOCompositionalModelAdaptor model("F", Units::METRIC);
    model.makeComponent("C1").setProperty(IComponent::CRITICAL_VOLUME, 0.1);
    for (const bool characterise : {false, true}) {
        CompositionalFluid fluid("");
        ImporterProbe::Build(model, fluid, pvtEnumPVOUnitSystemType::Metric, characterise);
        EXPECT_EQ(fluid.GetOrderedComponents()[0].GetVcritViscosity(), characterise ? 1e-4 : 0.0);
    }
}
