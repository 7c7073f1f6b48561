#include "PanelDrawing.h"

#include "Table.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace FluidBenchTool {

namespace {

using Anchor = TextStyle::Anchor;

// The room for an axis beside the curves. The left one grows with long numbers along the y axis.
constexpr double usualLeft = 88.0;
constexpr double usualBottom = 74.0;

constexpr double yLabelDistance = 10.0;
constexpr double yTitleBase = 26.0;
constexpr double tickLength = 6.0;
constexpr double minorTickLength = 3.0;
constexpr double dotRadius = 3.5; // of a curve that is a point alone to the eye
constexpr double labelSize = 11.0;
constexpr double smallFrame = 300.0; // of this height takes smaller texts and closer ticks

const Stroke frameStroke{"#444444", 1.2};
const Stroke gridStroke{"#e4e4e4", 1.0};
const Stroke levelStroke{"#777777", 1.4, "8 4"};

struct Range {
    double least = std::numeric_limits<double>::infinity();
    double most = -std::numeric_limits<double>::infinity();

    void Include(double value) {
        least = std::min(least, value);
        most = std::max(most, value);
    }
    bool IsEmpty() const { return least > most; }
};

bool CanBeDrawn(double value, const Axis& axis) {
    constexpr double limit = 1e100;
    return std::abs(value) < limit && // false for what isn't a number
           (axis.kind == AxisKind::Linear || value > 1.0 / limit);
}

struct Axes {
    const Panel& panel;
    AxisScale x;
    AxisScale y;
    Box frame;

