#include "MflText.h"

#include "FluidBench/Common/Message.h"
#include "LineReader.h"
#include "NumberText.h"
#include "Quote.h"
#include "TextFile.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <exception>
#include <iterator>
#include <optional>
#include <string_view>
#include <utility>

namespace Orv::FluidBench::Impl::Command {

using Common::ErrorReport;
using Common::pvtEnumEoS;
using Common::pvtEnumErrorCode;
using Common::pvtEnumErrorType;
using Common::pvtEnumUnitFraction;
using Common::pvtEnumViscosityMethod;
using Model::FluidComponent;
using Text::LineReader;
using Text::Quote;
using Text::TextKind;
using Kind = ImportProblem::Kind;

namespace {

using Words = std::vector<std::string_view>;

template <typename Value>
struct Meaning {
    std::string_view word;
    Value value;
};

constexpr Meaning<pvtEnumEoS> equationsOfState[] = {
    {"PR", pvtEnumEoS::PengRobinson},
    {"PR78", pvtEnumEoS::PengRobinson78},
    {"PR-SSHIFT", pvtEnumEoS::PengRobinsonVolumeShift},
    {"PR78-SSHIFT", pvtEnumEoS::PengRobinson78VolumeShift},
    {"RK", pvtEnumEoS::RedlichKwong},
    {"SRK", pvtEnumEoS::SoaveRedlichKwong},
    {"SRK-SSHIFT", pvtEnumEoS::SoaveRedlichKwongVolumeShift},
    {"ZJ", pvtEnumEoS::ZudkevitchJoffe},
};

constexpr Meaning<pvtEnumViscosityMethod> viscosityMethods[] = {
    {"LBC", pvtEnumViscosityMethod::LohrenzBrayClark},
    {"PEDERSEN", pvtEnumViscosityMethod::Pedersen},
};

constexpr Meaning<pvtEnumUnitFraction> fractionTypes[] = {
    {"mole", pvtEnumUnitFraction::Mole},
    {"mass", pvtEnumUnitFraction::Mass},
};

// A unit and what one of it is in the model's unit.
using Unit = Meaning<double>;

struct Property {
    std::string_view heading;
    void (FluidComponent::*set)(double);
    std::array<Unit, 2> units;
};

// clang-format off
constexpr Property properties[] = {
    {"MW",       &FluidComponent::SetMolecularWeight, {{{"g/mol", 1.0}}}},
    {"TCRIT",    &FluidComponent::SetTcrit,           {{{"K", 1.0}}}},
    {"PCRIT",    &FluidComponent::SetPcrit,           {{{"Pa", 1.0}, {"bar", 1.0e5}}}},
    {"VCRIT",    &FluidComponent::SetVcrit,           {{{"m3/mol", 1.0}, {"m3/kg-mole", 1.0e-3}}}},
    {"VCRITVIS", &FluidComponent::SetVcritViscosity,  {{{"m3/mol", 1.0}, {"m3/kg-mole", 1.0e-3}}}},
    {"ZCRIT",    &FluidComponent::SetZcrit,           {{{"-", 1.0}}}},
    {"ACF",      &FluidComponent::SetAcf,             {{{"-", 1.0}}}},
    {"PARACHOR", &FluidComponent::SetParachor,        {{{"-", 1.0}}}},
    {"SSHIFT",   &FluidComponent::SetEoSVolumeShift,  {{{"-", 1.0}}}},
    {"OMEGAA",   &FluidComponent::SetOmegaA,          {{{"-", 1.0}}}},
    {"OMEGAB",   &FluidComponent::SetOmegaB,          {{{"-", 1.0}}}},
};
// clang-format on

// Columns ahead of the properties.
constexpr std::size_t nameColumn = 0;
constexpr std::size_t fractionColumn = 1;
constexpr std::size_t fixedColumns = 2;

constexpr std::string_view noValue = "-";

// A fluid keeps the coefficients of all pairs: a short file shouldn't be able to ask for millions.
constexpr std::size_t mostComponents = 1000;
// Nobody reads more messages than that, and a report of them all can take far more memory than the
// file.
constexpr std::size_t mostFailures = 1000;
// No line that means something is longer, and a line is held in memory.

const auto* FindWord(const auto& meanings, std::string_view word) {
    using Entry = std::remove_reference_t<decltype(*std::begin(meanings))>;
    const auto found = std::ranges::find(meanings, word, &Entry::word);
    return found == std::end(meanings) ? nullptr : &*found;
}

class Reader {
public:
    Reader(const std::string& fileName, MflContent& content, const ImportProblemSink& tell)
        : fileName_(fileName), content_(content), tell_(tell) {}

    ErrorReport Read();

private:
    // What the next line is expected to be.
    enum class State {
        Form,
        Keyword,
        Headings,
        Units,
        Component,
        Coefficient,
        Stream,
        Skipped, // the rest of a table that can't be understood
    };

