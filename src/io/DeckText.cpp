#include "DeckText.h"

#include "FluidBench/Common/FluidBenchHelper.h"

namespace Orv::FluidBench::IO {

using Common::FluidBenchHelper;
using Common::pvtEnumEoS;

namespace {

constexpr std::size_t lengthOfCorrectionSuffix = 2; // the year behind the word

} // namespace

std::string FileUnitHeader(bool metric) {
    return metric ? "FILEUNIT\nMETRIC\n/\n" : "FILEUNIT\nFIELD\n/\n";
}

void WriteDeckLine(std::ostream& deck, std::string& text) {
    text += '\n';
    deck.write(text.data(), static_cast<std::streamsize>(text.size()));
    deck.flush();
    text.clear();
}

void WriteDeckLine(std::ostream& deck, Text::TextBuffer& text) {
    text += '\n';
    text.WriteTo(deck);
    deck.flush();
}

void WriteDeckLine(std::ostream& deck, const char* text) {
    std::string line(text);
    WriteDeckLine(deck, line);
}

std::string DeckEoSName(pvtEnumEoS eos) {
    std::string name = FluidBenchHelper::EoSToString(eos);
    if (eos == pvtEnumEoS::PengRobinson78 || eos == pvtEnumEoS::PengRobinson78VolumeShift) {
        name.resize(name.size() - lengthOfCorrectionSuffix);
    }
    return name;
}

} // namespace Orv::FluidBench::IO
