// Rows of a depth or a pressure and one fraction for each component.
#pragma once

#include "KeywordWalker.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace Orv::FluidBench::IO {

/// Rows in the units of the file.
struct FractionRows {
    std::vector<double> first; ///< depths or pressures
    std::vector<std::vector<double>> fractions;
    std::vector<std::uint64_t> lines; ///< of the first numbers
};

/// Reads the tables of one file. A table doesn't say how many components it is for: where neither
/// NCOMPS nor CNAMES came before, its own lines tell.
///
///     2000 0.7              the writer's form: an empty line ends a row
///          0.3
///
///     2000 0.7 0.3          without any empty line each row has a line of its own
class FractionReader {
public:
    /// Two keywords that a reader of such tables wants beside its own.
    static constexpr Impl::IO::WantedKeyword countKeyword{"NCOMPS", false};
    static constexpr Impl::IO::WantedKeyword namesKeyword{"CNAMES", false};

    /// As many as a first row may have by its repeat counts.
    static constexpr std::uint64_t mostComponents = 100'000;

    FractionReader(Impl::IO::KeywordWalker& walker, std::string firstColumn)
        : walker_(walker), firstColumn_(std::move(firstColumn)) {}

    /// Reads the number of components behind one of the two keywords; false for another.
    bool ReadKeyword();

    /// Reads the record that is a table.
    FractionRows ReadTable();

private:
    struct Item {
        double number;
        std::uint64_t count;
        std::uint64_t line;
    };

    // What ends a row: the number of its numbers alone, the end of its line, or an empty line.
    enum class RowEnd { Number, Line, EmptyLine };

    std::vector<Item> ReadItems();
    static bool IsParted(RowEnd end, const Item& item, std::uint64_t nextLine);
    RowEnd RowEndOf(const std::vector<Item>& items) const;
    std::uint64_t WidthOf(const std::vector<Item>& items, RowEnd end) const;
    std::string Meaning() const;

    Impl::IO::KeywordWalker& walker_;
    std::string firstColumn_;
    std::optional<std::uint64_t> components_;
};

} // namespace Orv::FluidBench::IO
