#include "FluidChecks.h"

#include "NumberText.h"
#include "Quote.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <string>
#include <string_view>

namespace Orv::Kes::KesModel {

using SimFluid::IComponent;
using SimFluid::ICompositionalModel;
using SimFluid::IInitialCondition;
using Text::Quote;

namespace {

struct CheckedProperty {
    std::string_view keyword;
    int key;
    const char* isNeededAs; // null for one that a fluid can do without; a zero is none otherwise
};
// clang-format off
constexpr CheckedProperty properties[] = {
    {"MW",       IComponent::MOLECULAR_WEIGHT,     "molecular weights"},
    {"PCRIT",    IComponent::CRITICAL_PRESSURE,    "critical pressures"},
    {"TCRIT",    IComponent::CRITICAL_TEMPERATURE, "critical temperatures"},
    {"OMEGAA",   IComponent::OMEGA_A,              "constants A of its equation of state"},
    {"OMEGAB",   IComponent::OMEGA_B,              "constants B of its equation of state"},
    {"VCRIT",    IComponent::CRITICAL_VOLUME,      nullptr},
    {"ZCRIT",    IComponent::CRITICAL_Z_FACTOR,    nullptr},
    {"ACF",      IComponent::ACENTRIC_FACTOR,      nullptr},
    {"PARACHOR", IComponent::PARACHOR,             nullptr},
    {"SSHIFT",   IComponent::VOLUME_SHIFT,         nullptr},
    {"VCRITVIS", IComponent::CRITICAL_VOLUME_FOR_VISCOSITY,   nullptr},
    {"ZCRITVIS", IComponent::CRITICAL_Z_FACTOR_FOR_VISCOSITY, nullptr},
};
// clang-format on

constexpr double tolerance = 0.001 + 1e-9; // of a sum of fractions, with what rounding adds

// Where the keyword stands, or the deck as a whole.
FilePlace PlaceFor(const DeckIndex& index, std::string_view keyword) {
    const KeywordPlace* const place = index.Find(keyword);
    return place != nullptr ? place->line : FilePlace{index.End().file, 0};
}

bool HasValue(const IComponent& component, const CheckedProperty& property) {
    return component.hasProperty(property.key) &&
           (property.isNeededAs == nullptr || component.getProperty(property.key) != 0.0);
}

void CheckProperty(const ICompositionalModel& model, const CheckedProperty& property,
                   const FilePlace& place, DeckLog& log) {
    const int n = model.getNumComponents();
    int missing = 0;
    std::string firstWithout;
    for (int i = 0; i < n; ++i) {
        const IComponent& component = model.getComponent(i);
        if (!HasValue(component, property) && ++missing == 1) {
            firstWithout = component.getName();
        }
    }
    const std::string keyword(property.keyword);
    if (missing == n && property.isNeededAs != nullptr) {
        log.Tell(Problems::propertyMissing, place,
                 "expected a value of " + keyword +
                     " for each component, found none: the fluid comes without " +
                     property.isNeededAs + '.');
    } else if (missing > 0 && missing < n) {
        log.Tell(Problems::valuesMissing, place,
                 "expected a value of " + keyword + " for each component, found none for " +
                     Quote(firstWithout) +
                     (missing > 1 ? " and " + std::to_string(missing - 1) + " more." : "."));
    }
}

// The sum of the first row of compositions.
double SumOfFractions(const ICompositionalModel& model) {
    const auto names = model.getInitialConditionNames();
    double sum = 0.0;
    if (!names.empty()) {
        const IInitialCondition& condition = model.getInitialCondition(*names.begin());
        if (condition.hasDepthTable(IInitialCondition::TOTAL_COMPOSITION)) {
            const auto& table = condition.getDepthTable(IInitialCondition::TOTAL_COMPOSITION);
            for (int i = 0; i < model.getNumComponents(); ++i) {
                sum += table.getValue(0, i);
            }
        }
    }
    return sum;
}

void CheckFractions(const ICompositionalModel& model, const DeckIndex& index, DeckLog& log) {
    const KeywordPlace* source = nullptr; // the later of the two
    for (const KeywordPlace& place : index.Keywords()) {
        source = place.keyword == "ZI" || place.keyword == "ZMFVD" ? &place : source;
    }
    if (source == nullptr) {
        log.Tell(Problems::noComposition, {index.End().file, 0},
                 "expected ZI or ZMFVD, found neither: the fractions of all components are zero.");
        return;
    }
    const double sum = SumOfFractions(model);
    std::string found;
    Text::AppendNumber(found, sum, {});
    const std::string expected =
        "keyword " + source->keyword + ": expected fractions that add up to 1, found ";
    if (sum == 0.0) {
        log.Tell(Problems::noComposition, source->line, expected + "zeros alone.");
    } else if (std::abs(sum - 100.0) <= 100.0 * tolerance) {
        log.Tell(Problems::percentages, source->line,
                 expected + "the sum " + found + ": are they percentages?");
    } else if (!(std::abs(sum - 1.0) <= tolerance)) {
        log.Tell(Problems::fractionSum, source->line, expected + "the sum " + found + '.');
    }
}

} // namespace

void CheckFluid(const ICompositionalModel& model, const DeckIndex& index, DeckLog& log) {
    if (model.getNumComponents() == 0) {
        return;
    }
    for (const CheckedProperty& property : properties) {
        CheckProperty(model, property, PlaceFor(index, property.keyword), log);
    }
    CheckFractions(model, index, log);
}

} // namespace Orv::Kes::KesModel
