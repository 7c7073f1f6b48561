#include "FluidInterpreter.h"

#include "Characters.h"
#include "FluidChecks.h"
#include "Kes/KesModel/IKeywordValidator.h"
#include "KeywordLexer.h"
#include "KeywordRecord.h"
#include "Quote.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace Orv::Kes::KesModel {

using SimFluid::IComponent;
using SimFluid::ICompositionalModel;
using SimFluid::IDepthTable;
using SimFluid::IFluidModels;
using SimFluid::IInitialCondition;
using SimFluid::ITemperatureTable;
using Text::IsDigit;
using Text::IsLetter;
using Text::ItemCount;
using Text::KeywordError;
using Text::KeywordLexer;
using Text::KeywordRecord;
using Text::Quote;
using Text::Token;

namespace {

constexpr const char* modelName = "Fluid";
constexpr const char* regionName = "1";

// The codes of `ICompositionalModel`.
constexpr int pengRobinson = 0;
constexpr int correctedPengRobinson = 1;
constexpr int redlichKwong = 2;
constexpr int soaveRedlichKwong = 3;
constexpr int zudkevitchJoffe = 4;
constexpr int lohrenzBrayClark = 0;
constexpr int pedersen = 1;

// The model while it is filled. What two keywords decide together waits for both of them.
struct Fluid {
    ICompositionalModel& model;
    DeckLog& log;
    std::size_t n; // components
    int equationOfState = pengRobinson;
    bool isCorrected = false;
    bool namesPedersen = false;
    bool lacksViscosityCoefficients = false;
};

struct FluidKeyword {
    std::string_view name;
    KeywordData data;
    bool isFluidKeyword;
    void (*handle)(Fluid&, const KeywordPlace&, const FluidKeyword&); // may be null
    int property;                                                     // of each component
    std::span<const std::string_view> words{};                        // of which its record has one
    std::string (*advise)(std::string_view word) = nullptr;
};

constexpr std::string_view unitSystems[] = {"METRIC", "FIELD"};
constexpr std::size_t metric = 0; // its place there

struct Equation {
    std::string_view word;
    int code;
};
constexpr Equation equations[] = {{"PR", pengRobinson},
                                  {"RK", redlichKwong},
                                  {"SRK", soaveRedlichKwong},
                                  {"ZJ", zudkevitchJoffe}};
constexpr auto equationWords = [] {
    std::array<std::string_view, std::size(equations)> words;
    std::ranges::transform(equations, words.begin(), &Equation::word);
    return words;
}();

// What the keywords do.

ItemCount OnePerComponent(const Fluid& fluid) {
    return {fluid.n, fluid.n, "as many numbers as components (" + std::to_string(fluid.n) + ")"};
}

void IgnoreNumber(std::size_t, const double*) {}

double OrZero(const double* number) {
    return number != nullptr ? *number : 0.0;
}

void CheckCount(Fluid& fluid, const KeywordPlace& place, const FluidKeyword&) {
    KeywordRecord record(place);
    const std::uint64_t count = record.ReadCount();
    if (count != fluid.n) {
        record.Fail(std::to_string(fluid.n) + ", the number of names under CNAMES",
                    std::to_string(count));
    }
}

void ReadUnits(Fluid& fluid, const KeywordPlace& place, const FluidKeyword& keyword) {
    fluid.log.KeepUnits(place, KeywordRecord(place).ReadWord(keyword.words) == metric);
}

// The unit system of the simulation. With text behind it, it may be a line of the title.
void KeepUnits(Fluid& fluid, const KeywordPlace& place, const FluidKeyword& keyword) {
    if (place.remark.empty()) {
        fluid.log.KeepUnits(place, keyword.name == unitSystems[metric]);
    }
}

// What a deck says of its units counts in every section, as far as it can be understood.
void KeepUnitsElsewhere(Fluid& fluid, const DeckIndex& index) {
    for (const KeywordPlace& place : index.Elsewhere()) {
        try {
            fluid.log.KeepUnits(place, KeywordRecord(place).ReadWord(unitSystems) == metric);
        } catch (const KeywordError&) {
            continue; // data of another section, which are none of the fluid's
        }
    }
}

void ReadProperty(Fluid& fluid, const KeywordPlace& place, const FluidKeyword& keyword) {
    const auto set = [&](std::size_t index, const double* number) {
        if (number != nullptr) {
            fluid.model.getComponent(static_cast<int>(index))
                .setProperty(keyword.property, *number);
        }
    };
    KeywordRecord(place).ReadNumbers(OnePerComponent(fluid), set);
}

void CheckProperty(Fluid& fluid, const KeywordPlace& place, const FluidKeyword&) {
    KeywordRecord(place).ReadNumbers(OnePerComponent(fluid), IgnoreNumber);
}

std::string AdviseOnEquation(std::string_view word) {
    return word.starts_with("PR7") ? ": for the equation of 1978, use PR and the keyword PRCORR"
                                   : std::string();
}

int ReadEquationOfStateCode(const KeywordPlace& place) {
    return equations[KeywordRecord(place).ReadWord(equationWords)].code;
}

void ReadEquationOfState(Fluid& fluid, const KeywordPlace& place, const FluidKeyword&) {
    fluid.equationOfState = ReadEquationOfStateCode(place);
}

void CheckEquationOfState(Fluid&, const KeywordPlace& place, const FluidKeyword&) {
    ReadEquationOfStateCode(place);
}

void CorrectEquationOfState(Fluid& fluid, const KeywordPlace&, const FluidKeyword&) {
    fluid.isCorrected = true;
}

// The lower triangle of the symmetric matrix without its diagonal, row after row. `take` gets row,
// column and coefficient; those that the deck leaves out are zeros, and nobody has to be told.
template <typename Take>
void ReadTriangle(const Fluid& fluid, const KeywordPlace& place, Take take) {
    const std::size_t most = fluid.n < 2 ? 0 : fluid.n * (fluid.n - 1) / 2;
    int row = 1;
    int column = 0;
    KeywordRecord(place).ReadNumbers(
        {0, most, "at most one number for each pair of components (" + std::to_string(most) + ")"},
        [&](std::size_t, const double* number) {
            take(row, column, OrZero(number));
            if (++column == row) {
                ++row;
                column = 0;
            }
        });
}

void ReadCoefficients(Fluid& fluid, const KeywordPlace& place, const FluidKeyword&) {
    auto& coefficients = fluid.model.getBinaryInteractionCoefficients();
    ReadTriangle(fluid, place,
                 [&](int row, int column, double value) { coefficients.set(row, column, value); });
}

void CheckCoefficients(Fluid& fluid, const KeywordPlace& place, const FluidKeyword&) {
    ReadTriangle(fluid, place, [](int, int, double) {});
}

void UsePedersen(Fluid& fluid, const KeywordPlace&, const FluidKeyword&) {
    fluid.namesPedersen = true;
}

// A deck of a fluid with another viscosity correlation has the keyword with an empty record.
void ReadViscosityCoefficients(Fluid& fluid, const KeywordPlace& place, const FluidKeyword&) {
    constexpr std::size_t coefficients = 5;
    const std::string meaning = "five numbers or none";
    KeywordRecord record(place);
    const std::size_t count = record.ReadNumbers({0, coefficients, meaning}, IgnoreNumber);
    if (count != 0 && count != coefficients) {
        record.Fail(meaning, std::to_string(count));
    }
    fluid.lacksViscosityCoefficients = count == 0;
}

IDepthTable& EmptyCompositionTable(Fluid& fluid) {
    IDepthTable& table = fluid.model.makeInitialCondition(regionName)
                             .getDepthTable(IInitialCondition::TOTAL_COMPOSITION);
    table.clear(static_cast<int>(fluid.n));
    return table;
}

void ReadComposition(Fluid& fluid, const KeywordPlace& place, const FluidKeyword&) {
    IDepthTable& table = EmptyCompositionTable(fluid);
    table.addRow(0.0);
    std::size_t missing = 0;
    KeywordRecord(place).ReadNumbers(OnePerComponent(fluid),
                                     [&](std::size_t index, const double* number) {
                                         missing += number == nullptr ? 1 : 0;
                                         table.setValue(0, static_cast<int>(index), OrZero(number));
                                     });
    if (missing > 0 && missing < fluid.n) {
        fluid.log.Tell(Problems::valuesMissing, place.line,
                       "keyword ZI: expected a fraction for each component, found none for " +
                           std::to_string(missing) + " of " + std::to_string(fluid.n) +
                           ", taken as zero.");
    }
}

// Rows of a depth and one fraction for each component.
void ReadCompositionByDepth(Fluid& fluid, const KeywordPlace& place, const FluidKeyword&) {
    IDepthTable& table = EmptyCompositionTable(fluid);
    const std::size_t width = fluid.n + 1;
    const std::string meaning = "rows of a depth and " + std::to_string(fluid.n) + " fractions";
    KeywordRecord record(place);
    const std::size_t count = record.ReadNumbers(
        {width, mostTableNumbers, meaning}, [&](std::size_t index, const double* number) {
            const double value = OrZero(number);
            const auto row = static_cast<int>(index / width);
            const auto column = static_cast<int>(index % width);
            if (column == 0) {
                table.addRow(value);
            } else {
                table.setValue(row, column - 1, value);
            }
        });
    if (count % width != 0) {
        record.Fail(meaning, "a last row of " + std::to_string(count % width) + " numbers");
    }
}

// One temperature, or one for each region, of which the first counts.
void ReadReservoirTemperature(Fluid& fluid, const KeywordPlace& place, const FluidKeyword&) {
    ITemperatureTable& table = fluid.model.getTemperatureTable();
    const std::size_t count =
        KeywordRecord(place).ReadNumbers({1, mostTableNumbers, "a temperature for each region"},
                                         [&](std::size_t index, const double* number) {
                                             if (index == 0 && number != nullptr) {
                                                 table.setNumTemperatures(1);
                                                 table.setTemperature(0, *number);
                                             }
                                         });
    if (table.getNumTemperatures() == 0) {
        fluid.log.Tell(Problems::valuesMissing, place.line,
                       "keyword RTEMP: expected a temperature, found a default: the fluid comes "
                       "without one.");
    }
    if (count > 1) {
        fluid.log.Tell(Problems::furtherRecords, place.line,
                       "keyword RTEMP: expected one temperature, found " + std::to_string(count) +
                           ", one for each region; the first counts, the rest is dropped.");
    }
}

// Which keyword does what.

constexpr auto None = KeywordData::None;
constexpr auto Number = KeywordData::Numbers;
constexpr auto Word = KeywordData::Word;
constexpr auto Names = KeywordData::Names;
constexpr bool ofDeck = false; // counts always
constexpr bool ofFluid = true; // counts where the validator admits it
constexpr int noProperty = -1;

// CNAMES comes first, whatever its place in the deck; the other keywords are handled in the order
// in which they stand there.
// clang-format off
constexpr FluidKeyword keywords[] = {
    {"CNAMES",   Names,  ofFluid, nullptr,                   noProperty},
    {"NCOMPS",   Number, ofDeck,  CheckCount,                noProperty},
    {"COMPS",    Number, ofDeck,  CheckCount,                noProperty},
    {"FILEUNIT", Word,   ofDeck,  ReadUnits,                 noProperty, unitSystems},
    {"ECHO",     None,   ofDeck,  nullptr,                   noProperty},
    {"METRIC",   None,   ofDeck,  KeepUnits,                 noProperty},
    {"FIELD",    None,   ofDeck,  KeepUnits,                 noProperty},

    {"EOS",      Word,   ofFluid, ReadEquationOfState,       noProperty, equationWords, AdviseOnEquation},
    {"PRCORR",   None,   ofDeck,  CorrectEquationOfState,    noProperty},
    {"MW",       Number, ofFluid, ReadProperty,              IComponent::MOLECULAR_WEIGHT},
    {"PCRIT",    Number, ofFluid, ReadProperty,              IComponent::CRITICAL_PRESSURE},
    {"TCRIT",    Number, ofFluid, ReadProperty,              IComponent::CRITICAL_TEMPERATURE},
    {"VCRIT",    Number, ofFluid, ReadProperty,              IComponent::CRITICAL_VOLUME},
    {"ZCRIT",    Number, ofFluid, ReadProperty,              IComponent::CRITICAL_Z_FACTOR},
    {"ACF",      Number, ofFluid, ReadProperty,              IComponent::ACENTRIC_FACTOR},
    {"PARACHOR", Number, ofFluid, ReadProperty,              IComponent::PARACHOR},
    {"SSHIFT",   Number, ofFluid, ReadProperty,              IComponent::VOLUME_SHIFT},
    {"OMEGAA",   Number, ofFluid, ReadProperty,              IComponent::OMEGA_A},
    {"OMEGAB",   Number, ofFluid, ReadProperty,              IComponent::OMEGA_B},
    {"VCRITVIS", Number, ofFluid, ReadProperty,              IComponent::CRITICAL_VOLUME_FOR_VISCOSITY},
    {"ZCRITVIS", Number, ofFluid, ReadProperty,              IComponent::CRITICAL_Z_FACTOR_FOR_VISCOSITY},
    {"SPECHA",   Number, ofFluid, ReadProperty,              IComponent::SPECIFIC_HEAT_A},
    {"SPECHB",   Number, ofFluid, ReadProperty,              IComponent::SPECIFIC_HEAT_B},
    {"SPECHG",   Number, ofFluid, ReadProperty,              IComponent::SPECIFIC_HEAT_G},
    {"SPECHH",   Number, ofFluid, ReadProperty,              IComponent::SPECIFIC_HEAT_H},
    {"BIC",      Number, ofFluid, ReadCoefficients,          noProperty},

    {"PEDERSEN", None,   ofFluid, UsePedersen,               noProperty},
    {"LBCCOEF",  Number, ofDeck,  ReadViscosityCoefficients, noProperty},
    {"ZI",       Number, ofFluid, ReadComposition,           noProperty},
    {"ZMFVD",    Number, ofFluid, ReadCompositionByDepth,    noProperty},
    {"RTEMP",    Number, ofFluid, ReadReservoirTemperature,  noProperty},

    // Read and not stored: nothing in the store stands for the equation of state at the surface.
    {"EOSS",     Word,   ofFluid, CheckEquationOfState,      noProperty, equationWords, AdviseOnEquation},
    {"MWS",      Number, ofFluid, CheckProperty,             noProperty},
    {"PCRITS",   Number, ofFluid, CheckProperty,             noProperty},
    {"TCRITS",   Number, ofFluid, CheckProperty,             noProperty},
    {"VCRITS",   Number, ofFluid, CheckProperty,             noProperty},
    {"ZCRITS",   Number, ofFluid, CheckProperty,             noProperty},
    {"ACFS",     Number, ofFluid, CheckProperty,             noProperty},
    {"SSHIFTS",  Number, ofFluid, CheckProperty,             noProperty},
    {"OMEGAAS",  Number, ofFluid, CheckProperty,             noProperty},
    {"OMEGABS",  Number, ofFluid, CheckProperty,             noProperty},
    {"BICS",     Number, ofFluid, CheckCoefficients,         noProperty},
};
// clang-format on

// Every word at the head of a line is looked up, and a large deck has millions of them.
const FluidKeyword* Find(std::string_view name) {
    static const auto index = [] {
        std::unordered_map<std::string_view, const FluidKeyword*> byName;
        for (const FluidKeyword& keyword : keywords) {
            byName.emplace(keyword.name, &keyword);
        }
        return byName;
    }();
    const auto found = index.find(name);
    return found == index.end() ? nullptr : found->second;
}

// The names, on which everything else depends.

// A deck that was written for a fluid without components says so.
bool SaysNoComponents(const DeckIndex& index) {
    return std::ranges::any_of(
        std::initializer_list<std::string_view>{"NCOMPS", "COMPS"}, [&](std::string_view keyword) {
            const KeywordPlace* const place = index.Find(keyword);
            return place != nullptr && KeywordRecord(*place).ReadCount() == 0;
        });
}

// "C1,C2", "C1'C2" and "'C1','C2'" are one name each, which hardly anybody means, as are names in
// quotes that no deck knows. "2,2-dimethylbutane" and "it's" are meant.
bool LooksJoined(std::string_view name) {
    for (const std::string_view quote :
         {"\xE2\x80\x98", "\xE2\x80\x99", "\xE2\x80\x9C", "\xE2\x80\x9D"}) {
        if (name.starts_with(quote) || name.ends_with(quote)) {
            return true;
        }
    }
    if (name.find(';') != std::string_view::npos ||
        name.find("\xC2\xA0") != std::string_view::npos) {
        return true;
    }
    const auto isDigitAt = [name](std::size_t i) { return i < name.size() && IsDigit(name[i]); };
    for (std::size_t i = 0; i < name.size(); ++i) {
        const bool isQuote = name[i] == '\'' || name[i] == '"';
        if ((name[i] == ',' && !(i > 0 && isDigitAt(i - 1) && isDigitAt(i + 1))) ||
            (isQuote && i + 1 < name.size() &&
             (name[i + 1] == name[i] || (i > 0 && isDigitAt(i - 1) && IsLetter(name[i + 1]))))) {
            return true;
        }
    }
    return false;
}

std::vector<std::string> ReadNames(const DeckIndex& index, DeckLog& log) {
    const std::string meaning = "the names of the components";
    const KeywordPlace* const place = index.Find("CNAMES");
    if (place == nullptr) {
        throw KeywordError(index.End(), "CNAMES", meaning, "no such keyword in the deck");
    }
    KeywordRecord record(*place);
    std::vector<std::string> names = record.ReadNames(
        {0, mostComponents, meaning + ", at most " + std::to_string(mostComponents)});
    if (names.empty() && !SaysNoComponents(index)) {
        record.Fail(meaning, "none");
    }
    std::unordered_set<std::string_view> known;
    for (const std::string& name : names) {
        if (LooksJoined(name)) {
            log.Tell(Problems::joinedNames, place->line,
                     "keyword CNAMES: expected blanks between the names, found " + Quote(name) +
                         ", which is one name.");
        }
        if (!known.insert(name).second) {
            record.Fail("a name for each component alone", Quote(name) + " twice");
        }
    }
    return names;
}

} // namespace

