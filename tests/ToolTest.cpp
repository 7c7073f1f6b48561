// The command-line program as a user runs it: exit status, output and messages.
#include "ToolRun.h"

#include <sys/resource.h>

#include <algorithm>
#include <span>

using namespace FluidBenchTest;

namespace {

struct Case {
    const char* arguments;
    int status;
    std::string output;
    std::string messages;
};

class ToolTest : public ToolRun {
protected:
    void Expect(std::span<const Case> cases) {
        for (const Case& c : cases) {
            const Outcome run = Tool(c.arguments);
            EXPECT_EQ(run.status, c.status) << c.arguments;
            EXPECT_EQ(run.output, c.output) << c.arguments;
            EXPECT_EQ(run.messages, c.messages) << c.arguments;
        }
    }
};

std::string CantRead(const std::string& name, const std::string& found) {
    return name + ": error: Expected a file to read, found " + found + ". [tool.cant-read]\n";
}

constexpr const char* blackOil =
    "ODEN,800\nWDEN,1000\nGDEN,1\nRSCONST,50\nPSAT,1e7\n"
    "Units, METRIC\nPVTO, Rs, PSAT, Bo, Muo\n"
    "\t,50,100,1.2,0.5\n\t,50,150,1.18,0.55\n\n"
    "Units, METRIC\nPVTG, PSAT, Rv, Bg, Mug\n\t,150,0.0001,0.01,0.02\n";

} // namespace

TEST_F(ToolTest, TellsWhatIsWrongWithACommandLine) {
    // tests/data/tool/usage.txt has what is told of each.
    const char* const wrong[] = {
        "",
        "nonsense",
        "'a\x1b[31m'",
        "help nonsense",
        "help deck show more",
        "deck",
        "deck draw",
        "deck show",
        "deck show ''",
        "deck show a b",
        "deck show a --units field",
        "deck show -x a",
        "deck show a --json=yes",
        "deck show a --json --json",
        "deck show a --json --csv",
        "deck show a --from-units",
        "deck show a --from-units=lab",
        "deck convert a",
        "deck convert a b --temperature 160",
        "deck convert a b --temperature 160X",
        "deck diff a b --tolerance -1",
        "depth convert @depth-run.csv b.csv --table ratios",
        "depth plot @depth-run.csv b.svg --contact deep",
        "blackoil convert @reservoir-black-oil.csv b --region 0",
        "blackoil plot a b.svg --size 100x100",
        "blackoil plot a b.svg --size 800",
        "blackoil plot a b.svg --x-range 5:1",
        "blackoil plot a b.svg --x-range 5",
        "kvalues plot @six-component-k-values.csv b.svg --y-range 0:1",
        "envelope plot a b.png",
        "check",
        "check a --format pdf",
        "blackoil diff - -",
    };
    std::string messages;
    for (const char* const arguments : wrong) {
        const Outcome run = Tool(arguments);
        EXPECT_EQ(run.status, 2) << arguments;
        EXPECT_EQ(run.output, "") << arguments;
        messages += run.messages;
    }
    EXPECT_EQ(messages, ReadData("tool/usage.txt"));
    EXPECT_EQ(FilesOf(), "");
    for (const char* const arguments :
         {"help", "--help", "-h", "help deck", "deck --help", "help deck show", "deck show --help",
          "deck show a b --x -h", "--version"}) {
        const Outcome run = Tool(arguments);
        EXPECT_EQ(run.status, 0) << arguments;
        EXPECT_TRUE(Contains(run.output, "fluidbench-io") || Contains(run.output, "deck show"));
        EXPECT_EQ(run.messages, "") << arguments;
    }
}

