// Files of every format whose disk fails while they are read: nobody takes that for their end.
#include "Diagnosed.h"
#include "FailingRead.h"
#include "PublicOperations.h"
#include "TestSupport.h"
#include "io/BlackOilExportFileWriter.h"
#include "io/BlackOilKeywordReader.h"
#include "io/DFAReader.h"
#include "io/MFLFileReader.h"
#include "io/PVOFileReader.h"
#include "io/PhaseEnvelopeReaderWriter.h"

#include <functional>

using namespace Orv::FluidBench;
using namespace FluidBenchTest;

namespace {

std::string Sample(const std::string& name) {
    return ReadFile(FLUIDBENCH_EXAMPLE_DATA "/" + name);
}

bool DeckIsRead(const std::string& file, bool detectUnits) {
    IO::PVOFileReader reader;
    reader.SetPVOName(file);
    Model::CompositionalFluid fluid("");
    return !reader.Read(fluid, detectUnits).HasErrors();
}

bool MflIsRead(const std::string& file) {
    Diagnosed diagnosed;
    IO::MFLFileReader reader;
    reader.SetMFLFileName(file);
    reader.SetDiagnosticSink(diagnosed.Sink());
    Model::CompositionalFluid fluid("as it was");
    const bool isRead = !reader.Read(fluid).HasErrors();
    EXPECT_EQ(diagnosed.Take().ends_with(":read-failed"), !isRead);
    EXPECT_EQ(fluid.GetName() == "as it was", !isRead);
    return isRead;
}

bool BlackOilIsRead(const std::string& file) {
    Diagnosed diagnosed;
    IO::BlackOilExportFileWriter reader;
    reader.SetDiagnosticSink(diagnosed.Sink());
    reader.GetTableFromCSVFile(file);
    return diagnosed.Take(IO::Severity::Error).empty();
}

bool EnvelopesAreRead(const std::string& file) {
    Diagnosed diagnosed;
    IO::PhaseEnvelopeReaderWriter reader;
    reader.SetDiagnosticSink(diagnosed.Sink());
    reader.SetFileName(file);
    std::vector<Common::CommonPlottingObject> plots;
    std::vector<std::string> messages;
    reader.Read(plots, messages);
    return diagnosed.Take(IO::Severity::Error).empty();
}

bool KeywordsAreRead(const std::string& file) {
    std::vector<Model::BlackOilTable> regions;
    const bool isRead = !IO::BlackOilKeywordReader().Read(file, regions).HasErrors();
    EXPECT_EQ(regions.empty(), !isRead);
    return isRead;
}

} // namespace

TEST(FailedReads, AreNotTakenForTheEnd) {
    const std::string lines(100'000, '\n');
    struct Case {
        const char* format;
        std::string file;
        std::string content; // whole ahead of what may be lost, but for decks
        std::function<bool(const std::string& file)> isRead;
    };
    const TemporaryFolder folder;
    const auto dfaIsRead = [&](const std::string&) {
        IO::DFAReader reader;
        const bool isRead = reader.Import(folder / "WELL_DFA.txt");
        EXPECT_EQ(reader.GetExtractedData().empty(), !isRead);
        return isRead;
    };
    const std::string deck = ReadData("deck-export/six-component-fluid-field.pvo");
    const Case cases[] = {
        {"deck", "fluid.dat", deck + lines,
         [](const auto& file) { return DeckIsRead(file, false); }},
        {"units", "units.dat", deck + lines,
         [](const auto& file) { return DeckIsRead(file, true); }},
        {"MFL", "fluid.mfl", Sample("six-component-oil.mfl") + lines, MflIsRead},
        {"black oil", "oil.csv", Sample("reservoir-black-oil.csv") + lines, BlackOilIsRead},
        {"envelopes", "gas.csv", Sample("rich-gas-envelope.csv") + lines, EnvelopesAreRead},
        {"black-oil keywords", "oil.inc", Sample("two-region-black-oil.inc") + lines,
         KeywordsAreRead},
        {"DFA", "WELL_DFA.txt", Sample("north-field_DFA.txt") + lines, dfaIsRead},
        {"FT", "WELL_FT.txt", Sample("north-field_FT.txt") + lines, dfaIsRead},
    };
    for (const Case& each : cases) {
        folder.Write(each.file, each.content);
    }
    for (const Case& each : cases) {
        const std::string file = folder / each.file;
        EXPECT_TRUE(each.isRead(file)) << each.format;
        for (const std::size_t byte :
             {std::size_t{0}, std::size_t{100}, std::size_t{70'000}, each.content.size()}) {
            FailReads(file, byte);
            EXPECT_FALSE(each.isRead(file)) << each.format << " at " << byte;
            FailReads("", 0);
        }
    }
}

// Whichever call fails: what is said to be read is all of the file, and the next time it is.
TEST(FailedReads, LoseNothingInSilence) {
    for (const ReadOperation& each : ReadOperations()) {
        const Reading whole = each.make();
        ASSERT_TRUE(whole.read()) << each.name;
        const Reading reading = each.make();
        for (int call = 1, calls = call; calls >= call; ++call) {
            FailCall("", 0);
            FailCall("examples/data/", call);
            bool isRead = false;
            try {
                isRead = reading.read();
            } catch (const std::exception&) { // as the reader says
            }
            calls = FailCall("", 0);
            EXPECT_TRUE(!isRead || reading.text() == whole.text()) << each.name << ' ' << call;
            EXPECT_TRUE(isRead || calls >= call) << each.name << ' ' << call;
        }
        EXPECT_TRUE(reading.read()) << each.name;
        EXPECT_EQ(reading.text(), whole.text()) << each.name;
    }
}
