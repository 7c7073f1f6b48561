#include "io/KValuesTableFormatter.h"

#include "NumberText.h"

#include <cstdint>
#include <iomanip>
#include <string>
#include <string_view>

namespace Orv::FluidBench::IO {

using Common::Units;
using Model::KValuesTable;
using Text::WriteNumber;

namespace {

constexpr int cellWidth = 24;

// A cell is left-adjusted and a blank follows it. What is wider than a cell isn't cut.
void WriteCell(std::ostream& out, std::string_view text) {
    out << std::left << std::setw(cellWidth) << text << ' ';
}
void WriteCell(std::ostream& out, double value) {
    out << std::left << std::setw(cellWidth);
    WriteNumber(out, value);
    out << ' ';
}

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
    WriteCell(out, "-- Components:");
    for (const std::string& name : table.GetComponents()) {
        WriteCell(out, name);
    }
    out << std::endl;
    WriteCell(out, IsField() ? "-- Units: psia" : "-- Units: bar");
    for (std::uint64_t column = 1; column < recordSize; ++column) {
        WriteCell(out, "dimensionless");
    }
    out << std::endl;

    out << "KVTABLE" << std::endl << "-- K-Values" << std::endl << "-- " << std::endl;
    const auto convert = IsField() ? Units::Pressure_Pa_To_psi : Units::Pressure_Pa_To_bar;
    const std::uint64_t tableSize = table.GetTableSize();
    for (std::uint64_t index = 0; index < tableSize; ++index) {
        if (recordSize > 0) {
            const std::vector<double>& record = table.GetRecord(index);
            WriteCell(out, convert(record.at(0)));
            for (std::uint64_t column = 1; column < recordSize; ++column) {
                WriteCell(out, record.at(column));
            }
        }
        out << std::endl;
    }
    out << '/' << std::endl << std::endl;
}

void KValuesTableFormatter::EndDataRecord(std::ostream& /*out*/) const {}

} // namespace Orv::FluidBench::IO
