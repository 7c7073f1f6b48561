// The plot commands of black-oil tables, K-values and fluids by depth.
#include "PlotCommands.h"

#include "BlackOilView.h"
#include "FluidBench/Common/Units.h"
#include "Palette.h"
#include "Plots.h"
#include "ShownUnit.h"
#include "Table.h"
#include "TableFiles.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace FluidBenchTool {

using Orv::FluidBench::Common::Units;
using Orv::FluidBench::Experiments::Stage;
using Orv::FluidBench::IO::DepthTable;
using Orv::FluidBench::Model::BlackOilDataRecords;
using Orv::FluidBench::Model::BlackOilTable;
using Orv::FluidBench::Model::KValuesTable;

namespace {

constexpr double saturatedWidth = 2.4;
constexpr double otherWidth = 1.2;

std::string Named(const std::string& quantity, const ShownUnit& unit) {
    return quantity + " (" + unit.name + ')';
}

// ---- black oil: a row of panels for oil and one for gas

struct Quantity {
    const char* name;
    double (BlackOilDataRecords::*value)(std::uint64_t, std::uint64_t) const;
    ShownUnit BlackOilUnits::*unit;
};

// A phase, with the two tables that it may be in: by ratio and pressure, or by pressure alone.
struct Phase {
    const char* name;
    const BlackOilDataRecords& (BlackOilTable::*full)() const noexcept;
    const BlackOilDataRecords& (BlackOilTable::*simple)() const noexcept;
    const BlackOilUnits& (*units)(bool field);
    Quantity quantities[3];
};

constexpr Phase phases[] = {
    {"oil",
     &BlackOilTable::GetLiveOilData,
     &BlackOilTable::GetDeadOilData,
     OilUnits,
     {{"Solution gas-oil ratio", &BlackOilDataRecords::GetProperty, &BlackOilUnits::ratio},
      {"Oil volume factor", &BlackOilDataRecords::GetFormationVolumeFactor,
       &BlackOilUnits::volumeFactor},
      {"Oil viscosity", &BlackOilDataRecords::GetViscosity, &BlackOilUnits::viscosity}}},
    {"gas",
     &BlackOilTable::GetWetGasData,
     &BlackOilTable::GetDryGasData,
     GasUnits,
     {{"Vaporised oil-gas ratio", &BlackOilDataRecords::GetProperty, &BlackOilUnits::ratio},
      {"Gas volume factor", &BlackOilDataRecords::GetFormationVolumeFactor,
       &BlackOilUnits::volumeFactor},
      {"Gas viscosity", &BlackOilDataRecords::GetViscosity, &BlackOilUnits::viscosity}}},
};

// One quantity of the tables against pressure. The first entry of each record is saturated; these
// make one curve together, and each record another one from there.
void AddRecords(Panel& panel, const BlackOilDataRecords& records, const Quantity& quantity,
                const BlackOilUnits& units, const char* colour, bool isByPressureAlone) {
    const ShownUnit& unit = units.*quantity.unit;
    const auto point = [&](std::uint64_t record, std::uint64_t entry) {
        return Place{units.pressure.convert(records.GetPressure(record, entry)),
                     unit.convert((records.*quantity.value)(record, entry))};
    };
    Curve saturated{{colour, saturatedWidth}, false, {}};
    for (std::uint64_t record = 0; record < records.GetTableSize(); ++record) {
        const std::uint64_t entries = records.GetRecordContentSize(record);
        Curve branch{{colour, otherWidth, "5 3"}, false, {}};
        for (std::uint64_t entry = 0; entry < entries; ++entry) {
            const bool isSaturated = entry == 0 || isByPressureAlone;
            (isSaturated ? saturated : branch).points.push_back(point(record, entry));
            if (entry == 0 && !isByPressureAlone) {
                branch.points.push_back(point(record, entry));
            }
        }
        if (branch.points.size() > 1) {
            panel.curves.push_back(std::move(branch));
        }
    }
    panel.curves.push_back(std::move(saturated));
}

struct NamedTable {
    std::string name;
    BlackOilTable table;
};

std::vector<NamedTable> ReadAllBlackOil(Call& call) {
    std::vector<NamedTable> all;
    ForEachPlotted(call, [&](Input& input, const std::string& file) {
        BlackOilFile read = ReadBlackOil(input, call);
        for (std::size_t i = 0; i < read.regions.size(); ++i) {
            const std::string region =
                read.regions.size() > 1 ? ", region " + std::to_string(i + 1) : std::string();
            all.push_back({LegendName(file) + region, std::move(read.regions[i])});
        }
    });
    return all;
}

Panel PanelOf(const std::vector<NamedTable>& tables, const Phase& phase, const Quantity& quantity,
              bool field) {
    const BlackOilUnits& units = phase.units(field);
    Panel panel{quantity.name,
                {.label = Named("Pressure", units.pressure)},
                {.label = (units.*quantity.unit).name},
                {}};
    for (std::size_t i = 0; i < tables.size(); ++i) {
        AddRecords(panel, (tables[i].table.*phase.full)(), quantity, units, ColourOf(i), false);
        AddRecords(panel, (tables[i].table.*phase.simple)(), quantity, units, ColourOf(i), true);
    }
    return panel;
}

bool HasPoints(const Panel& panel) {
    return std::ranges::any_of(panel.curves, [](const Curve& c) { return !c.points.empty(); });
}

} // namespace

