#include "Chart.h"

#include "AxisScale.h"
#include "Table.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace FluidBenchTool {

namespace {

using Anchor = TextStyle::Anchor;

constexpr double width = 960.0;
constexpr double height = 600.0;

// The area between the axes. Its left side moves to the right for long numbers along the y axis.
constexpr double usualLeft = 88.0;
constexpr double right = 712.0;
constexpr double top = 76.0;
constexpr double bottom = 526.0;

constexpr int xIntervals = 7;
constexpr int yIntervals = 6;

constexpr double yLabelDistance = 10.0;
constexpr double yTitleBase = 26.0;
constexpr double tickLength = 6.0;
constexpr double minorTickLength = 3.0;
constexpr double markerRadius = 5.5;
constexpr double dotRadius = 3.5; // of a curve that is a point alone to the eye

const Stroke frameStroke{"#444444", 1.2};
const Stroke gridStroke{"#e4e4e4", 1.0};
const Stroke markerRim{"#ffffff", 1.5};

bool CanBeDrawn(const Place& point) {
    constexpr double limit = 1e100;
    return std::abs(point.x) < limit && std::abs(point.y) < limit; // false for what isn't a number
}

struct Range {
    double least = std::numeric_limits<double>::infinity();
    double most = -std::numeric_limits<double>::infinity();

    void Include(double value) {
        least = std::min(least, value);
        most = std::max(most, value);
    }
    bool IsEmpty() const { return least > most; }
};

struct Axes {
    AxisScale x;
    AxisScale y;
    double left = usualLeft;

