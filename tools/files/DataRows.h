// Data files with commas: rows of which the first cell says what the others are.
#pragma once

#include "Input.h"
#include "Messages.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace FluidBenchTool {

/// Reads the rows of a file one by one, by its text alone:
///
///     # a comment
///     name,cell,"a cell, with a comma"
///
/// Empty lines don't count. What isn't as it should be is told, with its line, and ends the
/// reading by `CommandFailed`. Holds one row.
class DataRows {
public:
    DataRows(Input& input, Messages& messages);
    ~DataRows();
    DataRows(const DataRows&) = delete;
    DataRows& operator=(const DataRows&) = delete;

    /// Goes to the next row, and tells whether there is one.
    bool Next();

    /// Of the row: its first cell, and those behind it.
    const std::string& Name() const { return cells_.front(); }
    std::vector<std::string> Texts() const { return {cells_.begin() + 1, cells_.end()}; }
    std::vector<double> Numbers() const;
    /// The texts as names of components: each is there, and once.
    std::vector<std::string> Names() const;

    /// Tells of an error in the row.
    [[noreturn]] void Fail(const std::string& expected, const std::string& found) const;
    /// Fails unless so many cells stand behind the first one.
    void RequireCells(std::size_t count) const;
    /// Tells of a row that isn't there.
    [[noreturn]] void FailMissing(std::string_view name) const;

private:
    void Split(std::string_view line);

    struct Lines;
    std::string file_;
    Messages& messages_;
    std::unique_ptr<Lines> lines_;
    std::vector<std::string> cells_;
};

} // namespace FluidBenchTool
