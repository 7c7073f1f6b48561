// Phase envelope files: any text gives whole plots with the points that a plain reader finds, what
// isn't taken as it stands is told, and plots that are written read back as they were.
#include "Keywords.h"
#include "io/PhaseEnvelopeReaderWriter.h"

#include <algorithm>
#include <stdexcept>

namespace {

using namespace FluidBenchFuzz;
using Orv::FluidBench::Common::CommonPlottingObject;
using Orv::FluidBench::Common::Line;
using Orv::FluidBench::IO::PhaseEnvelopeReaderWriter;
using Plots = std::vector<CommonPlottingObject>;

struct Envelopes {
    bool isRead = false;
    bool isThrown = false;
    Plots plots;
    std::string message;
    Told told;
};

// From the file of that name, or from a stream.
Envelopes Read(const std::string& name, std::istream* stream = nullptr) {
    Envelopes read;
    std::vector<std::string> messages;
    PhaseEnvelopeReaderWriter file;
    file.SetDiagnosticSink(read.told.Sink());
    file.SetFileName(name);
    try {
        read.isRead = stream == nullptr ? file.Read(read.plots, messages)
                                        : file.Read(*stream, read.plots, messages, name);
    } catch (const std::out_of_range& error) {
        Require(error.what() == std::string("invalid string position"),
                "The exception has its text");
        read.isThrown = true;
    }
    Require(messages.size() == (read.isThrown ? 0 : 1), "There is one message");
    Require(!read.isRead || !read.plots.empty(), "What was read has a plot");
    read.message = read.isThrown ? "" : messages[0];
    return read;
}

// The columns of one plot, and its vapour fractions.
struct PlainPlot {
    std::vector<std::vector<double>> columns;
    std::vector<double> fractions;
    bool isExact = true; // every cell is a number or blank
};

// Goes through the lines as the format's page says. Whatever isn't taken as it stands has to be
// told.
class PlainReader {
public:
    PlainReader(std::string_view text, const std::string& file, const Told& told)
        : file_(file), told_(told) {
        const std::vector<std::string> lines = LinesOf(text);
        const std::string letters = lines.size() < 6 ? "" : lines[5];
        if (letters.size() < 4 || (letters[1] != ',' && letters[1] != '\t')) {
            return;
        }
        separator_ = letters[1];
        // The separator is looked for ahead of everything, and not behind a line that is cut.
        if (std::any_of(lines.begin(), lines.begin() + 6,
                        [](const std::string& line) { return line.size() > 499; })) {
            isWhole = false;
            return;
        }
        for (const std::string& line : lines) {
            ++number_;
            if (line.size() > 499) {
                RequireTold(line);
                isWhole = false;
                return;
            }
            while (!Take(line)) {
            }
            if (state_ == State::Ended) {
                return;
            }
        }
        if (state_ == State::Data || state_ == State::Rows) {
            plots.push_back(plot_);
        }
    }

    std::vector<PlainPlot> plots;
    bool isThrown = false;
    bool isWhole = true;

private:
    enum class State { Outside, Headings, Data, Rows, Ended };

    void RequireTold(const std::string& line) const {
        Require(told_.Tells(number_, file_), "What isn't taken as it stands is told: line " +
                                                 std::to_string(number_) + ", '" + line + "'");
    }

    // False where the line is for the next state.
    bool Take(const std::string& line) {
        const bool hasBubble = line.find("Bubble") != std::string::npos;
        const bool hasFlash = line.find("Flash") != std::string::npos;
        switch (state_) {
        case State::Outside:
            if (hasBubble || hasFlash) {
                state_ = hasBubble ? State::Ended : State::Headings;
            } else if (HasDigit(line)) {
                RequireTold(line);
            }
            return true;
        case State::Headings:
            if (hasBubble) {
                state_ = State::Data;
                TakeHeadings(line);
            } else if (hasFlash) {
                state_ = State::Ended;
            }
            return true;
        case State::Data:
        case State::Rows:
            if (HasDigit(line)) {
                state_ = State::Rows;
                TakeRow(line);
            } else if (state_ == State::Rows || hasFlash) {
                plots.push_back(plot_);
                state_ = State::Outside;
                return false;
            }
            return true;
        case State::Ended:
            break;
        }
        return true;
    }

