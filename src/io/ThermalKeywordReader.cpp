// Reads thermal files, as `ThermalTableFormatter` draws them and as people type them:
//
//     STCOND       temperature pressure /
//     NCOMPS       n /
//     CNAMES       names /
//     MW           n numbers /               the same for the other sections of the table below
//     KVCR         five rows of n numbers /
//     KVWI                                   no data: there is no K-value fit
#include "io/ThermalKeywordReader.h"

#include "FileNumber.h"
#include "KeywordWalker.h"
#include "Quote.h"
#include "ThermalUnits.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>
#include <unordered_set>
#include <utility>
#include <vector>

namespace Orv::FluidBench::IO {

using Common::ErrorReport;
using Common::Units;
using Impl::IO::KeywordWalker;
using Impl::IO::WantedKeyword;
using Model::ThermalExportTable;
namespace KeywordKinds = Impl::IO::KeywordKinds;

namespace {

constexpr int decimalsOfHeat = 16; // behind the molecular weights
constexpr int decimalsOfShortWeights = 8;
constexpr int decimalsOfLongWeights = 15;

using Values = std::vector<double>;

// A section with one value for each component, and where it goes.
struct ThermalSection {
    std::string_view keyword;
    FileNumber::Conversion toField;
    FileNumber::Conversion toMetric;
    void (*set)(ThermalExportTable&, Values); // null for the heat capacities
};

template <Values ThermalExportTable::*member>
void Set(ThermalExportTable& table, Values values) {
    table.*member = std::move(values);
}
template <void (ThermalExportTable::*setter)(Values)>
void Call(ThermalExportTable& table, Values values) {
    (table.*setter)(std::move(values));
}

using Table = ThermalExportTable;
// clang-format off
constexpr ThermalSection sections[] = {
    {"MW",       AsItIs,                                AsItIs,                    Set<&Table::MolecularWeights>},
    {"TCRIT",    Units::Temperature_K_To_R,             AsItIs,                    Set<&Table::CriticalTemperatures>},
    {"PCRIT",    Units::Pressure_Pa_To_psi,             Units::Pressure_Pa_To_bar, Set<&Table::CriticalPressures>},
    {"TREFT",    Units::Temperature_K_To_R,             AsItIs,                    Set<&Table::ReferenceTemperatures>},
    {"PREFT",    Units::Pressure_Pa_To_psi,             Units::Pressure_Pa_To_bar, Set<&Table::ReferencePressures>},
    {"DREFT",    Units::Density_kgm3_To_lbft3,          AsItIs,                    Set<&Table::ReferenceDensities>},
    {"ACF",      AsItIs,                                AsItIs,                    Set<&Table::AcentricFactors>},
    {"SPECHA",   AsItIs,                                AsItIs,                    nullptr},
    {"SPECHB",   AsItIs,                                AsItIs,                    nullptr},
    {"SPECHG",   AsItIs,                                AsItIs,                    nullptr},
    {"SPECHH",   AsItIs,                                AsItIs,                    nullptr},
    {"HEATVAPS", HeatOfVaporisationToField,             AsItIs,                    Call<&Table::SetHeatVaps>},
    {"CREF",     Units::Compressibility_perPa_To_perpsi, PerPascalToPerBar,        Call<&Table::SetCRefs>},
    {"THERMEX1", InverseTemperatureToField,             AsItIs,                    Call<&Table::SetThermEx1s>},
    {"ZFACTOR",  AsItIs,                                AsItIs,                    Call<&Table::SetZFactors>},
    {"ZI",       AsItIs,                                AsItIs,                    Call<&Table::SetZis>},
};
struct FitRow {
    FileNumber::Conversion toField;
    FileNumber::Conversion toMetric;
};
constexpr FitRow fitRows[] = {
    {AsItIs,                                AsItIs},
    {Units::Pressure_Pa_To_psi,             Units::Pressure_Pa_To_bar},
    {Units::Compressibility_perPa_To_perpsi, PerPascalToPerBar},
    {Units::Temperature_K_To_R,             AsItIs},
    {Units::Temperature_K_To_R,             AsItIs},
};
// clang-format on

constexpr auto thermalKeywords = [] {
    std::array<WantedKeyword, std::size(sections) + 5> all{
        WantedKeyword{"STCOND"}, {"NCOMPS"}, {"CNAMES"}, {"KVCR"}, {"KVWI"}};
    for (std::size_t i = 0; i < std::size(sections); ++i) {
        all[i + 5].name = sections[i].keyword;
    }
    return all;
}();

double CelsiusToKelvin(double value) {
    return value - Units::Temperature_K_To_C(0.0);
}

Values ToModel(Values values, FileNumber::Conversion toFile) {
    const FileNumber number(toFile, true);
    for (double& value : values) {
        value = number.ToModel(value, decimalsOfHeat);
    }
    return values;
}

class ThermalFile {
public:
    explicit ThermalFile(KeywordWalker& walker) : walker_(walker) {}

