// Reading MFL fluid files through the stand-in for the toolbox's import command.
#include "FluidBench/Impl/Command/ImportCommand.h"
#include "TestSupport.h"
#include "io/MFLFileReader.h"

using namespace Orv::FluidBench;
using FluidBenchTest::TemporaryFolder;
using IO::MFLFileReader;
using Model::CompositionalFluid;

namespace {

using Streams = std::vector<std::vector<double>>;

class MflTest : public testing::Test {
protected:
    MflTest() { reader.SetMFLFileName(file); }

    TemporaryFolder folder;
    const std::string file = folder / "fluid.mfl";
    MFLFileReader reader;
};

const std::string head = "MFL 1\n";
const std::string components = "COMPONENTS\n"
                               "NAME FRACTION PCRIT VCRIT ACF\n"
                               "- - bar m3/kg-mole -\n"
                               "C1 0.75 45.99 0.0986 0.011 # the light one\n"
                               "\"C7 plus\" 0.25 - 0.4 -\n"
                               "END\n";

} // namespace

TEST_F(MflTest, ReadsAFluidAndItsStreamsInAnyLocale) {
    const FluidBenchTest::ForeignGlobalLocale foreign;
    folder.Write("fluid.mfl", head + "FLUID \"My oil\"\r\nEOS SRK-SSHIFT\nVISCOSITY PEDERSEN\n" +
                                  "FRACTIONS mass\n\n# a remark\n" + components +
                                  "COEFFICIENTS\n\tC1 \"C7 plus\" -0.05\nEND\n" +
                                  "STREAMS\n0.9 0.1\n0 1e3\nEND");
    CompositionalFluid fluid("before");
    Streams streams;
    const auto report = reader.ReadStreams(fluid, streams);
    ASSERT_EQ(FluidBenchTest::MessageIds(report), std::vector<std::int32_t>());
    EXPECT_EQ(fluid.GetName(), "My oil");
    EXPECT_EQ(fluid.GetEoS(), Common::pvtEnumEoS::SoaveRedlichKwongVolumeShift);
    EXPECT_EQ(fluid.GetViscosityCorrelation(), Common::pvtEnumViscosityMethod::Pedersen);
    EXPECT_EQ(fluid.GetComponentFractionType(), Common::pvtEnumUnitFraction::Mass);
    EXPECT_EQ(fluid.ListComponents(), (std::vector<std::string>{"C1", "C7 plus"}));
    EXPECT_EQ(fluid.GetComponentFraction("C7 plus"), 0.25);
    const auto light = fluid.GetOrderedComponents()[0];
    EXPECT_NEAR(light.GetPcrit(), 4.599e6, 1e-6);
    EXPECT_NEAR(light.GetVcrit(), 0.0986e-3, 1e-18);
    EXPECT_EQ(light.GetAcf(), 0.011);
    EXPECT_EQ(fluid.GetOrderedComponents()[1].GetPcritSource(),
              Common::pvtEnumPropertySource::NoValue);
    EXPECT_EQ(fluid.GetBIC("C7 plus", "C1", Common::pvtEnumBICType::ReservoirEoS), -0.05);
    EXPECT_EQ(streams, (Streams{{0.9, 0.1}, {0, 1000}}));

    // The other two reads fill a fluid the same way, also from a reader that moved.
    MFLFileReader moved = std::move(reader);
    EXPECT_EQ(moved.GetMFLFileName(), file);
    CompositionalFluid byRead("");
    CompositionalFluid forTarn("");
    Common::TarnExtraData extra;
    EXPECT_FALSE(moved.Read(byRead).HasErrors());
    EXPECT_FALSE(moved.ReadForTarn(forTarn, extra).HasErrors());
    EXPECT_EQ(byRead.GetName(), "My oil");
    EXPECT_EQ(forTarn.ListComponents(), fluid.ListComponents());
    EXPECT_EQ(extra.Streams, streams);
}

