// What is wrong with a deck, and where.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace Orv::Kes::KesModel {

/// A line of a file; lines count from 1.
struct DeckLine {
    std::string file;
    std::uint64_t line = 0;
};

/// "FILE, line N" for a message.
std::string Describe(const DeckLine& place);

/// Text of a deck in quotes, fit for a message: cut when it is long, and without characters that a
/// terminal would obey.
std::string Quote(std::string_view text);

/// A deck that can't be read. `what()` is one sentence: file, line, keyword, what was expected
/// there and what was found.
class DeckError : public std::runtime_error {
public:
    DeckError(const DeckLine& place, std::string_view keyword, const std::string& expected,
              const std::string& found);
};

} // namespace Orv::Kes::KesModel
