// Reading keyword decks: the deck's syntax, its unit system, the fluid that comes of it, and what
// is told about all of that.
#include "CapturedLog.h"
#include "DeckPlaces.h"
#include "Diagnosed.h"
#include "Kes/KesModel/Deck.h"
#include "Kes/KesModel/KeywordTracker.h"
#include "PVOCompositionalModelAdaptor.h"
#include "PVOImporter.h"
#include "TestSupport.h"
#include "io/PVOFileReader.h"

#ifndef _WIN32
#include <sys/stat.h>
#endif

#include <algorithm>
#include <filesystem>
#include <optional>
#include <stdexcept>
#include <thread>
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
    std::string errors; // as told to the sink, "LINE: SENTENCE"
    std::string told;   // codes of warnings and errors with their lines
    std::string notes;  // the notes' sentences
    pvtEnumPVOUnitSystemType units{};
    std::optional<double> temperature;
};

Outcome ReadDeck(const std::string& path, bool detectUnitSystem = false,
                 pvtEnumPVOUnitSystemType units = pvtEnumPVOUnitSystemType::Metric) {
    const CapturedLog silence;
    Diagnosed diagnosed;
    PVOFileReader reader;
    reader.SetPVOName(path);
    reader.SetPVOUnitSystem(units);
    reader.SetDiagnosticSink(diagnosed.Sink());
    Outcome outcome;
    EXPECT_EQ(reader.GetPVOName(), path);
    const ErrorReport report = reader.Read(outcome.fluid, detectUnitSystem);
    outcome.ids = MessageIds(report);
    outcome.failed = report.HasErrors();
    outcome.reason = outcome.ids.empty() ? "" : report.GetMessages().back().GetText();
    for (const IO::Diagnostic& diagnostic : diagnosed.All()) {
        const std::string text =
            std::to_string(diagnostic.line) + ": " + diagnostic.sentence + '\n';
        outcome.errors += diagnostic.severity == IO::Severity::Error ? text : "";
        outcome.notes += diagnostic.severity == IO::Severity::Note ? text : "";
    }
    outcome.told = diagnosed.Take(IO::Severity::Warning);
    outcome.units = reader.GetPVOUnitSystemToUse();
    outcome.temperature = reader.GetReservoirTemperature();
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

// What a fluid needs besides, so that nothing has to be told of it.
const std::string rest = "MW\n16 30 /\nPCRIT\n46 48 /\nTCRIT\n190 305 /\nOMEGAA\n2*0.4572355 /\n"
                         "OMEGAB\n2*0.07779607 /\nZI\n0.7 0.3 /\n";
const std::string sound = twoComponents + rest;

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
        const Kes::KesModel::Deck deck("", Kes::KesModel::Deck::AS_IN_FILE, true);
        const Kes::KesModel::KeywordTracker tracker(
            deck, Kes::Core::Keywords::SimulatorType::COMPOSITIONAL_FLUID_DECKS);
        Diagnostics diagnostics({}, "");
        DeckPlaces places(tracker, diagnostics, "");
        importer.BuildFluid(model, characterise, fluid, report, places);
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
        const Outcome deck = ReadText(variant, true);
        ASSERT_EQ(deck.ids, Ids()) << deck.errors;
        EXPECT_EQ(deck.told, "");
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
        EXPECT_EQ(components[0].GetHydrocarbonForm(), pvtEnumHCForm::Hydrocarbon);
        EXPECT_EQ(components[3].GetHydrocarbonForm(), pvtEnumHCForm::NonHydrocarbon);
        EXPECT_EQ(fluid.GetBIC("C1", "C 3", bicType), 0.01);
        EXPECT_EQ(fluid.GetBIC("C7+", "C 3", bicType), 0.02);
        EXPECT_EQ(fluid.GetBIC("C1", "CO2", bicType), 0.05);
        EXPECT_EQ(fluid.GetBIC("C7+", "CO2", bicType), 0.0);
        EXPECT_NE(fluid.GetBICSource("C7+", "CO2", bicType), noValue);
        EXPECT_NE(deck.notes.find("11: Keyword 'PERMX' is passed over."), std::string::npos);
        EXPECT_EQ(deck.temperature, 373.15);
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
        const char* error; // the line, and how the sentence begins
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
        {"", "1: Keyword CNAMES: expected the names of the components, found no such keyword "
             "in the deck."},
        {"MW\n1 /\nTCRIT\n", "4: Keyword CNAMES: expected the names of the components, found "
                             "no such keyword in the deck."},
        {std::string("\0\xFF\x80 MW\n\x01/\n", 10),
         "3: Keyword CNAMES: expected the names of the components, found no such keyword in "
         "the deck."},
        {"CNAMES\n/\n", "2: Keyword CNAMES: expected the names of the components, found none."},
        {"CNAMES\nC1 C2 C1 /\n",
         "2: Keyword CNAMES: expected a name for each component alone, found 'C1' twice."},
        {"CNAMES\n'C1 C2 /\n",
         "2: Keyword CNAMES: expected a name, found a quote that isn't closed on its line, ahead "
         "of 'C1 C2 /'."},
        {"CNAMES\n'C1 'C2' /\n", "2: Keyword CNAMES: expected a name, found a quote that isn't "
                                 "closed on its line, ahead of "
                                 "'C1 'C2' /'."},
        {"CNAMES\nC1\n12 /\n", "3: Keyword CNAMES: expected a name, found '12'."},
        {manyNames, "2050: Keyword CNAMES: expected the names of the components, at most "
                    "2048, found 'P2048' behind 2048 of them."},
        {c12 + "MW\n16 30\n", "5: Keyword MW: expected '/' behind as many numbers as "
                              "components (2), found the end of the file."},
        {c12 + "MW\n16 30\nTCRIT\n1 2 /\n",
         "5: Keyword MW: expected a number or '/', found 'TCRIT'."},
        {c12 + "MW\n16 3O.5 /\n", "4: Keyword MW: expected a number, found '3O.5'."},
        {c12 + "MW\n16 '30' /\n", "4: Keyword MW: expected a number, found '30'."},
        {c12 + "MW\n16\n/\n", "5: Keyword MW: expected as many numbers as components (2), "
                              "found '/' behind 1 of them."},
        {c12 + "MW\n16 2*30 /\n", "4: Keyword MW: expected as many numbers as components (2), "
                                  "found '2*30' behind 1 of them."},
        {c12 + "MW\n1000000000*1 /\n", "4: Keyword MW: expected as many numbers as components "
                                       "(2), found '1000000000*1' behind 0 of them."},
        {c12 + "MW\n4194305*1 /\nMW\n16 30 /\n",
         "4: Keyword MW: expected numbers, found '4194305*1' behind 0 of them."},
        {c12 + "ZMFVD\n1000000000* /\n", "4: Keyword ZMFVD: expected rows of a depth and 2 "
                                         "fractions, found '1000000000*' behind 0 of them."},
        {c12 + "ZMFVD\n1 .5 .5 2 .5 /\n", "4: Keyword ZMFVD: expected rows of a depth and 2 "
                                          "fractions, found a last row of 2 numbers."},
        {c12 + "MW\n-2*16 /\n", "4: Keyword MW: expected a number, found '-2*16'."},
        {c12 + "MW\n0*16 16 30 /\n", "4: Keyword MW: expected a number, found '0*16'."},
        {c12 + "MW\nnan 30 /\n", "4: Keyword MW: expected a number, found 'nan'."},
        {c12 + "MW\n16 -inf /\n", "4: Keyword MW: expected a number, found '-inf'."},
        {c12 + "MW\n16 1e999 /\n", "4: Keyword MW: expected a number, found '1e999'."},
        {c12 + "BIC\n1 2 /\n", "4: Keyword BIC: expected at most one number for each pair of "
                               "components (1), found '2' behind 1 of them."},
        {c12 + "NCOMPS\n3 /\n", "4: Keyword NCOMPS: expected 2, the number of names under "
                                "CNAMES, found 3."},
        {c12 + "NCOMPS\n2 2 /\n",
         "4: Keyword NCOMPS: expected one whole number, found '2' behind it."},
        {c12 + "FILEUNIT\nLAB /\n",
         "4: Keyword FILEUNIT: expected one of the words METRIC FIELD, found 'LAB'."},
        {c12 + "ROCK\n1 2 /\nFILEUNIT 'FIELD' of oil /\n",
         "5: Keyword FILEUNIT: expected one of the words METRIC FIELD, found 'of' behind it."},
        {c12 + "ROCK\n1 2 /\nMW l6.04 30.07 /\n",
         "5: Keyword MW: expected a number, found 'l6.04'."},
        {c12 + "ROCK\n1 2 /\nMW -inf 30.07 /\n", "5: Keyword MW: expected a number, found '-inf'."},
        {c12 + "ZI\n0.5 0.5 /\nMW of the oil\n", "5: Keyword MW: expected a number, found 'of'."},
        {"CNAMES\n" + std::string(100'000, '\'') + " /\n",
         "2: Keyword CNAMES: expected a name, found a quote that isn't closed on its line, ahead "
         "of"},
        {c12 + "COMPS\n-2 /\n", "4: Keyword COMPS: expected one whole number, found '-2'."},
        {c12 + "EOS\nPR2 /\n",
         "4: Keyword EOS: expected one of the words PR RK SRK ZJ, found 'PR2'."},
        {c12 + "LBCCOEF\n1 2 /\n", "4: Keyword LBCCOEF: expected five numbers or none, found 2."},
        {c12 + "TCRITS\n1 /\n", "4: Keyword TCRITS: expected as many numbers as components "
                                "(2), found '/' behind 1 of them."},
        {c12 + "SPECHG\n1* 2 /\n",
         "3: Keyword SPECHG: expected a deck without SPECHA, SPECHB, SPECHG and SPECHH, found a "
         "specific heat of component 'C2'"},
        {c12 + "EOS\n12 /\n",
         "4: Keyword EOS: expected one of the words PR RK SRK ZJ, found '12'."},
        {c12 + "EOS\nPR78 /\n", "4: Keyword EOS: expected one of the words PR RK SRK ZJ, found "
                                "'PR78': for the equation of 1978, use PR and the keyword PRCORR."},
        {c12 + "MW\n16\xC2\xA0 30 /\n", "4: Keyword MW: expected a number, found '16\xC2\xA0' with "
                                        "U+00A0, a no-break space."},
        {c12 + "ACF\n.1 \xE2\x88\x92.1 /\n", "with U+2212, a typographic minus."},
        {c12 + "MW\n16\xA0 30 /\n", "with the byte A0, which isn't UTF-8."},
        {"\xFF\xFEM\0W\0\n\0", "1: Expected text in UTF-8 or ASCII, found what looks like UTF-16"},
        {"CNAMES\rC1 C2 /\rMW\r16 30 /\r", "1: Expected lines that end in newlines"},
        {"TITLE\nThe oil\nMW of the oil\n" + c12,
         "3: Keyword MW: expected a number, found 'of' (only one line behind TITLE is text: begin "
         "a second one with '--')."},
        {c12 + "MW of it /\nMW\n16 30 /\n", "3: Keyword MW: expected a number, found 'of'."},
        {c12 + "INCLUDE the grid\n",
         "3: Keyword INCLUDE: expected a path in quotes, or one that can be opened, found no file "
         "of that name, '"},
#ifndef _WIN32
        {c12 + "INCLUDE\n'/proc/self/mem' /\n", "1: Expected to read on, found a failure"},
#endif
        {c12 + "INCLUDE\n'none.inc' /\n",
         "3: Keyword INCLUDE: expected a file to include, found no file of that name, '"},
        {c12 + "INCLUDE\n'folder' /\n",
         "3: Keyword INCLUDE: expected a file to include, found a folder, '"},
        {c12 + "INCLUDE\n'self.dat' /\n",
         "1: Keyword INCLUDE: expected a file that isn't being read already, found '"},
        {c12 + "INCLUDE\n/\n", "3: Keyword INCLUDE: expected a path in quotes, found '/'."},
        {c12 + "INCLUDE\n'good.inc' 1 /\n",
         "3: Keyword INCLUDE: expected '/' behind the path, found '1'."},
    };
    for (const Case& c : cases) {
        const Outcome deck = ReadText(c.text);
        EXPECT_EQ(deck.ids, Ids{3243}) << c.text;
        EXPECT_EQ(deck.fluid.NumberOfComponents(), 0) << c.text;
        EXPECT_EQ(deck.fluid.GetName(), "");
        EXPECT_NE(deck.errors.find(c.error), std::string::npos) << deck.errors << c.error;
    }
}

