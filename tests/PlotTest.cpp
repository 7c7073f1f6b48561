// The pictures that the command-line program draws: whole, XML, and with everything where it
// belongs.
#include "ToolRun.h"

#include <algorithm>
#include <string>
#include <vector>

using namespace FluidBenchTest;

namespace {

class PlotTest : public ToolRun {
protected:
    // The picture that `arguments` make of it, which has to be XML.
    std::string Draw(const std::string& arguments) {
        const Outcome run = Tool(arguments + " out.svg");
        EXPECT_EQ(run.status, 0) << arguments;
        EXPECT_EQ(run.output, "out.svg\n") << arguments;
        EXPECT_EQ(run.messages, "") << arguments;
        const Outcome xml = Shell(FLUIDBENCH_XMLLINT " --noout --nonet out.svg");
        EXPECT_EQ(xml.messages, "") << arguments;
        return Written("out.svg");
    }
};

// A coordinate, "x" or "y", of the text that is set as this.
double PlaceOf(const std::string& svg, const std::string& text, char coordinate) {
    const std::size_t end = svg.find('>' + text + "</text>");
    if (end == std::string::npos) {
        ADD_FAILURE() << "no text " << text;
        return 0.0;
    }
    const std::string name = {' ', coordinate, '=', '"'};
    return std::stod(svg.substr(svg.rfind(name, end) + name.size()));
}

std::size_t CountOf(const std::string& svg, const std::string& part) {
    std::size_t count = 0;
    for (std::size_t at = svg.find(part); at != std::string::npos; at = svg.find(part, at + 1)) {
        ++count;
    }
    return count;
}

constexpr const char* onePoint = "ODEN,800\nWDEN,1000\nGDEN,1\nRSCONST,50\nPSAT,1e7\nPVTO, Rs, "
                                 "PSAT, Bo, Muo\n\t,50,100,1.2,0.5\n";

} // namespace

TEST_F(PlotTest, DrawsWhatItIsAskedFor) {
    folder.Write("one.csv", onePoint);
    folder.Write("rv.inc", "RVVD\n2000 .0001\n2100 .0002\n/\nFILEUNIT\nMETRIC /\n");
    struct Case {
        const char* arguments;
        std::vector<const char*> has; // texts and elements
        std::vector<const char*> hasNot;
    };
    const Case cases[] = {
        {"blackoil plot @reservoir-black-oil.csv",
         {">Solution gas-oil ratio<", ">Gas viscosity<", ">undersaturated<", ">Pressure (bar)<"},
         {"clip", "circle"}},
        {"blackoil plot @reservoir-black-oil.csv one.csv --show-units field --x-range 0:2500",
         {">one.csv<", ">reservoir-black-oil.csv<", ">Mscf/stb<", ">rb/Mscf<", ">2000<", "<circle"},
         {">3000<"}},
        {"blackoil plot one.csv --title 'A & B'", {">A &amp; B<", "<circle"}, {">Gas viscosity<"}},
        {"kvalues plot @six-component-k-values.csv",
         {">1e-05<", ">0.1<", ">20<", ">C15<", ", at 344.261 K<"},
         {">0.05<"}},
        {"kvalues plot @six-component-k-values.csv --y-range 0.01:10 --size 400x300",
         {"width=\"400\" height=\"300\"", ">0.01<", "clip-path"},
         {">1e-05<"}},
        {"depth plot rv.inc @north-flank-depth.inc --contact 2050",
         {">100<", ">10000<", ">rv.inc<", ">contact<", ">component 3<"},
         {">20000<"}},
        {"depth plot @depth-run.csv", {">contact<", ">Depth (m)<", ">10000<", ">C20<"}, {"clip"}},
        {"envelope plot @rich-gas-envelope.csv",
         {">0.7<", ">0.8<", ">0.9<", ">0.95<", ">22.76 \u00B0C, 204.7 bar<"},
         {">0.75<"}},
        {"envelope plot @rich-gas-envelope.csv @separator-train-envelopes.txt",
         {">rich-gas-envelope.csv<", ">separator-t\u2026txt, plot 3<", ">0.25<"},
         {}},
    };
    for (const Case& c : cases) {
        const std::string svg = Draw(c.arguments);
        for (const char* const part : c.has) {
            EXPECT_TRUE(Contains(svg, part)) << c.arguments << ": " << part;
        }
        for (const char* const part : c.hasNot) {
            EXPECT_FALSE(Contains(svg, part)) << c.arguments << ": " << part;
        }
    }
    // Whole pictures, each of which was looked at.
    ASSERT_EQ(Shell("cp '" + DataPath("tool") + "'/*.csv .").status, 0);
    const std::pair<const char*, const char*> whole[] = {
        {"kvalues plot kvalues.csv", "tool/kvalues.svg"},
        {"blackoil plot oil.csv oil2.csv --show-units field", "tool/blackoil.svg"},
        {"depth plot depth.csv --title 'By depth' --size 500x400", "tool/depth.svg"},
        {"envelope plot envelope.csv --x-range 20:60", "tool/envelope.svg"},
        {"envelope plot hydrates.csv", "tool/hydrates.svg"},
        {"envelope plot @separator-train-envelopes.txt @rich-gas-envelope.csv --show-units field",
         "tool/envelopes.svg"},
        {"kvalues plot @two-temperatures-k-values.inc kvalues.csv --show-units field --y-range "
         "0.01:10 --size 400x300",
         "tool/kvalues-two.svg"},
        {"depth plot @north-flank-depth.inc --show-units field", "tool/depth-field.svg"},
        {"blackoil plot @two-region-black-oil.inc oil.csv --x-range 0:200",
         "tool/blackoil-regions.svg"},
    };
    for (const auto& [arguments, picture] : whole) {
        EXPECT_EQ(Draw(arguments), ReadData(picture)) << arguments;
    }
}

