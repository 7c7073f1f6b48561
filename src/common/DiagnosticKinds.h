// Every diagnostic of the library's own readers: its code and how much it matters. What each means
// and what to do about it stands in docs/diagnostics.md.
#pragma once

#include "io/Diagnostics.h"

namespace Orv::FluidBench::Impl::IO {

struct DiagnosticKind {
    const char* code;
    FluidBench::IO::Severity severity;
};

// clang-format off
namespace Kinds {

using enum FluidBench::IO::Severity;

// Of all readers.
inline constexpr DiagnosticKind cantOpen         {"file.cant-open", Error};
inline constexpr DiagnosticKind readFailed       {"file.read-failed", Error};
inline constexpr DiagnosticKind lineTooLong      {"file.line-too-long", Error};
inline constexpr DiagnosticKind utf16            {"file.utf-16", Error};
inline constexpr DiagnosticKind carriageReturns  {"file.carriage-returns", Error};

} // namespace Kinds

namespace BlackOilKinds {

using enum FluidBench::IO::Severity;

inline constexpr DiagnosticKind noTable          {"blackoil.no-table", Error};
inline constexpr DiagnosticKind noRows           {"blackoil.no-rows", Warning};
inline constexpr DiagnosticKind rowSkipped       {"blackoil.row-skipped", Warning};
inline constexpr DiagnosticKind rowOutsideTable  {"blackoil.row-outside-table", Warning};
inline constexpr DiagnosticKind otherSeparator   {"blackoil.other-separator", Warning};
inline constexpr DiagnosticKind paddedRow        {"blackoil.padded-row", Warning};
inline constexpr DiagnosticKind firstCell        {"blackoil.first-cell", Warning};
inline constexpr DiagnosticKind notANumber       {"blackoil.not-a-number", Warning};
inline constexpr DiagnosticKind textBehindNumber {"blackoil.text-behind-number", Warning};
inline constexpr DiagnosticKind notFinite        {"blackoil.not-finite", Warning};
inline constexpr DiagnosticKind otherUnits       {"blackoil.other-units", Warning};
inline constexpr DiagnosticKind headingInTable   {"blackoil.heading-in-table", Warning};
inline constexpr DiagnosticKind headingForm      {"blackoil.heading-form", Warning};
inline constexpr DiagnosticKind secondTable      {"blackoil.second-table", Warning};
inline constexpr DiagnosticKind pressureOrder    {"blackoil.pressure-order", Warning};
inline constexpr DiagnosticKind negativeValue    {"blackoil.negative-value", Warning};
inline constexpr DiagnosticKind noDensities      {"blackoil.no-densities", Warning};
inline constexpr DiagnosticKind noWaterDensity   {"blackoil.no-water-density", Note};
inline constexpr DiagnosticKind otherText        {"blackoil.other-text", Note};

} // namespace BlackOilKinds

namespace EnvelopeKinds {

using enum FluidBench::IO::Severity;

inline constexpr DiagnosticKind noSeparator      {"envelope.no-separator", Error};
inline constexpr DiagnosticKind noEnvelope       {"envelope.no-envelope", Error};
inline constexpr DiagnosticKind noFlash          {"envelope.no-flash", Error};
inline constexpr DiagnosticKind noHeadings       {"envelope.no-headings", Error};
inline constexpr DiagnosticKind openHeading      {"envelope.open-heading", Error};
inline constexpr DiagnosticKind lineTooLong      {"envelope.line-too-long", Error};
inline constexpr DiagnosticKind otherUnits       {"envelope.other-units", Warning};
inline constexpr DiagnosticKind headingOrder     {"envelope.heading-order", Warning};
inline constexpr DiagnosticKind digitsInHeading  {"envelope.digits-in-heading", Warning};
inline constexpr DiagnosticKind fractionRange    {"envelope.fraction-range", Warning};
inline constexpr DiagnosticKind shortRow         {"envelope.short-row", Warning};
inline constexpr DiagnosticKind extraCells       {"envelope.extra-cells", Warning};
inline constexpr DiagnosticKind notANumber       {"envelope.not-a-number", Warning};
inline constexpr DiagnosticKind textBesideNumber {"envelope.text-beside-number", Warning};
inline constexpr DiagnosticKind notFinite        {"envelope.not-finite", Warning};
inline constexpr DiagnosticKind unevenColumns    {"envelope.uneven-columns", Warning};
inline constexpr DiagnosticKind rowOutsideBlock  {"envelope.row-outside-block", Warning};
inline constexpr DiagnosticKind noRows           {"envelope.no-rows", Note};

} // namespace EnvelopeKinds

namespace DfaKinds {

using enum FluidBench::IO::Severity;

inline constexpr DiagnosticKind noHeader         {"dfa.no-header", Error};
inline constexpr DiagnosticKind noStation        {"dfa.no-station", Error};
inline constexpr DiagnosticKind secondHeader     {"dfa.second-header", Warning};
inline constexpr DiagnosticKind notARow          {"dfa.not-a-row", Warning};
inline constexpr DiagnosticKind rowCut           {"dfa.row-cut", Warning};
inline constexpr DiagnosticKind shortRow         {"dfa.short-row", Warning};
inline constexpr DiagnosticKind textBehindNumber {"dfa.text-behind-number", Warning};
inline constexpr DiagnosticKind absentValue      {"dfa.absent-value", Warning};
inline constexpr DiagnosticKind noPressure       {"dfa.no-pressure", Warning};
inline constexpr DiagnosticKind wellReturns      {"dfa.well-returns", Warning};
inline constexpr DiagnosticKind noBlank          {"dfa.no-blank", Warning};
inline constexpr DiagnosticKind negativeValue    {"dfa.negative-value", Warning};
inline constexpr DiagnosticKind rowTwice         {"dfa.row-twice", Warning};
inline constexpr DiagnosticKind pressureUnused   {"dfa.pressure-unused", Note};
inline constexpr DiagnosticKind otherText        {"dfa.other-text", Note};

} // namespace DfaKinds

// Of all readers of keyword files.
namespace KeywordKinds {

using enum FluidBench::IO::Severity;

inline constexpr DiagnosticKind noTable          {"keywords.no-table", Error};
inline constexpr DiagnosticKind notANumber       {"keywords.not-a-number", Error};
inline constexpr DiagnosticKind notAName         {"keywords.not-a-name", Error};
inline constexpr DiagnosticKind rowLength        {"keywords.row-length", Error};
inline constexpr DiagnosticKind repeatCount      {"keywords.repeat-count", Error};
inline constexpr DiagnosticKind noDefault        {"keywords.no-default", Error};
inline constexpr DiagnosticKind recordNotClosed  {"keywords.record-not-closed", Error};
inline constexpr DiagnosticKind textBehindSlash  {"keywords.text-behind-slash", Error};
inline constexpr DiagnosticKind rowOrder         {"keywords.row-order", Error};
inline constexpr DiagnosticKind noPressure       {"keywords.no-pressure", Error};
inline constexpr DiagnosticKind noNames          {"keywords.no-names", Error};
inline constexpr DiagnosticKind nameTwice        {"keywords.name-twice", Error};
inline constexpr DiagnosticKind countDiffers     {"keywords.count-differs", Error};
inline constexpr DiagnosticKind noRowEnd         {"keywords.no-row-end", Error};
inline constexpr DiagnosticKind pressuresDiffer  {"keywords.pressures-differ", Error};
inline constexpr DiagnosticKind include          {"keywords.include", Error};
inline constexpr DiagnosticKind noUnits          {"keywords.no-units", Error};
inline constexpr DiagnosticKind otherUnits       {"keywords.other-units", Error};
inline constexpr DiagnosticKind secondUnits      {"keywords.second-units", Error};
inline constexpr DiagnosticKind unitsContradicted{"keywords.units-contradicted", Error};
inline constexpr DiagnosticKind notTaken         {"keywords.not-taken", Warning};
inline constexpr DiagnosticKind strayNumbers     {"keywords.stray-numbers", Warning};
inline constexpr DiagnosticKind skipNotClosed    {"keywords.skip-not-closed", Warning};
inline constexpr DiagnosticKind defaultIsZero    {"keywords.default-is-zero", Warning};
inline constexpr DiagnosticKind noRows           {"keywords.no-rows", Warning};
inline constexpr DiagnosticKind fewerRegions     {"keywords.fewer-regions", Warning};
inline constexpr DiagnosticKind noDensities      {"keywords.no-densities", Warning};
inline constexpr DiagnosticKind missingKeyword   {"keywords.missing-keyword", Warning};
inline constexpr DiagnosticKind secondTime       {"keywords.second-time", Warning};
inline constexpr DiagnosticKind gasHeat          {"keywords.gas-heat", Warning};
inline constexpr DiagnosticKind noHeat           {"keywords.no-heat", Warning};
inline constexpr DiagnosticKind depthOrder       {"keywords.depth-order", Warning};
inline constexpr DiagnosticKind heatLine         {"keywords.heat-line", Note};
inline constexpr DiagnosticKind waterDensity     {"keywords.water-density", Note};

} // namespace KeywordKinds
namespace MflKinds {

using enum FluidBench::IO::Severity;

inline constexpr DiagnosticKind form             {"mfl.form", Error};
inline constexpr DiagnosticKind keyword          {"mfl.keyword", Error};
inline constexpr DiagnosticKind table            {"mfl.table", Error};
inline constexpr DiagnosticKind row              {"mfl.row", Error};
inline constexpr DiagnosticKind value            {"mfl.value", Error};
inline constexpr DiagnosticKind lineTooLong      {"mfl.line-too-long", Error};
inline constexpr DiagnosticKind incomplete       {"mfl.incomplete", Error};
inline constexpr DiagnosticKind tooMany          {"mfl.too-many", Error};

} // namespace MflKinds

// Of deck reading, besides what the simulator has to say.
namespace DeckKinds {

using enum FluidBench::IO::Severity;

inline constexpr DiagnosticKind noFluid          {"deck.no-fluid", Error};
inline constexpr DiagnosticKind specificHeats    {"deck.specific-heats", Error};
inline constexpr DiagnosticKind modelUnsupported {"deck.model-unsupported", Error};
inline constexpr DiagnosticKind valueRefused     {"deck.value-refused", Error};
inline constexpr DiagnosticKind valueDropped     {"deck.value-dropped", Warning};
inline constexpr DiagnosticKind unitsAssumed     {"deck.units-assumed", Warning};
inline constexpr DiagnosticKind otherUnits       {"deck.other-units", Warning};
inline constexpr DiagnosticKind nameChanged      {"deck.name-changed", Warning};

} // namespace DeckKinds
// clang-format on

} // namespace Orv::FluidBench::Impl::IO
