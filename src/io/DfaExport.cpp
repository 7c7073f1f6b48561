#include "DfaExport.h"

#include "CellNumber.h"
#include "Characters.h"
#include "LineReader.h"
#include "NumberText.h"
#include "Quote.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

namespace Orv::FluidBench::Impl::IO {

using Text::CellContent;
using Text::ExtractDecimal;
using Text::Holds;
using Text::LineReader;
using Text::Quote;
using Text::TakeExtracted;

namespace {

// Written where nothing was measured.
constexpr double absentValues[] = {-999.0, -999.25, -9999.0};

// A row as its quotes cut it, without what stands ahead of them.
struct RowText {
    std::string_view well;
    std::string_view firstNumbers;
    std::string_view station;
    std::string_view lastNumbers;
};

// Nothing unless the line has exactly four quotes.
std::optional<RowText> CutRow(std::string_view line) {
    constexpr std::size_t quotesOfRow = 4;
    std::array<std::string_view, quotesOfRow + 1> pieces;
    for (std::size_t i = 0; i < quotesOfRow; ++i) {
        const std::size_t quote = line.find('"');
        if (quote == std::string_view::npos) {
            return std::nullopt;
        }
        pieces[i] = line.substr(0, quote);
        line.remove_prefix(quote + 1);
    }
    pieces[quotesOfRow] = line;
    if (Holds(line, "\"")) {
        return std::nullopt;
    }
    return RowText{pieces[1], pieces[2], pieces[3], pieces[4]};
}

std::string_view WithoutFirst(std::string_view text) {
    return text.substr(std::min<std::size_t>(1, text.size()));
}

// The numbers of a text whose parts stand between single blanks, up to the first part that isn't a
// number: false where there is one. Text behind a number in its part doesn't matter.
bool ReadNumbers(std::string_view text, std::vector<double>& numbers) {
    for (;;) {
        std::string_view rest = text;
        // White space may lead a number, but not from one part into the next.
        const bool isSpaceAhead = text.empty() || static_cast<unsigned char>(text.front()) <= ' ';
        const auto number =
            isSpaceAhead ? ExtractDecimal(text.substr(0, text.find(' '))) : TakeExtracted(rest);
        if (!number) {
            return false;
        }
        numbers.push_back(*number);
        const std::size_t blank = rest.find(' ');
        if (blank == std::string_view::npos) {
            return true;
        }
        text = rest.substr(blank + 1);
    }
}

// The blank behind each quoted text goes; the one that parts the two texts ends the first.
std::string NumberTextOf(const RowText& row) {
    return std::string(WithoutFirst(row.firstNumbers)) += WithoutFirst(row.lastNumbers);
}

std::vector<double> NumbersOf(const RowText& row, std::size_t expected) {
    std::vector<double> numbers;
    numbers.reserve(expected);
    std::string_view first = WithoutFirst(row.firstNumbers);
    if (first.ends_with(' ')) { // and so parts end there
        first.remove_suffix(1);
        if (ReadNumbers(first, numbers)) {
            ReadNumbers(WithoutFirst(row.lastNumbers), numbers);
        }
    } else {
        ReadNumbers(NumberTextOf(row), numbers);
    }
    return numbers;
}

// Tells what the parser passes over. It is asked only when somebody listens.
class DfaWatch {
public:
    DfaWatch(Diagnostics& diagnostics, const LineReader& lines, const DfaFile& file)
        : diagnostics_(diagnostics), lines_(lines), file_(file) {}

    void NotARow(std::string_view line);
    void Row(const RowText& row, const std::vector<double>& numbers);
    void SecondHeader(std::size_t rows);
    void MissingMark(const char* mark);
    void OpenHeader();

private:
    void Blanks(const RowText& row);
    void Part(std::string_view part, std::size_t column);
    void Value(const DfaColumn& column, double value);
    void Tell(const DiagnosticKind& kind, const std::string& sentence) {
        diagnostics_.Tell(kind, lines_.Number(), sentence);
    }

