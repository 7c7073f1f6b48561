// JSON, written piece by piece.
#pragma once

#include <cstddef>
#include <cstdint>
#include <ostream>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace FluidBenchTool {

/// Writes one JSON text to a stream as it is told, and holds nothing of it, so that a table of any
/// length can be written. Members of an object have a key and elements of an array have none. The
/// text is ASCII: other characters are escaped, bytes that aren't UTF-8 become the replacement
/// character, and a number that isn't finite becomes null.
///
/// Whoever begins an object or array ends it. The stream is the caller's and outlives the object.
class JsonWriter {
public:
    explicit JsonWriter(std::ostream& out) : out_(out) {}
    JsonWriter(const JsonWriter&) = delete;
    JsonWriter& operator=(const JsonWriter&) = delete;

    void BeginObject(std::string_view key = {}) { Begin(key, '{'); }
    void EndObject() { End('}'); }
    void BeginArray(std::string_view key = {}) { Begin(key, '['); }
    void EndArray() { End(']'); }

    void Add(std::string_view key, std::string_view value);
    void Add(std::string_view key, const char* value) { Add(key, std::string_view(value)); }
    void Add(std::string_view key, double value);
    void Add(std::string_view key, std::uint64_t value);
    void Add(std::string_view key, bool value);
    void AddNull(std::string_view key);
    /// Arrays on one line.
    void Add(std::string_view key, std::span<const double> values);
    void Add(std::string_view key, std::span<const std::string> values);
    /// An array of rows, each on a line.
    void AddRows(std::string_view key, std::span<const std::vector<double>> rows);

private:
    void Begin(std::string_view key, char bracket);
    void End(char bracket);
    void BeginValue(std::string_view key);

    std::ostream& out_;
    std::vector<bool> hasElements_; // of each object or array that isn't ended
};

} // namespace FluidBenchTool
