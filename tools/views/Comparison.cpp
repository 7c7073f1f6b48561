#include "Comparison.h"

#include "Table.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numeric>

namespace FluidBenchTool {

namespace {

std::vector<std::size_t> OrderOf(std::span<const double> numbers) {
    std::vector<std::size_t> order(numbers.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::stable_sort(order, {}, [numbers](std::size_t i) { return numbers[i]; });
    return order;
}

} // namespace

bool Comparison::AreSame(double first, double second) const {
    if (first == second || (std::isnan(first) && std::isnan(second))) {
        return true;
    }
    return std::abs(first - second) <= tolerance_ * std::max(std::abs(first), std::abs(second));
}

void Comparison::Compare(const std::string& where, const std::string& what, const ShownUnit& unit,
                         double first, double second) {
    if (!AreSame(first, second)) {
        differences_.push_back(
            {where, what, {}, {}, unit, first, second, Difference::Kind::Number});
    }
}

void Comparison::Compare(const std::string& where, const std::string& what,
                         const std::string& first, const std::string& second) {
    if (first != second) {
        differences_.push_back({where, what, first, second, {}, 0.0, 0.0, Difference::Kind::Text});
    }
}

void Comparison::AddMissing(const std::string& where, bool isInFirst) {
    differences_.push_back(
        {where,
         {},
         {},
         {},
         {},
         0.0,
         0.0,
         isInFirst ? Difference::Kind::OnlyFirst : Difference::Kind::OnlySecond});
}

void Comparison::Print(std::ostream& out, const std::string& firstName,
                       const std::string& secondName) const {
    using Kind = Difference::Kind;
    if (differences_.empty()) {
        return;
    }
    const Table table{
        {"where", "what", firstName, secondName}, differences_.size(), [this](std::uint64_t row) {
            const Difference& d = differences_[row];
            switch (d.kind) {
            case Kind::Number: {
                const std::string unit = *d.unit.name == '\0' ? "" : std::string(" ") + d.unit.name;
                // As many digits as it takes to see the difference.
                for (const int digits : {6, 10}) {
                    const std::string first = NumberText(d.unit.convert(d.first), digits);
                    const std::string second = NumberText(d.unit.convert(d.second), digits);
                    if (first != second) {
                        return Cells{d.where, d.what + unit, first, second};
                    }
                }
                return Cells{d.where, d.what + unit, ExactText(d.unit.convert(d.first)),
                             ExactText(d.unit.convert(d.second))};
            }
            case Kind::Text:
                return Cells{d.where, d.what, d.firstText, d.secondText};
            case Kind::OnlyFirst:
                return Cells{d.where, "", "is there", "is missing"};
            case Kind::OnlySecond:
                return Cells{d.where, "", "is missing", "is there"};
            }
            return Cells{};
        }};
    PrintTable(out, table);
}

void Comparison::Write(std::ostream& out, std::string_view format, const std::string& firstName,
                       const std::string& secondName) const {
    using Kind = Difference::Kind;
    JsonWriter json(out);
    json.BeginObject();
    json.Add("format", format);
    json.Add("first", firstName);
    json.Add("second", secondName);
    json.Add("tolerance", tolerance_);
    json.BeginArray("differences");
    for (const Difference& d : differences_) {
        json.BeginObject();
        json.Add("where", d.where);
        switch (d.kind) {
        case Kind::Number:
            json.Add("what", d.what);
            json.Add("first", d.first);
            json.Add("second", d.second);
            break;
        case Kind::Text:
            json.Add("what", d.what);
            json.Add("first", d.firstText);
            json.Add("second", d.secondText);
            break;
        case Kind::OnlyFirst:
        case Kind::OnlySecond:
            json.Add("only", d.kind == Kind::OnlyFirst ? "first" : "second");
            break;
        }
        json.EndObject();
    }
    json.EndArray();
    json.EndObject();
}

std::vector<Match> MatchNumbers(std::span<const double> first, std::span<const double> second,
                                const Comparison& comparison) {
    const std::vector<std::size_t> firstOrder = OrderOf(first);
    const std::vector<std::size_t> secondOrder = OrderOf(second);
    std::vector<Match> matches;
    auto i = firstOrder.begin();
    auto j = secondOrder.begin();
    while (i != firstOrder.end() || j != secondOrder.end()) {
        if (i == firstOrder.end()) {
            matches.push_back({Match::none, *j++});
        } else if (j == secondOrder.end()) {
            matches.push_back({*i++, Match::none});
        } else if (comparison.AreSame(first[*i], second[*j])) {
            matches.push_back({*i++, *j++});
        } else if (first[*i] < second[*j]) {
            matches.push_back({*i++, Match::none});
        } else {
            matches.push_back({Match::none, *j++});
        }
    }
    return matches;
}

std::vector<Match> MatchNames(std::span<const std::string> first,
                              std::span<const std::string> second) {
    std::map<std::string_view, std::size_t> places; // of the second list
    for (std::size_t i = 0; i < second.size(); ++i) {
        places.emplace(second[i], i);
    }
    std::vector<Match> matches;
    for (std::size_t i = 0; i < first.size(); ++i) {
        const auto place = places.find(first[i]);
        matches.push_back({i, place == places.end() ? Match::none : place->second});
        if (place != places.end()) {
            places.erase(place);
        }
    }
    for (std::size_t i = 0; i < second.size(); ++i) {
        if (const auto place = places.find(second[i]);
            place != places.end() && place->second == i) {
            matches.push_back({Match::none, i});
        }
    }
    return matches;
}

} // namespace FluidBenchTool