    ThermalExportTable Read(std::optional<Units::UNIT_TYPE> units);

private:
    void ReadKeyword();
    void ReadNames();
    void ReadFit();
    void ReadSection(std::size_t index);
    void ReadValues(Values& values, std::string_view meaning);
    void TellSecond(bool isSecond);
    std::size_t Components();

    const std::optional<Values>& Section(std::string_view keyword) const;
    void SetHeat(ThermalExportTable& table, bool isField);
    void SetConditions(ThermalExportTable& table, bool isField);
    void TellMissing();

    KeywordWalker& walker_;
    std::optional<std::array<double, 2>> conditions_; // temperature and pressure
    std::optional<std::uint64_t> count_;
    std::optional<std::vector<std::string>> names_;
    std::array<std::optional<Values>, std::size(sections)> sections_;
    std::optional<std::array<Values, std::size(fitRows)>> fit_;
    bool hasNoFit_ = false;
    int decimalsOfWeights_ = decimalsOfShortWeights;
};

void ThermalFile::ReadKeyword() {
    const std::string keyword = walker_.Keyword();
    if (keyword == "STCOND") {
        TellSecond(conditions_.has_value());
        const std::string_view meaning = "a temperature and a pressure";
        Values values(2);
        ReadValues(values, meaning);
        conditions_ = {values[0], values[1]};
    } else if (keyword == "NCOMPS") {
        TellSecond(count_.has_value());
        count_ = walker_.ReadCount("the number of components");
    } else if (keyword == "CNAMES") {
        ReadNames();
    } else if (keyword == "KVCR") {
        ReadFit();
    } else if (keyword == "KVWI") {
        TellSecond(fit_.has_value() || hasNoFit_);
        fit_.reset();
        hasNoFit_ = true;
    } else {
        const auto* const section = std::ranges::find(sections, keyword, &ThermalSection::keyword);
        ReadSection(static_cast<std::size_t>(section - std::begin(sections)));
    }
}

void ThermalFile::ReadNames() {
    if (names_) {
        walker_.Fail(KeywordKinds::nameTwice, walker_.PositionLine(), "CNAMES once", "it twice");
    }
    names_ = walker_.ReadNames();
    std::unordered_set<std::string_view> known;
    for (const std::string& name : *names_) {
        if (!known.insert(name).second) {
            walker_.Fail(KeywordKinds::nameTwice, walker_.Line(), "a name for each component alone",
                         Text::Quote(name) + " twice");
        }
    }
}

std::size_t ThermalFile::Components() {
    if (!names_) {
        walker_.Fail(KeywordKinds::noNames, walker_.PositionLine(),
                     "CNAMES ahead of a keyword with a value for each component", "none");
    }
    return names_->size();
}

void ThermalFile::ReadFit() {
    TellSecond(fit_.has_value() || hasNoFit_);
    const std::size_t n = Components();
    const std::string meaning =
        "five rows of a number for each component (" + std::to_string(n) + ")";
    Values values(std::size(fitRows) * n);
    ReadValues(values, meaning);
    fit_.emplace();
    for (std::size_t i = 0; i < fit_->size(); ++i) {
        const auto begin = values.begin() + static_cast<std::ptrdiff_t>(i * n);
        (*fit_)[i].assign(begin, begin + static_cast<std::ptrdiff_t>(n));
    }
}

void ThermalFile::ReadSection(std::size_t index) {
    TellSecond(sections_[index].has_value());
    const std::size_t n = Components();
    sections_[index].emplace(n);
    ReadValues(*sections_[index], "a number for each component (" + std::to_string(n) + ")");
    // The weights come ahead of all that has more decimals.
    if (walker_.Keyword() == "MW" && walker_.HasLongNumbers()) {
        decimalsOfWeights_ = decimalsOfLongWeights;
    }
}

// A record of no components has no number.
void ThermalFile::ReadValues(Values& values, std::string_view meaning) {
    if (!values.empty() && !walker_.ReadRow(values, meaning, KeywordWalker::Defaults::AreZero)) {
        walker_.Fail(KeywordKinds::rowLength, walker_.Line(), std::string(meaning), "'/'");
    }
    walker_.EndRecord(meaning);
}

void ThermalFile::TellSecond(bool isSecond) {
    if (isSecond) {
        walker_.Tell(KeywordKinds::secondTime, walker_.PositionLine(),
                     "Expected " + walker_.Keyword() +
                         " once, found it a second time; this time counts.");
    }
}

const std::optional<Values>& ThermalFile::Section(std::string_view keyword) const {
    const auto* const section = std::ranges::find(sections, keyword, &ThermalSection::keyword);
    return sections_[static_cast<std::size_t>(section - std::begin(sections))];
}

void ThermalFile::SetConditions(ThermalExportTable& table, bool isField) {
    if (conditions_) {
        const FileNumber temperature =
            isField ? FileNumber(Units::Temperature_K_To_F, Units::Temperature_F_To_K)
                    : FileNumber(Units::Temperature_K_To_C, CelsiusToKelvin);
        table.StandardTemperature = temperature.ToModel((*conditions_)[0]);
        table.StandardPressure =
            FileNumber(isField ? Units::Pressure_Pa_To_psi : Units::Pressure_Pa_To_bar, true)
                .ToModel((*conditions_)[1]);
    }
}

void ThermalFile::SetHeat(ThermalExportTable& table, bool isField) {
    const std::size_t n = table.ComponentNames.size();
    for (Values* const coefficient :
         {&table.SpecificHeatA, &table.SpecificHeatB, &table.SpecificHeatC, &table.SpecificHeatD}) {
        coefficient->assign(n, 0.0);
    }
    const bool isGas = !Section("SPECHA") && !Section("SPECHB");
    const auto& values = Section(isGas ? "SPECHG" : "SPECHA");
    const auto& slopes = Section(isGas ? "SPECHH" : "SPECHB");
    if (!values || !slopes) {
        return; // told as missing
    }
    if (!isGas && ((Section("SPECHG") && Section("SPECHG") != values) ||
                   (Section("SPECHH") && Section("SPECHH") != slopes))) {
        walker_.Tell(KeywordKinds::gasHeat, 0,
                     "Expected the same heat capacities for oil and gas, found others; the table "
                     "has those of the oil.");
    }
    for (std::size_t i = 0; i < n; ++i) {
        const double molecularWeight = table.MolecularWeights[i];
        if (molecularWeight == 0.0) {
            walker_.Tell(KeywordKinds::noHeat, 0,
                         "Expected a molecular weight other than 0 for " +
                             Text::Quote(table.ComponentNames[i]) +
                             ", found none; it has no heat capacity.");
            continue;
        }
        const HeatLine line =
            LineThrough({(*values)[i], (*slopes)[i]}, {molecularWeight, decimalsOfWeights_},
                        table.StandardTemperature, isField);
        table.SpecificHeatA[i] = line.a;
        table.SpecificHeatB[i] = line.b;
        table.MolecularWeights[i] = line.molecularWeight;
    }
    if (n > 0) {
        walker_.Tell(KeywordKinds::heatLine, 0,
                     "Expected a cubic heat capacity, found its value and slope at one "
                     "temperature; the table has the line through them.");
    }
}

void ThermalFile::TellMissing() {
    const auto tell = [&](std::string_view keyword, bool isThere) {
        if (!isThere) {
            walker_.Tell(KeywordKinds::missingKeyword, 0,
                         "Expected " + std::string(keyword) +
                             ", found no such keyword; its values count as 0.");
        }
    };
    tell("STCOND", conditions_.has_value());
    for (std::size_t i = 0; i < std::size(sections); ++i) {
        tell(sections[i].keyword, sections_[i].has_value());
    }
    tell("KVCR or KVWI", fit_.has_value() || hasNoFit_);
}

ThermalExportTable ThermalFile::Read(std::optional<Units::UNIT_TYPE> units) {
    while (walker_.NextKeyword()) {
        ReadKeyword();
    }
    const bool isField = walker_.IsField(units);
    const std::size_t n = Components();
    if (count_ && *count_ != n) {
        walker_.Fail(KeywordKinds::countDiffers, walker_.PositionLine(),
                     std::to_string(n) + " components under NCOMPS, as there are names",
                     std::to_string(*count_));
    }
    TellMissing();
    ThermalExportTable table;
    table.ComponentCount = n;
    table.ComponentNames = std::move(*names_);
    SetConditions(table, isField);
    for (std::size_t i = 0; i < std::size(sections); ++i) {
        if (sections[i].set != nullptr) {
            sections[i].set(table, ToModel(sections_[i].value_or(Values(n)),
                                           isField ? sections[i].toField : sections[i].toMetric));
        }
    }
    SetHeat(table, isField);
    if (fit_) {
        std::array<Values, std::size(fitRows)> rows;
        for (std::size_t i = 0; i < rows.size(); ++i) {
            rows[i] =
                ToModel(std::move((*fit_)[i]), isField ? fitRows[i].toField : fitRows[i].toMetric);
        }
        table.SetCrookston(std::move(rows[0]), std::move(rows[1]), std::move(rows[2]),
                           std::move(rows[3]), std::move(rows[4]));
    }
    return table;
}

} // namespace

ThermalKeywordReader::ThermalKeywordReader() = default;
ThermalKeywordReader::~ThermalKeywordReader() = default;

void ThermalKeywordReader::SetDiagnosticSink(DiagnosticSink sink) {
    diagnosticSink = std::move(sink);
}

ErrorReport ThermalKeywordReader::Read(const std::string& fileName, ThermalExportTable& table,
                                       std::optional<Units::UNIT_TYPE> units) const {
    return ReadKeywords({fileName}, diagnosticSink, thermalKeywords, table,
                        [&](KeywordWalker& walker) { return ThermalFile(walker).Read(units); });
}

ErrorReport ThermalKeywordReader::Read(std::istream& in, ThermalExportTable& table,
                                       std::optional<Units::UNIT_TYPE> units,
                                       const std::string& name) const {
    return ReadKeywords({name, &in}, diagnosticSink, thermalKeywords, table,
                        [&](KeywordWalker& walker) { return ThermalFile(walker).Read(units); });
}

} // namespace Orv::FluidBench::IO
