#include "Keywords.h"

#include <cmath>

namespace FluidBenchFuzz {

namespace {

constexpr double foot = 0.3048;                                   // m
constexpr double barrel = 42 * 231 * 2.54e-2 * 2.54e-2 * 2.54e-2; // m3
constexpr double pound = 0.45359237;                              // kg
constexpr double inch = 0.0254;                                   // m
constexpr double gravity = 9.80665;                               // m/s2
constexpr double poundPerInch2 = pound * gravity / (inch * inch);
constexpr double cubicFoot = foot * foot * foot;
constexpr double gasPerOil = 1000 * cubicFoot / barrel; // Mscf/stb

// The words of a line, outside of its comment; a slash is one of them.
std::vector<std::string> WordsOf(const std::string& line) {
    std::vector<std::string> words;
    bool isInWord = false;
    for (std::size_t i = 0; i < line.size() && line.compare(i, 2, "--") != 0; ++i) {
        const bool isBlank = std::string_view(" \t\r\v\f").find(line[i]) != std::string::npos;
        if (isBlank || line[i] == '/') {
            isInWord = false;
            if (!isBlank) {
                words.emplace_back("/");
            }
            continue;
        }
        if (!isInWord) {
            words.emplace_back();
        }
        isInWord = true;
        words.back() += line[i];
    }
    return words;
}

// "1.5", or "3*1.5" three times. False for anything else.
bool TakeNumber(const std::string& word, std::vector<double>& numbers) {
    const std::size_t asterisk = word.find('*');
    std::size_t count = 1;
    if (asterisk != std::string::npos) {
        const PlainCell times = LookAt(word.substr(0, asterisk));
        if (!times.isNumber || times.number < 1 || times.number > 1e4 ||
            word.find_first_not_of("0123456789") != asterisk) {
            return false;
        }
        count = static_cast<std::size_t>(times.number);
    }
    const PlainCell cell = LookAt(word.substr(asterisk + 1));
    numbers.insert(numbers.end(), cell.isNumber ? count : 0, cell.number);
    return cell.isNumber;
}

std::string Shown(double number) {
    std::ostringstream out;
    out.precision(17);
    out << number;
    return out.str();
}

bool IsCapital(char c) {
    return c >= 'A' && c <= 'Z';
}

} // namespace

FileUnits::FileUnits(bool isField)
    : pressure(isField ? poundPerInch2 : 1e5),
      depth(isField ? foot : 1.0),
      density(isField ? pound / cubicFoot : 1.0),
      gasInOil(isField ? gasPerOil : 1.0),
      oilInGas(isField ? 1.0 / gasPerOil : 1.0),
      gasVolume(isField ? 1.0 / gasPerOil : 1.0),
      degree(isField ? 1.0 / 1.8 : 1.0),
      heat(isField ? 4186.8 : 1e3),
      latentHeat(isField ? 2.326 : 1.0),
      zeroCelsius(isField ? 32.0 - 273.15 * 1.8 : -273.15) {}

std::vector<double> InUnits(std::vector<double> values, double unit) {
    for (double& value : values) {
        value /= unit;
    }
    return values;
}

std::optional<PlainFile> ReadPlainly(std::string_view text,
                                     const std::vector<std::string>& keywords, bool passesOthers) {
    PlainFile file;
    std::string keyword;
    bool isWanted = false;
    for (const std::string& line : LinesOf(text)) {
        const std::vector<std::string> words = WordsOf(line);
        for (std::size_t i = 0; i < words.size(); ++i) {
            const std::string& word = words[i];
            if (keyword == "FILEUNIT" && (word == "METRIC" || word == "FIELD")) {
                file.isField = word == "FIELD";
            } else if (i == 0 && IsCapital(word[0]) && line.starts_with(word)) {
                keyword = word;
                isWanted = std::ranges::find(keywords, word) != keywords.end();
                ++file.times[keyword];
                if (!isWanted && word != "FILEUNIT" && word != "ECHO" && !passesOthers) {
                    return std::nullopt;
                }
            } else if (word == "/") {
                if (i + 1 < words.size() && !passesOthers) {
                    return std::nullopt;
                }
                keyword = keyword == "FILEUNIT" ? "" : keyword; // what is behind it says no units
                break;
            } else if (keyword == "CNAMES" && isWanted) {
                if (!IsPlainName(word)) {
                    return std::nullopt;
                }
            } else if (isWanted ? !TakeNumber(word, file.columns[keyword]) : !passesOthers) {
                return std::nullopt;
            }
        }
    }
    file.columns.erase("NCOMPS");
    return file;
}

bool IsPlainName(const std::string& name) {
    return name.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789"
                                  "+_ '") == std::string::npos;
}

bool IsUsual(const Columns& columns) {
    return std::ranges::all_of(columns, [](const auto& column) {
        return std::ranges::all_of(column.second, [](double value) {
            return value == 0.0 || (std::abs(value) > 1e-100 && std::abs(value) < 1e100);
        });
    });
}

void RequireColumns(const Columns& ofFile, const Columns& ofObject, double relative,
                    double absolute, const std::string& promise) {
    const auto of = [](const Columns& columns, const std::string& keyword) {
        const auto found = columns.find(keyword);
        return found == columns.end() ? std::vector<double>() : found->second;
    };
    Columns all = ofFile;
    all.insert(ofObject.begin(), ofObject.end());
    for (const auto& [keyword, values] : all) {
        std::vector<double> first = of(ofFile, keyword);
        std::vector<double> second = of(ofObject, keyword);
        const std::size_t size = std::max(first.size(), second.size());
        if (!IsCapital(keyword[0]) && first.size() != second.size() && !ofFile.contains(keyword)) {
            continue;
        }
        first.resize(size);
        second.resize(size);
        for (std::size_t i = 0; i < size; ++i) {
            if (!AreClose(first[i], second[i], relative, absolute)) {
                throw BrokenPromise(promise + ": number " + std::to_string(i + 1) + " of " +
                                    keyword + " is " + Shown(second[i]) + " in place of " +
                                    Shown(first[i]));
            }
        }
    }
}

} // namespace FluidBenchFuzz