void PlotBlackOil(Call& call) {
    RequirePicture(call);
    const bool field = IsField(call, Options::showUnits);
    const std::vector<NamedTable> tables = ReadAllBlackOil(call);
    Chart chart{"Black-oil properties", SubtitleOf(call), {}, 3};
    for (const Phase& phase : phases) {
        std::vector<Panel> row;
        for (const Quantity& quantity : phase.quantities) {
            row.push_back(PanelOf(tables, phase, quantity, field));
        }
        if (std::ranges::any_of(row, HasPoints)) {
            chart.panels.insert(chart.panels.end(), row.begin(), row.end());
        }
    }
    if (chart.panels.empty()) {
        chart.panels.push_back(PanelOf(tables, phases[0], phases[0].quantities[0], field));
        chart.columns = 1;
    }
    if (tables.size() > 1) {
        for (std::size_t i = 0; i < tables.size(); ++i) {
            chart.legend.push_back({{ColourOf(i), saturatedWidth}, false, tables[i].name});
        }
    }
    const char* const colour = tables.size() > 1 ? "#555555" : ColourOf(0);
    chart.legend.push_back({{colour, saturatedWidth}, false, "saturated"});
    chart.legend.push_back({{colour, otherWidth, "5 3"}, false, "undersaturated"});
    constexpr double rowHeight = 290.0;
    constexpr double aroundRows = 110.0;
    constexpr std::size_t columns = 3;
    const std::size_t rows = (chart.panels.size() + columns - 1) / columns;
    chart.width = 1200.0;
    chart.height = aroundRows + static_cast<double>(rows) * rowHeight;
    WritePicture(call, call.Asked().Operands().back(), std::move(chart));
}

namespace {

// ---- K-values

void AddKValues(Panel& panel, std::vector<std::string>& components, const KValuesTable& table,
                const ShownUnit& pressure, std::size_t file) {
    const std::vector<std::string> names = table.GetComponents();
    for (std::size_t i = 0; i < names.size(); ++i) {
        auto found = std::ranges::find(components, names[i]);
        if (found == components.end()) {
            components.push_back(names[i]);
            found = components.end() - 1;
        }
        const auto index = static_cast<std::size_t>(found - components.begin());
        Curve curve{{ColourOf(index), 2.0, DashesOf(file)}, false, {}};
        for (std::uint64_t record = 0; record < table.GetTableSize(); ++record) {
            const std::vector<double>& values = table.GetRecord(record);
            curve.points.push_back({pressure.convert(values.front()), values[i + 1]});
        }
        panel.curves.push_back(std::move(curve));
    }
}

} // namespace

