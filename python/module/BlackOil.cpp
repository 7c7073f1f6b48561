// Black-oil tables.
#include "Families.h"
#include "FluidBench/Model/BlackOilTable.h"
#include "Keywords.h"
#include "Streams.h"
#include "Values.h"
#include "io/BlackOilExportFileWriter.h"
#include "io/BlackOilKeywordReader.h"

#include <array>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace FluidBenchPython {

namespace py = pybind11;
using Orv::FluidBench::IO::BlackOilExportFileWriter;
using Orv::FluidBench::IO::BlackOilKeywordReader;
using Orv::FluidBench::Model::BlackOilDataRecords;
using Orv::FluidBench::Model::BlackOilTable;
using Writer = BlackOilExportFileWriter;

namespace {

// Five columns: the number of the record, counted from 1, pressure, the table's ratio, formation
// volume factor and viscosity.
py::tuple RecordsToPython(const BlackOilDataRecords& records) {
    py::ssize_t rows = 0;
    for (std::uint64_t record = 0; record < records.GetTableSize(); ++record) {
        rows += static_cast<py::ssize_t>(records.GetRecordContentSize(record));
    }
    py::array_t<std::int32_t> number(rows);
    std::array<Numbers, 4> columns{Numbers(rows), Numbers(rows), Numbers(rows), Numbers(rows)};
    std::int32_t* nextNumber = number.mutable_data();
    std::array<double*, 4> next{};
    for (std::size_t i = 0; i < columns.size(); ++i) {
        next[i] = columns[i].mutable_data();
    }
    for (std::uint64_t record = 0; record < records.GetTableSize(); ++record) {
        const std::uint64_t entries = records.GetRecordContentSize(record);
        for (std::uint64_t entry = 0; entry < entries; ++entry) {
            *nextNumber++ = static_cast<std::int32_t>(record) + 1;
            *next[0]++ = records.GetPressure(record, entry);
            *next[1]++ = records.GetProperty(record, entry);
            *next[2]++ = records.GetFormationVolumeFactor(record, entry);
            *next[3]++ = records.GetViscosity(record, entry);
        }
    }
    return py::make_tuple(number, columns[0], columns[1], columns[2], columns[3]);
}

// The way back. A record is a run of rows with the same number.
BlackOilDataRecords RecordsFromPython(const py::tuple& columns) {
    const auto number = columns[0].cast<Integers>();
    const auto pressure = columns[1].cast<Numbers>();
    const auto property = columns[2].cast<Numbers>();
    const auto volumeFactor = columns[3].cast<Numbers>();
    const auto viscosity = columns[4].cast<Numbers>();
    BlackOilDataRecords records;
    for (py::ssize_t row = 0; row < number.size(); ++row) {
        const bool begins = row == 0 || number.at(row) != number.at(row - 1);
        records.AddEntry(records.GetTableSize() - (begins ? 0 : 1), pressure.at(row),
                         property.at(row), volumeFactor.at(row), viscosity.at(row));
    }
    return records;
}

// Each part of the table goes when it is in Python, so that the next one finds memory that is
// warm.
py::dict TableToPython(BlackOilTable table) {
    py::dict result;
    result["live_oil"] = RecordsToPython(table.GetLiveOilData());
    table.SetLiveOilData(BlackOilDataRecords());
    result["dead_oil"] = RecordsToPython(table.GetDeadOilData());
    table.SetDeadOilData(BlackOilDataRecords());
    result["wet_gas"] = RecordsToPython(table.GetWetGasData());
    table.SetWetGasData(BlackOilDataRecords());
    result["dry_gas"] = RecordsToPython(table.GetDryGasData());
    result["oil_density"] = table.GetOilDensity();
    result["gas_density"] = table.GetGasDensity();
    result["water_density"] = table.GetWaterDensity();
    result["saturation_pressure"] = table.GetSaturationPointPressure();
    result["saturation_gas_oil_ratio"] = table.GetSaturationPointRs();
    return result;
}

BlackOilTable TableFromPython(const py::dict& given) {
    const auto number = [&given](const char* key) { return given[key].cast<double>(); };
    const auto records = [&given](const char* key) {
        return given.contains(key) ? RecordsFromPython(given[key].cast<py::tuple>())
                                   : BlackOilDataRecords();
    };
    BlackOilTable table;
    table.SetLiveOilData(records("live_oil"));
    table.SetDeadOilData(records("dead_oil"));
    table.SetWetGasData(records("wet_gas"));
    table.SetDryGasData(records("dry_gas"));
    table.SetOilDensity(number("oil_density"));
    table.SetGasDensity(number("gas_density"));
    table.SetWaterDensity(number("water_density"));
    table.SetSaturationPoint(number("saturation_gas_oil_ratio"), number("saturation_pressure"));
    return table;
}

py::tuple ReadCsv(const py::object& source, const py::str& name) {
    Findings findings;
    Writer reader;
    reader.SetDiagnosticSink(findings.Sink());
    reader.SetReadsSaturationPoint(true);
    BlackOilTable table =
        Source(source, name)
            .Read([&](const std::string& path) { return reader.GetTableFromCSVFile(path); },
                  [&](std::istream& in, const std::string& called) {
                      return reader.GetTableFromCSVFile(in, called);
                  });
    py::list regions;
    regions.append(TableToPython(std::move(table)));
    return findings.With(regions);
}

py::tuple ReadKeywordFile(const py::object& source, const py::str& name, const std::string& units) {
    Findings findings;
    std::vector<BlackOilTable> tables;
    ReadKeywords<BlackOilKeywordReader>(source, name, units, findings, tables);
    py::list regions;
    for (BlackOilTable& table : tables) {
        regions.append(TableToPython(std::move(table)));
    }
    return findings.With(regions);
}

// "live" or "dead" oil, and "wet" or "dry" gas.
Writer::EXPORT_TYPE TablesFromPython(const std::string& oil, const std::string& gas) {
    return oil == "live" ? (gas == "wet" ? Writer::LIVE_OIL_WET_GAS : Writer::LIVE_OIL_DRY_GAS)
                         : (gas == "wet" ? Writer::DEAD_OIL_WET_GAS : Writer::DEAD_OIL_DRY_GAS);
}

py::tuple Write(const py::function& write, const py::list& regions, bool csv,
                const std::string& units, const std::string& oil, const std::string& gas,
                bool highPrecision) {
    std::vector<BlackOilTable> tables;
    for (const py::handle region : regions) {
        tables.push_back(TableFromPython(region.cast<py::dict>()));
    }
    const auto choice = TablesFromPython(oil, gas);
    const auto unitType = UnitsFromPython(units);
    Findings findings;
    findings.Add(WriteTo(write, [&](std::ostream& out) {
        const Writer writer(highPrecision);
        return csv ? writer.ExportToFile(tables.at(0), out, unitType, choice, Writer::CSV)
                   : writer.ExportRegions(tables, out, unitType, choice);
    }));
    return findings.With(py::none());
}

} // namespace

void AddBlackOil(py::module_& module) {
    module.def("read_black_oil_csv", ReadCsv, py::arg("source"), py::arg("name"));
    module.def("read_black_oil_keywords", ReadKeywordFile, py::arg("source"), py::arg("name"),
               py::arg("units"));
    module.def("write_black_oil", Write, py::arg("write"), py::arg("regions"), py::arg("csv"),
               py::arg("units"), py::arg("oil"), py::arg("gas"), py::arg("high_precision"));
}

} // namespace FluidBenchPython