    Place On(const Place& point) const {
        return {left + x.Part(point.x) * (right - left), bottom - y.Part(point.y) * (bottom - top)};
    }
};

// The axis is a little longer than its values, so that no curve runs along the frame. It is pulled
// down to zero where its values nearly reach there anyhow.
AxisScale ScaleOf(const Range& range, int intervals, bool mayBeginAtZero) {
    constexpr double room = 0.02;
    constexpr double farAboveZero = 0.7;
    const double margin = room * (range.most - range.least);
    const bool beginsAtZero =
        mayBeginAtZero && range.least >= 0.0 && range.least < farAboveZero * range.most;
    return RoundScale(beginsAtZero ? 0.0 : range.least - margin, range.most + margin, intervals);
}

// Where the numbers along the axis stand clear of its title.
double LeftBeside(const AxisScale& yAxis) {
    constexpr double gap = 10.0 + yLabelDistance; // to the title and to the axis
    constexpr double digitWidth = 8.3;            // of the widest of the fonts
    std::size_t longest = 0;
    for (const double tick : yAxis.ticks) {
        longest = std::max(longest, ShownWidth(yAxis.Label(tick)));
    }
    const double labels = digitWidth * static_cast<double>(longest);
    return std::max(usualLeft, yTitleBase + gap + labels);
}

void DrawTitle(SvgPicture& picture, const Chart& chart, double left) {
    picture.AddText({left, 36.0}, chart.title, {.size = 19.0, .isBold = true});
    picture.AddText({left, 58.0}, chart.subtitle, {.size = 13.0, .colour = "#555555"});
}

void DrawAxes(SvgPicture& picture, const Chart& chart, const Axes& axes) {
    constexpr double xLabelDistance = 21.0;
    constexpr double halfOfCapitals = 4.5;
    const double left = axes.left;
    const auto addXTick = [&](double x, double length) {
        picture.AddLine({x, bottom}, {x, bottom + length}, frameStroke);
    };
    const auto addYTick = [&](double y, double length) {
        picture.AddLine({left - length, y}, {left, y}, frameStroke);
    };
    for (const double tick : axes.x.ticks) {
        const double x = axes.On({tick, 0.0}).x;
        picture.AddLine({x, top}, {x, bottom}, gridStroke);
        addXTick(x, tickLength);
        picture.AddText({x, bottom + xLabelDistance}, axes.x.Label(tick),
                        {.anchor = Anchor::Middle});
    }
    for (const double tick : axes.y.ticks) {
        const double y = axes.On({0.0, tick}).y;
        picture.AddLine({left, y}, {right, y}, gridStroke);
        addYTick(y, tickLength);
        picture.AddText({left - yLabelDistance, y + halfOfCapitals}, axes.y.Label(tick),
                        {.anchor = Anchor::End});
    }
    for (const double tick : axes.x.minorTicks) {
        addXTick(axes.On({tick, 0.0}).x, minorTickLength);
    }
    for (const double tick : axes.y.minorTicks) {
        addYTick(axes.On({0.0, tick}).y, minorTickLength);
    }
    picture.AddRectangle({left, top}, right - left, bottom - top, frameStroke);
    picture.AddText({(left + right) / 2.0, bottom + 50.0}, chart.xLabel,
                    {.size = 15.0, .anchor = Anchor::Middle});
    picture.AddText({yTitleBase, (top + bottom) / 2.0}, chart.yLabel,
                    {.size = 15.0, .anchor = Anchor::Middle, .isUpward = true});
}

bool CanBeToldApart(const Place& first, const Place& second) {
    constexpr double smallestDistance = 0.4; // pixels
    return std::hypot(first.x - second.x, first.y - second.y) >= smallestDistance;
}

// The points that make a difference to the eye: of a million, a few thousand at most, and one alone
// of a curve that never leaves its first.
std::vector<Place> VisiblePlaces(std::vector<Place>::const_iterator begin,
                                 std::vector<Place>::const_iterator end, const Axes& axes) {
    std::vector<Place> places;
    for (auto point = begin; point != end; ++point) {
        const Place place = axes.On(*point);
        const bool isEndOfCurve = point + 1 == end && places.size() > 1;
        if (places.empty() || isEndOfCurve || CanBeToldApart(places.back(), place)) {
            places.push_back(place);
        }
    }
    return places;
}

void DrawCurve(SvgPicture& picture, const Curve& curve, const Axes& axes) {
    for (auto begin = std::ranges::find_if(curve.points, CanBeDrawn);
         begin != curve.points.end();) {
        const auto end = std::find_if_not(begin, curve.points.end(), CanBeDrawn);
        const std::vector<Place> places = VisiblePlaces(begin, end, axes);
        const bool isDot = places.size() == 1;
        if (curve.isMarker || isDot) {
            const double radius = curve.isMarker ? markerRadius : dotRadius;
            for (const Place& place : places) {
                picture.AddDisc(place, radius, curve.stroke.colour, markerRim);
            }
        } else {
            picture.AddPolyline(places, curve.stroke);
        }
        begin = std::find_if(end, curve.points.end(), CanBeDrawn);
    }
}

void DrawLegend(SvgPicture& picture, const std::vector<LegendEntry>& legend) {
    constexpr double begin = right + 22.0;
    constexpr double sampleWidth = 40.0;
    constexpr double textBegin = begin + sampleWidth + 10.0;
    constexpr double lineHeight = 22.0;
    constexpr double secondLineHeight = 16.0;
    constexpr double halfOfCapitals = 4.5;
    double y = top + 8.0;
    for (const LegendEntry& entry : legend) {
        if (entry.isMarker) {
            picture.AddDisc({begin + sampleWidth / 2.0, y}, markerRadius, entry.stroke.colour,
                            markerRim);
        } else {
            picture.AddLine({begin, y}, {begin + sampleWidth, y}, entry.stroke);
        }
        picture.AddText({textBegin, y + halfOfCapitals}, entry.text, {});
        if (!entry.secondLine.empty()) {
            y += secondLineHeight;
            picture.AddText({textBegin, y + halfOfCapitals}, entry.secondLine,
                            {.size = 11.5, .colour = "#555555"});
        }
        y += lineHeight;
    }
}

} // namespace

std::string DrawChart(const Chart& chart) {
    SvgPicture picture(width, height, chart.title + ", " + chart.subtitle);
    Range x;
    Range y;
    for (const Curve& curve : chart.curves) {
        for (const Place& point : curve.points) {
            if (CanBeDrawn(point)) {
                x.Include(point.x);
                y.Include(point.y);
            }
        }
    }
    if (x.IsEmpty()) {
        DrawTitle(picture, chart, usualLeft);
        picture.AddRectangle({usualLeft, top}, right - usualLeft, bottom - top, frameStroke);
        picture.AddText({(usualLeft + right) / 2.0, (top + bottom) / 2.0}, "No points",
                        {.size = 15.0, .anchor = Anchor::Middle});
        return picture.Finish();
    }
    Axes axes{ScaleOf(x, xIntervals, false), ScaleOf(y, yIntervals, true)};
    axes.left = LeftBeside(axes.y);
    DrawTitle(picture, chart, axes.left);
    DrawAxes(picture, chart, axes);
    for (const Curve& curve : chart.curves) {
        DrawCurve(picture, curve, axes);
    }
    DrawLegend(picture, chart.legend);
    return picture.Finish();
}

} // namespace FluidBenchTool
