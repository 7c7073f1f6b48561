// What a reader tells beside its result, and streams that fail, for the tests of every reader.
#pragma once

#include "TestSupport.h"
#include "io/Diagnostics.h"

#include <cstddef>
#include <ios>
#include <streambuf>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace FluidBenchTest {

/// Collects diagnostics, and expects each sentence to be one of tests/data/sentences.txt.
class Diagnosed {
public:
    /// To be given to one reader; the object has to outlive it.
    Orv::FluidBench::IO::DiagnosticSink Sink() {
        return [this](const auto& diagnostic) {
            ExpectSentence(diagnostic.code, diagnostic.sentence);
            all_.push_back(diagnostic);
        };
    }
    const std::vector<Orv::FluidBench::IO::Diagnostic>& All() const { return all_; }

    /// "LINE:CODE" of each that is at least that severe, parted by blanks, without the family's
    /// prefix; then forgets them all.
    std::string Take(Orv::FluidBench::IO::Severity least = Orv::FluidBench::IO::Severity::Note) {
        std::string codes;
        for (const auto& diagnostic : std::exchange(all_, {})) {
            if (diagnostic.severity >= least) {
                codes += (codes.empty() ? "" : " ") + std::to_string(diagnostic.line) + ':' +
                         diagnostic.code.substr(diagnostic.code.find('.') + 1);
            }
        }
        return codes;
    }

private:
    std::vector<Orv::FluidBench::IO::Diagnostic> all_;
};

/// Gives the first `good` bytes of a text, and then fails, as a disk does, by an exception.
class FailingInput : public std::streambuf {
public:
    FailingInput(std::string_view text, std::size_t good) : text_(text.substr(0, good)) {
        setg(text_.data(), text_.data(), text_.data() + text_.size());
    }

protected:
    int_type underflow() override { throw std::ios_base::failure("the disk failed"); }

private:
    std::string text_;
};

} // namespace FluidBenchTest