// Every keyword that counts is known by its name: a record that doesn't suit it is refused.
TEST_F(DeckImportTest, KnowsEachKeywordByItsSpelling) {
    const char* const withData[] = {
        "CNAMES", "NCOMPS",   "COMPS",   "FILEUNIT", "EOS",    "MW",     "PCRIT",   "TCRIT",
        "VCRIT",  "ZCRIT",    "ACF",     "PARACHOR", "SSHIFT", "OMEGAA", "OMEGAB",  "VCRITVIS",
        "SPECHA", "ZCRITVIS", "SPECHB",  "SPECHG",   "SPECHH", "BIC",    "LBCCOEF", "ZI",
        "ZMFVD",  "RTEMP",    "EOSS",    "MWS",      "PCRITS", "TCRITS", "VCRITS",  "ZCRITS",
        "ACFS",   "SSHIFTS",  "OMEGAAS", "OMEGABS",  "BICS"};
    for (const std::string keyword : withData) {
        const Outcome deck = ReadText(twoComponents + keyword + "\n12*a /\n");
        EXPECT_TRUE(deck.errors.starts_with("4: Keyword " + keyword + ": ")) << deck.errors;
    }
    for (const std::string keyword : {"ECHO", "METRIC", "FIELD", "PRCORR", "PEDERSEN"}) {
        EXPECT_TRUE(ReadText(sound + keyword + "\n12 /\n").told.starts_with("16:further-records"))
            << keyword;
    }
}

