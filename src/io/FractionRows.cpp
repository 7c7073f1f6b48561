#include "FractionRows.h"

#include <algorithm>

namespace Orv::FluidBench::IO {

namespace KeywordKinds = Impl::IO::KeywordKinds;

bool FractionReader::ReadKeyword() {
    std::uint64_t components = 0;
    if (walker_.Keyword() == countKeyword.name) {
        components = walker_.ReadCount("the number of components");
    } else if (walker_.Keyword() == namesKeyword.name) {
        components = walker_.ReadNames().size();
    } else {
        return false;
    }
    if (components_ && *components_ != components) {
        walker_.Fail(KeywordKinds::countDiffers, walker_.Line(),
                     std::to_string(*components_) + " components, as were told before",
                     std::to_string(components));
    }
    components_ = components;
    return true;
}

FractionRows FractionReader::ReadTable() {
    FractionRows rows;
    const std::vector<Item> items = ReadItems();
    if (items.empty()) {
        return rows;
    }
    const RowEnd end = components_ ? RowEnd::Number : RowEndOf(items);
    const std::uint64_t width = components_ ? *components_ + 1 : WidthOf(items, end);
    if (width == 1) {
        walker_.Fail(KeywordKinds::rowLength, items.front().line, Meaning(), "no fractions");
    }
    const auto require = [&](bool isTrue, const Item& item, std::uint64_t count) {
        if (!isTrue) {
            walker_.Fail(KeywordKinds::rowLength, item.line,
                         Meaning() + ", " + std::to_string(width) + " numbers",
                         std::to_string(count) + " of them");
        }
    };
    std::vector<double> row;
    for (std::size_t i = 0; i < items.size(); ++i) {
        const Item& item = items[i];
        if (row.empty()) {
            rows.lines.push_back(item.line);
        }
        require(item.count <= width - row.size(), item, row.size() + item.count);
        row.insert(row.end(), item.count, item.number);
        const bool isLast = i + 1 == items.size();
        const bool isWhole = row.size() == width;
        const bool isParted =
            end != RowEnd::Number && !isLast && IsParted(end, item, items[i + 1].line);
        require(isWhole ? isLast || isParted || end == RowEnd::Number : !isLast && !isParted, item,
                row.size() + (isWhole ? 1 : 0));
        if (isWhole) {
            rows.first.push_back(row.front());
            rows.fractions.emplace_back(row.begin() + 1, row.end());
            row.clear();
        }
    }
    return rows;
}

std::vector<FractionReader::Item> FractionReader::ReadItems() {
    std::vector<Item> items;
    while (const auto item = walker_.ReadItem(Meaning())) {
        items.push_back({item->number, item->count, walker_.Line()});
    }
    return items;
}

bool FractionReader::IsParted(RowEnd end, const Item& item, std::uint64_t nextLine) {
    return nextLine > item.line + (end == RowEnd::EmptyLine ? 1 : 0);
}

// In the writer's form the first line has two numbers, each further one has one, and an empty one
// comes behind them.
FractionReader::RowEnd FractionReader::RowEndOf(const std::vector<Item>& items) const {
    std::uint64_t line = items.front().line;
    std::size_t i = 1;
    if (i < items.size() && items[i].line == line) {
        ++i;
    }
    for (; i < items.size() && items[i].line == line + 1; ++i) {
        line = items[i].line;
    }
    const std::uint64_t nextLine = i < items.size() ? items[i].line : walker_.Line();
    return nextLine > line + 1 ? RowEnd::EmptyLine : RowEnd::Line;
}

std::uint64_t FractionReader::WidthOf(const std::vector<Item>& items, RowEnd end) const {
    std::uint64_t width = 0;
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (i > 0 && IsParted(end, items[i - 1], items[i].line)) {
            break;
        }
        if (items[i].count > mostComponents - width) {
            walker_.Fail(KeywordKinds::repeatCount, items[i].line, Meaning(),
                         "a repeat count of " + std::to_string(items[i].count));
        }
        width += items[i].count;
    }
    if (width == 1 && items.size() > 1) {
        walker_.Fail(KeywordKinds::noRowEnd, items.front().line,
                     "a row on each line, an empty line behind each row, or the number of "
                     "components under NCOMPS or CNAMES",
                     "a number on each line");
    }
    return width;
}

std::string FractionReader::Meaning() const {
    return firstColumn_ + " and a fraction for each component";
}

} // namespace Orv::FluidBench::IO
