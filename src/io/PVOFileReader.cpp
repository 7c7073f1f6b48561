#include "io/PVOFileReader.h"

#include "FluidBench/Common/Exceptions.h"
#include "IOException.h"
#include "Messages.h"
#include "PVOImporter.h"

#include <optional>
#include <utility>

namespace Orv::FluidBench::IO {

using Common::EmptyComponentNameException;
using Common::ErrorReport;
using Common::PropertyOutOfRangeException;
using Common::pvtEnumErrorCode;
using Common::pvtEnumPVOErrorSeverityLevel;
using Common::pvtEnumPVOUnitSystemType;
using Impl::IO::IOFileNotFound;
using Impl::IO::PVOImporter;
using Model::CompositionalFluid;
namespace MessageId = Impl::IO::MessageId;

PVOFileReader::PVOFileReader() : importer_(std::make_unique<PVOImporter>()) {}
PVOFileReader::~PVOFileReader() = default;
PVOFileReader::PVOFileReader(PVOFileReader&&) noexcept = default;
PVOFileReader& PVOFileReader::operator=(PVOFileReader&&) noexcept = default;

void PVOFileReader::SetPVOName(const std::string& name) {
    importer_->SetFileName(name);
}
const std::string& PVOFileReader::GetPVOName() const {
    return importer_->GetFileName();
}

void PVOFileReader::SetPVOUnitSystem(pvtEnumPVOUnitSystemType unitSystem) {
    importer_->SetUnitSystem(unitSystem);
}
pvtEnumPVOUnitSystemType PVOFileReader::GetPVOUnitSystemToUse() const {
    return importer_->GetUnitSystem();
}

void PVOFileReader::SetPVOErrorMessageSeverityLevel(pvtEnumPVOErrorSeverityLevel level) {
    importer_->SetSeverityLevel(level);
}

void PVOFileReader::SetDiagnosticSink(DiagnosticSink sink) {
    importer_->SetDiagnosticSink(std::move(sink));
}

std::optional<double> PVOFileReader::GetReservoirTemperature() const {
    return importer_->GetReservoirTemperature();
}

ErrorReport PVOFileReader::Read(CompositionalFluid& fluid, bool detectUnitSystem) {
    ErrorReport report;
    std::optional<std::string> reason;
    try {
        constexpr bool characterise = false;
        report = importer_->Import(fluid, characterise, detectUnitSystem);
    } catch (const EmptyComponentNameException& error) {
        reason = error.what();
    } catch (const PropertyOutOfRangeException& error) {
        reason = error.what();
    } catch (const IOFileNotFound& error) {
        reason = error.what();
    }
    if (reason) {
        report.Add(Impl::IO::Failure(MessageId::deckNotRead));
        report.Add(Impl::IO::FreeText(pvtEnumErrorCode::Error, *reason));
    }
    if (report.HasErrors()) {
        fluid = CompositionalFluid("");
    }
    return report;
}

} // namespace Orv::FluidBench::IO
