// Writing fluids as keyword decks: whole decks, and what decides on each section.
#include "FluidData.h"
#include "TestSupport.h"
#include "io/PVOFileWriter.h"

#include "DeckText.h"

#include <sstream>

using namespace Orv::FluidBench;
using namespace FluidBenchTest;
using Common::pvtEnumEoS;
using IO::PVOFileWriter;
using Model::CompositionalFluid;
using Model::FluidComponent;

namespace {

class DeckExport : public testing::Test {
protected:
    std::string Export(const CompositionalFluid& fluid, double temperature, bool metric,
                       bool writeRunspec) {
        const std::string path = folder.Write("deck", std::string(100'000, 'x'));
        PVOFileWriter writer;
        EXPECT_TRUE(
            MessageIds(writer.ExportToPVO(fluid, path, temperature, metric, writeRunspec)).empty());
        return ReadFile(path);
    }

    TemporaryFolder folder;
};

FluidComponent LightComponent(const std::string& name, double mw, double tc, double pc, double vc,
                              double zc, double acf) {
    FluidComponent component(name);
    component.SetMolecularWeight(mw);
    component.SetOmegaA(0.4572355);
    component.SetOmegaB(0.07779607);
    component.SetTcrit(tc);
    component.SetPcrit(pc);
    component.SetVcrit(vc);
    component.SetVcritViscosity(vc);
    component.SetZcrit(zc);
    component.SetAcf(acf);
    return component;
}

// What stands from a keyword up to the next one.
std::string Section(const std::string& deck, const std::string& keyword, const std::string& next) {
    const std::size_t begin = deck.find("\n" + keyword + "\n");
    const std::size_t end = deck.find("\n" + next + "\n");
    return begin < end ? deck.substr(begin + 1, end - begin) : "not found";
}

} // namespace

TEST_F(DeckExport, WholeDecks) {
    const ForeignGlobalLocale foreign;
    auto [six, temperature] =
        ExampleData::ReadFluid(std::string(FLUIDBENCH_EXAMPLE_DATA) + "/six-component-fluid.csv");
    EXPECT_EQ(Export(six, temperature, true, true),
              ReadData("deck-export/six-component-fluid-metric.pvo"));
    EXPECT_EQ(Export(six, temperature, false, true),
              ReadData("deck-export/six-component-fluid-field.pvo"));

    CompositionalFluid two("two");
    two.SetEoS(pvtEnumEoS::PengRobinson78VolumeShift);
    FluidComponent c1 = LightComponent("C1", 16.043, 190.56, 45.99e5, 0.0986e-3, 0.286, 0.011);
    c1.SetEoSVolumeShift(-0.154);
    c1.SetParachor(74.05);
    two.SetComponent(c1, 0.7);
    two.SetComponent(LightComponent("C2", 30.07, 305.32, 48.72e5, 0.1455e-3, 0.279, 0.099), 0.3);
    two.SetBIC("C1", "C2", 0.0027);
    EXPECT_EQ(Export(two, 350.0, true, true), ReadData("deck-export/two-components-metric.pvo"));

    CompositionalFluid bare("bare");
    bare.SetEoS(pvtEnumEoS::SoaveRedlichKwongVolumeShift);
    bare.SetViscosityCorrelation(Common::pvtEnumViscosityMethod::Pedersen);
    bare.SetComponent(FluidComponent("C1"), 0.12345678912);
    EXPECT_EQ(Export(bare, 300.0, true, false), ReadData("deck-export/one-component-metric.pvo"));

    CompositionalFluid none("none");
    none.SetEoS(pvtEnumEoS::ZudkevitchJoffe);
    EXPECT_EQ(Export(none, 288.706, false, false), ReadData("deck-export/no-components-field.pvo"));
}

// A line is measured with six digits and written with ten, and only a known value breaks one: row
// 20 has none, and row 23 begins with 20 unknown ones.
TEST_F(DeckExport, InteractionRowsWrap) {
    CompositionalFluid fluid("wide");
    const auto name = [](int i) { return "C" + std::to_string(i); };
    for (int row = 0; row < 24; ++row) {
        fluid.SetComponent(FluidComponent(name(row)), 0.0);
        for (int column = 0; column < row; ++column) {
            if (row != 20 && (row != 23 || column >= 20)) {
                const int seed = row * 37 + column * 11;
                fluid.SetBIC(name(row), name(column),
                             (row + column) % 3 == 0 ? seed % 100 / -7e4 : seed % 1000 / 4e3);
            }
        }
    }
    EXPECT_EQ(Section(Export(fluid, 300.0, true, false), "BIC", "PARACHOR"),
              ReadData("deck-export/wide-interactions.pvo"));
}

TEST_F(DeckExport, EquationsOfState) {
    struct {
        int eos;
        const char* word;
        bool isCorrected;
        bool isShifted;
    } const cases[] = {{0, "PR", false, false}, {1, "PR", true, false},  {2, "PR", false, true},
                       {3, "PR", true, true},   {4, "RK", false, false}, {5, "SRK", false, false},
                       {6, "SRK", false, true}, {7, "ZJ", false, false}, {99, "", false, false}};
    for (const auto& each : cases) {
        CompositionalFluid fluid("fluid");
        fluid.SetEoS(static_cast<pvtEnumEoS>(each.eos));
        const std::string deck = Export(fluid, 300.0, true, false);
        EXPECT_EQ(Section(deck, "EOS", "NCOMPS"), std::string("EOS\n--\n") + each.word +
                                                      "\n/\n--\n" +
                                                      (each.isCorrected ? "PRCORR\n" : ""))
            << each.eos;
        EXPECT_EQ(Section(deck, "ZCRIT", "ACF"),
                  std::string("ZCRIT\n--\n/\n--\n") + (each.isShifted ? "SSHIFT\n--\n/\n--\n" : ""))
            << each.eos;
    }
}

TEST_F(DeckExport, VolumeShiftsFollowTheTemperatureWhenToldTo) {
    CompositionalFluid fluid("fluid");
    fluid.SetEoS(pvtEnumEoS::PengRobinsonVolumeShift);
    FluidComponent component("C1");
    component.SetEoSVolumeShift(0.1);
    component.SetThermExpCoeff(0.0001);
    fluid.SetComponent(component, 1.0);
    for (const auto& [use, value] : {std::pair(false, "0.1"), std::pair(true, "0.101")}) {
        fluid.SetUseTemperatureDependentVolumeShift(use);
        EXPECT_EQ(Section(Export(fluid, 298.706, false, false), "SSHIFT", "ACF"),
                  std::string("SSHIFT\n--\n") + value + "\n/\n--\n");
    }
}

TEST_F(DeckExport, NamesLoseTheirBlanksInTheDeckAlone) {
    CompositionalFluid fluid("fluid");
    for (const char* const name : {" C 7 ", "it's", "\xce\xb1\xff", "\ta/b"}) {
        fluid.SetComponent(FluidComponent(name), 0.25);
    }
    fluid.SetBIC(" C 7 ", "it's", 0.125);
    const std::string deck = Export(fluid, 300.0, true, false);
    EXPECT_EQ(Section(deck, "CNAMES", "MW"),
              "CNAMES\n--\n'C7'\n'it's'\n'\xce\xb1\xff'\n'\ta/b'\n/\n--\n");
    EXPECT_EQ(Section(deck, "BIC", "PARACHOR"), "BIC\n--\n0.125 \n0.0 0.0 \n0.0 0.0 0.0 \n/\n--\n");
}

TEST_F(DeckExport, FilesThatCantBeWritten) {
    const CompositionalFluid fluid("fluid");
    PVOFileWriter writer;
    for (const std::string& path : {folder.Path().string(), folder / "missing/deck",
                                    std::string("/proc/deck"), std::string()}) {
        const auto report = writer.ExportToPVO(fluid, path, 300.0, true, true);
        ASSERT_EQ(MessageIds(report), std::vector<std::int32_t>{3369}) << path;
        EXPECT_TRUE(report.HasErrors());
        EXPECT_EQ(report.GetMessages().front().GetParameters(), std::vector<std::string>{path});
    }
    EXPECT_TRUE(std::filesystem::is_empty(folder.Path()));
    if (std::filesystem::exists("/dev/full")) {
        EXPECT_TRUE(MessageIds(writer.ExportToPVO(fluid, "/dev/full", 300.0, true, true)).empty());
    }
}

TEST_F(DeckExport, EachLineIsFlushed) {
    struct : std::stringbuf {
        int sync() override { return ++flushes, 0; }
        int flushes = 0;
    } buffer;
    std::ostream stream(&buffer);
    std::string line = "/";
    IO::WriteDeckLine(stream, line);
    IO::WriteDeckLine(stream, line);
    EXPECT_EQ(buffer.str(), "/\n\n");
    EXPECT_EQ(buffer.flushes, 2);
    EXPECT_EQ(line, "");
}