DeckVocabulary VocabularyOf(const IFluidsKeywordValidator* validator) {
    const auto counts = [validator](const FluidKeyword& keyword) {
        return !keyword.isFluidKeyword || validator == nullptr ||
               validator->isValidKeyword(std::string(keyword.name));
    };
    DeckVocabulary vocabulary;
    vocabulary.find = [counts](std::string_view name) -> std::optional<WantedKeyword> {
        const FluidKeyword* const keyword = Find(name);
        return keyword != nullptr && counts(*keyword)
                   ? std::optional(WantedKeyword{keyword->data, keyword->words, keyword->advise,
                                                 keyword->handle == ReadUnits})
                   : std::nullopt;
    };
    for (const FluidKeyword& keyword : keywords) {
        if (counts(keyword)) {
            vocabulary.names.push_back(keyword.name);
        }
    }
    return vocabulary;
}

void InterpretFluid(const DeckIndex& index, IFluidModels& models, DeckLog& log) {
    const std::vector<std::string> names = ReadNames(index, log);
    Fluid fluid{*models.makeCompositionalModel(modelName), log, names.size()};
    for (const std::string& name : names) {
        fluid.model.makeComponent(name);
    }
    for (const KeywordPlace& place : index.Keywords()) {
        const FluidKeyword& keyword = *Find(place.keyword);
        log.KeepRead(place);
        if (keyword.handle != nullptr) {
            keyword.handle(fluid, place, keyword);
        }
    }
    KeepUnitsElsewhere(fluid, index);
    const bool isCorrected = fluid.isCorrected && fluid.equationOfState == pengRobinson;
    fluid.model.setEquationOfState(isCorrected ? correctedPengRobinson : fluid.equationOfState);
    const bool usesPedersen = fluid.namesPedersen || fluid.lacksViscosityCoefficients;
    fluid.model.setViscosityModel(usesPedersen ? pedersen : lohrenzBrayClark);
    CheckFluid(fluid.model, index, log);
}

} // namespace Orv::Kes::KesModel