    void TakeHeadings(const std::string& line) {
        plot_ = {};
        std::size_t pairs = 3;
        std::string rest = line;
        for (const char* const heading : {"Aqueous", "Ice", "Hydrate type II", "Hydrate type I"}) {
            const std::size_t place = rest.find(heading);
            pairs += place == std::string::npos ? 0 : 1;
            for (std::size_t each = place; each != std::string::npos; each = rest.find(heading)) {
                rest.replace(each, std::string_view(heading).size(), "#");
            }
        }
        std::size_t begin = line.find_first_of("0123456789.");
        while (begin != std::string::npos) {
            const std::size_t end = line.find(separator_, begin);
            plot_.fractions.push_back(LookAt(line.substr(begin, end - begin)).number);
            if (end == std::string::npos) {
                isThrown = true;
                state_ = State::Ended;
                plots.clear();
                return;
            }
            begin = line.find_first_of("0123456789.", end);
        }
        plot_.columns.resize(2 * (pairs + plot_.fractions.size()));
    }

    void TakeRow(const std::string& line) {
        std::vector<std::string> cells = CellsOf(line, separator_);
        const std::string behind = cells.back();
        cells.pop_back(); // a separator stands behind each cell
        const std::size_t columns = plot_.columns.size();
        bool isGood = cells.size() >= columns && (cells.size() > columns || LookAt(behind).isBlank);
        for (std::size_t i = columns; i < cells.size(); ++i) {
            isGood = isGood && cells[i].find_first_not_of(" \t,\r\v\f") == std::string::npos;
        }
        for (std::size_t i = 0; i < std::min(columns, cells.size()); ++i) {
            const PlainCell cell = LookAt(cells[i]);
            if (cell.isNumber) {
                plot_.columns[i].push_back(cell.number);
            } else if (!cell.isBlank) {
                isGood = plot_.isExact = false;
            }
        }
        if (!isGood) {
            RequireTold(line);
        }
    }

    const std::string& file_;
    const Told& told_;
    std::uint64_t number_ = 0;
    char separator_ = ',';
    State state_ = State::Outside;
    PlainPlot plot_;
};

void RequireSame(const PlainPlot& plain, const CommonPlottingObject& plot) {
    const std::vector<Line>& lines = plot.GetLines();
    Require(2 * lines.size() == plain.columns.size(), "A plot has a line for each pair of columns");
    const std::size_t firstFraction = lines.size() - plain.fractions.size();
    for (std::size_t i = 0; i < lines.size() && plain.isExact; ++i) {
        const std::vector<double>& x = plain.columns[2 * i];
        const std::vector<double>& y = plain.columns[2 * i + 1];
        const auto& points = lines[i].ViewPoints();
        Require(points.size() == std::min(x.size(), y.size()), "A line has the points of its rows");
        for (std::size_t j = 0; j < points.size(); ++j) {
            Require(points[j].x == x[j] && points[j].y == y[j], "A plain reader reads the same");
        }
        Require(i < firstFraction || AreClose(lines[i].GetPhaseFraction(),
                                              plain.fractions[i - firstFraction], 1e-15),
                "A plain reader reads the same fractions");
    }
}

std::string Written(const Plots& plots, bool useComma) {
    PhaseEnvelopeReaderWriter file(useComma);
    file.SetFileName(PathOf("written"));
    Require(file.Write(plots), "The file opens");
    return ReadFile(PathOf("written"));
}

void RequireLines(const CommonPlottingObject& plot) {
    for (const auto phase : {Line::Phase::Bubble, Line::Phase::Dew, Line::Phase::CriticalPoint}) {
        Require(plot.NumberOfLines(Line::Type::PhaseCurve, phase) == 1,
                "A plot has the three lines that are always there");
    }
}

// Six digits of each.
void RequireSameNumbers(const Plots& written, const Plots& read) {
    for (std::size_t i = 0; i < written.size(); ++i) {
        const auto& lines = written[i].GetLines();
        Require(lines.size() == read[i].GetLines().size(), "All lines come back");
        for (std::size_t j = 0; j < lines.size(); ++j) {
            const auto& points = lines[j].ViewPoints();
            const auto& pointsRead = read[i].GetLines()[j].ViewPoints();
            Require(points.size() == pointsRead.size(), "All points come back");
            for (std::size_t k = 0; k < points.size(); ++k) {
                Require(AreClose(points[k].x, pointsRead[k].x, 6e-6, 1e-300) &&
                            AreClose(points[k].y, pointsRead[k].y, 6e-6, 1e-300),
                        "Points come back");
            }
        }
    }
}

// Lines that are too long, and infinities, aren't read.
bool IsReadable(std::string_view text) {
    constexpr std::size_t longestLine = 499;
    std::size_t begin = 0;
    for (std::size_t end = text.find('\n'); end != std::string_view::npos;
         end = text.find('\n', begin)) {
        if (end - begin > longestLine) {
            return false;
        }
        begin = end + 1;
    }
    return text.find("inf") == std::string_view::npos;
}

} // namespace

