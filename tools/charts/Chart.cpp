#include "Chart.h"

#include "PanelDrawing.h"

#include <algorithm>
#include <cmath>

namespace FluidBenchTool {

namespace {

constexpr double top = 76.0;       // of the panels
constexpr double rightEdge = 24.0; // beside them, where no legend is
constexpr double besideWidth = 248.0;
constexpr double panelTitleHeight = 22.0;

constexpr double sampleWidth = 40.0;
constexpr double sampleDistance = 10.0;
constexpr double lineHeight = 22.0;
constexpr double secondLineHeight = 16.0;
constexpr double textSize = 13.0;
constexpr double secondSize = 11.5;

void DrawSample(SvgPicture& picture, const LegendEntry& entry, Place begin) {
    if (entry.isMarker) {
        picture.AddDisc({begin.x + sampleWidth / 2.0, begin.y}, markerRadius, entry.stroke.colour,
                        markerRim);
    } else {
        picture.AddLine(begin, {begin.x + sampleWidth, begin.y}, entry.stroke);
    }
}

void DrawLegendBeside(SvgPicture& picture, const Chart& chart) {
    const double begin = chart.width - besideWidth + 22.0;
    const double textBegin = begin + sampleWidth + sampleDistance;
    const double room = chart.width - textBegin - 4.0;
    double y = top + 8.0;
    for (const LegendEntry& entry : chart.legend) {
        DrawSample(picture, entry, {begin, y});
        picture.AddText({textBegin, y + halfOfCapitals}, Shortened(entry.text, room, textSize), {});
        if (!entry.secondLine.empty()) {
            y += secondLineHeight;
            picture.AddText({textBegin, y + halfOfCapitals},
                            Shortened(entry.secondLine, room, secondSize),
                            {.size = secondSize, .colour = "#555555"});
        }
        y += lineHeight;
    }
}

// An entry of a legend below the panels, which runs on like text.
struct Placed {
    const LegendEntry* entry;
    std::string text;
    Place place; // from the upper left corner of the legend
};

std::vector<Placed> LineUp(const Chart& chart) {
    constexpr double gap = 18.0;
    const double room = chart.width - 2.0 * rightEdge;
    std::vector<Placed> placed;
    Place at;
    for (const LegendEntry& entry : chart.legend) {
        const std::string both =
            entry.text + (entry.secondLine.empty() ? "" : " (" + entry.secondLine + ')');
        const std::string text = Shortened(both, room - sampleWidth - sampleDistance, textSize);
        const double width = sampleWidth + sampleDistance + WidthOf(text, textSize);
        if (at.x > 0.0 && at.x + width > room) {
            at = {0.0, at.y + lineHeight};
        }
        placed.push_back({&entry, text, at});
        at.x += width + gap;
    }
    return placed;
}

void DrawLegendBelow(SvgPicture& picture, const std::vector<Placed>& legend, double legendTop) {
    for (const Placed& placed : legend) {
        const Place begin{rightEdge + placed.place.x, legendTop + placed.place.y};
        DrawSample(picture, *placed.entry, begin);
        picture.AddText({begin.x + sampleWidth + sampleDistance, begin.y + halfOfCapitals},
                        placed.text, {});
    }
}

void DrawTitle(SvgPicture& picture, const Chart& chart, double left) {
    constexpr double titleSize = 19.0;
    const double room = chart.width - left - rightEdge / 2.0;
    picture.AddText({left, 36.0}, Shortened(chart.title, room, titleSize),
                    {.size = titleSize, .isBold = true});
    picture.AddText({left, 58.0}, Shortened(chart.subtitle, room, textSize),
                    {.size = textSize, .colour = "#555555"});
}

std::size_t RowsOf(const Chart& chart) {
    const auto columns = static_cast<std::size_t>(std::max(chart.columns, 1));
    return (chart.panels.size() + columns - 1) / columns;
}

// Where the panels are, each of the same size. Gives the left end of the first one's axis.
double DrawPanels(SvgPicture& picture, const Chart& chart, const Box& area) {
    const auto columns = static_cast<std::size_t>(std::max(chart.columns, 1));
    const double width = area.Width() / static_cast<double>(columns);
    const double height = area.Height() / static_cast<double>(RowsOf(chart));
    double left = area.left;
    for (std::size_t i = 0; i < chart.panels.size(); ++i) {
        const auto column = static_cast<double>(i % columns);
        const std::size_t row = i / columns;
        const double titleHeight = chart.panels[i].title.empty() ? 0.0 : panelTitleHeight;
        const double begin = area.left + column * width;
        const double above = area.top + static_cast<double>(row) * height;
        const double axis = DrawPanel(picture, chart.panels[i],
                                      {begin, above + titleHeight,
                                       begin + width - (columns > 1 ? 14.0 : 0.0), above + height});
        left = i == 0 ? axis : left;
    }
    return left;
}

// How much smaller than it is drawn a picture is shown that has too little room for its texts.
double ZoomOf(const Chart& chart) {
    constexpr double leastWidth = 560.0;
    constexpr double leastPanelWidth = 290.0;
    constexpr double leastHeight = 400.0;
    constexpr double leastPanelHeight = 230.0;
    const double width = std::max(leastWidth, leastPanelWidth * chart.columns);
    const double height =
        std::max(leastHeight, top + leastPanelHeight * static_cast<double>(RowsOf(chart)));
    return std::min({1.0, chart.width / width, chart.height / height});
}

// The picture, in the pixels that it is drawn in.
std::string DrawPage(const Chart& chart, double zoom) {
    constexpr double narrow = 640.0;
    SvgPicture picture(chart.width, chart.height, chart.title + ", " + chart.subtitle, zoom);
    const bool isBelow = chart.panels.size() > 1 || chart.width < narrow;
    const std::vector<Placed> below = isBelow ? LineUp(chart) : std::vector<Placed>();
    const double belowHeight = below.empty() ? 0.0 : below.back().place.y + lineHeight;
    const double beside = isBelow ? rightEdge : besideWidth;
    const double bottom = chart.height - belowHeight;
    const double left = DrawPanels(picture, chart, {0.0, top, chart.width - beside, bottom});
    DrawTitle(picture, chart, left);
    if (isBelow) {
        DrawLegendBelow(picture, below, bottom + halfOfCapitals);
    } else {
        DrawLegendBeside(picture, chart);
    }
    return picture.Finish();
}

} // namespace

std::string DrawChart(const Chart& chart) {
    const double zoom = ZoomOf(chart);
    Chart page = chart;
    page.width /= zoom;
    page.height /= zoom;
    return DrawPage(page, zoom);
}

} // namespace FluidBenchTool