// Whatever stands ahead of a line, it means the same.
TEST_F(DeckImportTest, TakesALineAlikeInEveryPlace) {
    folder.Write("mw.inc", "ACF\n0 0.1 /\n");
    folder.Write("mws.inc", "47 49 /\n");
    std::filesystem::create_directory(folder.Path() / "sub");
    folder.Write("sub/mw.inc", "ACF\n0 0.1 /\n");
    struct Case {
        const char* text;
        const char* told; // with lines counted from the text's first
    };
    const Case cases[] = {
        {"MW TBD 30 /\n", "1:refused"},
        {"MW of the oil\n", "1:refused"},
        {"EOS of choice\n", "1:refused"},
        {"ACF 0 x /\n", "1:refused"},
        {"  ACF\n\t0 x /\n", "2:refused"},
        {"PRCORR of 1978\nPEDERSEN for oils\n", ""},
        {"1 January 2018 JK: checked\n", ""},
        {"2017 rich gas\n", ""},
        {"PCIRT\n46 48 /\n", "1:did-you-mean"},
        {"TCRIT:\n46 48 /\n", "1:did-you-mean"},
        {"TCRIT(K)\n46 48 /\n", "1:did-you-mean"},
        {"'TCRIT'\n46 48 /\n", "1:did-you-mean"},
        {"*TCRIT\n46 48 /\n", "1:did-you-mean"},
        {"T-CRIT\n46 48 /\n", "1:did-you-mean"},
        {"OMEGGAS 46 48 /\n", "1:did-you-mean"},
        {"CNAME\nC1 C2 /\n", "1:did-you-mean"},
        {"TEMPVD\n1 2 /\nXMFVD\n1 2 /\nCOMPW\n/\nIPC\n/\n", ""}, // other keywords, or too short
        {"The Pcrit is low\nOfield gas\n", ""},
        {"mw\n46 48 /\n", "1:small-letters"},
        {"EOS\nPR / PRCORR\n", "2:text-behind"},
        {"PRCORR PEDERSEN\n", "1:text-behind"},
        {"EOS\nPR /\nSRK /\n", "3:further-records"},
        {"BIC\n0.1 /\n0.2 /\n0.3 /\n", "3:further-records"},
        {"MWS\n46 48 /\n46\n48 /\n", "3:further-records"},
        {"EOS\nPR / SRK /\n", "2:further-records"},
        {"EOS\nPR\n/\nSRK\n/\n", "4:further-records"},
        {"EOS\npr /\nsrk /\n", "3:further-records"},
        {"EOS\nPR /\nPR78 /\n", "3:further-records"},
        {"MWS\n46 48 / 47 49 /\n", "2:further-records"},
        {"MWS\n46 48 / 2 of them\n", ""},
        {"MWS\n46 48 /\nSKIP /\nMW\n1 /\nENDSKIP /\n47 49 /\n", "7:further-records"},
        {"(ACF)\n1 2 /\n", "1:did-you-mean"},
        {"\"ACF\n1 2 /\n", "1:did-you-mean"},
        {"- ACF\n1 2 /\n", "1:did-you-mean"},
        {"Mw and Tc from the lab\nmw in lb/lbmole\nComps: three\n", ""},
        {"RPTPROPS\n'MW' 'TCRIT' /\nSPECHEAT\n1 /\nTCRITW\n1 /\n", ""},
        {"TITLE\nACF\n0 0.1 /\n", "2:text-behind"},
        {"EOS\nPR / PRCORR,\n", "2:text-behind"},
        {"EOS\nPR / 'PRCORR'\n", "2:text-behind"},
        {"EOS\nPR // PRCORR\n", "2:text-behind"},
        {"EOS\nPR / -PRCORR\n", "2:text-behind"},
        {"EOS\nPR / prcorr\n", "2:text-behind"},
        {"MWS\n46 48 /\nSkip 3\n47 49 /\n", "4:further-records"},
        {"MWS\n46 48 /\nRegion 5 study\n47 49 /\n", "4:further-records"},
        {"TITLE\nA study\nGRID STUDY\nSOLUTION GAS DRIVE\n", ""},
        {"1. MW and TCRIT from the lab\n- MW from it\n", ""},
        {"1. ACF\n0 0.1 /\n", "1:did-you-mean"},
        {"1) ACF\n0 0.1 /\n", "1:did-you-mean"},
        {"1.ACF\n0 0.1 /\n", "1:did-you-mean"},
        {"\u0410\u0421F\n0 0.1 /\n", "1:did-you-mean"},
        {"ACF\u00A00 0.1 /\n", "1:did-you-mean"},
        {"\u041C\u0430\u0441\u0441\u0430 W 5 /\n", ""},
        {"EOS\nPR\nMWS\n46 48 /\n", "3:refused"},
        {"METRIC units\n", ""},
        {"FIELD units\n", "1:other-units"},
        {"TITLE\nA study\nFIELD 5 tests\n", ""},
        {"RTEMP\n1* /\n", "1:values-missing"},
        {"PROPS  fluid and rock\n", "1:section-ignored"},
        {"Props\n", "1:section-ignored"},
        {"EOS\nSRK /\nEOS\nPR /\n", "3:second-time"},
        {"FILEUNIT\nMETRIC /\nFILEUNIT\nMETRIC /\n", ""},
        {"RTEMP\n100 120 /\n", "1:further-records"},
        {"SKIP\nMW\n17 31 /\nENDSKIP\n", ""},
        {"INCLUDE mw.inc /\n", ""},
        {"INCLUDE\nsub/mw.inc /\n", ""},
        {"INCLUDE\n'sub\\mw.inc' /\n", ""},
        {"INCLUDE none.inc /\n", "1:refused"},
        {"TITLE\nMW of the oil\n", ""},
        {"TITLE -- of it\n-- a comment\nMW of the oil\n", ""},
        {"TITLE A study\nACF\n0 x /\n", "3:refused"},
        {"TITLE\n/\nACF\n0 x /\n", "4:refused"},
        {"TITLE\nGRID\nACF\n0 x /\n", "4:refused"},
        {"TITLE\nINCLUDE\nACF\n0 x /\n", "4:refused"},
        {"TITLE\nSKIP\nACF\n0 x /\nENDSKIP\n", "4:refused"},
    };
    const std::string sections[] = {"", "RUNSPEC\n", "PROPS\n", "SOLUTION\n"};
    const std::string neighbours[] = {"", "OIL\n", "ROCK\n1 2 /\n", "NCOMPS\n2 /\n",
                                      "P1 OPEN ORAT /\n"};
    for (const Case& c : cases) {
        for (const std::string& section : sections) {
            for (const std::string& neighbour : neighbours) {
                const std::string ahead = section + neighbour;
                const Outcome deck = ReadText(ahead + c.text + sound);
                std::string expected = c.told;
                if (!expected.empty()) {
                    const auto line = std::stol(expected) + std::ranges::count(ahead, '\n');
                    expected = std::to_string(line) + expected.substr(expected.find(':'));
                }
                EXPECT_EQ(deck.told, expected) << ahead << c.text << deck.errors;
                const bool isRefused = expected.ends_with("refused");
                EXPECT_EQ(deck.ids, isRefused ? Ids{3243} : Ids()) << ahead << c.text;
                EXPECT_EQ(Values(deck.fluid, &FluidComponent::GetMolecularWeight),
                          isRefused ? std::vector<double>() : (std::vector<double>{16, 30}))
                    << ahead << c.text;
            }
        }
    }
    EXPECT_EQ(ReadText("MWS\n46 48 /\nINCLUDE 'mws.inc' /\n" + sound).told, "1:further-records");
    for (const char* const further : {"C1\nC2\n/\n", "C1 C2 /\n", "c1\nc2 /\n", "CN1 CN2\n/\n"}) {
        EXPECT_EQ(ReadText(twoComponents + further + rest).told, "3:further-records") << further;
    }
}

