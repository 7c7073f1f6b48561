#include "MflText.h"

#include "FluidBench/Common/Message.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <locale>
#include <optional>
#include <string_view>
#include <system_error>
#include <utility>

namespace Orv::FluidBench::Impl::Command {

using Common::ErrorReport;
using Common::pvtEnumEoS;
using Common::pvtEnumErrorCode;
using Common::pvtEnumErrorType;
using Common::pvtEnumUnitFraction;
using Common::pvtEnumViscosityMethod;
using Model::FluidComponent;

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

const auto* FindWord(const auto& meanings, std::string_view word) {
    using Entry = std::remove_reference_t<decltype(*std::begin(meanings))>;
    const auto found = std::ranges::find(meanings, word, &Entry::word);
    return found == std::end(meanings) ? nullptr : &*found;
}

// Text from the file as a message shows it: short, and without what would upset a terminal.
std::string Shown(std::string_view text) {
    constexpr std::size_t longest = 40;
    std::string shown(text.substr(0, longest));
    std::ranges::replace_if(
        shown, [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7f'; }, '?');
    return "'" + shown + (text.size() > longest ? "...'" : "'");
}

// The number that the whole word is. An infinity or a not-a-number is none.
std::optional<double> Number(std::string_view word) {
    double value = 0.0;
    const char* const end = word.data() + word.size();
    const auto [behind, error] = std::from_chars(word.data(), end, value);
    const bool isNumber = error == std::errc() && behind == end && std::isfinite(value);
    return isNumber ? std::optional(value) : std::nullopt;
}

class Reader {
public:
    Reader(const std::string& fileName, MflContent& content)
        : fileName_(fileName), content_(content) {}

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
    void Fail(const std::string& what);
    void Tell(const std::string& text);

    const std::string& fileName_;
    MflContent& content_;
    ErrorReport report_;
    std::size_t failures_ = 0;
    State state_ = State::Form;
    std::size_t line_ = 0;
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
    std::ifstream file;
    file.imbue(std::locale::classic());
    std::error_code error;
    if (!std::filesystem::is_directory(fileName_, error)) {
        file.open(fileName_);
    }
    if (!file.is_open()) {
        Tell("The file '" + fileName_ + "' can't be opened");
        return std::move(report_);
    }
    std::string line;
    Words words;
    while (!isOver_ && std::getline(file, line)) {
        ++line_;
        if (Split(line, words) && !words.empty()) {
            ReadLine(words);
        }
    }
    if (!isOver_) {
        EndFile();
    }
    return std::move(report_);
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
        Fail("the first line must read MFL 1; this isn't an MFL file of that form");
        isOver_ = true;
    }
    state_ = State::Keyword;
}

void Reader::ReadKeyword(const Words& words) {
    const auto* const keyword = FindWord(keywords, words[0]);
    if (keyword == nullptr) {
        Fail("expected a keyword, found " + Shown(words[0]));
        return;
    }
    bool& isGiven = isGiven_[static_cast<std::size_t>(keyword - keywords.data())];
    if (std::exchange(isGiven, true)) {
        Fail(std::string(keyword->word) + " is there twice");
    }
    if (words.size() != keyword->arguments + 1) {
        Fail(std::string(keyword->word) +
             (keyword->arguments == 0 ? " stands alone on its line" : " takes one word"));
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
    Fail(std::string(words[0]) + " must be one of " + known + "; found " + Shown(words[1]));
}

void Reader::ReadHeadings(const Words& words) {
    state_ = State::Units;
    columns_.clear();
    if (words.size() < fixedColumns || words[nameColumn] != "NAME" ||
        words[fractionColumn] != "FRACTION") {
        Fail("the headings must begin with NAME FRACTION");
        state_ = State::Skipped;
        return;
    }
    for (std::size_t i = fixedColumns; i < words.size(); ++i) {
        const auto* const property = std::ranges::find(properties, words[i], &Property::heading);
        const bool isKnown = property != std::end(properties);
        if (!isKnown || std::ranges::count(words, words[i]) > 1) {
            Fail(Shown(words[i]) + (isKnown ? " heads two columns" : " isn't a known heading"));
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
        Fail("expected a unit for each heading, and - for a number without one");
        state_ = State::Skipped;
        return;
    }
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        const std::string_view word = words[fixedColumns + i];
        const auto* const unit = FindWord(columns_[i].property->units, word);
        if (unit == nullptr) {
            Fail(Shown(word) + " isn't a unit of " + std::string(columns_[i].property->heading));
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
        Fail("expected " + std::to_string(fixedColumns + columns_.size()) + " columns, found " +
             std::to_string(words.size()));
        return;
    }
    const std::string name(words[nameColumn]);
    if (content_.fluid.Find(name)) {
        Fail("there is a component " + Shown(name) + " already");
        return;
    }
    if (content_.fluid.Components().size() == mostComponents) {
        Fail("a fluid can't have more than " + std::to_string(mostComponents) + " components");
        isOver_ = true;
        return;
    }
    Try([&] {
        FluidComponent component(name);
        for (std::size_t i = 0; i < columns_.size(); ++i) {
            const auto& [property, factor] = columns_[i];
            const std::string_view word = words[fixedColumns + i];
            if (word != noValue) {
                const double value = NumberOf(word, property->heading);
                Try([&] { (component.*property->set)(value * factor); });
            }
        }
        const double fraction = NumberOf(words[fractionColumn], "FRACTION");
        content_.fluid.SetComponent(component, 0.0); // stays if the fraction is refused
        content_.fluid.SetComponent(component, fraction);
    });
}

void Reader::ReadCoefficient(const Words& words) {
    if (words.size() != 3) {
        Fail("expected two components and their coefficient");
        return;
    }
    const std::string first(words[0]);
    const std::string second(words[1]);
    const double value = NumberOf(words[2], "the coefficient");
    if (content_.fluid.Coefficient(first, second)) {
        Fail("the coefficient of these two is there already");
        return;
    }
    Try([&] { content_.fluid.SetCoefficient(first, second, value); });
}

void Reader::ReadStream(const Words& words) {
    const std::size_t n = content_.fluid.Components().size();
    if (words.size() != n) {
        Fail("expected one amount for each of the " + std::to_string(n) + " components, found " +
             std::to_string(words.size()));
        return;
    }
    std::vector<double>& stream = content_.streams.emplace_back();
    for (const std::string_view word : words) {
        stream.push_back(NumberOf(word, "an amount"));
    }
}

void Reader::EndTable() {
    if (state_ == State::Headings || state_ == State::Units) {
        Fail("the table ends ahead of its headings and units");
    }
    state_ = State::Keyword;
}

void Reader::EndFile() {
    if (state_ == State::Form) {
        Fail("the file is empty");
    } else if (state_ != State::Keyword) {
        Fail("the file ends inside a table; its END is missing");
    } else if (content_.fluid.Components().empty() && !report_.HasErrors()) {
        Fail("the file has no components");
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
            Fail("a double quote isn't closed");
            return false;
        }
        words.push_back(line.substr(0, end));
        line.remove_prefix(std::min(end, line.size()));
        line.remove_prefix(isQuoted ? 1 : 0);
    }
}

double Reader::NumberOf(std::string_view word, std::string_view meaning) {
    const auto number = Number(word);
    if (!number) {
        Fail(std::string(meaning) + " must be a number, found " + Shown(word));
    }
    return number.value_or(0.0);
}

// What the model refuses becomes a message.
template <typename Operation>
void Reader::Try(Operation operation) {
    try {
        operation();
    } catch (const std::exception& error) {
        Fail(error.what());
    }
}

void Reader::Fail(const std::string& what) {
    if (failures_ == mostFailures) {
        return;
    }
    ++failures_;
    const std::string place = fileName_ + ":" + std::to_string(line_) + ": ";
    Tell(place + what);
    if (failures_ == mostFailures) {
        Tell(place + "too many errors; the rest of the file wasn't read");
        isOver_ = true;
    }
}

void Reader::Tell(const std::string& text) {
    report_.Add(
        {pvtEnumErrorType::General, pvtEnumErrorCode::Error, 1001, std::vector<std::string>{text}});
}

} // namespace

ErrorReport ReadMflText(const std::string& fileName, MflContent& content) {
    return Reader(fileName, content).Read();
}

} // namespace Orv::FluidBench::Impl::Command