    using Action = void (Reader::*)(const Words& words);
    struct Keyword {
        std::string_view word;
        std::size_t arguments;
        Action action;
    };
    static const std::array<Keyword, 7> keywords;

    struct Column {
        const Property* property;
        double factor; // to the model's unit
    };

    void ReadLines(LineReader& lines);
    void ReadLine(const Words& words);
    void ReadForm(const Words& words);
    void ReadKeyword(const Words& words);
    void ReadHeadings(const Words& words);
    void ReadUnits(const Words& words);
    void ReadComponent(const Words& words);
    void ReadCoefficient(const Words& words);
    void ReadStream(const Words& words);
    void EndTable();
    void EndFile();
    void RefuseOddText(TextKind kind);

    void SetName(const Words& words) { content_.fluid.name = words[1]; }
    void SetEoS(const Words& words) { Set(content_.fluid.eos, equationsOfState, words); }
    void SetViscosity(const Words& words) {
        Set(content_.fluid.viscosity, viscosityMethods, words);
    }
    void SetFractions(const Words& words) {
        Set(content_.fluid.fractionType, fractionTypes, words);
    }
    void BeginComponents(const Words&) { state_ = State::Headings; }
    void BeginCoefficients(const Words&) { state_ = State::Coefficient; }
    void BeginStreams(const Words&) { state_ = State::Stream; }

    template <typename Value, std::size_t n>
    void Set(Value& target, const Meaning<Value> (&meanings)[n], const Words& words);

    bool Split(std::string_view line, Words& words);
    double NumberOf(std::string_view word, std::string_view meaning);
    template <typename Operation>
    void Try(Operation operation);
    void Fail(Kind kind, const std::string& what);
    void Tell(Kind kind, const std::string& place, const std::string& what);