TEST_F(DeckImportTest, NotesTheKeywordsThatItPassesOver) {
    EXPECT_EQ(ReadText("Some text\nSWFN\n1 2 /\nOIL AND GAS\nSWOF of text\n" + sound).notes,
              "2: Keyword 'SWFN' is passed over.\n4: Keyword 'OIL' is passed over.\n");
}

// What is told of a deck as a whole, and which values it has all the same.
TEST_F(DeckImportTest, TellsWhatIsNotAsItSeems) {
    folder.Write("utf16.inc", std::string("\xFF\xFE"
                                          "M\0W\0\n\0",
                                          8));
    struct Case {
        std::string text;
        std::vector<double> molecularWeights;
        const char* told;
    };
    const std::string mw = sound;
    const std::string others = twoComponents + rest.substr(rest.find("PCRIT"));
    const std::vector<double> none{0, 0};
    const std::string blanks(200'000, ' ');
    std::string blocks; // more than a file is read by
    for (int i = 0; i < 50'000; ++i) {
        blocks += "1 2\n";
    }
    const Case cases[] = {
        {"\xEF\xBB\xBF" + mw, {16, 30}, ""},
        {others + "ROCK\n1 2\nMW\n16 30 /\n", none, "15:in-open-record 0:property-missing"},
        {mw + "ROCK\n1 2\n", {16, 30}, "16:record-not-closed"},
        {mw + "ROCK\n" + blocks + "/\nMW\n17 " + blanks + "31 /\nACF\n0 0.1 /\n",
         {17, 31},
         "50017:second-time"},
        {mw + "ROCK\n1 2 /\n2017\nMW\n17 31 /\n", {17, 31}, "17:record-not-closed 18:second-time"},
        {mw + "GRID\nMW\n17 31 /\n", {16, 30}, ""},
        {others + "GRID ====\nMW\n17 31 /\n", none, "14:other-section 0:property-missing"},
        {mw + "GRID\nINCLUDE\n'none.inc' /\nPROPS\nMW\n17 31 /\n",
         {17, 31},
         "16:include-missing 19:second-time"},
#ifndef _WIN32
        {mw + "GRID\nINCLUDE\n'utf16.inc' /\nINCLUDE\n'/proc/self/mem' /\nMW\n",
         {16, 30},
         "16:include-missing 18:include-missing"},
#endif
        {mw + "GRID\nFILEUNIT\nFIELD /\nFILEUNIT\nLAB /\n", {16, 30}, "16:other-units"},
        {mw + "GRID\nFILEUNIT\nLAB /\nFILEUNIT\nFIELD /\n", {16, 30}, "18:other-units"},
        {mw + "GRID\nPORPS\nMW\n17 31 /\n'PROPS' /\n", {16, 30}, "16:did-you-mean"},
        {mw + "GRID\nDX\n1 2\nPROPS\nMW\n17 31 /\n",
         {16, 30},
         "18:in-open-record 19:in-open-record"},
        {mw + "SKIP the rest\nEND of it\nMW\n17 31 /\n", {17, 31}, "17:second-time"},
        {mw + "SKIP\nMW\n17 31 /\n", {16, 30}, "15:skip-not-closed"},
        {mw + "END\nMW\n17 31 /\n", {16, 30}, ""},
        {mw + "MW\n1* 31 /\n", {0, 31}, "15:second-time 15:values-missing"},
        {mw + "MW\n0 31 /\n", {0, 31}, "15:second-time 15:values-missing"},
        {mw + "SSHIFT\n1* 0 /\nZCRIT\n2* /\nPARACHOR\n2*0 /\n", {16, 30}, "15:values-missing"},
        {mw + "ZI\n1* 1 /\n", {16, 30}, "15:second-time 15:values-missing"},
        {mw + "ZI\n30 70 /\n", {16, 30}, "15:second-time 15:percentages"},
        {mw + "ZI\n0.3 0.6985 /\n", {16, 30}, "15:second-time 15:fraction-sum"},
        {mw + "ZI\n0.3 0.6995 /\n", {16, 30}, "15:second-time"},
        {mw + "ZMFVD\n100 0 0 /\n", {16, 30}, "15:no-composition"},
        {twoComponents + "MW\n16 30 /\n",
         {16, 30},
         "0:property-missing 0:property-missing 0:property-missing 0:property-missing "
         "0:no-composition"},
        {"CNAMES\nC1,C2 'a''b' 'C3','C4' 2,2-dimethyl 'it''s' 'its' /\nMW\n5*1 1 /\n",
         {1, 1, 1, 1, 1, 1},
         "1:joined-names 1:joined-names 1:joined-names 1:joined-names 0:property-missing "
         "0:property-missing 0:property-missing 0:property-missing 0:no-composition"},
    };
    for (const Case& c : cases) {
        const Outcome deck = ReadText(c.text);
        EXPECT_EQ(Values(deck.fluid, &FluidComponent::GetMolecularWeight), c.molecularWeights)
            << c.text << deck.errors;
        EXPECT_EQ(deck.told, c.told) << c.text << deck.errors;
    }
}

TEST_F(DeckImportTest, KnowsEachWordOfItsTables) {
    // Keywords of others are no typing errors.
    for (const std::string other :
         {"ACFW",   "CNAMESW", "LSCRITS", "PCRITW", "RSSPEC", "SPECHEAT", "TCRITW", "VCRITW",
          "ZCRITW", "AMFVD",   "COMPL",   "COMPW",  "CVCRIT", "EGRID",    "INSPEC", "LBCCOEFR",
          "MATRIX", "RGRID",   "RTEMPA",  "SPECHC", "SPECHD", "SPECHS",   "SPECHT", "STEMP",
          "TEMP",   "TNAMES",  "TTEMP",   "WNAMES", "WTEMP",  "XMFVD",    "YIELD",  "YMFVP"}) {
        EXPECT_EQ(ReadText(other + "\n1 2 /\n" + sound).told, "") << other;
    }
    // Letters of another alphabet that look the same, in words with all the errors that may be.
    for (const std::string word :
         {"\u0410CF", "\u0412IC", "\u0415OS", "Z\u0406", "\u041ACRIT", "\u041CW", "S\u041DFT",
          "E\u041ES", "\u0420CRI", "A\u0421F", "\u0422CRI", "\u0425CRIT", "EO\u0405"}) {
        EXPECT_EQ(ReadText(word + "\n1 2 /\n" + sound).told, "1:did-you-mean") << word;
    }
    for (const std::string keyword : {"MW", "PCRIT", "TCRIT", "OMEGAA", "OMEGAB", "VCRIT", "ZCRIT",
                                      "ACF", "PARACHOR", "SSHIFT", "VCRITVIS", "ZCRITVIS"}) {
        const Outcome deck = ReadText("CNAMES\nC1 C2 C3 /\n" + keyword + "\n2* .1 /\n");
        EXPECT_NE(deck.told.find("3:values-missing"), std::string::npos) << keyword << deck.told;
    }
    for (const std::string name :
         {"\u2018C", "C\u2019", "\u201CC", "C\u201D", "C;D", "C\u00A0D", "C,1", "1,D", ",C"}) {
        EXPECT_TRUE(ReadText("CNAMES\n" + name + " /\n").told.starts_with("1:joined-names "))
            << name;
    }
}

// Each is entered from one of the other kind.
TEST_F(DeckImportTest, KnowsTheSectionsThatMayHoldFluidData) {
    const std::string others = twoComponents + rest.substr(rest.find("PCRIT"));
    for (const auto& [sections, told] : {
             std::pair{"GRID\nRUNSPEC", ""},
             {"GRID\nPROPS", ""},
             {"GRID\nSOLUTION", ""},
             {"PROPS\nGRID", "15:other-section 0:property-missing"},
             {"PROPS\nREGIONS", "15:other-section 0:property-missing"},
             {"PROPS\nSUMMARY", "15:other-section 0:property-missing"},
             {"PROPS\nSCHEDULE", "15:other-section 0:property-missing"},
         }) {
        EXPECT_EQ(ReadText(others + sections + "\nMW\n16 30 /\n").told, told) << sections;
    }
}

TEST_F(DeckImportTest, SoundDecksGiveNoWarning) {
    const std::string samples = FLUIDBENCH_EXAMPLE_DATA "/";
    struct Case {
        std::string path;
        const char* told;
    };
    const Case cases[] = {
        {samples + "reservoir-oil-field.dat", ""},
        {DataPath("deck-import/simulation.dat"), ""},
        {DataPath("deck-import/cut.dat"), ""},
        {DataPath("deck-export/two-components-metric.pvo"), ""},
        {DataPath("deck-export/six-component-fluid-metric.pvo"), ""},
        {DataPath("deck-export/six-component-fluid-field.pvo"), ""},
        // These two were written of fluids that aren't sound.
        {DataPath("deck-export/no-components-field.pvo"), "14:model-unsupported"},
        {DataPath("deck-export/one-component-metric.pvo"),
         "29:property-missing 51:property-missing 45:property-missing 34:property-missing "
         "39:property-missing 96:fraction-sum"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(ReadDeck(c.path, true).told, c.told) << c.path;
    }
}

TEST_F(DeckImportTest, BoundsIncludesAndWarnings) {
    for (int i = 0; i < 20; ++i) {
        folder.Write(std::to_string(i) + ".inc",
                     i == 16 ? "MW\n16 30 /\n" : "INCLUDE\n'" + std::to_string(i + 1) + ".inc' /");
    }
    EXPECT_EQ(ReadText(twoComponents + "INCLUDE\n'1.inc' /\n").ids, Ids());
    const Outcome deck = ReadText(twoComponents + "INCLUDE\n'0.inc' /\n");
    EXPECT_EQ(deck.ids, Ids{3243});
    EXPECT_NE(deck.errors.find("expected at most 16 includes in each other"), std::string::npos);

    folder.Write("empty.inc", "");
    std::string many = sound;
    for (int i = 0; i < 10'000; ++i) {
        many += "INCLUDE\n'empty.inc' /\nmw\n";
    }
    const CapturedLog log;
    Diagnosed diagnosed;
    PVOFileReader reader;
    reader.SetPVOName(folder.Write("many.dat", many));
    reader.SetDiagnosticSink(diagnosed.Sink());
    CompositionalFluid fluid("");
    EXPECT_FALSE(reader.Read(fluid, false).HasErrors());
    EXPECT_EQ(diagnosed.All().size(), 21U);
    EXPECT_EQ(diagnosed.All().back().sentence, "9980 more like this.");
    const std::string warnings = log.Of(Log::Warning);
    EXPECT_EQ(std::ranges::count(warnings, '\n'), 50);
    EXPECT_NE(warnings.find("many.dat, line 17: 'mw' isn't taken for the keyword MW because it "
                            "isn't in capitals.\n"),
              std::string::npos);
    EXPECT_NE(ReadText(many + "INCLUDE\n'empty.inc' /\n").errors.find("at most 10000 includes"),
              std::string::npos);
}

TEST_F(DeckImportTest, EveryReaderHearsOfItsOwnDeck) {
    constexpr int reads = 100;
    const auto read = [&](const std::string& name, const std::string& text, std::string& told) {
        const std::string path = folder.Write(name, text);
        Diagnosed diagnosed;
        PVOFileReader reader;
        reader.SetPVOName(path);
        reader.SetPVOErrorMessageSeverityLevel(pvtEnumPVOErrorSeverityLevel::Fatal);
        reader.SetDiagnosticSink(diagnosed.Sink());
        CompositionalFluid fluid("");
        for (int i = 0; i < reads; ++i) {
            reader.Read(fluid, false);
            for (const IO::Diagnostic& diagnostic : diagnosed.All()) {
                told += diagnostic.file == path ? "" : diagnostic.file;
            }
            told += diagnosed.Take() + '\n';
        }
    };
    std::string first;
    std::string second;
    std::thread other([&] { read("a.dat", "mw\n" + sound, first); });
    read("b.dat", sound + "SWFN\n/\n", second);
    other.join();
    std::string expectedFirst;
    std::string expectedSecond;
    for (int i = 0; i < reads; ++i) {
        expectedFirst += "1:small-letters\n";
        expectedSecond += "15:passed-over\n";
    }
    EXPECT_EQ(first, expectedFirst);
    EXPECT_EQ(second, expectedSecond);
}

TEST_F(DeckImportTest, WhatTheSinkThrowsReachesTheCaller) {
    const CapturedLog silence;
    PVOFileReader reader;
    reader.SetPVOName(folder.Write("deck.dat", "mw\n" + sound));
    reader.SetDiagnosticSink(
        [](const IO::Diagnostic& told) { throw std::out_of_range(told.code); });
    CompositionalFluid fluid("before");
    EXPECT_THROW(reader.Read(fluid, false), std::out_of_range);
    reader.SetDiagnosticSink({});
    EXPECT_FALSE(reader.Read(fluid, false).HasErrors());
}

TEST_F(DeckImportTest, GivesTheReservoirTemperature) {
    struct Case {
        const char* text;
        std::optional<double> metric, field; // K
    };
    const Case cases[] = {
        {"", {}, {}},
        {"RTEMP\n100 /\n", 373.15, (100 + 459.67) / 1.8},
        {"RTEMP\n100 120 /\nRTEMP\n60 2*80 /\n90 /\n", 333.15, (60 + 459.67) / 1.8},
        {"RTEMP\n1* 100 /\n", {}, {}},
        {"RTEMP\n-300 /\n", {}, (-300 + 459.67) / 1.8},
        {"RTEMP\n100 /\nEOS\nZJ /\n", {}, {}},
    };
    for (const Case& c : cases) {
        const std::string path = folder.Write("deck.dat", sound + c.text);
        EXPECT_EQ(ReadDeck(path).temperature, c.metric) << c.text;
        const auto field = ReadDeck(path, true).temperature;
        EXPECT_EQ(field.has_value(), c.field.has_value()) << c.text;
        EXPECT_NEAR(field.value_or(0.0), c.field.value_or(0.0), 1e-9) << c.text;
    }
    EXPECT_EQ(ReadText(sound + "RTEMP\n-300 /\n").told, "15:value-dropped");
    EXPECT_EQ(ReadText(sound + "RTEMP\n100 /\nMW\n16 x /\n").temperature, std::nullopt);
}

TEST_F(DeckImportTest, ReportsFilesAndValuesThatCannotBe) {
    const std::string missing = folder / "missing.dat";
    struct Case {
        std::string path;
        std::string reason;
        const char* error;
    };
    const Case cases[] = {
        {missing, "File '" + missing + "' could not be found.",
         "0: Expected a file to read, found no file of that name."},
        {"", "File '' could not be found.", "0: Expected a file"},
        {folder.Path().string(), "File '" + folder.Path().string() + "' could not be found.",
         "0: Expected a file to read, found a folder."},
        {folder.Write("a", twoComponents + "PCRIT\n1 -1 /\n"),
         "The critical pressure of component 'C2' can't be negative",
         "3: Keyword PCRIT: The critical pressure of component 'C2' can't be negative"},
        {folder.Write("b", twoComponents + "ZI\n1 0 /\nZMFVD\n1 1 -1 /\n"),
         "The fraction of component 'C2' must be a finite number that isn't negative",
         "5: Keyword ZMFVD: The fraction"},
        {folder.Write("c", "CNAMES\n' ' /\n"), "A fluid component must have a name",
         "1: Keyword CNAMES: A fluid component must have a name"},
    };
    for (const Case& c : cases) {
        const Outcome deck = ReadDeck(c.path);
        EXPECT_EQ(deck.ids, (Ids{3242, 1001})) << c.path;
        EXPECT_EQ(deck.reason.substr(0, c.reason.size()), c.reason);
        EXPECT_TRUE(deck.errors.starts_with(c.error)) << deck.errors;
        EXPECT_EQ(deck.fluid.NumberOfComponents(), 0);
    }
    for (const std::string keyword :
         {"MW", "PCRIT", "TCRIT", "ZCRIT", "VCRIT", "VCRITVIS", "OMEGAA", "OMEGAB"}) {
        const Outcome deck = ReadText(twoComponents + keyword + "\n1 -1 /\n");
        EXPECT_TRUE(deck.errors.starts_with("3: Keyword " + keyword + ": The ")) << deck.errors;
    }
#ifndef _WIN32
    // What opens and can't be read is no deck.
    const std::string pipe = folder / "pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    for (const auto& [path, told] : {std::pair<std::string, const char*>{pipe, "0:cant-open"},
                                     {"/dev/null", "0:cant-open"},
                                     {"/proc/self/mem", "1:read-failed"}}) {
        const Outcome deck = ReadDeck(path, true);
        EXPECT_EQ(deck.ids, Ids{3243}) << path;
        EXPECT_EQ(deck.told, told) << path << deck.errors;
    }
    EXPECT_NE(ReadDeck(pipe).errors.find("found a pipe"), std::string::npos);
#endif
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
}