// The inputs and outputs are under tests/data/tool; the numbers are checked by hand, those of the
// samples ("@") against the files.
TEST_F(ToolTest, ShowsConvertsAndCompares) {
    struct Golden {
        const char* arguments;
        int status;
        const char* output; // a file's name
    };
    const Golden cases[] = {
        {"blackoil show oil.csv --show-units field", 0, "blackoil-show-field.txt"},
        {"blackoil show oil.csv --csv", 0, "blackoil-show.csv"},
        {"blackoil show oil.csv --json --show-units field", 0, "blackoil-show.json"},
        {"blackoil convert oil.csv - --tables dead-dry --to-units field", 0,
         "blackoil-convert-dead-dry-field.txt"},
        {"blackoil diff oil.csv oil2.csv", 1, "blackoil-diff.txt"},
        {"blackoil diff oil.csv oil2.csv --json", 1, "blackoil-diff.json"},
        {"blackoil diff oil.csv oil2.csv --tolerance 0.02", 0, "nothing"},
        {"kvalues show kvalues.csv --show-units field", 0, "kvalues-show-field.txt"},
        {"kvalues show kvalues.csv --json", 0, "kvalues-show.json"},
        {"kvalues convert kvalues.csv - --to-units field", 0, "kvalues-convert-field.txt"},
        {"kvalues convert kvalues.csv - --to csv", 0, "kvalues-convert.csv"},
        {"kvalues diff kvalues.csv kvalues2.csv", 1, "kvalues-diff.txt"},
        {"thermal show thermal.csv", 0, "thermal-show.txt"},
        {"thermal show thermal.csv --json", 0, "thermal-show.json"},
        {"thermal convert thermal.csv - --to csv", 0, "thermal.csv"},
        {"depth show depth.csv", 0, "depth-show.txt"},
        {"depth show depth.csv --json", 0, "depth-show.json"},
        {"depth convert depth.csv - --table ratios --to-units field", 0, "depth-ratios-field.txt"},
        {"depth convert depth.csv - --table saturation", 0, "depth-saturation.txt"},
        {"envelope show envelope.csv", 0, "envelope-show.txt"},
        {"envelope show envelope.csv --csv --show-units=field", 0, "envelope-show-field.csv"},
        {"envelope show envelope.csv --json", 0, "envelope-show.json"},
        {"envelope convert --to comma -- envelope.csv -", 0, "envelope-convert.csv"},
        {"deck show deck.dat", 0, "deck-show.txt"},
        {"deck show deck.dat --csv", 0, "deck-show.csv"},
        {"deck show deck.dat --json", 0, "deck-show.json"},
        {"deck diff deck.dat deck2.dat", 1, "deck-diff.txt"},
        {"deck diff deck.dat deck2.dat --json", 1, "deck-diff.json"},
        {"deck diff deck.dat deck.dat --tolerance 0", 0, "nothing"},
        {"dfa show w_DFA.txt", 0, "dfa-show.txt"},
        {"dfa show - --json --ft w_FT.txt < w_DFA.txt", 0, "dfa-show.json"},
        {"dfa convert w_DFA.txt -", 0, "dfa-convert.csv"},
        {"dfa show w_DFA.txt --ft w_FT.txt --show-units field", 0, "dfa-show-field.txt"},
        {"deck show @reservoir-oil-field.dat --show-units field", 0, "deck-show-samples.txt"},
        {"deck convert @six-component-oil.mfl - --runspec --to-units field --temperature 160F", 0,
         "deck-convert-field.dat"},
        {"mfl show @six-component-oil.mfl", 0, "mfl-show.txt"},
        {"mfl show @six-component-oil.mfl --json", 0, "mfl-show.json"},
        {"compositions show @north-flank-compositions.inc", 0, "compositions-show.txt"},
        {"compositions show @north-flank-compositions.inc --json", 0, "compositions-show.json"},
        {"compositions show @north-flank-compositions.inc --csv --show-units field", 0,
         "compositions-show-field.csv"},
        {"depth show @north-flank-depth.inc --show-units field", 0, "depth-show-field.txt"},
        {"depth show depth.csv --csv", 0, "depth-show.csv"},
        {"kvalues show @two-temperatures-k-values.inc --csv", 0, "kvalues-show.csv"},
        {"kvalues show @two-temperatures-k-values.inc", 0, "kvalues-show-temperatures.txt"},
        {"thermal show @two-component-thermal.inc --csv", 0, "thermal-show.csv"},
        {"envelope show @separator-train-envelopes.txt", 0, "envelope-show-samples.txt"},
        {"blackoil show @two-region-black-oil.inc", 0, "blackoil-show-regions.txt"},
        {"blackoil show @reservoir-black-oil.csv --csv --show-units field", 0,
         "blackoil-show-field.csv"},
        {"blackoil diff two-region-black-oil.inc reservoir-black-oil.csv --show-units field", 1,
         "blackoil-diff-field.txt"},
        {"kvalues show @two-temperatures-k-values.inc --csv --show-units field", 0,
         "kvalues-show-field.csv"},
        {"kvalues diff two-temperatures-k-values.inc kvalues.csv --show-units field", 1,
         "kvalues-diff-field.txt"},
        {"thermal convert thermal.csv - --to-units field", 0, "thermal-convert-field.txt"},
        {"depth show @north-flank-depth.inc --csv --show-units field", 0, "depth-show-field.csv"},
        {"depth convert depth.csv -", 0, "depth-convert.txt"},
        {"deck show @reservoir-oil-field.dat --csv --show-units field", 0, "deck-show-field.csv"},
        {"deck diff reservoir-oil-field.dat deck.dat --show-units field", 1, "deck-diff-field.txt"},
        {"deck convert deck.dat - --temperature '100 C'", 0, "deck-convert.dat"},
        {"mfl show @six-component-oil.mfl --show-units field", 0, "mfl-show-field.txt"},
        {"compositions show @north-flank-compositions.inc --show-units field", 0,
         "compositions-show-field.txt"},
        {"envelope show @separator-train-envelopes.txt --show-units field", 0,
         "envelope-show-field.txt"},
        {"dfa convert w_DFA.txt - --ft w_FT.txt --to-units field", 0, "dfa-convert-field.csv"},
        {"help", 0, "help.txt"},
        {"help blackoil convert", 0, "help-blackoil-convert.txt"},
        {"help --man", 0, "help.1"},
        {"help --bash", 0, "help.bash"},
        {"help --zsh", 0, "help.zsh"},
    };
    folder.Write("nothing", "");
    ASSERT_EQ(Shell("cp '" + DataPath("tool") + "'/* @two* @reservoir* .").status, 0);
    for (const Golden& c : cases) {
        const Outcome run = Tool(c.arguments);
        EXPECT_EQ(run.status, c.status) << c.arguments;
        EXPECT_EQ(run.output, Written(c.output)) << c.arguments;
        EXPECT_EQ(run.messages, "") << c.arguments;
    }
}

