#include "io/KValuesTableFormatter.h"

#include "KValuesColumns.h"
#include "NumberText.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace Orv::FluidBench::IO {

using Common::Units;
using Model::KValuesTable;
using Text::AppendAsInserted;
using Text::TextBuffer;
using Text::WriteNumber;

namespace {

// A line on its way to the stream, which is left-adjusted. A blank follows each cell; what is wider
// than a cell isn't cut.
class CellLine {
public:
    explicit CellLine(std::ostream& out) : out_(out), fill_(out.fill()) {}

    void Add(std::string_view text) {
        const std::size_t end = line_.Size() + kValuesCellWidth;
        (line_ += text).FillTo(end, fill_) += ' ';
    }
    void Add(double value) {
        const std::size_t end = line_.Size() + kValuesCellWidth;
        AppendAsInserted(line_, value, out_);
        line_.FillTo(end, fill_) += ' ';
    }
    void End() {
        line_ += '\n';
        line_.WriteTo(out_);
        out_.flush();
    }

private:
    std::ostream& out_;
    char fill_;
    TextBuffer line_;
};

} // namespace

IKValuesTableFormatter::~IKValuesTableFormatter() = default;

KValuesTableFormatter::KValuesTableFormatter(Units::UNIT_TYPE unitType) : units(unitType) {}
KValuesTableFormatter::~KValuesTableFormatter() = default;

void KValuesTableFormatter::Echo(std::ostream& out) const {
    out << "ECHO" << std::endl;
}

void KValuesTableFormatter::KVTable(std::ostream& out, const KValuesTable& table) const {
    const std::uint64_t recordSize = table.GetRecordSize();
    if (table.Temperature >= 0.0) {
        out << (IsField() ? "-- Temperature (F): " : "-- Temperature (K): ");
        WriteNumber(out,
                    IsField() ? Units::Temperature_K_To_F(table.Temperature) : table.Temperature);
        out << std::endl;
    }
    out << std::left;
    out.width(0);
    CellLine line(out);
    line.Add("-- Components:");
    for (const std::string& name : table.GetComponents()) {
        line.Add(name);
    }
    line.End();
    line.Add(IsField() ? "-- Units: psia" : "-- Units: bar");
    for (std::uint64_t column = 1; column < recordSize; ++column) {
        line.Add("dimensionless");
    }
    line.End();

    out << "KVTABLE" << std::endl << "-- K-Values" << std::endl << "-- " << std::endl;
    const auto convert = IsField() ? Units::Pressure_Pa_To_psi : Units::Pressure_Pa_To_bar;
    const std::uint64_t tableSize = table.GetTableSize();
    for (std::uint64_t index = 0; index < tableSize; ++index) {
        if (recordSize > 0) {
            const std::vector<double>& record = table.GetRecord(index);
            line.Add(convert(record.at(0)));
            for (std::uint64_t column = 1; column < recordSize; ++column) {
                line.Add(record.at(column));
            }
        }
        line.End();
    }
    out << '/' << std::endl << std::endl;
}

void KValuesTableFormatter::EndDataRecord(std::ostream& /*out*/) const {}

} // namespace Orv::FluidBench::IO
