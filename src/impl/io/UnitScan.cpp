#include "UnitScan.h"

#include "TextFile.h"

namespace Orv::FluidBench::Impl::IO {

using Text::blockSize;

namespace {

constexpr char inBothKeywords = 'T';
constexpr std::size_t longestWord = std::string_view("FILEUNIT").size();

bool Contains(std::string_view text, std::string_view word) noexcept {
    return text.find(word) != std::string_view::npos;
}

} // namespace

std::optional<bool> UnitScan::FindMetric() {
    Words previous;
    bool isBehindFileUnit = false;
    for (;;) {
        if (!isBehindFileUnit) {
            PassPlainLines();
        }
        Words line;
        if (!ReadLine(line)) {
            break;
        }
        if (isBehindFileUnit) {
            if (line.metric || line.field) {
                return line.metric;
            }
            isBehindFileUnit = false;
        } else {
            if (line.tcrit && (previous.unitsR || previous.unitsK)) {
                return !previous.unitsR;
            }
            isBehindFileUnit = line.fileUnit;
        }
        previous = line;
    }
    return std::nullopt;
}

void UnitScan::Look(std::string_view text, Words& words) {
    words.tcrit = words.tcrit || Contains(text, "TCRIT");
    words.fileUnit = words.fileUnit || Contains(text, "FILEUNIT");
    words.unitsR = words.unitsR || Contains(text, "Units: R");
    words.unitsK = words.unitsK || Contains(text, "Units: K");
    words.metric = words.metric || Contains(text, "METRIC");
    words.field = words.field || Contains(text, "FIELD");
}

// Looks at the next line, piece by piece; two pieces overlap by what a word may lack in the first.
// False at the end of the text.
bool UnitScan::ReadLine(Words& words) {
    bool hasText = false;
    for (;;) {
        const std::string_view ahead = input_.Ahead();
        const std::size_t newline = ahead.find('\n');
        if (newline != std::string_view::npos) {
            Look(ahead.substr(0, newline), words);
            input_.Pass(newline + 1);
            return true;
        }
        if (ahead.size() < blockSize && ReadMore(ahead.size())) {
            continue;
        }
        hasText = hasText || !ahead.empty();
        Look(ahead, words);
        if (ahead.size() < blockSize) {
            input_.Pass(ahead.size());
            return hasText;
        }
        input_.Pass(ahead.size() - (longestWord - 1));
    }
}

// At the head of a line: passes lines that hold no keyword and don't stand ahead of one that may.
void UnitScan::PassPlainLines() {
    for (;;) {
        const std::string_view ahead = input_.Ahead();
        const std::size_t keyword = ahead.find(inBothKeywords);
        // The newline in front of the line that may hold a keyword, and the one before.
        const std::size_t last = ahead.substr(0, keyword).rfind('\n');
        const std::size_t newline =
            last == std::string_view::npos || last == 0 ? last : ahead.rfind('\n', last - 1);
        if (last != std::string_view::npos && newline != std::string_view::npos && last != 0) {
            input_.Pass(newline + 1);
        }
        const bool isVeryLong =
            input_.Ahead().size() >= blockSize && newline == std::string_view::npos;
        if (keyword != std::string_view::npos || isVeryLong || !ReadMore(input_.Ahead().size())) {
            return;
        }
    }
}

// Whether there is more ahead than that many characters.
bool UnitScan::ReadMore(std::size_t size) {
    return input_.MoreAhead().size() > size;
}

} // namespace Orv::FluidBench::Impl::IO