TEST_F(PlotTest, PutsThingsWhereTheyBelong) {
    const std::string depth = Draw("depth plot @depth-run.csv --contact 2550");
    EXPECT_LT(PlaceOf(depth, "2450", 'y'), PlaceOf(depth, "2600", 'y')) << "deeper is lower";
    EXPECT_NEAR(PlaceOf(depth, "contact", 'y'), PlaceOf(depth, "2550", 'y'), 10.0);
    const std::string kvalues = Draw("kvalues plot @six-component-k-values.csv");
    const double decade = PlaceOf(kvalues, "0.001", 'y') - PlaceOf(kvalues, "0.1", 'y');
    EXPECT_NEAR(PlaceOf(kvalues, "1e-05", 'y') - PlaceOf(kvalues, "0.001", 'y'), decade, 0.2);
    // The number of a vapour fraction that is alone stands in the middle of its curve.
    std::string quality = "Flash: \nSource: \nUnits: \n\nBubble,,Dew,,Critical point,,Vapour,0.5,"
                          "\nT,P,T,P,T,P,T,P,\n";
    for (int i = 1; i < 10; ++i) {
        quality +=
            " , , , , , ," + std::to_string(263 + 10 * i) + ".15," + std::to_string(i) + "e5,\n";
    }
    folder.Write("q.csv", quality);
    const std::string fraction = Draw("envelope plot q.csv");
    EXPECT_NEAR(PlaceOf(fraction, "0.5", 'x'), PlaceOf(fraction, "40", 'x'), 0.1);
    // Each record of the oil is a branch of its own; the saturated entries are a curve together.
    const std::string oil = Draw("blackoil plot @reservoir-black-oil.csv");
    EXPECT_EQ(CountOf(oil, "<polyline"), 3U * (4 + 1) + 3U * (3 + 1));
}

TEST_F(PlotTest, HoldsNoTextThatAReaderWouldObey) {
    if (IsForWindows()) {
        GTEST_SKIP() << "Names are Unicode there.";
    }
    const std::string evil = "<b>&\x1b[31m\xe2\x80\xae\xff";
    const std::string name = evil + std::string(150, 'x') + ".csv";
    folder.Write(name, onePoint);
    const std::string svg = Draw("blackoil plot *x.csv --title '" + evil + "'");
    EXPECT_EQ(CountOf(svg, "&lt;b&gt;&amp;\\x1b[31m\\u202e\\xff"), 4U);
    for (const char* const raw : {"<b>", "\x1b", "\xe2\x80\xae", "\xff"}) {
        EXPECT_FALSE(Contains(svg, raw));
    }
    EXPECT_TRUE(Contains(svg, "x\u2026x")) << "a long name is cut";
}

TEST_F(PlotTest, RefusesWhatItCantDraw) {
    folder.Write("a.svg", onePoint);
    struct Case {
        const char* arguments;
        int status;
        const char* message;
    };
    const Case cases[] = {
        {"blackoil plot a.svg b.png", 2, "The picture is an SVG file"},
        {"blackoil plot a.svg", 2, "OUT.svg is missing."},
        {"blackoil plot a.svg a.svg", 1, "Expected another file than the one that is read"},
        {"blackoil plot @reservoir-black-oil.csv a.svg ./a.svg", 1,
         "Expected another file than the one that is read"},
        {"blackoil plot none b.svg", 1, "Expected a file to read, found no file of that name"},
    };
    for (const Case& c : cases) {
        const Outcome run = Tool(c.arguments);
        EXPECT_EQ(run.status, c.status) << c.arguments;
        EXPECT_TRUE(Contains(run.messages, c.message)) << c.arguments << '\n' << run.messages;
    }
    EXPECT_EQ(FilesOf(), "a.svg\n");
    EXPECT_EQ(ReadFile(folder / "a.svg"), onePoint);
}