std::vector<std::string> FluidBenchFuzz::Samples() {
    return {ProjectFile("examples/data/rich-gas-envelope.csv").substr(0, 2000),
            ProjectFile("examples/data/rich-gas-envelope.csv"),
            ProjectFile("examples/data/separator-train-envelopes.txt"),
            ProjectFile("tests/data/tool/envelope.csv"),
            ProjectFile("tests/data/tool/envelope-convert.csv"),
            "Flash\n\n\n\nBubble,,Dew,,Critical point,,Ice,,Aqueous,,Hydrate type I,,Hydrate type "
            "II,,Vapour,0.5,PX2,1,\nT,P,\n1,2,3,4,5,6, , ,-,.,1e5,1,\r\n\nFlash\nBubble\n1,2,3\n"};
}

void FluidBenchFuzz::TestOneInput(std::string_view input) {
    const std::string path = FileWith("input", input);
    const Envelopes outcome = Read(path);
    PiecesBuffer pieces(input, 1 + input.size() % 5000);
    std::istream stream(&pieces);
    const Envelopes fromStream = Read(path, &stream);
    Require(fromStream.told.Text() == outcome.told.Text() &&
                fromStream.message == outcome.message && fromStream.isRead == outcome.isRead &&
                Written(fromStream.plots, true) == Written(outcome.plots, true),
            "A stream and a file give the same");
    // An exception leaves the counts of what was told out.
    if (!outcome.isThrown && !outcome.told.HasAny({"file.utf-16", "file.carriage-returns"})) {
        const PlainReader plain(input, path, outcome.told);
        Require(!plain.isThrown, "A heading that isn't closed is an exception");
        if (plain.isWhole) {
            Require(plain.plots.size() == outcome.plots.size(), "A plain reader finds all plots");
            for (std::size_t i = 0; i < plain.plots.size(); ++i) {
                RequireSame(plain.plots[i], outcome.plots[i]);
            }
        }
    }
    std::ranges::for_each(outcome.plots, RequireLines);
    for (const bool useComma : {false, true}) {
        const std::string written = Written(outcome.plots, useComma);
        if (outcome.plots.empty() || !IsReadable(written)) {
            continue;
        }
        const Envelopes again = Read(PathOf("written"));
        Require(again.isRead && again.plots.size() == outcome.plots.size(),
                "All plots are written and read");
        Require(Written(again.plots, useComma) == written, "Lines are written and read");
        RequireSameNumbers(outcome.plots, again.plots);
    }
}
