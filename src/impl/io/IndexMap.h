// An ordered map from indices that mostly follow each other without gaps.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <vector>

namespace Orv::FluidBench::Impl::IO {

/// Entries in one piece of memory, in rising order of their indices; any index is as good as
/// another, also a negative one. Where the indices have no gaps, an entry's place follows from its
/// index and nothing is searched. A value.
template <typename Value>
class IndexMap {
public:
    /// Null where there is no such entry. Valid until an entry is added or removed.
    const Value* Find(std::int32_t index) const {
        const auto place = Place(index);
        return place != entries_.end() && place->index == index ? &place->value : nullptr;
    }

    /// The entry, made anew where there is none.
    Value& operator[](std::int32_t index) {
        const auto place = Place(index);
        if (place != entries_.end() && place->index == index) {
            return entries_[static_cast<std::size_t>(place - entries_.begin())].value;
        }
        return entries_.insert(place, Entry{index, Value()})->value;
    }

    void Erase(std::int32_t index) {
        const auto place = Place(index);
        if (place != entries_.end() && place->index == index) {
            entries_.erase(place);
        }
    }

private:
    struct Entry {
        std::int32_t index;
        Value value;
    };

    // Where the entry is, or where it belongs.
    auto Place(std::int32_t index) const {
        if (entries_.empty() || entries_.back().index < index) {
            return entries_.end();
        }
        const std::int64_t guess = std::int64_t{index} - entries_.front().index;
        if (guess >= 0 && guess < std::ssize(entries_) &&
            entries_[static_cast<std::size_t>(guess)].index == index) {
            return entries_.begin() + guess;
        }
        return std::ranges::lower_bound(entries_, index, {}, &Entry::index);
    }

    std::vector<Entry> entries_;
};

} // namespace Orv::FluidBench::Impl::IO
