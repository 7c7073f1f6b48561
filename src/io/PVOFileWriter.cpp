// The deck as a whole: its head, and the order of its sections.
//
//     RUNSPEC ... PROPS        only when asked for
//     ECHO
//     FILEUNIT                 metric or field
//     RTEMP
//     EOS, PRCORR              PRCORR for the corrected Peng-Robinson equations
//     NCOMPS, CNAMES, MW, OMEGAA, OMEGAB, TCRIT, PCRIT, VCRIT, ZCRIT
//     SSHIFT                   for an equation of state with a volume shift
//     ACF, BIC, PARACHOR, VCRITVIS, LBCCOEF, ZI
//
// Every keyword stands alone on its line with a line "--" behind it; every record ends in a line
// "/" and another "--". There is no keyword at the end.
#include "io/PVOFileWriter.h"

#include "ComponentSections.h"
#include "DeckText.h"
#include "FluidBench/Common/Units.h"
#include "NumberText.h"
#include "OutputFile.h"

namespace Orv::FluidBench::IO {

using Common::ErrorReport;
using Common::pvtEnumEoS;
using Common::Units;
using Impl::IO::WriteFile;
using Model::CompositionalFluid;
using Text::AppendNumber;

namespace {

void WriteLines(std::ostream& deck, std::initializer_list<const char*> lines) {
    for (const char* const line : lines) {
        WriteDeckLine(deck, line);
    }
}

void WriteRunspecSection(std::ostream& deck, bool writeRunspec, bool metric, std::size_t n) {
    if (!writeRunspec) {
        return;
    }
    WriteLines(deck, {"RUNSPEC", "--", "COMPS", "--"});
    std::string line;
    AppendNumber(line, std::uint64_t{n});
    WriteDeckLine(deck, line);
    WriteLines(deck, {"/", "--", metric ? "METRIC" : "FIELD", "--", "PROPS", "--"});
}

void WriteFileUnit(std::ostream& deck, bool metric) {
    std::string record = FileUnitHeader(metric);
    WriteDeckLine(deck, record);
    WriteDeckLine(deck, "--");
}

void WriteReservoirTemperature(std::ostream& deck, double reservoirTemperature, bool metric) {
    WriteLines(deck, {metric ? "--Units: C" : "--Units: F", "RTEMP", "--"});
    std::string line;
    AppendNumber(line,
                 metric ? Units::Temperature_K_To_C(reservoirTemperature)
                        : Units::Temperature_K_To_F(reservoirTemperature),
                 deckNumber);
    WriteDeckLine(deck, line);
    WriteLines(deck, {"/", "--"});
}

void WriteEoSSection(std::ostream& deck, const CompositionalFluid& fluid) {
    const pvtEnumEoS eos = fluid.GetEoS();
    WriteLines(deck, {"EOS", "--"});
    std::string name = DeckEoSName(eos);
    WriteDeckLine(deck, name);
    WriteLines(deck, {"/", "--"});
    if (eos == pvtEnumEoS::PengRobinson78 || eos == pvtEnumEoS::PengRobinson78VolumeShift) {
        WriteDeckLine(deck, "PRCORR");
    }
}

void WriteDeck(std::ostream& deck, const CompositionalFluid& fluid, const Components& components,
               double reservoirTemperature, bool metric, bool writeRunspec) {
    const std::size_t n = components.size();
    WriteRunspecSection(deck, writeRunspec, metric, n);
    WriteLines(deck, {"ECHO", "--"});
    WriteFileUnit(deck, metric);
    WriteReservoirTemperature(deck, reservoirTemperature, metric);
    WriteEoSSection(deck, fluid);
    WriteComponentNames(deck, fluid, n);
    WriteMolecularWeights(deck, components, n);
    WriteOmegas(deck, components, n);
    WriteCriticalTemperatures(deck, components, n, metric);
    WriteCriticalPressures(deck, components, n, metric);
    WriteCriticalVolumes(deck, components, n, metric);
    WriteCriticalZFactors(deck, components, n);
    WriteVolumeShifts(deck, fluid, reservoirTemperature, components, n);
    WriteAcentricFactors(deck, components, n);
    WriteBinaryInteractions(deck, fluid, n);
    WriteParachors(deck, components, n);
    WriteViscosityAndComposition(deck, fluid, components, n, metric);
}

} // namespace

PVOFileWriter::PVOFileWriter() = default;
PVOFileWriter::~PVOFileWriter() = default;

// A fluid that can't give its components leaves an older file as it is.
ErrorReport PVOFileWriter::ExportToPVO(const CompositionalFluid& fluid, const std::string& fileName,
                                       double reservoirTemperature, bool metric,
                                       bool writeRunspec) {
    const Components components = fluid.GetOrderedComponents();
    return WriteFile(fileName, [&](std::ostream& out) {
        WriteDeck(out, fluid, components, reservoirTemperature, metric, writeRunspec);
        return ErrorReport();
    });
}

ErrorReport PVOFileWriter::ExportToPVO(const CompositionalFluid& fluid, std::ostream& out,
                                       double reservoirTemperature, bool metric,
                                       bool writeRunspec) {
    WriteDeck(out, fluid, fluid.GetOrderedComponents(), reservoirTemperature, metric, writeRunspec);
    return {};
}

} // namespace Orv::FluidBench::IO
