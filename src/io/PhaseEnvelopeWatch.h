// Tells what the reader of phase envelope files takes or passes over and may not be meant so.
#pragma once

#include "Diagnostics.h"
#include "FluidBench/Common/PTline.h"
#include "PhaseEnvelopeLines.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Orv::FluidBench::Impl::IO {

/// Looks at the line under the cursor as the parser goes from state to state. It is asked only when
/// somebody listens, so it may take each line apart once more.
class PhaseEnvelopeWatch {
public:
    /// All of these outlive the object.
    PhaseEnvelopeWatch(Diagnostics& diagnostics, const EnvelopeLines& lines, char separator)
        : diagnostics_(diagnostics), lines_(lines), separator_(separator) {}

    void OutsideBlock();
    void AheadOfHeadings();
    /// The lines that were made of the headings, in the order of their columns.
    void Headings(const std::vector<Common::PTline>& lines);
    void OpenHeading();
    void Row();
    void EndBlock();

    void FlashMissing();
    void HeadingsMissing();
    void NoEnvelope();

private:
    // A line of the plot and what its columns have so far.
    struct Pair {
        std::string name;
        std::size_t numbers[2] = {}; // temperatures, pressures
        std::uint64_t half = 0;      // the first row with one of them alone; 0 where there is none
    };

    void HeadingPair(std::string_view heading, std::string_view second);
    void Fraction(std::string_view cell);
    void Order(const std::vector<std::string_view>& headings,
               const std::vector<Common::PTline>& lines);
    bool Cell(std::string_view cell, std::string_view column);
    void ShortRow(std::size_t cells);
    void Tell(const DiagnosticKind& kind, const std::string& sentence) {
        diagnostics_.Tell(kind, lines_.Number(), sentence);
    }

    Diagnostics& diagnostics_;
    const EnvelopeLines& lines_;
    char separator_;
    std::uint64_t headings_ = 0; // their line
    bool hasRows_ = false;
    bool hasDigits_ = false; // among the names of the headings
    std::vector<Pair> pairs_;
};

} // namespace Orv::FluidBench::Impl::IO
