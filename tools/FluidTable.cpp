#include "FluidTable.h"

#include "FluidBench/Common/Units.h"
#include "Table.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace FluidBenchTool {

using Orv::FluidBench::Common::pvtEnumBICType;
using Orv::FluidBench::Common::pvtEnumEoS;
using Orv::FluidBench::Common::pvtEnumPropertySource;
using Orv::FluidBench::Common::pvtEnumUnitFraction;
using Orv::FluidBench::Common::pvtEnumViscosityMethod;
using Orv::FluidBench::Common::Units;
using Orv::FluidBench::Model::CompositionalFluid;
using Orv::FluidBench::Model::FluidComponent;

namespace {

using Conversion = double (*)(double);

double AsItIs(double value) {
    return value;
}

struct Column {
    const char* metricHeading;
    const char* fieldHeading;
    pvtEnumPropertySource (FluidComponent::*source)() const;
    double (FluidComponent::*value)() const;
    Conversion toMetric;
    Conversion toField;
};

// clang-format off
constexpr Column columns[] = {
    {"MW", "MW", &FluidComponent::GetMolecularWeightSource, &FluidComponent::GetMolecularWeight,
     AsItIs, AsItIs},
    {"Tc K", "Tc R", &FluidComponent::GetTcritSource, &FluidComponent::GetTcrit,
     AsItIs, Units::Temperature_K_To_R},
    {"Pc bar", "Pc psia", &FluidComponent::GetPcritSource, &FluidComponent::GetPcrit,
     Units::Pressure_Pa_To_bar, Units::Pressure_Pa_To_psi},
    {"Vc m3/kg-mole", "Vc ft3/lb-mole", &FluidComponent::GetVcritSource, &FluidComponent::GetVcrit,
     Units::MolarVolume_m3gmmol_To_m3kgmol, Units::MolarVolume_m3gmmol_To_ft3lbmol},
    {"Vc,visc m3/kg-mole", "Vc,visc ft3/lb-mole",
     &FluidComponent::GetVcritViscositySource, &FluidComponent::GetVcritViscosity,
     Units::MolarVolume_m3gmmol_To_m3kgmol, Units::MolarVolume_m3gmmol_To_ft3lbmol},
    {"Zc", "Zc", &FluidComponent::GetZcritSource, &FluidComponent::GetZcrit,
     AsItIs, AsItIs},
    {"acentric", "acentric", &FluidComponent::GetAcfSource, &FluidComponent::GetAcf,
     AsItIs, AsItIs},
    {"parachor", "parachor", &FluidComponent::GetParachorSource, &FluidComponent::GetParachor,
     AsItIs, AsItIs},
    {"shift", "shift",
     &FluidComponent::GetEoSVolumeShiftSource, &FluidComponent::GetEoSVolumeShift,
     AsItIs, AsItIs},
    {"omega A", "omega A", &FluidComponent::GetOmegaASource, &FluidComponent::GetOmegaA,
     AsItIs, AsItIs},
    {"omega B", "omega B", &FluidComponent::GetOmegaBSource, &FluidComponent::GetOmegaB,
     AsItIs, AsItIs},
};
// clang-format on

std::string EoSText(pvtEnumEoS eos) {
    switch (eos) {
    case pvtEnumEoS::PengRobinson:
        return "Peng-Robinson";
    case pvtEnumEoS::PengRobinson78:
        return "Peng-Robinson (1978)";
    case pvtEnumEoS::PengRobinsonVolumeShift:
        return "Peng-Robinson with volume shift";
    case pvtEnumEoS::PengRobinson78VolumeShift:
        return "Peng-Robinson (1978) with volume shift";
    case pvtEnumEoS::RedlichKwong:
        return "Redlich-Kwong";
    case pvtEnumEoS::SoaveRedlichKwong:
        return "Soave-Redlich-Kwong";
    case pvtEnumEoS::SoaveRedlichKwongVolumeShift:
        return "Soave-Redlich-Kwong with volume shift";
    case pvtEnumEoS::ZudkevitchJoffe:
        return "Zudkevitch-Joffe";
    }
    return "unknown";
}

std::string ViscosityText(pvtEnumViscosityMethod method) {
    switch (method) {
    case pvtEnumViscosityMethod::LohrenzBrayClark:
        return "Lohrenz-Bray-Clark";
    case pvtEnumViscosityMethod::Pedersen:
        return "Pedersen";
    }
    return "unknown";
}

std::string FractionHeading(pvtEnumUnitFraction type) {
    switch (type) {
    case pvtEnumUnitFraction::Mole:
        return "mole fraction";
    case pvtEnumUnitFraction::Mass:
        return "mass fraction";
    }
    return "fraction";
}

bool HasValue(const FluidComponent& component, const Column& column) {
    return (component.*column.source)() != pvtEnumPropertySource::NoValue;
}

std::vector<Column> UsedColumns(const std::vector<FluidComponent>& components) {
    std::vector<Column> used;
    for (const Column& column : columns) {
        if (std::ranges::any_of(components, [&](const auto& c) { return HasValue(c, column); })) {
            used.push_back(column);
        }
    }
    return used;
}

void PrintComponents(std::ostream& out, const CompositionalFluid& fluid, FluidUnits units) {
    const bool metric = units == FluidUnits::Metric;
    const std::vector<FluidComponent> components = fluid.GetOrderedComponents();
    const std::vector<Column> used = UsedColumns(components);
    std::vector<std::string> headings{"component",
                                      FractionHeading(fluid.GetComponentFractionType())};
    for (const Column& column : used) {
        headings.emplace_back(metric ? column.metricHeading : column.fieldHeading);
    }
    Table table(std::move(headings));
    for (const FluidComponent& component : components) {
        const std::string& name = component.GetName();
        std::vector<std::string> row{name, NumberText(fluid.GetComponentFraction(name))};
        for (const Column& column : used) {
            const Conversion convert = metric ? column.toMetric : column.toField;
            row.push_back(HasValue(component, column)
                              ? NumberText(convert((component.*column.value)()))
                              : "-");
        }
        table.AddRow(std::move(row));
    }
    table.Print(out);
}

void PrintCoefficients(std::ostream& out, const CompositionalFluid& fluid) {
    const std::vector<std::string> names = fluid.ListComponents();
    Table table({"interaction of", "and", "coefficient"});
    bool isEmpty = true;
    for (std::size_t row = 1; row < names.size(); ++row) {
        for (std::size_t column = 0; column < row; ++column) {
            const double value =
                fluid.GetBIC(names[column], names[row], pvtEnumBICType::ReservoirEoS);
            if (value != 0.0) {
                table.AddRow({names[column], names[row], NumberText(value)});
                isEmpty = false;
            }
        }
    }
    if (isEmpty) {
        out << "All interaction coefficients are zero.\n";
    } else {
        table.Print(out);
    }
}

} // namespace

void PrintFluid(std::ostream& out, const CompositionalFluid& fluid, FluidUnits units) {
    const std::string& name = fluid.GetName();
    out << "fluid                  " << (name.empty() ? "(without a name)" : name) << '\n'
        << "equation of state      " << EoSText(fluid.GetEoS()) << '\n'
        << "viscosity correlation  " << ViscosityText(fluid.GetViscosityCorrelation()) << '\n';
    out << '\n';
    if (fluid.NumberOfComponents() == 0) {
        out << "The fluid has no components.\n";
        return;
    }
    PrintComponents(out, fluid, units);
    out << '\n';
    PrintCoefficients(out, fluid);
}

} // namespace FluidBenchTool