// Each word stands alone, and only the reader of its format says of that what is held here.
TEST_F(ToolTest, KnowsAFormatByEachOfItsWords) {
    const Outcome run = Shell(
        "for word in MFL EOS OMEGAA OMEGAB BIC VCRIT PARACHOR SPECHA SPECHG HEATVAPS KVCR KVWI "
        "THERMEX1 KVTABLE TCRIT MW PVTO PVDO PVTG PVDG ZMFVD PBVD PDVD RSVD RVVD YMFVP XMFVP "
        "DENSITY RSCONSTT CNAMES NCOMPS RUNSPEC PROPS INCLUDE FILEUNIT; do "
        "  echo $word > $word.k; echo $word.k >> words; done; "
        "for cell in Pvto pvtG ODEN gden Components record standard 'Molecular weights' "
        "Separator contact gas oil keyword; do "
        "  echo \"$cell,\" > \"$cell.csv\"; echo \"$cell.csv\" >> words; done; "
        "echo > empty; echo empty >> words; xargs -d '\\n' TOOL check < words");
    EXPECT_EQ(run.messages, ReadData("tool/check-words.txt"));
    EXPECT_EQ(Tool("check @*").output, ReadData("tool/check-samples.txt"));
}

// What is written as keywords comes back from commas to the byte, through pipes too, and shows,
// draws and compares as the same.
TEST_F(ToolTest, KeywordsBecomeCommasAndKeywordsAgain) {
    struct RoundTrip {
        const char* format;
        const char* input;
        const char* options; // of the first file with keywords
        const char* again;   // of that with keywords at the end
    };
    const RoundTrip cases[] = {
        {"blackoil", "@two-region-black-oil.inc", "--region 2", ""},
        {"blackoil", "@two-region-black-oil.inc", "--region 1 --tables live-wet", ""},
        {"blackoil", "@reservoir-black-oil.csv", "--to-units field", "--to-units field"},
        {"blackoil", "oil.csv", "--tables dead-dry", "--tables dead-dry"},
        {"kvalues", "@two-temperatures-k-values.inc", "", ""},
        {"kvalues", "@six-component-k-values.csv", "--to-units field", "--to-units field"},
        {"thermal", "@two-component-thermal.inc", "", ""},
        {"thermal", "@six-component-thermal.csv", "--to-units field", "--to-units field"},
        {"depth", "@north-flank-depth.inc", "", ""},
        {"depth", "@depth-run.csv", "--table ratios --to-units field", "--to-units field"},
    };
    ASSERT_EQ(Shell("cp '" + DataPath("tool") + "'/oil.csv .").status, 0);
    for (const RoundTrip& c : cases) {
        const std::string format = c.format;
        const std::string name = format + ' ' + c.input + ' ' + c.options;
        ASSERT_EQ(Tool(format + " convert " + c.input + " \u00D6l.inc " + c.options).status, 0)
            << name;
        ASSERT_EQ(Shell("TOOL " + format + " convert - - --to csv < \u00D6l.inc > b.csv").status,
                  0);
        const Outcome back =
            Shell("cat b.csv | TOOL " + format + " convert - - --strict " + c.again);
        EXPECT_EQ(back.output, Written("\u00D6l.inc")) << name;
        EXPECT_EQ(back.status, 0) << name << back.messages;
        EXPECT_EQ(Tool("check \u00D6l.inc b.csv").output,
                  "\u00D6l.inc: " + format + ", good\nb.csv: " + format + ", good\n");
        EXPECT_EQ(Tool(format + " show \u00D6l.inc --csv --strict").status, 0) << name;
        if (format == "blackoil" || format == "kvalues") {
            folder.Write("c.inc", back.output);
            EXPECT_EQ(Tool(format + " diff \u00D6l.inc c.inc").status, 0) << name;
            EXPECT_EQ(Tool(format + " plot \u00D6l.inc c.inc p.svg").messages, "") << name;
        }
    }
    // All regions and tables at once, as they were.
    for (const char* const file : {"blackoil convert @two-region-black-oil.inc",
                                   "kvalues convert @two-temperatures-k-values.inc"}) {
        const std::string format = std::string(file).substr(0, std::string(file).find(' '));
        ASSERT_EQ(Tool(std::string(file) + " all.inc --high-precision").status, 0);
        EXPECT_EQ(Tool(format + " convert all.inc - --high-precision --strict").output,
                  Written("all.inc"));
    }
    EXPECT_TRUE(Contains(Tool("kvalues show all.inc").output, "temperature  344.261 K"));
}