    bool CanDraw(const Place& point) const {
        return CanBeDrawn(point.x, panel.x) && CanBeDrawn(point.y, panel.y);
    }
    double X(double value) const {
        const double part = x.Part(value);
        return frame.left + (panel.x.isDownward ? 1.0 - part : part) * frame.Width();
    }
    double Y(double value) const {
        const double part = y.Part(value);
        return frame.bottom - (panel.y.isDownward ? 1.0 - part : part) * frame.Height();
    }
    Place On(const Place& point) const { return {X(point.x), Y(point.y)}; }
};

// A linear axis is a little longer than its values, so that no curve runs along the frame. It is
// pulled down to zero where its values nearly reach there anyhow.
AxisScale ScaleOf(const Axis& axis, const Range& range, double length, double pixelsPerStep,
                  bool mayBeginAtZero) {
    constexpr double room = 0.02;
    constexpr double farAboveZero = 0.7;
    const int intervals = std::clamp(static_cast<int>(std::round(length / pixelsPerStep)), 2, 10);
    if (axis.kind == AxisKind::Logarithmic) {
        return LogarithmicScale(axis.range.value_or(AxisRange{range.least, range.most}), intervals,
                                axis.range.has_value());
    }
    if (axis.range) {
        return ExactScale(*axis.range, intervals);
    }
    const double margin = room * (range.most - range.least);
    const bool beginsAtZero =
        mayBeginAtZero && range.least >= 0.0 && range.least < farAboveZero * range.most;
    return RoundScale(beginsAtZero ? 0.0 : range.least - margin, range.most + margin, intervals);
}

// How much room the numbers along the axis need to stand clear of its title.
double RoomBeside(const AxisScale& yAxis, double usual) {
    constexpr double gap = 10.0 + yLabelDistance; // to the title and to the axis
    constexpr double digitWidth = 8.3;            // of the widest of the fonts
    std::size_t longest = 0;
    for (const double tick : yAxis.ticks) {
        longest = std::max(longest, ShownWidth(yAxis.Label(tick)));
    }
    return std::max(usual, yTitleBase + gap + digitWidth * static_cast<double>(longest));
}

void DrawXAxis(SvgPicture& picture, const Axes& axes) {
    constexpr double labelDistance = 21.0;
    const double bottom = axes.frame.bottom;
    const auto addTick = [&](double x, double length) {
        picture.AddLine({x, bottom}, {x, bottom + length}, frameStroke);
    };
    for (const double tick : axes.x.ticks) {
        const double x = axes.X(tick);
        picture.AddLine({x, axes.frame.top}, {x, bottom}, gridStroke);
        addTick(x, tickLength);
        picture.AddText({x, bottom + labelDistance}, axes.x.Label(tick),
                        {.anchor = Anchor::Middle});
    }
    for (const double tick : axes.x.minorTicks) {
        addTick(axes.X(tick), minorTickLength);
    }
}

void DrawYAxis(SvgPicture& picture, const Axes& axes) {
    const double left = axes.frame.left;
    const auto addTick = [&](double y, double length) {
        picture.AddLine({left - length, y}, {left, y}, frameStroke);
    };
    for (const double tick : axes.y.ticks) {
        const double y = axes.Y(tick);
        picture.AddLine({left, y}, {axes.frame.right, y}, gridStroke);
        addTick(y, tickLength);
        picture.AddText({left - yLabelDistance, y + halfOfCapitals}, axes.y.Label(tick),
                        {.anchor = Anchor::End});
    }
    for (const double tick : axes.y.minorTicks) {
        addTick(axes.Y(tick), minorTickLength);
    }
}

void DrawFrame(SvgPicture& picture, const Axes& axes, double boxLeft) {
    constexpr double usualSize = 15.0;
    constexpr double smallSize = 13.0;
    const Box& frame = axes.frame;
    const double size = frame.Height() < smallFrame ? smallSize : usualSize;
    picture.AddRectangle({frame.left, frame.top}, frame.Width(), frame.Height(), frameStroke);
    picture.AddText({(frame.left + frame.right) / 2.0, frame.bottom + 50.0},
                    Shortened(axes.panel.x.label, frame.Width(), size),
                    {.size = size, .anchor = Anchor::Middle});
    picture.AddText({boxLeft + yTitleBase, (frame.top + frame.bottom) / 2.0},
                    Shortened(axes.panel.y.label, frame.Height() + 20.0, size),
                    {.size = size, .anchor = Anchor::Middle, .isUpward = true});
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

// Whether a short text may stand there without crossing the frame.
bool HasRoom(const Place& place, const Box& frame) {
    constexpr double margin = 14.0;
    return place.x >= frame.left + margin && place.x <= frame.right - margin &&
           place.y >= frame.top + margin && place.y <= frame.bottom - margin;
}

// How far a place is from the closest of the others.
double DistanceTo(const std::vector<Place>& others, const Place& place) {
    double least = std::numeric_limits<double>::infinity();
    for (const Place& other : others) {
        least = std::min(least, std::hypot(other.x - place.x, other.y - place.y));
    }
    return least;
}

// A label stands on its curve where other curves are far, in the middle part of what is inside the
// frame.
void DrawLabel(SvgPicture& picture, const std::string& label, std::vector<Place> places,
               const std::vector<Place>& others, const Box& frame) {
    constexpr std::size_t candidates = 12;
    std::erase_if(places, [&](const Place& place) { return !HasRoom(place, frame); });
    if (places.empty()) {
        return;
    }
    Place best = places[places.size() / 2];
    double farthest = DistanceTo(others, best);
    for (std::size_t i = candidates / 4; i < candidates * 3 / 4; ++i) {
        const Place& place = places[places.size() * i / candidates];
        if (const double distance = DistanceTo(others, place); distance > farthest) {
            best = place;
            farthest = distance;
        }
    }
    picture.AddText({best.x, best.y + halfOfCapitals}, label,
                    {.size = labelSize, .anchor = Anchor::Middle, .hasHalo = true});
}

void DrawCurve(SvgPicture& picture, const Curve& curve, const Axes& axes) {
    const auto canBeDrawn = [&](const Place& point) { return axes.CanDraw(point); };
    for (auto begin = std::ranges::find_if(curve.points, canBeDrawn);
         begin != curve.points.end();) {
        const auto end = std::find_if_not(begin, curve.points.end(), canBeDrawn);
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
        begin = std::find_if(end, curve.points.end(), canBeDrawn);
    }
}

// The places of a curve, at most so many: enough to know where it runs.
std::vector<Place> SomePlaces(const Curve& curve, const Axes& axes) {
    constexpr std::size_t most = 500;
    const std::size_t step = curve.points.size() / most + 1;
    std::vector<Place> places;
    for (std::size_t i = 0; i < curve.points.size(); i += step) {
        if (axes.CanDraw(curve.points[i])) {
            places.push_back(axes.On(curve.points[i]));
        }
    }
    return places;
}

void DrawLabels(SvgPicture& picture, const Axes& axes) {
    for (const Curve& curve : axes.panel.curves) {
        if (curve.label.empty()) {
            continue;
        }
        std::vector<Place> others;
        for (const Curve& other : axes.panel.curves) {
            if (&other != &curve) {
                const std::vector<Place> places = SomePlaces(other, axes);
                others.insert(others.end(), places.begin(), places.end());
            }
        }
        DrawLabel(picture, curve.label, SomePlaces(curve, axes), others, axes.frame);
    }
}

void DrawLevels(SvgPicture& picture, const Axes& axes) {
    constexpr double distance = 5.0;
    const Box& frame = axes.frame;
    for (const Level& level : axes.panel.levels) {
        if (!CanBeDrawn(level.y, axes.panel.y)) {
            continue;
        }
        const double y = axes.Y(level.y);
        if (y >= frame.top && y <= frame.bottom) {
            picture.AddLine({frame.left, y}, {frame.right, y}, levelStroke);
            picture.AddText({frame.right - distance, y - distance},
                            Shortened(level.name, frame.Width(), labelSize),
                            {.size = labelSize, .anchor = Anchor::End, .hasHalo = true});
        }
    }
}

void DrawEmpty(SvgPicture& picture, const Box& frame) {
    picture.AddRectangle({frame.left, frame.top}, frame.Width(), frame.Height(), frameStroke);
    picture.AddText({(frame.left + frame.right) / 2.0, (frame.top + frame.bottom) / 2.0},
                    "No points", {.size = 15.0, .anchor = Anchor::Middle});
}

void FindRanges(const Panel& panel, Range& x, Range& y) {
    for (const Curve& curve : panel.curves) {
        for (const Place& point : curve.points) {
            if (CanBeDrawn(point.x, panel.x) && CanBeDrawn(point.y, panel.y)) {
                x.Include(point.x);
                y.Include(point.y);
            }
        }
    }
    for (const Level& level : panel.levels) {
        if (CanBeDrawn(level.y, panel.y)) {
            y.Include(level.y);
        }
    }
}

} // namespace

double WidthOf(std::string_view text, double size) {
    constexpr double widthOfCharacter = 0.56; // of its height
    return static_cast<double>(ShownWidth(text)) * size * widthOfCharacter;
}

std::string Shortened(const std::string& text, double width, double size) {
    if (WidthOf(text, size) <= width) {
        return text;
    }
    std::vector<std::string_view> characters;
    for (std::size_t i = 0; i < text.size();) {
        std::size_t end = i + 1;
        while (end < text.size() && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U) {
            ++end;
        }
        characters.push_back(std::string_view(text).substr(i, end - i));
        i = end;
    }
    const double kept = static_cast<double>(characters.size()) * width / WidthOf(text, size);
    const auto each = static_cast<std::size_t>(std::max(kept - 1.0, 2.0) / 2.0);
    std::string shortened;
    for (std::size_t i = 0; i < characters.size(); ++i) {
        if (i < each || i >= characters.size() - each) {
            shortened += characters[i];
        } else if (i == each) {
            shortened += "\u2026";
        }
    }
    return shortened;
}

double DrawPanel(SvgPicture& picture, const Panel& panel, const Box& box) {
    constexpr double xPixelsPerStep = 90.0;
    constexpr double titleDistance = 8.0;
    const Box frame{box.left + usualLeft, box.top, box.right, box.bottom - usualBottom};
    const double yPixelsPerStep = frame.Height() < smallFrame ? 50.0 : 75.0;
    Range x;
    Range y;
    FindRanges(panel, x, y);
    if (x.IsEmpty()) {
        DrawEmpty(picture, frame);
        return frame.left;
    }
    Axes axes{
        panel, {}, ScaleOf(panel.y, y, frame.Height(), yPixelsPerStep, !panel.y.isDownward), frame};
    constexpr double narrowBox = 400.0;
    axes.frame.left =
        box.left + RoomBeside(axes.y, box.Width() < narrowBox ? usualLeft - 14.0 : usualLeft);
    // With depth downward it is x that depends on y.
    axes.x = ScaleOf(panel.x, x, axes.frame.Width(), xPixelsPerStep, panel.y.isDownward);
    if (!panel.title.empty()) {
        picture.AddText({axes.frame.left, axes.frame.top - titleDistance},
                        Shortened(panel.title, axes.frame.Width(), 14.0),
                        {.size = 14.0, .isBold = true});
    }
    DrawXAxis(picture, axes);
    DrawYAxis(picture, axes);
    DrawFrame(picture, axes, box.left);
    const bool isClipped = panel.x.range || panel.y.range;
    if (isClipped) {
        picture.BeginClip({axes.frame.left, axes.frame.top}, axes.frame.Width(),
                          axes.frame.Height());
    }
    for (const Curve& curve : panel.curves) {
        DrawCurve(picture, curve, axes);
    }
    if (isClipped) {
        picture.EndClip();
    }
    DrawLevels(picture, axes);
    DrawLabels(picture, axes);
    return axes.frame.left;
}

} // namespace FluidBenchTool
