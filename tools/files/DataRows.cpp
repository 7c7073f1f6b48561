#include "DataRows.h"

#include "CellNumber.h"
#include "LineReader.h"
#include "NumberText.h"
#include "Quote.h"

#include <unordered_set>

namespace FluidBenchTool {

using Orv::Text::Quote;

struct DataRows::Lines {
    explicit Lines(std::istream& text) : reader(text) {}
    Orv::Text::LineReader reader;
};

DataRows::DataRows(Input& input, Messages& messages)
    : file_(input.Name()), messages_(messages), lines_(std::make_unique<Lines>(input.Text())) {}
DataRows::~DataRows() = default;

bool DataRows::Next() {
    for (std::string_view line; lines_->reader.Next(line);) {
        if (!line.empty() && line.front() != '#') {
            Split(line);
            return true;
        }
    }
    if (lines_->reader.HasFailed()) {
        messages_.Fail(ToolKinds::cantRead, file_,
                       "Expected to read on, found a failure of the file or its disk.",
                       lines_->reader.Number());
    }
    if (lines_->reader.IsCut()) {
        messages_.Fail(ToolKinds::badRow, file_,
                       "Expected a row of at most " +
                           std::to_string(Orv::Text::LineReader::longestOfAll) +
                           " characters, found a longer one.",
                       lines_->reader.Number());
    }
    return false;
}

void DataRows::Split(std::string_view line) {
    cells_.assign(1, {});
    bool isQuoted = false;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const char c = line[i];
        if (c == '"' && isQuoted && i + 1 < line.size() && line[i + 1] == '"') {
            cells_.back() += c;
            ++i;
        } else if (c == '"' && (isQuoted || cells_.back().empty())) {
            isQuoted = !isQuoted;
        } else if (c == ',' && !isQuoted) {
            cells_.emplace_back();
        } else {
            cells_.back() += c;
        }
    }
    if (isQuoted) {
        Fail("a quote that is closed on its line", Quote(line));
    }
}

std::vector<double> DataRows::Numbers() const {
    std::vector<double> numbers;
    for (std::size_t i = 1; i < cells_.size(); ++i) {
        if (Orv::Text::LookAtCell(cells_[i]) != Orv::Text::CellContent::Number) {
            Fail("numbers behind " + Quote(Name()), Quote(cells_[i]));
        }
        numbers.push_back(Orv::Text::ParseAsAtof(cells_[i]));
    }
    return numbers;
}

std::vector<std::string> DataRows::Names() const {
    std::vector<std::string> names = Texts();
    std::unordered_set<std::string_view> known;
    for (const std::string& name : names) {
        if (name.empty() || !known.insert(name).second) {
            Fail("a name for each component alone",
                 name.empty() ? "an empty cell" : Quote(name) + " twice");
        }
    }
    return names;
}

void DataRows::Fail(const std::string& expected, const std::string& found) const {
    messages_.Fail(ToolKinds::badRow, file_, "Expected " + expected + ", found " + found + ".",
                   lines_->reader.Number());
}

void DataRows::RequireCells(std::size_t count) const {
    if (cells_.size() - 1 != count) {
        Fail(std::to_string(count) + " cells behind " + Quote(Name()),
             std::to_string(cells_.size() - 1));
    }
}

void DataRows::FailMissing(std::string_view name) const {
    messages_.Fail(ToolKinds::badRow, file_,
                   "Expected a row " + Quote(name) + ", found none that is whole.");
}

} // namespace FluidBenchTool
