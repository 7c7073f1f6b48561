// What lets an object change in several places as one: the part that can fail comes first.
#pragma once

#include <algorithm>
#include <vector>

namespace Orv::FluidBench {

/// Makes sure that the next element appended to `values` needs no memory. Grows as a vector does by
/// itself, so that appending one by one stays cheap. When it fails, `values` is as it was.
template <typename Value>
void MakeRoomForOneMore(std::vector<Value>& values) {
    if (values.size() == values.capacity()) {
        values.reserve(std::max(values.size() + 1, 2 * values.size()));
    }
}

} // namespace Orv::FluidBench
