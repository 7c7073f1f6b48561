#include "Commands.h"

#include "FormatFinder.h"
#include "Progress.h"

namespace FluidBenchTool {

using Orv::FluidBench::Common::Units;

namespace {

constexpr const char* field = "field";

} // namespace

void Call::Write(const std::string& name, const std::function<void(std::ostream&)>& write) {
    messages_.RequireNoFailure();
    const Progress progress(messages_, "Writing " + name);
    WriteOutput(name, standardOutput_, messages_, write);
}

Units::UNIT_TYPE UnitsOf(const std::string& word) {
    return word == field ? Units::FIELD : Units::METRIC;
}

std::optional<Units::UNIT_TYPE> FromUnits(const Call& call) {
    const std::string word = call.Asked().Value(Options::fromUnits, "auto");
    return word == "auto" ? std::nullopt : std::optional(UnitsOf(word));
}

void RequireMetric(const Input& input, Call& call) {
    if (FromUnits(call) == Units::FIELD) {
        call.Told().Fail(ToolKinds::otherUnits, input.Name(),
                         "Expected no choice of field units, as the form with commas is metric "
                         "always.");
    }
}

bool HasKeywords(Input& input) {
    return FindFormat(input.Text()).hasKeywords;
}

bool IsField(const Call& call, const Option& option) {
    return call.Asked().Value(option) == field;
}

bool IsToCsv(const Call& call, const std::string& name) {
    const char* const byName = name.ends_with(".csv") ? "csv" : "keywords";
    return call.Asked().Value(Options::toKeywordsOrCsv, byName) == "csv";
}

ShowForm ShowFormOf(const Call& call) {
    const bool isJson = call.Asked().Has(Options::json);
    const bool isCsv = call.Asked().Has(Options::csv);
    if (isJson && isCsv) {
        throw WrongUsage("--json and --csv don't go together.");
    }
    return isJson ? ShowForm::Json : isCsv ? ShowForm::Csv : ShowForm::Text;
}

Extent ExtentOf(const Call& call) {
    return call.Asked().Has(Options::all) ? Extent::All : Extent::HeadAndTail;
}

void TellComparison(Call& call, std::string_view format, const Comparison& comparison) {
    if (call.Asked().Has(Options::json)) {
        comparison.Write(call.Out(), format, call.Operand(0), call.Operand(1));
    } else {
        comparison.Print(call.Out(), call.Operand(0), call.Operand(1));
    }
    call.status = comparison.IsEmpty() ? Status::good : Status::different;
}

void RequirePictureName(const std::string& name) {
    if (!name.ends_with(".svg")) {
        throw WrongUsage("The picture is an SVG file: its name has to end in .svg, unlike '" +
                         name + "'.");
    }
}

void RefuseSameFile(Call& call, const std::string& input, const std::string& output) {
    if (IsSameFile(input, output)) {
        call.Told().Fail(ToolKinds::cantWrite, output,
                         "Expected another file than the one that is read, found the same.");
    }
}

std::span<const Family> Families() {
    static const Family families[] = {
        {"deck", "keyword decks of compositional fluids", Deck::Commands(), Deck::Check},
        {"blackoil", "black-oil tables", BlackOil::Commands(), BlackOil::Check},
        {"compositions", "compositions against pressure", Compositions::Commands(),
         Compositions::Check},
        {"kvalues", "K-value tables", KValues::Commands(), KValues::Check},
        {"thermal", "thermal data", Thermal::Commands(), Thermal::Check},
        {"depth", "fluids by depth", Depth::Commands(), Depth::Check},
        {"envelope", "phase envelopes", Envelope::Commands(), Envelope::Check},
        {"dfa", "downhole fluid analyses", Dfa::Commands(), Dfa::Check},
        {"mfl", "MFL fluid files", Mfl::Commands(), Mfl::Check},
    };
    return families;
}

} // namespace FluidBenchTool