TEST_F(ToolTest, TellsWhatAFileOfTablesCantGive) {
    const std::string regions = "@two-region-black-oil.inc";
    const std::string water = regions + ": warning: Expected a water density of 1000 kg/m3, which "
                                        "is what files are written with, found 1020. "
                                        "[tool.water-density]\n";
    folder.Write("both.inc", "FILEUNIT\nMETRIC /\nDENSITY\n800 1000 1 /\nPVTO\n10 50 1.1 0.5 /\n/\n"
                             "PVDO\n50 1.1 0.5\n100 1.0 0.6 /\n");
    std::string wide = "Flash: \nSource: \nUnits: \n\nBubble,,"; // vapour fractions without cells
    for (int i = 0; i < 99; ++i) {
        wide += "V,.5,";
    }
    folder.Write("wide.csv", wide.substr(0, 490) + "\nT,P,\n1,2,\n");
    const auto note = [&](const std::string& region) {
        return regions + ": note: Expected a water density of 1000 kg/m3 in region " + region +
               ", found 1020, which the table holds; a file that is written of it has 1000. "
               "[keywords.water-density]\n";
    };
    const Case cases[] = {
        {"blackoil convert @two-region-black-oil.inc out --region 3", 1, "",
         regions + ": error: Expected a region 3, found 2 in all. [tool.no-such-region]\n"},
        {"blackoil convert @two-region-black-oil.inc out.csv", 0, "",
         regions +
             ": warning: Expected one region, found 2; the first one is taken. --region "
             "takes another. [tool.first-region]\n" +
             water},
        {"blackoil convert @two-region-black-oil.inc out.csv --strict --region 2", 1, "", water},
        {"blackoil show @reservoir-black-oil.csv --from-units field", 1, "",
         "@reservoir-black-oil.csv: error: Expected no choice of field units, as the form with "
         "commas is metric always. [tool.other-units]\n"},
        {"kvalues show @two-temperatures-k-values.inc --from-units metric", 1, "",
         "@two-temperatures-k-values.inc:3: error: Expected METRIC units, as were told beside the "
         "file, found 'FILEUNIT FIELD'. [keywords.units-contradicted]\n"},
        {"check @two-region-black-oil.inc", 0, regions + ": blackoil, good\n",
         note("1") + note("2")},
        {"compositions show @north-flank-compositions.inc --strict --csv | head -1", 0,
         "table,phase,pressure bar,1,2,3\n", ""},
        {"depth convert @north-flank-depth.inc out --table compositions", 0, "", ""},
        {"depth plot @north-flank-depth.inc out.svg", 0, "out.svg\n", ""},
    };
    Expect(cases);
    for (const auto& [line, code] : std::initializer_list<std::pair<const char*, const char*>>{
             {"depth convert out - --table ratios", "tool.no-such-table"},
             {"blackoil convert both.inc - --tables dead-dry", "tool.table-left-out"},
             {"blackoil convert @two-region-black-oil.inc - --tables dead-dry",
              "tool.no-saturation-point"},
             {"blackoil show @two-component-thermal.inc", "keywords."},
             {"thermal convert out.csv -", "tool.bad-row"},
             {"check --format dfa @north-field_FT.txt", "tool.nothing-read"},
             {"envelope convert wide.csv -", "tool.long-line"}}) {
        EXPECT_TRUE(Contains(Tool(line).messages, code)) << line << Tool(line).messages;
    }
}

