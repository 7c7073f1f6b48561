// What every writer does with a stream: the bytes of a file, failures that show, the format kept.
#include "PublicOperations.h"
#include "TestSupport.h"
#include "TextFile.h"

#include <algorithm>
#include <iomanip>
#include <sstream>
#include <stdexcept>

using namespace FluidBenchTest;

namespace {

// Has room for so many bytes, as a full disk.
class FullBuffer : public std::streambuf {
public:
    explicit FullBuffer(std::size_t room) : room_(room) {}
    std::string text;

protected:
    int_type overflow(int_type c) override {
        if (text.size() == room_) {
            return traits_type::eof();
        }
        text += traits_type::to_char_type(c);
        return c;
    }

private:
    std::size_t room_;
};

// Fails at one call, whichever it is, by its result or by throwing.
class FaultyBuffer : public std::streambuf {
public:
    FaultyBuffer(int failingCall, bool throws) : failingCall_(failingCall), throws_(throws) {}
    std::string text;
    int calls = 0;

protected:
    std::streamsize xsputn(const char* data, std::streamsize count) override {
        if (Fails()) {
            return 0;
        }
        text.append(data, static_cast<std::size_t>(count));
        return count;
    }
    int_type overflow(int_type c) override {
        if (Fails()) {
            return traits_type::eof();
        }
        text += traits_type::to_char_type(c);
        return c;
    }
    int sync() override { return Fails() ? -1 : 0; }
    pos_type seekoff(off_type, std::ios_base::seekdir, std::ios_base::openmode) override {
        return Fails() ? pos_type(off_type(-1)) : pos_type(static_cast<off_type>(text.size()));
    }

private:
    bool Fails() {
        if (++calls == failingCall_ && throws_) {
            throw std::runtime_error("The disk is gone.");
        }
        return calls == failingCall_;
    }

    int failingCall_;
    bool throws_;
};

// Files differ from system to system in their line ends and in nothing else.
std::size_t SizeInAFile(const std::string& text) {
#ifdef _WIN32
    return text.size() + static_cast<std::size_t>(std::ranges::count(text, '\n'));
#else
    return text.size();
#endif
}

} // namespace

TEST(Streams, GetTheBytesAndReportsOfFilesAndKeepTheirFormat) {
    const TemporaryFolder folder;
    const std::string path = folder / "\u00D6l-\u043D\u0435\u0444\u0442\u044C";
    for (const WriteOperation& each : WriteOperations()) {
        const auto expected = MessageIds(each.toFile(path));
        std::ostringstream out;
        const std::locale foreign = ForeignLocale();
        out.imbue(foreign);
        out << std::scientific << std::uppercase << std::showpos << std::left
            << std::setprecision(3) << std::setfill('*') << std::setw(9);
        const auto flags = out.flags();
        EXPECT_EQ(MessageIds(each.toStream(out)), expected) << each.name;
        EXPECT_EQ(out.str(), ReadFile(path)) << each.name;
        EXPECT_EQ(std::filesystem::file_size(Orv::Text::PathOf(path)), SizeInAFile(out.str()))
            << each.name;
        EXPECT_EQ(out.str().empty(), !expected.empty()) << each.name;
        EXPECT_EQ(out.flags(), flags) << each.name;
        EXPECT_EQ(out.precision(), 3) << each.name;
        EXPECT_EQ(out.width(), 9) << each.name;
        EXPECT_EQ(out.fill(), '*') << each.name;
        EXPECT_EQ(out.getloc(), foreign) << each.name;
    }
}

TEST(Streams, AFullOneSaysSoAndKeepsWhatHadRoom) {
    for (const WriteOperation& each : WriteOperations()) {
        std::ostringstream whole;
        each.toStream(whole);
        const std::string text = whole.str();
        for (std::size_t room = 0; room < text.size(); room += 1 + text.size() / 7) {
            FullBuffer buffer(room);
            std::ostream out(&buffer);
            EXPECT_TRUE(MessageIds(each.toStream(out)).empty()) << each.name;
            EXPECT_TRUE(out.fail()) << each.name << ' ' << room;
            EXPECT_EQ(buffer.text, text.substr(0, room)) << each.name;
        }
        if (!text.empty()) {
            FullBuffer buffer(text.size() - 1);
            std::ostream throwing(&buffer);
            throwing.exceptions(std::ios_base::badbit | std::ios_base::failbit);
            throwing.width(9);
            EXPECT_THROW(each.toStream(throwing), std::ios_base::failure) << each.name;
            EXPECT_EQ(throwing.width(), 9) << each.name;
        }
    }
}

TEST(Streams, FailWithAnyCallOfTheirBuffer) {
    for (const WriteOperation& each : WriteOperations()) {
        std::ostringstream whole;
        each.toStream(whole);
        for (const bool throws : {false, true}) {
            for (int call = 1;; ++call) {
                FaultyBuffer buffer(call, throws);
                std::ostream out(&buffer);
                each.toStream(out);
                if (buffer.calls < call) {
                    EXPECT_TRUE(out.good());
                    EXPECT_EQ(buffer.text, whole.str());
                    break;
                }
                ASSERT_TRUE(out.fail()) << each.name << ' ' << call;
                ASSERT_TRUE(whole.str().starts_with(buffer.text)) << each.name << ' ' << call;
            }
        }
    }
}
