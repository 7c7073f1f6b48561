// Reads the comma-separated data files of the examples.
#pragma once

#include <charconv>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace ExampleData {

/// The rows of a file, each as its cells. Empty lines and lines that begin with # don't count.
/// Throws `std::runtime_error` when the file can't be opened.
inline std::vector<std::vector<std::string>> ReadRows(const std::string& fileName) {
    std::ifstream file(fileName);
    if (!file.is_open()) {
        throw std::runtime_error("'" + fileName + "' can't be opened");
    }
    std::vector<std::vector<std::string>> rows;
    for (std::string line; std::getline(file, line);) {
        if (line.ends_with('\r')) {
            line.pop_back();
        }
        if (line.empty() || line.starts_with('#')) {
            continue;
        }
        std::vector<std::string> cells;
        std::size_t begin = 0;
        for (std::size_t comma = line.find(','); comma != std::string::npos;
             comma = line.find(',', begin)) {
            cells.push_back(line.substr(begin, comma - begin));
            begin = comma + 1;
        }
        cells.push_back(line.substr(begin));
        rows.push_back(cells);
    }
    return rows;
}

/// The number that a cell consists of. Throws `std::runtime_error` when it is anything else.
inline double Number(const std::string& cell) {
    double value = 0.0;
    const char* const end = cell.data() + cell.size();
    const auto [behind, error] = std::from_chars(cell.data(), end, value);
    if (error != std::errc() || behind != end) {
        throw std::runtime_error("'" + cell + "' stands where a number is expected");
    }
    return value;
}

} // namespace ExampleData
