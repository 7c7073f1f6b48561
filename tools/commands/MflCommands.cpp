// fluidbench-io mfl: looks into MFL fluid files.
#include "FluidView.h"
#include "Fluids.h"
#include "Progress.h"
#include "io/MFLFileReader.h"

#include <string>
#include <utility>
#include <vector>

namespace FluidBenchTool {

using Orv::FluidBench::IO::MFLFileReader;

namespace Mfl {
namespace {

void PrintStreams(std::ostream& out, const FluidFile& file, Extent extent) {
    Cells headings{"stream"};
    for (const std::string& name : file.fluid.ListComponents()) {
        headings.push_back(name);
    }
    PrintTable(out,
               {std::move(headings), file.streams.size(),
                [&file](std::uint64_t row) {
                    Cells cells{std::to_string(row + 1)};
                    for (const double amount : file.streams[row]) {
                        cells.push_back(NumberText(amount));
                    }
                    return cells;
                }},
               extent);
}

void Show(Call& call) {
    const ShowForm form = ShowFormOf(call);
    Input input(call.Operand(0), call.Told());
    const FluidFile file = ReadMfl(input, call);
    const bool field = IsField(call, Options::showUnits);
    std::ostream& out = call.Out();
    switch (form) {
    case ShowForm::Text:
        PrintFluid(out, file.fluid, field, ExtentOf(call));
        if (!file.streams.empty()) {
            out << '\n';
            PrintStreams(out, file, ExtentOf(call));
        }
        break;
    case ShowForm::Csv:
        PrintFluidCsv(out, file.fluid, field);
        break;
    case ShowForm::Json:
        JsonWriter json(out);
        json.BeginObject();
        json.Add("format", "mfl");
        WriteFluid(json, file.fluid);
        json.AddRows("streams", file.streams);
        json.EndObject();
        break;
    }
}

constexpr Option showOptions[] = {Options::showUnits, Options::all, Options::json, Options::csv,
                                  Options::strict};
constexpr Command commands[] = {
    {"mfl", "show",
     "Show the fluid of an MFL file: its components, coefficients and streams. 'deck convert' "
     "writes it as a deck",
     "IN", showOptions, Show}};

} // namespace

std::span<const Command> Commands() {
    return commands;
}

void Check(Input& input, Call& call) {
    ReadMfl(input, call);
}

} // namespace Mfl

FluidFile ReadMfl(Input& input, Call& call) {
    Messages& messages = call.Told();
    const Progress progress(messages, "Reading " + input.Name());
    const std::uint64_t errors = messages.Errors();
    MFLFileReader reader;
    reader.SetMFLFileName(input.FileName());
    reader.SetDiagnosticSink(messages.Sink());
    FluidFile file;
    messages.TellReport(reader.ReadStreams(file.fluid, file.streams), input.Name(), errors);
    return file;
}

} // namespace FluidBenchTool
