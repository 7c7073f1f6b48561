// Reads the text exports of a downhole fluid analysis job.
#pragma once

#include "FluidBench/Experiments/ObservedExperiment.h"
#include "FluidBench/Model/CompositionalFluid.h"
#include "io/Diagnostics.h"
#include "io/Export.h"

#include <cstdint>
#include <iosfwd>
#include <string>
#include <vector>

namespace Orv::FluidBench::Impl::IO {
class Diagnostics;
}

namespace Orv::FluidBench::IO {

/// The rows of one export as they stand in the file. Entry k of each vector belongs to row k.
struct Data {
    std::vector<std::vector<double>> rows;  ///< the numbers behind the texts, across the whole row
    std::vector<std::string> stationLabels; ///< the second quoted texts
    std::vector<std::string> wellNames;     ///< the first quoted texts
};

/// The stations of one well, in the units of the file. Entry k of each vector belongs to station k;
/// the stations stand in ascending depth.
struct WellData {
    std::string name;                              ///< as in the file
    std::vector<double> pressures;                 ///< psi; 0.0 where none was measured
    std::vector<double> temperatures;              ///< degrees F
    std::vector<double> densities;                 ///< g/cc
    std::vector<double> gasOilRatios;              ///< scf/stb
    std::vector<double> depths;                    ///< ft
    std::vector<double> stationValues;             ///< as in the file
    std::vector<std::vector<double>> compositions; ///< fractions of C1, C2, C3-C5, C6+ and CO2
};

/// Reads a pair of exports, the measured fluids and the pressures, and gives the stations of each
/// well, their raw fluids, and an experiment of a well.
///
/// The caller names the main file. The pressures are in the FT file beside it, whose name has
/// "FT.txt" in place of the last seven characters: WELL_DFA.txt leads to WELL_FT.txt. Both files
/// have the same form:
///
///     anything                                            ignored
///     BEGIN HEADER                                        anywhere in its line
///     anything                                            ignored
///     END HEADER                                          anywhere in its line
///     1 "WELL A" 9850 1 1190 52.1 "STATION 1" 7.9 12.4    a row
///
/// A row has exactly four double quotes; any other line is skipped. The first quoted text names the
/// well, the second one the station. The numbers behind them, each parted from the next by one
/// blank, make one sequence across both. They end at the first that isn't a number, and so at two
/// adjacent blanks. A row with too few numbers is skipped as well. Counted from 0, they are
///
///     main file   0 depth, 2 gas-oil ratio, 3-7 composition in percent, 8 density,
///                 17 temperature, 19 station value
///     FT file     0 depth, 2 pressure
///
/// A value: a copy shares nothing with its source. One thread at a time may use a reader; several
/// may call its const operations while nobody imports.
class FLUIDBENCH_IO_API DFAReader {
public:
    DFAReader();
    DFAReader(const DFAReader&);
    ~DFAReader();
    DFAReader& operator=(const DFAReader&);

    /// Takes what `Import` has to say beside its result ("dfa..." and "file...").
    void SetDiagnosticSink(DiagnosticSink sink);

    /// Reads the main file and its FT file and adds their wells behind those of earlier calls. A
    /// well is a run of rows with the same well name. A station's pressure is that of the last row
    /// of the FT file with the same well name and depth.
    ///
    /// False when either file can't be opened, lacks its header or can't be read to its end; the
    /// wells are then as they were, as they are after any exception. A file without any row is no
    /// failure.
    bool Import(std::string fileName);
    /// The same from a stream for each file, both of which are read to their ends; diagnostics call
    /// them by the names.
    bool Import(std::istream& main, std::istream& pressures, const std::string& mainName = {},
                const std::string& pressuresName = {});

    /// The wells of all imports. Valid until the next import or assignment.
    const std::vector<WellData>& GetExtractedData() const;

    /// Chooses the well of the following two operations, which check the index.
    void SetIndexOfWell(int index);

    /// The measured fluid of a station of the chosen well, counted in ascending depth: C1, C2, and
    /// CO2 from the component library, and C3toC5 and C6+ without any property. Fractions are mass
    /// fractions; a negative one becomes zero, and their sum may differ from 1. Throws
    /// `std::out_of_range` when there is no such well or station.
    Model::CompositionalFluid GetRawFluid(int station) const;

    /// The chosen well as an experiment: one stage per station, in ascending depth, with its raw
    /// fluid and with pressure, gas-oil ratio, density, depth, temperature and station value in
    /// model units. A negative value becomes zero in the units of the file. Throws
    /// `std::out_of_range` when there is no such well.
    Experiments::ObservedExperiment GetDFAExperiment() const;

private:
    bool ImportData(std::istream& main, Impl::IO::Diagnostics& ofMain, std::istream& pressures,
                    Impl::IO::Diagnostics& ofPressures);
    std::vector<WellData> ExtractDataOfInterest(const std::vector<std::uint64_t>& lines,
                                                Impl::IO::Diagnostics& ofMain,
                                                const std::vector<std::uint64_t>& pressureLines,
                                                Impl::IO::Diagnostics& ofPressures) const;

    std::vector<int> SortStations(std::vector<double> depths) const;
    std::vector<int> SortStations() const;
    void SortStations(std::vector<WellData>& records) const;
    double FilterOutNegativeValues(double value) const;

    Data mainData;
    Data pressureData;
    std::vector<WellData> wells;
    int indexOfWell = 0;
    DiagnosticSink diagnosticSink;
};

} // namespace Orv::FluidBench::IO