TEST_F(ToolTest, TellsOfRecordsThatKeywordsCantHave) {
    struct Records {
        std::string oil; // the ratio and the pressure of each row
        std::string gas; // the pressure and the ratio
        bool areTold;
    };
    const std::string sound = ",30,50;,30,60;\n,40,55;";
    for (const Records& r : {Records{sound, ",30,2;,30,2;,30,1;\n,40,2;", false},
                             {",30,50;,40,60;", "", true},
                             {",30,50;\n,30,60;", "", true},
                             {",30,50;\n,40,50;", "", true},
                             {",30,50;,30,50;", "", true},
                             {sound, ",30,1;,30,2;", true},
                             {sound, ",30,1;,40,1;", true},
                             {sound, ",40,1;\n,30,1;", true}}) {
        folder.Write("records.csv",
                     Replaced("PVTO,\n" + r.oil + "Units\nPVTG,\n" + r.gas, ";", ",1,1\n"));
        EXPECT_EQ(Contains(Tool("blackoil convert records.csv -").messages, "[tool.record-order]"),
                  r.areTold)
            << r.oil << r.gas;
        EXPECT_FALSE(Contains(Tool("blackoil convert records.csv out.csv").messages, "[tool.rec"));
    }
}

TEST_F(ToolTest, ReadsWhatThereIsAndTellsWhatIsNone) {
    folder.Write("good.csv", blackOil);
    std::filesystem::create_directory(folder / "folder");
    ASSERT_EQ(Shell("ln -s good.csv link; ln -s none dangling; cp @reservoir-oil-* .").status, 0);
    const Case cases[] = {
        {"check good.csv", 0, "good.csv: blackoil, good\n", ""},
        {"check link - < good.csv", 0, "link: blackoil, good\n<stdin>: blackoil, good\n", ""},
        {"check none good.csv", 1, "none: 1 error, 0 warnings\ngood.csv: blackoil, good\n",
         CantRead("none", "no file of that name")},
        {"check dangling", 1, "dangling: 1 error, 0 warnings\n",
         CantRead("dangling", "no file of that name")},
        {"check folder", 1, "folder: 1 error, 0 warnings\n", CantRead("folder", "a folder")},
    };
    Expect(cases);
    const std::pair<std::string, const char*> odd[] = {
        {std::string("E\0O\0S\0\n\0", 8), "found what looks like UTF-16"},
        {std::string("E\0\0\0O\0\0\0S\0\0\0", 12), "found what looks like UTF-32"},
        {"STCOND\r15 1 /\rCNAMES\rC1 /\r", "found carriage returns alone"},
    };
    for (const auto& [text, found] : odd) {
        folder.Write("odd", text);
        EXPECT_NE(Tool("check odd").messages.find(found), std::string::npos) << found;
    }
    const std::string tables = "printf '\\nKVTABLE\\n/\\nHEATVAPS\\n/\\n'";
    EXPECT_EQ(Shell("rm odd; (cat reservoir-oil-field.dat; " + tables + ") > deck.dat").status, 0);
    EXPECT_TRUE(Tool("check deck.dat").output.starts_with("deck.dat: deck, "));
    EXPECT_EQ(Shell("rm deck.dat").status, 0);
    EXPECT_EQ(Shell("ulimit -s 64; TOOL check good.csv").output, "good.csv: blackoil, good\n");
    // A pipe is read once, and gives all that a file does.
    EXPECT_EQ(Shell("cat good.csv | TOOL blackoil convert - -").output,
              Tool("blackoil convert good.csv -").output);
    EXPECT_EQ(Shell("cat *.dat | TOOL deck show - --json").output,
              Tool("deck show reservoir-oil-field.dat --json").output);
    EXPECT_EQ(FilesOf(), "dangling\nfolder\ngood.csv\nlink\nreservoir-oil-field.dat\n"
                         "reservoir-oil-grid.inc\n");
}

