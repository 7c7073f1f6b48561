// What every reader and writer of keyword files has to hold, and a plain reader of such files that
// knows numbers, keywords and slashes and nothing else.
#pragma once

#include "FluidBench/Common/ErrorReport.h"
#include "FluidBench/Common/Units.h"
#include "Told.h"

#include <istream>
#include <map>
#include <optional>
#include <sstream>
#include <streambuf>
#include <string>
#include <string_view>
#include <vector>

namespace FluidBenchFuzz {

/// The numbers of each keyword, one after another. A key in small letters is of an object alone,
/// for what its file has without numbers, such as the lengths of records.
using Columns = std::map<std::string, std::vector<double>>;

/// The units of a file: what a number in model units is divided by. By their definitions, and by no
/// means by the library's functions.
struct FileUnits {
    explicit FileUnits(bool isField);
    double pressure;    ///< Pa
    double depth;       ///< m
    double density;     ///< kg/m3
    double gasInOil;    ///< m3/m3
    double oilInGas;    ///< m3/m3
    double gasVolume;   ///< m3/m3
    double degree;      ///< K
    double heat;        ///< J/(kg K)
    double latentHeat;  ///< kJ/kg
    double zeroCelsius; ///< what the file has for 0 K
};
std::vector<double> InUnits(std::vector<double> values, double unit);

struct PlainFile {
    Columns columns;
    std::map<std::string, int> times; ///< how often each keyword is there
    std::optional<bool> isField;
};
/// Nothing where the text has more than that: other keywords than these, includes, quotes among
/// numbers, defaults, text behind a slash. With `passesOthers`, other keywords and what is theirs
/// don't matter.
std::optional<PlainFile> ReadPlainly(std::string_view text,
                                     const std::vector<std::string>& keywords,
                                     bool passesOthers = false);

/// Whether a plain reader takes it for a name.
bool IsPlainName(const std::string& name);

/// Whether no number comes near the largest and the smallest ones, where a unit makes infinities or
/// loses digits.
bool IsUsual(const Columns& columns);

/// Throws where the object's columns aren't those of the file: what only one of them has may be
/// zeros at its end.
void RequireColumns(const Columns& ofFile, const Columns& ofObject, double relative,
                    double absolute, const std::string& promise);

/// A stream's buffer that gives a text in pieces of some length, as no string's does.
class PiecesBuffer : public std::streambuf {
public:
    PiecesBuffer(std::string_view text, std::size_t length) : text_(text), length_(length) {}

protected:
    int_type underflow() override {
        const std::size_t taken = std::min(length_, text_.size() - next_);
        setg(text_.data() + next_, text_.data() + next_, text_.data() + next_ + taken);
        next_ += taken;
        return taken == 0 ? traits_type::eof() : traits_type::to_int_type(*gptr());
    }

private:
    std::string text_;
    std::size_t length_;
    std::size_t next_ = 0;
};

inline std::string TextOf(const Orv::FluidBench::Common::ErrorReport& report) {
    std::string text;
    for (const auto& message : report.GetMessages()) {
        text += message.GetText() + '\n';
    }
    return text;
}

template <typename Object>
struct Outcome {
    bool isRead = false;
    Object object{};
    Told told;
    std::string report;
};

/// What `Format` says of a family: its Reader, its Object, `keywords`, `InFile(object, units)`,
/// `Names(object)`, `Parts(object)`, which are objects of as much of it as a file holds,
/// `Write(object, stream, unit)`, what a number may lose in a file, and the codes of diagnostics
/// with which a plain reader can't agree.
template <typename Format, typename Source>
Outcome<typename Format::Object>
ReadBy(Source&& source, std::optional<Orv::FluidBench::Common::Units::UNIT_TYPE> units,
       const std::string& name) {
    Outcome<typename Format::Object> outcome;
    typename Format::Reader reader;
    reader.SetDiagnosticSink(outcome.told.Sink());
    Orv::FluidBench::Common::ErrorReport report;
    if constexpr (std::is_convertible_v<Source, std::string>) {
        report = reader.Read(source, outcome.object, units);
    } else {
        report = reader.Read(source, outcome.object, units, name);
    }
    outcome.isRead = !report.HasErrors();
    outcome.report = TextOf(report);
    Require(outcome.isRead != outcome.told.HasErrors() && outcome.isRead == outcome.report.empty(),
            "A file that is refused says why, by its report and a diagnostic, and no other does");
    return outcome;
}

template <typename Format>
void RequireComesBack(const typename Format::Object& object) {
    using Orv::FluidBench::Common::Units;
    for (const auto unit : {Units::METRIC, Units::FIELD}) {
        std::ostringstream out;
        Format::Write(object, out, unit);
        const std::string text = out.str();
        const Columns columns = Format::InFile(object, FileUnits(unit == Units::FIELD));
        const auto plain = ReadPlainly(text, Format::keywords);
        Require(plain.has_value() || !std::ranges::all_of(Format::Names(object), IsPlainName),
                "A plain reader reads a file");
        Require(!plain || plain->isField == (unit == Units::FIELD), "A file says its units");
        RequireColumns(plain ? plain->columns : columns, columns, Format::relative,
                       Format::absolute, "A file has the object's numbers");
        std::istringstream in(text);
        const auto again = ReadBy<Format>(in, std::nullopt, "written");
        // Numbers that differ may be the same when they are written.
        if (!again.isRead && again.told.HasAny({"keywords.row-order"})) {
            continue;
        }
        Require(again.isRead, "What is written is read: " + again.report + text);
        RequireColumns(Format::InFile(again.object, FileUnits(unit == Units::FIELD)), columns,
                       Format::relative, Format::absolute, "What is written comes back");
        Require(Format::Names(again.object) == Format::Names(object), "The names come back");
    }
}

template <typename Format>
void TestKeywordFile(std::string_view input) {
    using Orv::FluidBench::Common::Units;
    const bool tellsUnits = input.find("FILEUNIT") != std::string_view::npos;
    const auto units = tellsUnits
                           ? std::nullopt
                           : std::optional(input.size() % 2 == 0 ? Units::METRIC : Units::FIELD);
    FileWith("included.inc", input.substr(0, input.size() / 2));
    const std::string path = FileWith("input.inc", input);
    const auto outcome = ReadBy<Format>(path, units, path);
    const FileUnits metric(false);
    const Columns inModel = Format::InFile(outcome.object, metric);

    PiecesBuffer pieces(input, 1 + input.size() % 5000);
    std::istream stream(&pieces);
    const auto fromStream = ReadBy<Format>(stream, units, path);
    Require(fromStream.told.Text() == outcome.told.Text() && fromStream.report == outcome.report &&
                Format::Names(fromStream.object) == Format::Names(outcome.object),
            "A stream and a file tell the same");
    RequireColumns(Format::InFile(fromStream.object, metric), inModel, 0.0, 0.0,
                   "A stream and a file give the same");
    typename Format::Object alone{};
    typename Format::Reader().Read(path, alone, units);
    RequireColumns(Format::InFile(alone, metric), inModel, 0.0, 0.0,
                   "A reader gives the same when nobody listens");
    if (!outcome.isRead) {
        Require(std::ranges::all_of(inModel, [](const auto& each) { return each.second.empty(); }),
                "A file that is refused leaves a blank object");
        return;
    }
    if (!IsUsual(inModel)) {
        return;
    }
    const std::vector<typename Format::Object> parts = Format::Parts(outcome.object);
    const auto plain = ReadPlainly(input, Format::keywords);
    if (plain && !parts.empty() &&
        !outcome.told.HasAny({"keywords.not-taken", "keywords.stray-numbers"}) &&
        !outcome.told.HasAny(Format::otherwiseRead)) {
        const bool isField = plain->isField.value_or(units == Units::FIELD);
        RequireColumns(plain->columns, Format::InFile(outcome.object, FileUnits(isField)),
                       std::min(Format::relative, 1e-9), Format::absolute,
                       "A plain reader reads the same");
    }
    for (const typename Format::Object& part : parts) {
        RequireComesBack<Format>(part);
    }
}

} // namespace FluidBenchFuzz
