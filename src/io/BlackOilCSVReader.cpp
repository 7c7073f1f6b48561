// Reads the CSV form of black-oil tables, as `CSVFormatter` draws it. A scanner of three states:
//
//     state        line                     next state
//     top level    key "pvto"               oil table
//                  key "pvtg"               gas table
//                  any other                top level; the keys of densities are taken
//     oil table    "Units" anywhere in it   top level; the line stands ahead of the gas heading
//                  any other                oil table
//     gas table    any                      gas table, to the end of the file
//
// A key is what stands ahead of a line's first comma, in capitals or not. In a table, an empty line
// ends a record, and a line of fewer than five cells is skipped.
#include "io/BlackOilExportFileWriter.h"

#include "FluidBench/Common/Units.h"
#include "LineReader.h"
#include "NumberText.h"
#include "TextFile.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

namespace Orv::FluidBench::IO {

using Common::Units;
using Model::BlackOilDataRecords;
using Model::BlackOilTable;
using Text::LineReader;
using Text::OpenForReading;
using Text::ParseAsAtof;

namespace {

enum class TableKind { Oil, Gas };

// By hand, since tolower asks the program's locale.
constexpr char ToLower(char c) noexcept {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool IsKey(std::string_view text, std::string_view key) noexcept {
    return std::ranges::equal(text, key, {}, ToLower);
}

// The cells behind the first one, which holds nothing. The last takes the rest of the line.
using Cells = std::array<std::string_view, 4>;

std::optional<Cells> SplitRow(std::string_view line) noexcept {
    Cells cells;
    std::size_t comma = line.find(',');
    for (std::size_t i = 0; i + 1 < cells.size() && comma != std::string_view::npos; ++i) {
        const std::size_t begin = comma + 1;
        comma = line.find(',', begin);
        cells[i] = line.substr(begin, comma - begin);
    }
    if (comma == std::string_view::npos) {
        return std::nullopt;
    }
    cells.back() = line.substr(comma + 1);
    return cells;
}

BlackOilDataRecords ReadTable(LineReader& lines, TableKind kind) {
    const bool isOil = kind == TableKind::Oil;
    const std::size_t pressure = isOil ? 1 : 0;
    const std::size_t ratio = isOil ? 0 : 1;
    BlackOilDataRecords records;
    std::uint64_t record = 0;
    bool recordHasRows = false;
    std::string_view line;
    while (lines.Next(line)) {
        if (line.empty()) {
            // More empty lines, or one ahead of the first row, end nothing: records have no gaps.
            record += recordHasRows ? 1 : 0;
            recordHasRows = false;
        } else if (isOil && line.find("Units") != std::string_view::npos) {
            break;
        } else if (const auto cells = SplitRow(line)) {
            records.AddEntry(record, Units::Pressure_bar_To_Pa(ParseAsAtof((*cells)[pressure])),
                             ParseAsAtof((*cells)[ratio]), ParseAsAtof((*cells)[2]),
                             Units::Viscosity_cp_To_Pas(ParseAsAtof((*cells)[3])));
            recordHasRows = true;
        }
    }
    return records;
}

} // namespace

BlackOilTable BlackOilExportFileWriter::GetTableFromCSVFile(const std::string& fileName) const {
    BlackOilTable table;
    std::ifstream file = OpenForReading(fileName);
    if (!file.is_open()) {
        return table;
    }
    LineReader lines(file);
    std::string_view line;
    while (lines.Next(line)) {
        const std::size_t comma = line.find(',');
        if (comma == std::string_view::npos) {
            continue;
        }
        const std::string_view key = line.substr(0, comma);
        const std::string_view value = line.substr(comma + 1);
        if (IsKey(key, "oden")) {
            table.SetOilDensity(ParseAsAtof(value));
        } else if (IsKey(key, "wden")) {
            table.SetWaterDensity(ParseAsAtof(value));
        } else if (IsKey(key, "gden")) {
            table.SetGasDensity(ParseAsAtof(value));
        } else if (IsKey(key, "pvto")) {
            table.SetLiveOilData(ReadTable(lines, TableKind::Oil));
        } else if (IsKey(key, "pvtg")) {
            table.SetWetGasData(ReadTable(lines, TableKind::Gas));
        }
    }
    return table;
}

} // namespace Orv::FluidBench::IO
