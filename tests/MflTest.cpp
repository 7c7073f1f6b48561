// Reading MFL fluid files through the stand-in for the toolbox's import command.
#include "Diagnosed.h"
#include "FluidBench/Impl/Command/ImportCommand.h"
#include "TestSupport.h"
#include "io/MFLFileReader.h"

using namespace Orv::FluidBench;
using FluidBenchTest::Diagnosed;
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
    const std::string longer((1U << 20) + 1, 'x');
    const std::string table = "COMPONENTS\nNAME FRACTION TCRIT\n- - K\n";
    struct Case {
        std::string content;
        const char* told; // lines and codes, one for each message
        const char* text; // in the first message
    };
    const Case cases[] = {
        {"", "0:form", "empty"},
        {"\n\nPROPS\nCNAMES\n", "3:form", "MFL 1, found 'PROPS'"},
        {std::string("M\0F\0L\0 \0001\0\n\0", 12), "1:utf-16", "save the file"},
        {"MFL 1\rEOS PR\r", "1:carriage-returns", "save the file"},
        {head, "1:incomplete", "COMPONENTS"},
        {head + "EOS PR\nEOS RK\nEOS XX\nDENSITY 1\nFLUID\n" + components,
         "3:keyword 4:keyword 4:keyword 5:keyword 6:keyword", "EOS once, found it twice"},
        {head + "VISCOSITY none\n" + components, "2:keyword", "LBC, PEDERSEN; found 'none'"},
        {head + "FLUID \"open\nCOMPONENTS now\n", "2:row 3:keyword 3:incomplete", "double quote"},
        {head + table + "A 1,5 x\nA 0.5 300\n B 1\n\nC -1 -3\n",
         "5:value 5:value 6:row 7:row 9:value 9:value 9:incomplete",
         "TCRIT to be a number, found 'x'"},
        {head + table + "A 1e999 inf\n\"\" 1 1\nEND\n", "5:value 5:value 6:value", "found 'inf'"},
        {head + "COMPONENTS\nNAME MW\n- -\nA 1\nEND\nX\n", "3:table 7:keyword", "NAME FRACTION"},
        {head + "COMPONENTS\nNAME FRACTION MW MW\n", "3:table 3:incomplete", "'MW' above two"},
        {head + "COMPONENTS\nNAME FRACTION MU\nEND\n", "3:table", "known, found 'MU'"},
        {head + "COMPONENTS\nNAME FRACTION TCRIT\n- - F\nA x x\nEND\n", "4:table",
         "a unit of TCRIT, found 'F'"},
        {head + "COMPONENTS\nNAME FRACTION TCRIT\n- -\nEND\n", "4:table", "each of 3 headings"},
        {head + "COMPONENTS\nEND\n", "3:table", "found the end"},
        {head + components +
             "COEFFICIENTS\nC1 C1 0\nC1 C2 0\nC1 \"C7 plus\" 1\n"
             "\"C7 plus\" C1 1\nC1 C1\nC1 \"C7 plus\" x\n",
         "9:value 10:value 12:row 13:row 14:value 14:row 14:incomplete", "itself"},
        {head + components + "STREAMS\n1\n1 x\nEND\n", "9:row 10:value",
         "each of the 2 components"},
        {head + "# " + longer + "\n" + components + longer + " 1\n",
         "2:line-too-long 9:line-too-long", "1048576 characters, found a longer"},
    };
    CompositionalFluid fluid("before");
    Streams streams{{1.0}};
    Diagnosed diagnosed;
    reader.SetDiagnosticSink(diagnosed.Sink());
    for (const Case& each : cases) {
        folder.Write("fluid.mfl", each.content);
        const auto report = reader.ReadStreams(fluid, streams);
        EXPECT_TRUE(report.HasErrors());
        const auto& all = diagnosed.All();
        ASSERT_EQ(report.GetMessages().size(), all.size());
        for (std::size_t i = 0; i < all.size(); ++i) {
            const std::string& sentence = all[i].sentence;
            const std::string place = file + ":" + std::to_string(all[i].line) + ": ";
            const std::string text = report.GetMessages()[i].GetText();
            EXPECT_EQ(all[i].file, file);
            EXPECT_TRUE(text.starts_with(place)) << text;
            EXPECT_EQ(text.substr(place.size() + 1), sentence.substr(1)); // a capital in front
        }
        EXPECT_NE(all.at(0).sentence.find(each.text), std::string::npos) << all[0].sentence;
        EXPECT_EQ(diagnosed.Take(), each.told) << each.content.substr(0, 200);
    }
    std::string many = head;
    for (int i = 0; i < 5000; ++i) {
        many += "x\n";
    }
    folder.Write("fluid.mfl", many);
    EXPECT_EQ(reader.Read(fluid).GetMessages().size(), 1001U) << "and one that says so";
    EXPECT_TRUE(diagnosed.Take().ends_with("21:keyword 1001:too-many 0:keyword"));
    for (const std::string& path :
         {folder / "missing.mfl", folder.Path().string(), std::string()}) {
        reader.SetMFLFileName(path);
        const auto report = reader.Read(fluid);
        ASSERT_EQ(FluidBenchTest::MessageIds(report), std::vector<std::int32_t>{1001});
        EXPECT_NE(report.GetMessages()[0].GetText().find("'" + path + "'"), std::string::npos);
        EXPECT_EQ(diagnosed.Take(), "0:cant-open");
    }
    Common::TarnExtraData extra;
    reader.SetDiagnosticSink([](const auto&) { throw std::invalid_argument("enough"); });
    EXPECT_THROW(reader.ReadForTarn(fluid, extra), std::invalid_argument);
    reader.SetMFLFileName(folder.Write("fluid.mfl", head + table + "A 1 x\nEND\n"));
    EXPECT_THROW(reader.Read(fluid), std::invalid_argument);
    EXPECT_EQ(fluid.GetName(), "before");
    EXPECT_EQ(fluid.NumberOfComponents(), 0);
    EXPECT_EQ(streams, Streams{{1.0}});
}