void PlotKValues(Call& call) {
    RequirePicture(call);
    const bool field = IsField(call, Options::showUnits);
    const ShownUnit pressure = OilUnits(field).pressure;
    Panel panel{"",
                {.label = Named("Pressure", pressure), .kind = AxisKind::Logarithmic},
                {.label = "K-value", .kind = AxisKind::Logarithmic},
                {}};
    std::vector<std::string> components;
    std::vector<LegendEntry> tables;
    ForEachPlotted(call, [&](Input& input, const std::string& file) {
        for (const KValuesTable& table : ReadKValues(input, call)) {
            AddKValues(panel, components, table, pressure, tables.size());
            const ShownUnit degrees =
                field ? ShownUnit{"\u00B0F", Units::Temperature_K_To_F} : ShownUnit{"K"};
            tables.push_back(
                {{"#555555", 2.0, DashesOf(tables.size())},
                 false,
                 LegendName(file),
                 table.Temperature < 0.0
                     ? std::string()
                     : NumberText(degrees.convert(table.Temperature)) + ' ' + degrees.name});
        }
    });
    Chart chart{"K-values", SubtitleOf(call), {std::move(panel)}};
    for (std::size_t i = 0; i < components.size(); ++i) {
        chart.legend.push_back({{ColourOf(i), 2.0}, false, components[i]});
    }
    if (tables.size() > 1) {
        const bool isOneFile = call.Asked().Operands().size() == 2; // named below the title
        for (LegendEntry& table : tables) {
            if (isOneFile && !table.secondLine.empty()) {
                table.text = std::exchange(table.secondLine, {});
            }
            chart.legend.push_back(std::move(table));
        }
    } else if (!tables.front().secondLine.empty()) {
        chart.subtitle += ", at " + tables.front().secondLine;
    }
    WritePicture(call, call.Asked().Operands().back(), std::move(chart));
}