    Diagnostics& diagnostics_;
    const LineReader& lines_;
    const DfaFile& file_;
};

void DfaWatch::NotARow(std::string_view line) {
    const auto quotes = std::ranges::count(line, '"');
    if (quotes > 0) {
        Tell(DfaKinds::notARow, "Expected four double quotes, found " + std::to_string(quotes) +
                                    " in " + Quote(line) + "; the line is skipped.");
    } else if (!Text::WithoutBlanks(line).empty()) {
        Tell(DfaKinds::otherText,
             "Expected a row with its well in double quotes, found " + Quote(line) + ".");
    }
}

void DfaWatch::Row(const RowText& row, const std::vector<double>& numbers) {
    Blanks(row);
    const std::string text = NumberTextOf(row);
    std::size_t column = 0;
    std::size_t begin = 0;
    for (; column < numbers.size(); ++column) {
        const std::size_t end = std::min(text.find(' ', begin), text.size());
        Part(std::string_view(text).substr(begin, end - begin), column);
        begin = std::min(end + 1, text.size());
    }
    const std::string_view rest = std::string_view(text).substr(begin);
    if (!Text::WithoutBlanks(rest).empty()) {
        const std::string_view part = rest.substr(0, rest.find(' '));
        Tell(DfaKinds::rowCut,
             "Expected numbers parted by single blanks, found " +
                 (part.empty() ? std::string("two adjacent blanks") : Quote(part)) +
                 " for column " + std::to_string(column) + "; the row ends ahead of it.");
    }
    if (numbers.size() < file_.columns) {
        Tell(DfaKinds::shortRow, "Expected at least " + std::to_string(file_.columns) +
                                     " numbers in a row of the " + file_.name + ", found " +
                                     std::to_string(numbers.size()) + "; the row is skipped.");
        return;
    }
    for (const DfaColumn& each : file_.columnsRead) {
        if (numbers[each.index] < 0.0) {
            Value(each, numbers[each.index]);
        }
    }
}

// Of a negative value, as those that stand for none are, too.
void DfaWatch::Value(const DfaColumn& column, double value) {
    std::string found;
    Text::AppendNumber(found, value, {});
    if (std::ranges::find(absentValues, value) != std::end(absentValues)) {
        Tell(DfaKinds::absentValue, std::string("Expected a measured ") + column.name + ", found " +
                                        found + ", which stands for none as a rule; it is taken.");
    } else {
        Tell(DfaKinds::negativeValue, std::string("Expected a ") + column.name +
                                          " of zero or more, found " + found +
                                          "; it counts as 0 in a fluid or an experiment.");
    }
}

// The reader takes off one character behind each quoted text, and puts together what is left.
void DfaWatch::Blanks(const RowText& row) {
    for (const std::string_view numbers : {row.firstNumbers, row.lastNumbers}) {
        if (!numbers.empty() && !Text::IsSpace(numbers.front())) {
            Tell(DfaKinds::noBlank, "Expected a blank behind the quoted text, found " +
                                        Quote(numbers.substr(0, 1)) + " ahead of " +
                                        Quote(numbers.substr(1)) + "; that character isn't read.");
        }
    }
    const std::string_view first = WithoutFirst(row.firstNumbers);
    const std::string_view last = WithoutFirst(row.lastNumbers);
    if (!first.empty() && !Text::WithoutBlanks(last).empty() && !Text::IsSpace(first.back())) {
        Tell(DfaKinds::noBlank, "Expected a blank ahead of the second quoted text, found " +
                                    Quote(first) +
                                    "; its last number goes on with what is behind the text.");
    }
}

void DfaWatch::Part(std::string_view part, std::size_t column) {
    if (Text::LookAtCell(part) != CellContent::Number) {
        Tell(DfaKinds::textBehindNumber, "Expected a number for column " + std::to_string(column) +
                                             ", found " + Quote(part) +
                                             "; the number ahead of the text was taken.");
    }
}

void DfaWatch::SecondHeader(std::size_t rows) {
    if (rows > 0) {
        Tell(DfaKinds::secondHeader,
             "Expected one line with 'END HEADER', found another one: the " + std::to_string(rows) +
                 " rows ahead of it don't count.");
    }
}

void DfaWatch::MissingMark(const char* mark) {
    diagnostics_.Tell(DfaKinds::noHeader, 0,
                      std::string("Expected a line with '") + mark + "' in the " + file_.name +
                          ", found none; the pair of files isn't read.");
}

void DfaWatch::OpenHeader() {
    diagnostics_.Tell(DfaKinds::noHeader, 0,
                      std::string("Expected a line with 'END HEADER' below the last 'BEGIN "
                                  "HEADER' of the ") +
                          file_.name + ", found none; the pair of files isn't read.");
}

class Parser {
public:
    Parser(std::istream& in, const DfaFile& file, Diagnostics& diagnostics)
        : lines_(in), diagnostics_(diagnostics), watch_(diagnostics, lines_, file) {}