TEST_F(MflTest, ReportsEachBadLineAndLeavesTheFluidAlone) {
    const std::string table = "COMPONENTS\nNAME FRACTION TCRIT\n- - K\n";
    struct Case {
        std::string content;
        std::vector<int> lines;
        const char* text; // in the first message
    };
    const Case cases[] = {
        {"", {0}, "empty"},
        {"PROPS\nCNAMES\n", {1}, "MFL 1"},
        {head, {1}, "no components"},
        {head + "EOS PR\nEOS RK\nEOS XX\nDENSITY 1\nFLUID\n" + components,
         {3, 4, 4, 5, 6},
         "EOS is there twice"},
        {head + "VISCOSITY none\n" + components, {2}, "LBC, PEDERSEN; found 'none'"},
        {head + "FLUID \"open\nCOMPONENTS now\n", {2, 3, 3}, "double quote"},
        {head + table + "A 1,5 x\nA 0.5 300\n B 1\n\nC -1 -3\n",
         {5, 5, 6, 7, 9, 9, 9},
         "TCRIT must be a number, found 'x'"},
        {head + table + "A 1e999 inf\n\"\" 1 1\nEND\n", {5, 5, 6}, "found 'inf'"},
        {head + "COMPONENTS\nNAME MW\n- -\nA 1\nEND\nX\n", {3, 7}, "NAME FRACTION"},
        {head + "COMPONENTS\nNAME FRACTION MW MW\n", {3, 3}, "two columns"},
        {head + "COMPONENTS\nNAME FRACTION MU\nEND\n", {3}, "'MU' isn't a known"},
        {head + "COMPONENTS\nNAME FRACTION TCRIT\n- - F\nA x x\nEND\n", {4}, "'F' isn't a unit"},
        {head + "COMPONENTS\nNAME FRACTION TCRIT\n- -\nEND\n", {4}, "a unit for each"},
        {head + "COMPONENTS\nEND\n", {3}, "ahead of its headings"},
        {head + components +
             "COEFFICIENTS\nC1 C1 0\nC1 C2 0\nC1 \"C7 plus\" 1\n"
             "\"C7 plus\" C1 1\nC1 C1\nC1 \"C7 plus\" x\n",
         {9, 10, 12, 13, 14, 14, 14},
         "itself"},
        {head + components + "STREAMS\n1\n1 x\nEND\n", {9, 10}, "each of the 2 components"},
    };
    CompositionalFluid fluid("before");
    Streams streams{{1.0}};
    for (const Case& each : cases) {
        folder.Write("fluid.mfl", each.content);
        const auto report = reader.ReadStreams(fluid, streams);
        EXPECT_TRUE(report.HasErrors());
        std::vector<int> lines;
        for (const auto& message : report.GetMessages()) {
            EXPECT_EQ(message.GetMessageId(), 1001);
            ASSERT_TRUE(message.GetText().starts_with(file + ":")) << message.GetText();
            lines.push_back(std::stoi(message.GetText().substr(file.size() + 1)));
        }
        EXPECT_EQ(lines, each.lines) << each.content;
        EXPECT_NE(report.GetMessages()[0].GetText().find(each.text), std::string::npos)
            << report.GetMessages()[0].GetText();
    }
    std::string many = head;
    for (int i = 0; i < 5000; ++i) {
        many += "x\n";
    }
    folder.Write("fluid.mfl", many);
    EXPECT_EQ(reader.Read(fluid).GetMessages().size(), 1001U) << "and one that says so";
    for (const std::string& path :
         {folder / "missing.mfl", folder.Path().string(), std::string()}) {
        reader.SetMFLFileName(path);
        const auto report = reader.Read(fluid);
        ASSERT_EQ(FluidBenchTest::MessageIds(report), std::vector<std::int32_t>{1001});
        EXPECT_NE(report.GetMessages()[0].GetText().find("'" + path + "'"), std::string::npos);
    }
    EXPECT_EQ(fluid.GetName(), "before");
    EXPECT_EQ(fluid.NumberOfComponents(), 0);
    EXPECT_EQ(streams, Streams{{1.0}});
}
