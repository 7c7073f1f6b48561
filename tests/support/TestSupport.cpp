#include "TestSupport.h"

#include "TextFile.h"

#include <algorithm>
#include <fstream>
#include <random>
#include <regex>
#include <set>
#include <sstream>

namespace FluidBenchTest {

namespace {

class ForeignPunctuation : public std::numpunct<char> {
protected:
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\2"; }
};

} // namespace

TemporaryFolder::TemporaryFolder() {
    std::random_device random;
    do {
        path_ = std::filesystem::temp_directory_path() / ("fluidbench-" + std::to_string(random()));
    } while (!std::filesystem::create_directory(path_)); // it may be there already
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code error;
    std::filesystem::remove_all(path_, error);
}

std::string TemporaryFolder::operator/(const std::string& name) const {
    return Orv::Text::NameOf(path_ / Orv::Text::PathOf(name));
}

std::string TemporaryFolder::Write(const std::string& name, std::string_view content) const {
    std::ofstream(path_ / Orv::Text::PathOf(name), std::ios_base::binary) << content;
    return *this / name;
}

std::string ReadFile(const std::string& path) {
    const std::ifstream file(Orv::Text::PathOf(path));
    EXPECT_TRUE(file.is_open()) << path;
    std::ostringstream content;
    content << file.rdbuf();
    return content.str();
}

std::string DataPath(const std::string& name) {
    return std::string(FLUIDBENCH_TEST_DATA) + "/" + name;
}

std::string ReadData(const std::string& name) {
    return ReadFile(DataPath(name));
}

void ExpectSentence(const std::string& code, const std::string& sentence) {
    static const auto known = [] {
        std::set<std::string> lines;
        std::istringstream text(ReadData("sentences.txt"));
        for (std::string line; std::getline(text, line);) {
            lines.insert(line);
        }
        return lines;
    }();
    static const std::regex path("'(?:[A-Z]:)?/[^']+'");
    std::string line = code + ": " + std::regex_replace(sentence, path, "'PATH'");
    std::ranges::replace_if(
        line, [](char c) { return static_cast<unsigned char>(c) > 0x7F; }, '?');
    EXPECT_TRUE(known.contains(line)) << "Not in tests/data/sentences.txt:\n" << line << '\n';
}

std::vector<std::int32_t> MessageIds(const Orv::FluidBench::Common::ErrorReport& report) {
    std::vector<std::int32_t> ids;
    for (const auto& message : report.GetMessages()) {
        ids.push_back(message.GetMessageId());
    }
    return ids;
}

std::locale ForeignLocale() {
    return {std::locale::classic(), new ForeignPunctuation};
}

ForeignGlobalLocale::ForeignGlobalLocale() : previous_(std::locale::global(ForeignLocale())) {}
ForeignGlobalLocale::~ForeignGlobalLocale() {
    std::locale::global(previous_);
}

} // namespace FluidBenchTest