TEST_F(ToolTest, TellsWhatIsNoFile) {
    if (IsForWindows()) {
        GTEST_SKIP() << "There is nothing of that kind on Windows.";
    }
    ASSERT_EQ(Shell("mkfifo pipe; mkdir folder").status, 0);
    const Case cases[] = {
        {"check pipe", 1, "pipe: 1 error, 0 warnings\n",
         CantRead("pipe", "a pipe; a pipe is read as the standard input, with - for a name")},
        {"check /dev/zero", 1, "/dev/zero: 1 error, 0 warnings\n",
         CantRead("/dev/zero", "a device")},
        {"check /dev/null", 1, "/dev/null: 1 error, 0 warnings\n",
         CantRead("/dev/null", "a device")},
        {"check - < folder", 1, "-: 1 error, 0 warnings\n",
         "<stdin>: error: Expected text, found that it can't be read (Is a directory). "
         "[tool.cant-read]\n"},
        {"check - <&-", 1, "-: 1 error, 0 warnings\n",
         "<stdin>: error: Expected text, found that it can't be read (Bad file descriptor). "
         "[tool.cant-read]\n"},
    };
    Expect(cases);
}

TEST_F(ToolTest, TellsWhatADeckDoesNotKeepOfAFluid) {
    const std::string ends = " /\nMW\n2*16 /\nPCRIT\n2*46 /\nTCRIT\n2*190 /\nOMEGAA\n2*0.4 /\n"
                             "OMEGAB\n2*0.08 /\nZI\n2*0.5 /\n";
    folder.Write("in.dat", "CNAMES\nC7 'C 7'" + ends);
    folder.Write("sound.dat", "RTEMP\n100 /\nCNAMES\nC7 \"it's\"" + ends);
    const Outcome run = Tool("deck convert in.dat out.dat --from-units metric");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.messages,
              "in.dat: warning: Expected a reservoir temperature, found none: 60 degrees F are "
              "written. --temperature gives another. [tool.no-temperature]\n"
              "in.dat: warning: Expected a name that a deck can hold, found 'C 7': in the deck it "
              "becomes the same as that of 'C7'. [deck.name-changed]\n");
    EXPECT_EQ(Tool("deck convert sound.dat out.dat --from-units metric").messages, "");
    EXPECT_TRUE(Contains(Written("out.dat"), "RTEMP\n--\n100\n/\n"));
}

TEST_F(ToolTest, TellsWhichRowOfDataIsWrong) {
    const std::pair<const char*, const char*> cases[] = {
        {"components,C1\nrecord,25,1,2\n", "2: error: Expected 2 cells behind 'record', found 3."},
        {"components,C1\n\n#\nrecord,25,n/a\n",
         "4: error: Expected numbers behind 'record', found 'n/a'."},
        {"record,25,1\n", "1: error: Expected a row 'temperature', 'components' or, behind these, "
                          "'record', found 'record'."},
        {"components,\"C1\n", "1: error: Expected a quote that is closed on its line, found "
                              "'components,\"C1'."},
        {"components,C1,C1\n", "1: error: Expected a name for each component alone, found 'C1' "
                               "twice."},
        {"components,C1,\n", "1: error: Expected a name for each component alone, found an empty "
                             "cell."},
        {"temperature,300\n", " error: Expected a row 'components', found none that is whole."},
    };
    for (const auto& [text, message] : cases) {
        folder.Write("in.csv", text);
        const Outcome run = Tool("kvalues convert in.csv out.csv");
        EXPECT_EQ(run.status, 1) << text;
        EXPECT_EQ(run.messages, std::string("in.csv:") + message + " [tool.bad-row]\n");
        EXPECT_EQ(FilesOf(), "in.csv\n");
    }
    folder.Write("in.csv", "component,C1\ncomponent,C1\n");
    EXPECT_EQ(Tool("depth show in.csv").messages,
              "in.csv:2: error: Expected the name of a component that isn't there yet, found 'C1'. "
              "[tool.bad-row]\n");
}