    const std::string& fileName_;
    MflContent& content_;
    const ImportProblemSink& tell_;
    ErrorReport report_;
    std::size_t failures_ = 0;
    State state_ = State::Form;
    std::uint64_t line_ = 0;
    bool isOver_ = false;
    std::array<bool, 7> isGiven_{}; // which keywords came
    std::vector<Column> columns_;
};

const std::array<Reader::Keyword, 7> Reader::keywords = {{
    {"FLUID", 1, &Reader::SetName},
    {"EOS", 1, &Reader::SetEoS},
    {"VISCOSITY", 1, &Reader::SetViscosity},
    {"FRACTIONS", 1, &Reader::SetFractions},
    {"COMPONENTS", 0, &Reader::BeginComponents},
    {"COEFFICIENTS", 0, &Reader::BeginCoefficients},
    {"STREAMS", 0, &Reader::BeginStreams},
}};

ErrorReport Reader::Read() {
    errno = 0;
    std::ifstream file = Text::OpenForReading(fileName_);
    if (!file.is_open()) {
        Tell(Kind::CantOpen, "The file '" + fileName_ + "' can't be opened: ",
             "expected a file to read, found " + Text::WhyNotReadable(fileName_));
        return std::move(report_);
    }
    LineReader lines(file, LineReader::longestOfAll, LineReader::LongLine::Cut);
    RefuseOddText(lines.Kind());
    ReadLines(lines);
    return std::move(report_);
}

void Reader::ReadLines(LineReader& lines) {
    Words words;
    for (std::string_view line; !isOver_ && lines.Next(line);) {
        if (line.empty()) {
            continue;
        }
        line_ = lines.Number();
        if (lines.IsCut()) {
            Fail(Kind::LineTooLong, "expected a line, or a comment, of at most " +
                                        std::to_string(LineReader::longestOfAll) +
                                        " characters, found a longer one");
        } else if (Split(line, words) && !words.empty()) {
            ReadLine(words);
        }
    }
    if (lines.HasFailed()) {
        line_ = lines.Number();
        Fail(Kind::ReadFailed, "expected to read on, found a failure of the file or its disk; what "
                               "is behind this line wasn't read");
    } else if (!isOver_) {
        EndFile();
    }
}

void Reader::RefuseOddText(TextKind kind) {
    isOver_ = kind != TextKind::Plain;
    line_ = isOver_ ? 1 : 0;
    if (isOver_) {
        Fail(kind == TextKind::CarriageReturns ? Kind::CarriageReturns : Kind::Utf16,
             Text::WhatIsOdd(kind));
    }
}

void Reader::ReadLine(const Words& words) {
    const bool isInTable = state_ != State::Form && state_ != State::Keyword;
    if (isInTable && words.size() == 1 && words[0] == "END") {
        EndTable();
        return;
    }
    switch (state_) {
    case State::Form:
        return ReadForm(words);
    case State::Keyword:
        return ReadKeyword(words);
    case State::Headings:
        return ReadHeadings(words);
    case State::Units:
        return ReadUnits(words);
    case State::Component:
        return ReadComponent(words);
    case State::Coefficient:
        return ReadCoefficient(words);
    case State::Stream:
        return ReadStream(words);
    case State::Skipped:
        return;
    }
}

void Reader::ReadForm(const Words& words) {
    if (words != Words{"MFL", "1"}) {
        Fail(Kind::Form, "expected the first line to read MFL 1, found " + Quote(words[0]) +
                             "; this isn't an MFL file of that form");
        isOver_ = true;
    }
    state_ = State::Keyword;
}

void Reader::ReadKeyword(const Words& words) {
    const auto* const keyword = FindWord(keywords, words[0]);
    if (keyword == nullptr) {
        Fail(Kind::Keyword, "expected a keyword, found " + Quote(words[0]));
        return;
    }
    bool& isGiven = isGiven_[static_cast<std::size_t>(keyword - keywords.data())];
    if (std::exchange(isGiven, true)) {
        Fail(Kind::Keyword, "expected " + std::string(keyword->word) + " once, found it twice");
    }
    if (words.size() != keyword->arguments + 1) {
        Fail(Kind::Keyword, "expected " +
                                std::string(keyword->arguments == 0 ? "no word" : "one word") +
                                " behind " + std::string(keyword->word) + ", found " +
                                std::to_string(words.size() - 1));
    }
    if (words.size() > keyword->arguments) {
        (this->*keyword->action)(words);
    }
}

template <typename Value, std::size_t n>
void Reader::Set(Value& target, const Meaning<Value> (&meanings)[n], const Words& words) {
    if (const auto* const meaning = FindWord(meanings, words[1])) {
        target = meaning->value;
        return;
    }
    std::string known;
    for (const auto& meaning : meanings) {
        known += known.empty() ? "" : ", ";
        known += meaning.word;
    }
    Fail(Kind::Keyword, "expected " + std::string(words[0]) + " to be one of " + known +
                            "; found " + Quote(words[1]));
}

void Reader::ReadHeadings(const Words& words) {
    state_ = State::Units;
    columns_.clear();
    if (words.size() < fixedColumns || words[nameColumn] != "NAME" ||
        words[fractionColumn] != "FRACTION") {
        Fail(Kind::Table,
             "expected headings that begin with NAME FRACTION, found " + Quote(words[0]));
        state_ = State::Skipped;
        return;
    }
    for (std::size_t i = fixedColumns; i < words.size(); ++i) {
        const auto* const property = std::ranges::find(properties, words[i], &Property::heading);
        const bool isKnown = property != std::end(properties);
        if (!isKnown || std::ranges::count(words, words[i]) > 1) {
            Fail(Kind::Table, "expected a heading " +
                                  std::string(isKnown ? "once" : "that is known") + ", found " +
                                  Quote(words[i]) + (isKnown ? " above two columns" : ""));
            state_ = State::Skipped;
            return;
        }
        columns_.push_back({property, 1.0});
    }
}

void Reader::ReadUnits(const Words& words) {
    state_ = State::Component;
    if (words.size() != fixedColumns + columns_.size() || words[nameColumn] != "-" ||
        words[fractionColumn] != "-") {
        Fail(Kind::Table, "expected a unit for each of " +
                              std::to_string(fixedColumns + columns_.size()) +
                              " headings, and - for a number without one; found " +
                              std::to_string(words.size()) + " words");
        state_ = State::Skipped;
        return;
    }
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        const std::string_view word = words[fixedColumns + i];
        const auto* const unit = FindWord(columns_[i].property->units, word);
        if (unit == nullptr) {
            Fail(Kind::Table, "expected a unit of " + std::string(columns_[i].property->heading) +
                                  ", found " + Quote(word));
            state_ = State::Skipped;
            return;
        }
        columns_[i].factor = unit->value;
    }
}

// A component goes into the fluid even when some of its values are bad: nobody gets to see that
// fluid, and later lines that name the component aren't wrong for it.
void Reader::ReadComponent(const Words& words) {
    if (words.size() != fixedColumns + columns_.size()) {
        Fail(Kind::Row, "expected " + std::to_string(fixedColumns + columns_.size()) +
                            " columns, found " + std::to_string(words.size()));
        return;
    }
    const std::string name(words[nameColumn]);
    if (content_.fluid.Find(name)) {
        Fail(Kind::Row, "expected each component once, found " + Quote(name) + " again");
        return;
    }
    if (content_.fluid.Components().size() == mostComponents) {
        Fail(Kind::TooMany, "expected at most " + std::to_string(mostComponents) +
                                " components, found more; the rest of the file wasn't read");
        isOver_ = true;
        return;
    }
    std::optional<FluidComponent> component;
    Try([&] { component.emplace(name); });
    if (!component) {
        return;
    }
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        const auto& [property, factor] = columns_[i];
        const std::string_view word = words[fixedColumns + i];
        if (word != noValue) {
            const double value = NumberOf(word, property->heading);
            Try([&] { (*component.*property->set)(value * factor); });
        }
    }
    const double fraction = NumberOf(words[fractionColumn], "FRACTION");
    Try([&] {
        content_.fluid.SetComponent(*component, 0.0); // stays if the fraction is refused
        content_.fluid.SetComponent(*component, fraction);
    });
}

