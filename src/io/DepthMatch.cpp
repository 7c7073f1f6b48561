// Stations and readings are put in the order of well and depth and walked together. Equality within
// a tolerance isn't transitive, so each station has a window of readings of its own; but from one
// station to the next deeper one, both ends of the window only move down. The readings of the
// window that may still be somebody's last are kept in a queue, in ascending depth and descending
// index: a reading is dropped once a deeper one with a higher index has come, and the front of the
// queue is the answer.
#include "DepthMatch.h"

#include "FluidBench/Utilities/Equations.h"

#include <algorithm>
#include <unordered_map>

namespace Orv::FluidBench::IO {

using Utilities::Equations;

namespace {

struct Place {
    std::size_t well; // a number instead of a name
    double depth;
    std::size_t index;
};

// An object, so that sorting doesn't call it through a pointer.
constexpr auto isBefore = [](const Place& first, const Place& second) {
    return first.well != second.well ? first.well < second.well : first.depth < second.depth;
};

class WellNumbers {
public:
    std::size_t Of(std::string_view well) {
        // Rows of a well come together.
        if (numbers_.empty() || well != lastWell_) {
            lastWell_ = well;
            lastNumber_ = numbers_.emplace(well, numbers_.size()).first->second;
        }
        return lastNumber_;
    }

private:
    std::unordered_map<std::string_view, std::size_t> numbers_;
    std::string_view lastWell_;
    std::size_t lastNumber_ = 0;
};

std::vector<Place> InOrder(const std::vector<WellDepth>& depths, WellNumbers& numbers) {
    std::vector<Place> places;
    places.reserve(depths.size());
    for (std::size_t i = 0; i < depths.size(); ++i) {
        places.push_back({numbers.Of(depths[i].well), depths[i].depth, i});
    }
    // Files are mostly in order already.
    if (!std::ranges::is_sorted(places, isBefore)) {
        std::ranges::sort(places, isBefore);
    }
    return places;
}

} // namespace

std::vector<std::size_t> LastMatches(const std::vector<WellDepth>& stations,
                                     const std::vector<WellDepth>& readings, double tolerance) {
    WellNumbers numbers;
    const std::vector<Place> places = InOrder(readings, numbers);
    const auto areEqual = [tolerance](const Place& station, const Place& reading) {
        return station.well == reading.well &&
               Equations::RelativeDoublesEqual(station.depth, reading.depth, tolerance);
    };
    std::vector<std::size_t> matches(stations.size(), noMatch);
    std::vector<Place> queue;
    std::size_t front = 0; // of the queue
    std::size_t next = 0;  // of the readings
    for (const Place& station : InOrder(stations, numbers)) {
        while (next < places.size() &&
               (!isBefore(station, places[next]) || areEqual(station, places[next]))) {
            while (queue.size() > front && queue.back().index < places[next].index) {
                queue.pop_back();
            }
            queue.push_back(places[next++]);
        }
        while (front < queue.size() && !areEqual(station, queue[front])) {
            ++front;
        }
        if (front < queue.size()) {
            matches[station.index] = queue[front].index;
        }
    }
    return matches;
}

} // namespace Orv::FluidBench::IO