namespace {

// ---- fluids by depth

struct DepthPanels {
    Panel saturation;
    Panel ratio;
    Panel composition;
};

struct DepthUnits {
    ShownUnit depth;
    ShownUnit pressure;
    ShownUnit ratio;
};

DepthUnits DepthUnitsOf(bool field) {
    return {field ? ShownUnit{"ft", Units::Depth_m_to_ft} : ShownUnit{"m"},
            OilUnits(field).pressure,
            field ? ShownUnit{"Mscf/stb", Units::GOR_m3m3_To_Mscfstb} : ShownUnit{"m3/m3"}};
}

void AddCurves(DepthPanels& panels, const DepthRun& run, const DepthUnits& units,
               std::size_t file) {
    // By depth: the contact has its place between gas and oil.
    std::vector<const Stage*> stages = run.rows;
    std::ranges::stable_sort(stages, {},
                             [](const Stage* s) { return s->Results->Depth.GetValue(); });
    const auto curve = [&](const char* colour, auto value) {
        Curve made{{colour, 2.0, DashesOf(file)}, false, {}};
        for (const Stage* const stage : stages) {
            made.points.push_back(
                {value(*stage), units.depth.convert(stage->Results->Depth.GetValue())});
        }
        return made;
    };
    panels.saturation.curves.push_back(curve(ColourOf(0), [&](const Stage& s) {
        return units.pressure.convert(s.Results->SaturationPressure.GetValue());
    }));
    panels.ratio.curves.push_back(curve(ColourOf(0), [&](const Stage& s) {
        return units.ratio.convert(s.Results->GasOilRatio.GetValue());
    }));
    for (std::size_t i = 0; i < run.components.size(); ++i) {
        panels.composition.curves.push_back(curve(ColourOf(i), [&](const Stage& s) {
            return s.Fluid.GetComponentFraction(run.components[i]);
        }));
    }
    if (const auto& contact = run.results.ContactStage.Results->Depth; contact.IsSet) {
        for (Panel* const panel : {&panels.saturation, &panels.ratio, &panels.composition}) {
            panel->levels.push_back({units.depth.convert(contact.GetValue()), "contact"});
        }
    }
}

// The same of tables against depth. Vaporised oil is drawn as the gas-oil ratio that it is the
// inverse of.
void AddTables(DepthPanels& panels, std::vector<std::string>& components,
               const std::vector<DepthTable>& tables, const DepthUnits& units, std::size_t file) {
    const auto add = [&](Panel& panel, const DepthTable& table, std::size_t column, auto value) {
        Curve made{{ColourOf(column), 2.0, DashesOf(file)}, false, {}};
        for (std::size_t i = 0; i < table.Depths.size(); ++i) {
            made.points.push_back(
                {value(table.Values[i].at(column)), units.depth.convert(table.Depths[i])});
        }
        panel.curves.push_back(std::move(made));
    };
    for (const DepthTable& table : tables) {
        if (table.Keyword == "RSVD") {
            add(panels.ratio, table, 0, units.ratio.convert);
        } else if (table.Keyword == "RVVD") {
            add(panels.ratio, table, 0,
                [&](double value) { return units.ratio.convert(1.0 / value); });
        } else if (table.Keyword != "ZMFVD") {
            add(panels.saturation, table, 0, units.pressure.convert);
        } else if (!table.Values.empty()) {
            for (std::size_t i = 0; i < table.Values.front().size(); ++i) {
                add(panels.composition, table, i, [](double fraction) { return fraction; });
                if (i >= components.size()) {
                    components.push_back("component " + std::to_string(i + 1));
                }
            }
        }
    }
}

DepthPanels EmptyDepthPanels(const DepthUnits& units) {
    const Axis depth{.label = Named("Depth", units.depth), .isDownward = true};
    const Axis pressure{.label = units.pressure.name};
    const Axis ratio{.label = units.ratio.name, .kind = AxisKind::Logarithmic};
    return {{"Saturation pressure", pressure, depth, {}},
            {"Gas-oil ratio", ratio, depth, {}},
            {"Composition", {.label = "mole fraction"}, depth, {}}};
}

} // namespace

void PlotDepth(Call& call) {
    RequirePicture(call);
    const DepthUnits units = DepthUnitsOf(IsField(call, Options::showUnits));
    DepthPanels panels = EmptyDepthPanels(units);
    std::vector<std::string> components;
    std::vector<LegendEntry> files;
    ForEachPlotted(call, [&](Input& input, const std::string& file) {
        DepthFile read;
        ReadDepth(input, call, read);
        const std::vector<std::string>& names = read.run.components;
        if (read.tables.empty()) {
            AddCurves(panels, read.run, units, files.size());
        }
        components = names.size() > components.size() ? names : components;
        AddTables(panels, components, read.tables, units, files.size());
        files.push_back({{"#555555", 2.0, DashesOf(files.size())}, false, LegendName(file)});
    });
    Chart chart{
        "Fluids by depth",
        SubtitleOf(call),
        {std::move(panels.saturation), std::move(panels.ratio), std::move(panels.composition)},
        3};
    if (const auto contact = call.Asked().Number(Options::contact)) {
        for (Panel& panel : chart.panels) {
            panel.levels = {{*contact, "contact"}};
        }
    }
    for (std::size_t i = 0; i < components.size(); ++i) {
        chart.legend.push_back({{ColourOf(i), 2.0}, false, components[i]});
    }
    if (files.size() > 1) {
        chart.legend.insert(chart.legend.end(), files.begin(), files.end());
    }
    chart.width = 1200.0;
    chart.height = 560.0;
    WritePicture(call, call.Asked().Operands().back(), std::move(chart));
}

} // namespace FluidBenchTool