    std::optional<DfaExport> Read();

private:
    bool TakeMarks(std::string_view line);
    void TakeRow(std::string_view line);
    bool HasHeader();

    LineReader lines_;
    Diagnostics& diagnostics_;
    DfaWatch watch_;

    bool hasBegun_ = false; // the header, by any line
    bool hasEnded_ = false;
    bool isOpen_ = true; // no end stands behind the last begin
    DfaExport result_;
};

std::optional<DfaExport> Parser::Read() {
    TellOddText(diagnostics_, lines_.Kind());
    for (std::string_view line; lines_.Next(line);) {
        if (!TakeMarks(line) && !isOpen_) {
            TakeRow(line);
        }
    }
    if (!TellHowEnded(diagnostics_, lines_)) {
        return std::nullopt;
    }
    return HasHeader() ? std::optional(std::move(result_)) : std::nullopt;
}

// Of several lines with the same mark, the last one counts. False where the line has none.
bool Parser::TakeMarks(std::string_view line) {
    if (!Holds(line, "HEADER")) {
        return false;
    }
    const bool begins = Holds(line, "BEGIN HEADER");
    const bool ends = Holds(line, "END HEADER");
    if (begins) {
        hasBegun_ = true;
        isOpen_ = true;
    }
    if (ends) {
        watch_.SecondHeader(result_.data.rows.size());
        hasEnded_ = true;
        isOpen_ = false;
        result_ = DfaExport();
    }
    return begins || ends;
}

void Parser::TakeRow(std::string_view line) {
    const auto row = CutRow(line);
    if (!row) {
        if (diagnostics_.AreWanted()) {
            watch_.NotARow(line);
        }
        return;
    }
    auto& [rows, stationLabels, wellNames] = result_.data;
    const std::size_t expected = rows.empty() ? 0 : rows.back().size();
    wellNames.emplace_back(row->well);
    stationLabels.emplace_back(row->station);
    rows.push_back(NumbersOf(*row, expected));
    if (diagnostics_.AreWanted()) {
        result_.lines.push_back(lines_.Number());
        watch_.Row(*row, rows.back());
    }
}

bool Parser::HasHeader() {
    if (!hasBegun_) {
        watch_.MissingMark("BEGIN HEADER");
    }
    if (!hasEnded_) {
        watch_.MissingMark("END HEADER");
    }
    if (hasBegun_ && hasEnded_ && isOpen_) {
        watch_.OpenHeader();
    }
    return hasBegun_ && hasEnded_ && !isOpen_;
}

} // namespace

std::optional<DfaExport> ReadDfaExport(std::istream& in, const DfaFile& file,
                                       Diagnostics& diagnostics) {
    return Parser(in, file, diagnostics).Read();
}

} // namespace Orv::FluidBench::Impl::IO
