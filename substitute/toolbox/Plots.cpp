// The toolbox's plots and their lines: values without any computation behind them.
#include "FluidBench/Common/CommonPlottingObject.h"
#include "FluidBench/Common/PTline.h"
#include "Room.h"

#include <algorithm>
#include <cstddef>
#include <stdexcept>
#include <utility>

namespace Orv::FluidBench::Common {

Line::Line(std::string name, std::vector<double> x, std::vector<double> y, Type type, Phase phase)
    : Line(std::move(name), std::move(x), std::move(y), type, phase, 0.0) {}

Line::Line(std::string name, std::vector<double> x, std::vector<double> y, Type type, Phase phase,
           double phaseFraction)
    : name_(std::move(name)), type_(type), phase_(phase), phaseFraction_(phaseFraction) {
    points_.reserve(std::min(x.size(), y.size()));
    for (std::size_t i = 0; i < std::min(x.size(), y.size()); ++i) {
        points_.push_back({x[i], y[i]});
    }
}

Line::Line(const Line&) = default;
Line::Line(Line&&) noexcept = default;
Line& Line::operator=(const Line& other) {
    return *this = Line(other);
}
Line& Line::operator=(Line&&) noexcept = default;
Line::~Line() = default;

std::vector<Point> Line::GetPoints() const {
    return points_;
}

const std::vector<Point>& Line::ViewPoints() const noexcept {
    return points_;
}

double Line::GetPhaseFraction() const noexcept {
    return phaseFraction_;
}

const std::string& Line::GetName() const noexcept {
    return name_;
}

Line::Type Line::GetType() const noexcept {
    return type_;
}

Line::Phase Line::GetPhase() const noexcept {
    return phase_;
}

PTline::PTline(PTlineIdentifier identifier, double fraction)
    : identifier_(identifier), fraction_(fraction) {}
PTline::PTline(const PTline&) = default;
PTline::PTline(PTline&&) noexcept = default;
PTline& PTline::operator=(const PTline& other) {
    return *this = PTline(other);
}
PTline& PTline::operator=(PTline&&) noexcept = default;
PTline::~PTline() = default;

void PTline::SetLine(const std::vector<double>& pressures,
                     const std::vector<double>& temperatures) {
    const auto points = std::min(std::ssize(pressures), std::ssize(temperatures));
    std::vector<double> first(pressures.begin(), pressures.begin() + points);
    temperatures_.assign(temperatures.begin(), temperatures.begin() + points);
    pressures_ = std::move(first);
}

void PTline::SetLine(std::vector<double>&& pressures, std::vector<double>&& temperatures) noexcept {
    const std::size_t points = std::min(pressures.size(), temperatures.size());
    pressures.resize(points); // shorter, which takes no memory
    temperatures.resize(points);
    pressures_ = std::move(pressures);
    temperatures_ = std::move(temperatures);
}

PTline::PTlineIdentifier PTline::GetLineType() const noexcept {
    return identifier_;
}

double PTline::GetQualityLineFraction() const noexcept {
    return fraction_;
}

std::vector<double> PTline::GetPressures() const& {
    return pressures_;
}

std::vector<double> PTline::GetTemperatures() const& {
    return temperatures_;
}

std::vector<double> PTline::GetPressures() && noexcept {
    return std::move(pressures_);
}

std::vector<double> PTline::GetTemperatures() && noexcept {
    return std::move(temperatures_);
}

CommonPlottingObject::CommonPlottingObject(AxisType xAxis, AxisType yAxis)
    : xAxis_(xAxis), yAxis_(yAxis) {}
CommonPlottingObject::CommonPlottingObject(const CommonPlottingObject&) = default;
CommonPlottingObject::CommonPlottingObject(CommonPlottingObject&&) noexcept = default;
CommonPlottingObject& CommonPlottingObject::operator=(const CommonPlottingObject& other) {
    return *this = CommonPlottingObject(other);
}
CommonPlottingObject& CommonPlottingObject::operator=(CommonPlottingObject&&) noexcept = default;
CommonPlottingObject::~CommonPlottingObject() = default;

void CommonPlottingObject::AddLine(const Line& line) {
    AddLine(Line(line));
}

void CommonPlottingObject::AddLine(Line&& line) {
    std::vector<std::size_t>& places = places_[{line.GetType(), line.GetPhase()}];
    MakeRoomForOneMore(places);
    lines_.push_back(std::move(line));
    places.push_back(lines_.size() - 1);
}

bool CommonPlottingObject::HasLine(Line::Type type, Line::Phase phase) const noexcept {
    return NumberOfLines(type, phase) > 0;
}

int CommonPlottingObject::NumberOfLines(Line::Type type, Line::Phase phase) const noexcept {
    const auto found = places_.find({type, phase});
    return found == places_.end() ? 0 : static_cast<int>(found->second.size());
}

const Line& CommonPlottingObject::GetLine(Line::Type type, Line::Phase phase, int index) const {
    if (index < 0 || index >= NumberOfLines(type, phase)) {
        throw std::out_of_range("The plot has no such line");
    }
    return lines_[places_.at({type, phase})[static_cast<std::size_t>(index)]];
}

const std::vector<Line>& CommonPlottingObject::GetLines() const& noexcept {
    return lines_;
}

std::vector<Line> CommonPlottingObject::GetLines() && noexcept {
    places_.clear();
    return std::move(lines_);
}

CommonPlottingObject::AxisType CommonPlottingObject::GetXAxisType() const noexcept {
    return xAxis_;
}

CommonPlottingObject::AxisType CommonPlottingObject::GetYAxisType() const noexcept {
    return yAxis_;
}

} // namespace Orv::FluidBench::Common