TEST_F(ToolTest, LeavesTheOldFileUntilTheNewOneIsWhole) {
    folder.Write("in.csv", blackOil);
    const std::string converted = Tool("blackoil convert in.csv - --to csv").output;
    ASSERT_TRUE(converted.ends_with("FILEUNIT\nMETRIC\n/\n"));
    std::filesystem::create_directory(folder / "far");
    ASSERT_EQ(Shell("cp in.csv same; ln in.csv hard").status, 0);
    // What comes where an output is new or the input itself.
    for (const char* const arguments : {"in.csv new", "same same", "hard hard"}) {
        const Outcome run = Tool(std::string("blackoil convert --to csv ") + arguments);
        EXPECT_EQ(run.status, 0) << arguments << run.messages;
        EXPECT_EQ(run.output + run.messages, "") << arguments;
    }
    for (const char* const name : {"new", "same", "hard"}) {
        EXPECT_EQ(Written(name), converted) << name;
    }
    EXPECT_EQ(ReadFile(folder / "in.csv"), blackOil) << "another name of the same file";

    const std::pair<const char*, const char*> failures[] = {
        {"TOOL blackoil convert in.csv far",
         "far: error: Expected a file to write, found a folder. [tool.cant-write]\n"},
        {"TOOL blackoil convert in.csv none/out",
         "none/out: error: Expected a file to write, found that none can be made in its folder (No "
         "such file or directory). [tool.cant-write]\n"},
        {"TOOL blackoil convert in.csv - > /dev/full",
         "fluidbench-io: error: The standard output can't be written (No space left on device). "
         "[tool.cant-write]\n"},
        {"TOOL blackoil convert in.csv - >&-",
         "fluidbench-io: error: The standard output can't be written (Bad file descriptor). "
         "[tool.cant-write]\n"},
        {"cp @rich-gas-envelope.csv far/a.svg; ln -s a.svg far/b.svg; "
         "TOOL envelope plot far/a.svg far/b.svg",
         "far/b.svg: error: Expected another file than the one that is read, found the same. "
         "[tool.cant-write]\n"},
    };
    for (const auto& [line, message] : failures) {
        const Outcome run = Shell(line);
        EXPECT_EQ(run.status, 1) << line;
        EXPECT_EQ(run.messages.substr(0, std::string(message).size()), message);
    }
    EXPECT_EQ(Written("same"), converted);
    EXPECT_EQ(FilesOf(), "far\nhard\nin.csv\nnew\nsame\n") << "no part is left";

    // Nobody reads on: no words, and no success.
    const Outcome head =
        Shell("for i in 1 2 3 4 5 6 7 8 9; do cat @rich-gas-envelope.csv; done > "
              "long; { TOOL envelope show long --csv; echo $? > status; } | head -1");
    EXPECT_EQ(head.output, "plot,line,fraction,temperature \u00B0C,pressure bar\n");
    EXPECT_EQ(head.messages, "");
    EXPECT_EQ(ReadFile(folder / "status"), "1\n");
}

TEST_F(ToolTest, FollowsLinksAndKeepsRightsAndBounds) {
    if (IsForWindows()) {
        GTEST_SKIP() << "Wine hides links, and the rest is of other systems.";
    }
    folder.Write("in.csv", blackOil);
    const std::string converted = Tool("blackoil convert in.csv - --to csv").output;
    ASSERT_EQ(Shell("mkdir far; chmod 640 in.csv; cp -p in.csv same; cp in.csv far/target; "
                    "ln -s far/target link; ln -s far/new dangling")
                  .status,
              0);
    const Case cases[] = {
        {"blackoil convert --to csv same same", 0, "", ""},
        {"blackoil convert --to csv link link", 0, "", ""},
        {"blackoil convert --to csv far/target link", 0, "", ""},
        {"blackoil convert --to csv in.csv dangling", 0, "", ""},
        {"blackoil convert in.csv /dev/full", 1, "",
         "/dev/full: error: Expected a file to write, found that it can't be written (No space "
         "left on device). [tool.cant-write]\n"},
    };
    Expect(cases);
    EXPECT_EQ(Shell("ulimit -f 1; TOOL envelope convert @rich-gas-envelope.csv same").messages,
              "same: error: Expected a file to write, found that it can't be written whole (File "
              "too large); the old file stands. [tool.cant-write]\n");
    for (const char* const name : {"same", "far/target", "far/new"}) {
        EXPECT_EQ(Written(name), converted) << name;
    }
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "link"));
    EXPECT_EQ(Shell("stat -c %a same").output, "640\n");
    EXPECT_EQ(FilesOf(), "dangling\nfar\nin.csv\nlink\nsame\n") << "no part is left";
}

TEST_F(ToolTest, KeepsItsInputOnADiskThatIsTooSmall) {
    if (Shell("mkdir small && mount -t tmpfs -o size=64k none small").status != 0) {
        GTEST_SKIP() << "Only root mounts a disk.";
    }
    const Outcome run = Shell("cp @rich-gas-envelope.csv small/in.csv; cd small; head -c 45000 "
                              "/dev/zero > rest; TOOL envelope convert in.csv in.csv");
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.messages, "in.csv: error: Expected a file to write, found that it can't be "
                            "written whole (No space left on device); the old file stands. "
                            "[tool.cant-write]\n");
    EXPECT_EQ(ReadFile(folder / "small/in.csv"),
              ReadFile(FLUIDBENCH_EXAMPLE_DATA "/rich-gas-envelope.csv"));
    EXPECT_EQ(FilesOf("small"), "in.csv\nrest\n");
    EXPECT_EQ(Shell("umount small").status, 0);
}

