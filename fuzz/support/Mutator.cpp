#include "Mutator.h"

#include <algorithm>
#include <set>
#include <string_view>

namespace FluidBenchFuzz {

namespace {

// What parsers trip over.
const std::string_view hardWords[] = {"",
                                      "0",
                                      "-0",
                                      "-1",
                                      "1e5",
                                      "1e308",
                                      "1e999",
                                      "-1e999",
                                      "1e-999",
                                      "4.9e-324",
                                      "1e",
                                      "1e+",
                                      "+",
                                      "-",
                                      ".",
                                      "-.",
                                      "+-1",
                                      "1.2.3",
                                      "1,5",
                                      "1d5",
                                      "0x1p3",
                                      "0xfp-99999",
                                      "nan",
                                      "inf",
                                      "-inf",
                                      "2147483647",
                                      "2147483648",
                                      "4294967296",
                                      "18446744073709551616",
                                      "1000000000000",
                                      "3*",
                                      "3*0",
                                      "999999999*1",
                                      "*",
                                      "/",
                                      "--",
                                      "#",
                                      "'",
                                      "\"",
                                      "\"\"",
                                      "\" \"",
                                      ",",
                                      ",,",
                                      "\t",
                                      "\r",
                                      "\n",
                                      "\n\n",
                                      "\r\n",
                                      "\v",
                                      " ",
                                      "  ",
                                      "\xff",
                                      "\xef\xbb\xbf"};

constexpr std::string_view wordEnds = " \t\r\n,\"'";

struct Range {
    std::size_t begin;
    std::size_t length;
};

// The words of a text, or its lines with their ends.
std::vector<Range> WordsOf(std::string_view text) {
    std::vector<Range> words;
    std::size_t begin = 0;
    while ((begin = text.find_first_not_of(wordEnds, begin)) != std::string_view::npos) {
        const std::size_t end = std::min(text.find_first_of(wordEnds, begin), text.size());
        words.push_back({begin, end - begin});
        begin = end;
    }
    return words;
}
std::vector<Range> LinesOf(std::string_view text) {
    std::vector<Range> lines;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find('\n', begin), text.size() - 1) + 1;
        lines.push_back({begin, end - begin});
        begin = end;
    }
    return lines;
}

void UseCarriageReturns(std::string& text) {
    for (std::size_t end = text.find('\n'); end != std::string::npos;
         end = text.find('\n', end + 2)) {
        text.insert(end, "\r");
    }
}

} // namespace

Mutator::Mutator(std::vector<std::string> samples, std::uint64_t seed)
    : samples_(std::move(samples)), seed_(seed) {
    std::set<std::string> words(std::begin(hardWords), std::end(hardWords));
    words.emplace(1, '\0');
    words.emplace(5000, '1');
    words.emplace(5000, 'x');
    for (const std::string& sample : samples_) {
        for (const Range word : WordsOf(sample)) {
            words.insert(sample.substr(word.begin, word.length));
        }
    }
    words_.assign(words.begin(), words.end());
}

std::string Mutator::Make(std::uint64_t number) {
    if (number < samples_.size()) {
        return samples_[number];
    }
    Seed(number);
    return ChangeSeveralTimes(AnySample());
}

std::string Mutator::Change(std::string text, std::uint64_t number) {
    Seed(number);
    return ChangeSeveralTimes(std::move(text));
}

// A generator of its own for each input, so that one can be made without those before it.
void Mutator::Seed(std::uint64_t number) {
    std::seed_seq numbers{seed_, seed_ >> 32U, number, number >> 32U};
    random_.seed(numbers);
}

std::string Mutator::ChangeSeveralTimes(std::string text) {
    const std::uint64_t changes = 1 + Below(6);
    for (std::uint64_t i = 0; i < changes; ++i) {
        ChangeOnce(text);
    }
    constexpr std::uint64_t longOnes = 150; // one in so many; they take their time
    if (Below(longOnes) == 0) {
        Lengthen(text);
    }
    text.resize(std::min(text.size(), longestInput));
    return text;
}

// The standard distributions differ from one standard library to another.
std::uint64_t Mutator::Below(std::uint64_t bound) {
    return bound == 0 ? 0 : random_() % bound;
}

const std::string& Mutator::AnySample() {
    return samples_[Below(samples_.size())];
}
const std::string& Mutator::AnyWord() {
    return words_[Below(words_.size())];
}

void Mutator::ChangeOnce(std::string& text) {
    switch (Below(8)) {
    case 0:
        UseCarriageReturns(text);
        break;
    case 1:
    case 2:
        ChangeBytes(text);
        break;
    case 3:
    case 4:
    case 5:
        ChangeWord(text);
        break;
    default:
        ChangeLines(text);
        break;
    }
}

void Mutator::ChangeBytes(std::string& text) {
    const std::size_t position = Below(text.size() + 1);
    const std::size_t length = std::min<std::size_t>(Below(20), text.size() - position);
    switch (Below(5)) {
    case 0:
        if (position < text.size()) {
            text[position] = static_cast<char>(Below(256));
        }
        break;
    case 1:
        text.insert(position, 1, static_cast<char>(Below(256)));
        break;
    case 2:
        text.erase(position, length);
        break;
    case 3:
        text.insert(Below(text.size() + 1), text.substr(position, length));
        break;
    default:
        text.resize(position);
        break;
    }
}

void Mutator::ChangeWord(std::string& text) {
    const std::vector<Range> words = WordsOf(text);
    if (words.empty()) {
        text += AnyWord();
        return;
    }
    const Range word = words[Below(words.size())];
    if (Below(3) == 0) {
        text.insert(word.begin, AnyWord() + ' ');
    } else {
        text.replace(word.begin, word.length, AnyWord());
    }
}

void Mutator::ChangeLines(std::string& text) {
    const std::vector<Range> lines = LinesOf(text);
    if (lines.empty()) {
        text = AnySample();
        return;
    }
    const Range first = lines[Below(lines.size())];
    const Range second = lines[Below(lines.size())];
    const std::string line = text.substr(first.begin, first.length);
    switch (Below(5)) {
    case 0:
        text.erase(first.begin, first.length);
        break;
    case 1: {
        const std::uint64_t copies = Below(2) == 0 ? 1 : Below(200);
        for (std::uint64_t i = 0; i < copies && text.size() < longestInput; ++i) {
            text.insert(first.begin, line);
        }
        break;
    }
    case 2:
        text.insert(second.begin, line);
        break;
    case 3: { // another sample goes on where this one is cut
        const std::string& other = AnySample();
        text.resize(first.begin);
        text += other.substr(Below(other.size() + 1));
        break;
    }
    default:
        text.replace(first.begin, first.length, text.substr(second.begin, second.length));
        break;
    }
}

// Has a line come so often that what is behind it stands about where the readers' first block ends.
void Mutator::Lengthen(std::string& text) {
    constexpr std::size_t block = std::size_t{128} * 1024;
    const std::vector<Range> lines = LinesOf(text);
    if (lines.empty() || text.size() >= block) {
        return;
    }
    const Range line = lines[Below(lines.size())];
    const std::size_t behind = Below(text.size() - line.begin + 1);
    const std::string once = text.substr(line.begin, line.length);
    std::string copies;
    while (copies.size() + line.begin + behind < block) {
        copies += once;
    }
    text.insert(line.begin, copies);
}

} // namespace FluidBenchFuzz
