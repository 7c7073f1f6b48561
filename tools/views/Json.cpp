#include "Json.h"

#include <nlohmann/json.hpp>

namespace FluidBenchTool {

namespace {

template <typename Value>
std::string TextOf(const Value& value) {
    constexpr int onOneLine = -1;
    constexpr bool asciiAlone = true;
    return nlohmann::json(value).dump(onOneLine, ' ', asciiAlone,
                                      nlohmann::json::error_handler_t::replace);
}

template <typename Value>
void WriteArray(std::ostream& out, std::span<const Value> values) {
    out << '[';
    for (std::size_t i = 0; i < values.size(); ++i) {
        out << (i > 0 ? ", " : "") << TextOf(values[i]);
    }
    out << ']';
}

} // namespace

void JsonWriter::BeginValue(std::string_view key) {
    if (!hasElements_.empty()) {
        out_ << (hasElements_.back() ? ",\n" : "\n") << std::string(2 * hasElements_.size(), ' ');
        hasElements_.back() = true;
    }
    if (!key.empty()) {
        out_ << TextOf(key) << ": ";
    }
}

void JsonWriter::Begin(std::string_view key, char bracket) {
    BeginValue(key);
    out_ << bracket;
    hasElements_.push_back(false);
}

void JsonWriter::End(char bracket) {
    const bool hadElements = hasElements_.back();
    hasElements_.pop_back();
    if (hadElements) {
        out_ << '\n' << std::string(2 * hasElements_.size(), ' ');
    }
    out_ << bracket << (hasElements_.empty() ? "\n" : "");
}

void JsonWriter::Add(std::string_view key, std::string_view value) {
    BeginValue(key);
    out_ << TextOf(value);
}

void JsonWriter::Add(std::string_view key, double value) {
    BeginValue(key);
    out_ << TextOf(value);
}

void JsonWriter::Add(std::string_view key, std::uint64_t value) {
    BeginValue(key);
    out_ << TextOf(value);
}

void JsonWriter::Add(std::string_view key, bool value) {
    BeginValue(key);
    out_ << TextOf(value);
}

void JsonWriter::AddNull(std::string_view key) {
    BeginValue(key);
    out_ << "null";
}

void JsonWriter::Add(std::string_view key, std::span<const double> values) {
    BeginValue(key);
    WriteArray(out_, values);
}

void JsonWriter::Add(std::string_view key, std::span<const std::string> values) {
    BeginValue(key);
    WriteArray(out_, values);
}

void JsonWriter::AddRows(std::string_view key, std::span<const std::vector<double>> rows) {
    BeginArray(key);
    for (const std::vector<double>& row : rows) {
        Add({}, row);
    }
    EndArray();
}

} // namespace FluidBenchTool