TEST_F(ToolTest, KeepsItsInputWhenItIsKilledWhileItReplacesIt) {
    std::string text = "PVTO,\n";
    for (int i = 1; i <= 60'000; ++i) {
        text += ",1," + std::to_string(i) + ",1.1,0.5\n";
    }
    folder.Write("in.csv", text);
    ASSERT_EQ(Tool("blackoil convert in.csv whole.csv").status, 0);
    const std::string whole = ReadFile(folder / "whole.csv");
    int replaced = 0;
    for (int i = 0; i < 30; ++i) {
        folder.Write("victim.csv", text);
        Shell("TOOL blackoil convert victim.csv victim.csv & sleep 0.0" + std::to_string(i + 10) +
              "; kill -9 $!; wait");
        const std::string left = ReadFile(folder / "victim.csv");
        ASSERT_TRUE(left == text || left == whole) << i << ": " << left.size();
        replaced += left == whole ? 1 : 0;
    }
    RecordProperty("replaced", replaced);
}

TEST_F(ToolTest, ShowsNothingThatATerminalWouldObey) {
    if (IsForWindows()) {
        GTEST_SKIP() << "Wine's terminal draws by itself, and names are Unicode there.";
    }
    const std::string evil = "\x1b[2J\x9b\xc2\x9b\xe2\x80\xae\xf0\x9f\x9b\xa2";
    const std::string shown = "\\x1b[2J\\x9b\\u009b\\u202e\xf0\x9f\x9b\xa2";
    folder.Write(evil + ".dat", "CNAMES\n'" + evil + "' C2 /\nMW\n16 30 /\nTCRIT\n1 /\n");
    folder.Write("good.dat", "CNAMES\n'" + evil + "' C2 /\n-- Units: K\nTCRIT\n100 200 /\n");
    const Outcome bad = Tool("deck show *2J*.dat");
    EXPECT_TRUE(Contains(bad.messages, shown + ".dat:6: error: ")) << bad.messages;
    EXPECT_TRUE(Contains(Tool("deck show good.dat").output, "\n" + shown + " "));
    EXPECT_TRUE(Contains(Tool("deck show good.dat --json").output,
                         R"("name": "\u001b[2J\ufffd\u009b\u202e\ud83d\udee2")"));
    // A file's text as it is goes to files and pipes, and escaped to a terminal.
    EXPECT_TRUE(Contains(Tool("deck convert good.dat -").output, evil));
    const Outcome terminal = Shell("script -qec \"TOOL deck convert good.dat -\" typescript");
    EXPECT_TRUE(Contains(terminal.output, shown)) << terminal.output;
    EXPECT_FALSE(Contains(terminal.output, "\x1b[2J"));
}

TEST_F(ToolTest, TellsWhoeverWaitsAtATerminalThatWorkGoesOn) {
    if (IsForWindows()) {
        GTEST_SKIP() << "Wine's terminal draws by itself.";
    }
    folder.Write("in.csv", blackOil);
    const std::string slow = "(cat in.csv; sleep 2.5) | TOOL check -";
    EXPECT_EQ(Shell(slow).messages, "");
    EXPECT_EQ(Shell("script -qec \"" + slow + "\" typescript").output,
              "Reading <stdin> ... 2 s\r\x1b[K<stdin>: blackoil, good\r\n");
}

TEST_F(ToolTest, ShowsHeadAndTailOfALongTableInLittleMemory) {
    std::string text = "PVTO,\n";
    for (int i = 1; i <= 200'000; ++i) {
        text += "\t,120.00000000," + std::to_string(i) + ".25000000,1.12800000,0.76000000\n";
    }
    folder.Write("long.csv", text);
    const Outcome run = Tool("blackoil show long.csv");
    rusage usage{};
    getrusage(RUSAGE_CHILDREN, &usage);
    EXPECT_EQ(run.messages.find("error"), std::string::npos);
    EXPECT_TRUE(Contains(run.output, "\n                120         20.25      1.128"
                                     "          0.76\n"
                                     "  ... 199970 more rows, which --all shows ...\n"))
        << run.output;
    EXPECT_EQ(std::ranges::count(run.output, '\n'), 40);
#ifndef __SANITIZE_ADDRESS__ // which keeps memory of its own, and freed memory too
    if (!IsForWindows()) {   // Wine has memory of its own
        EXPECT_LT(static_cast<std::size_t>(usage.ru_maxrss) * 1024, 4 * text.size());
    }
#endif
    EXPECT_EQ(Shell("TOOL blackoil show long.csv --all | wc -l").output, "200009\n");
}
