#include "io/DeckNames.h"

#include "DiagnosticKinds.h"
#include "FluidBench/Utilities/Strings.h"
#include "KeywordError.h"
#include "KeywordLexer.h"
#include "Quote.h"

#include <map>
#include <optional>
#include <sstream>
#include <string>

namespace Orv::FluidBench::IO {

using Impl::IO::DeckKinds::nameChanged;
using Text::KeywordLexer;
using Text::Quote;
using Text::Token;

namespace {

// The name that is read of a line as the writer writes it; nothing where that isn't one name.
std::optional<std::string> ReadBack(const std::string& written) {
    std::istringstream line("'" + written + "'\n");
    try {
        KeywordLexer lexer(line, "");
        const Token first = lexer.Next();
        const std::string name(first.text);
        const bool isOneName = first.kind == Token::Kind::Quoted && !name.empty() &&
                               lexer.Next().kind == Token::Kind::LineEnd &&
                               lexer.Next().kind == Token::Kind::FileEnd;
        return isOneName ? std::optional(name) : std::nullopt;
    } catch (const Text::KeywordFileError&) {
        return std::nullopt;
    }
}

} // namespace

std::vector<Diagnostic> NamesThatADeckChanges(const Model::CompositionalFluid& fluid) {
    std::vector<Diagnostic> changes;
    std::map<std::string, std::string> nameOfWritten;
    for (const std::string& name : fluid.ListComponents()) {
        std::string written = name;
        Utilities::Strings::RemoveAllSpaces(written);
        const auto [same, isNew] = nameOfWritten.emplace(written, name);
        const std::optional<std::string> read = ReadBack(written);
        if (isNew && read == name) {
            continue;
        }
        const std::string found = !isNew ? "the same as that of " + Quote(same->second)
                                  : read ? Quote(*read)
                                         : "no name that can be read";
        changes.push_back({nameChanged.severity, "", 0, nameChanged.code,
                           "Expected a name that a deck can hold, found " + Quote(name) +
                               ": in the deck it becomes " + found + '.'});
    }
    return changes;
}

} // namespace Orv::FluidBench::IO