void Reader::ReadCoefficient(const Words& words) {
    if (words.size() != 3) {
        Fail(Kind::Row, "expected two components and their coefficient, found " +
                            std::to_string(words.size()) +
                            (words.size() == 1 ? " word" : " words"));
        return;
    }
    const std::string first(words[0]);
    const std::string second(words[1]);
    const double value = NumberOf(words[2], "the coefficient");
    if (content_.fluid.Coefficient(first, second)) {
        Fail(Kind::Row, "expected the coefficient of these two once, found it again");
        return;
    }
    Try([&] { content_.fluid.SetCoefficient(first, second, value); });
}

void Reader::ReadStream(const Words& words) {
    const std::size_t n = content_.fluid.Components().size();
    if (words.size() != n) {
        Fail(Kind::Row, "expected one amount for each of the " + std::to_string(n) +
                            " components, found " + std::to_string(words.size()));
        return;
    }
    std::vector<double>& stream = content_.streams.emplace_back();
    for (const std::string_view word : words) {
        stream.push_back(NumberOf(word, "an amount"));
    }
}

void Reader::EndTable() {
    if (state_ == State::Headings || state_ == State::Units) {
        Fail(Kind::Table, "expected headings and units, found the end of the table");
    }
    state_ = State::Keyword;
}

void Reader::EndFile() {
    if (state_ == State::Form) {
        Fail(Kind::Form, "expected the first line to read MFL 1, found an empty file");
    } else if (state_ != State::Keyword) {
        Fail(Kind::Incomplete, "expected END behind the table, found the end of the file");
    } else if (content_.fluid.Components().empty() && !report_.HasErrors()) {
        Fail(Kind::Incomplete, "expected COMPONENTS, found a file without components");
    }
}

// Words are parted by blanks and tabs. Double quotes hold together a word with blanks; a # at the
// beginning of a word makes the rest of the line a comment.
bool Reader::Split(std::string_view line, Words& words) {
    constexpr std::string_view space = " \t\r";
    words.clear();
    for (;;) {
        line.remove_prefix(std::min(line.find_first_not_of(space), line.size()));
        if (line.empty() || line.front() == '#') {
            return true;
        }
        const bool isQuoted = line.front() == '"';
        line.remove_prefix(isQuoted ? 1 : 0);
        const std::size_t end = isQuoted ? line.find('"') : line.find_first_of(space);
        if (isQuoted && end == std::string_view::npos) {
            Fail(Kind::Row, "expected a second double quote on the line, found one alone");
            return false;
        }
        words.push_back(line.substr(0, end));
        line.remove_prefix(std::min(end, line.size()));
        line.remove_prefix(isQuoted ? 1 : 0);
    }
}

double Reader::NumberOf(std::string_view word, std::string_view meaning) {
    double number = 0.0;
    if (!Text::ParseNumber(word, number)) {
        Fail(Kind::Value,
             "expected " + std::string(meaning) + " to be a number, found " + Quote(word));
    }
    return number;
}

// What the model refuses becomes a message. The operation calls the model alone, not the sink.
template <typename Operation>
void Reader::Try(Operation operation) {
    try {
        operation();
    } catch (const std::exception& error) {
        Fail(Kind::Value, error.what());
    }
}

void Reader::Fail(Kind kind, const std::string& what) {
    if (failures_ == mostFailures) {
        return;
    }
    ++failures_;
    const std::string place = fileName_ + ":" + std::to_string(line_) + ": ";
    Tell(kind, place, what);
    if (failures_ == mostFailures) {
        Tell(Kind::TooMany, place, "too many errors; the rest of the file wasn't read");
        isOver_ = true;
    }
}

void Reader::Tell(Kind kind, const std::string& place, const std::string& what) {
    if (tell_) {
        tell_({kind, line_, what});
    }
    report_.Add({pvtEnumErrorType::General, pvtEnumErrorCode::Error, 1001,
                 std::vector<std::string>{place + what}});
}

} // namespace

ErrorReport ReadMflText(const std::string& fileName, MflContent& content,
                        const ImportProblemSink& tell) {
    return Reader(fileName, content, tell).Read();
}

} // namespace Orv::FluidBench::Impl::Command