// A line counts whole, whatever its length and wherever the words stand in it.
TEST_F(DeckImportTest, FindsTheUnitSystemInLinesOfAnyLength) {
    constexpr auto metric = pvtEnumPVOUnitSystemType::Metric;
    for (const std::size_t length : {0U, 1U, 65'530U, 65'536U, 131'064U, 300'000U}) {
        for (const char filling : {' ', 'T', '.'}) {
            const std::string some(length, filling);
            for (const std::string& text :
                 {some + "FILEUNIT" + some + "\n" + some + "METRIC" + some,
                  some + "\n\n" + some + "\n" + some + "Units: K" + some + "\n" + some +
                      "TCRIT\n"}) {
                EXPECT_EQ(ReadText(text, true).units, metric) << length << filling;
            }
            EXPECT_NE(
                ReadText(some + "Units: K\n" + some + "\nTCRIT\nFILEUNI\nT\nMETRIC", true).units,
                metric);
        }
    }
}

TEST_F(DeckImportTest, TellsWhatTheDeckSaysOfItsUnitsAgainstThoseThatAreUsed) {
    folder.Write("units.inc", "FILEUNIT\nMETRIC\n/\n");
    struct Case {
        const char* text;
        const char* detected; // what is told when the units are detected,
        const char* metric;   // and when they are told to be metric
    };
    const Case cases[] = {
        {"", "0:units-assumed", ""},
        {"FILEUNIT\nFIELD /\n", "", "1:other-units"},
        {"FILEUNIT\nMETRIC /\n", "", ""},
        {"FILEUNIT METRIC /\n", "1:other-units 0:units-assumed", ""},
        {"FILEUNIT FIELD /\n", "", "1:other-units"},
        {"FILEUNIT\nmetric /\n", "1:other-units 0:units-assumed", ""},
        {"FILEUNIT\n-- of the file\nMETRIC /\n", "1:other-units 0:units-assumed", ""},
        {"INCLUDE\n'units.inc' /\n", "1:other-units 0:units-assumed", ""},
        {"fileunit\nmetric /\n", "1:small-letters 2:small-letters 0:units-assumed",
         "1:small-letters 2:small-letters"},
        {"RUNSPEC\nMETRIC\n", "2:other-units 0:units-assumed", ""},
        {"RUNSPEC\nFIELD\nPROPS\nFILEUNIT\nMETRIC /\n", "2:other-units", "2:other-units"},
        {"TITLE\nof\nFIELD data\nFILEUNIT\nMETRIC /\n", "", ""},
        {"--Units: K\nTCRIT\n190 305 /\nFILEUNIT\nFIELD /\n", "12:second-time 4:other-units",
         "12:second-time 4:other-units"},
    };
    for (const Case& c : cases) {
        const std::string path = folder.Write("deck.dat", c.text + sound);
        EXPECT_EQ(ReadDeck(path, true).told, c.detected) << c.text;
        EXPECT_EQ(ReadDeck(path).told, c.metric) << c.text;
    }
}

TEST_F(DeckImportTest, SetsTheSeverityOfTheDefaultLoggerOnly) {
    auto* const logger = dynamic_cast<DefaultLogger*>(Log::getCurrentLogger());
    ASSERT_NE(logger, nullptr);
    EXPECT_EQ(PVOFileReader().GetPVOUnitSystemToUse(), pvtEnumPVOUnitSystemType::Metric);
    PVOFileReader first;
    first.SetPVOName(folder.Write("deck.dat", sound));
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
