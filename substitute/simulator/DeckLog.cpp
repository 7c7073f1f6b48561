#include "DeckLog.h"

#include "Characters.h"
#include "Kes/KesModel/KeywordTracker.h"
#include "KeywordError.h"
#include "Quote.h"

#include <new>

namespace Orv::Kes::KesModel {

using Text::KeywordFileError;
using Text::OddText;
using Text::Quote;
using Text::ReadFailed;
using Text::TextKind;

namespace {

std::string AsSentence(std::string text) {
    if (!text.empty() && Text::IsSmallLetter(text[0])) {
        text[0] = static_cast<char>(text[0] - 'a' + 'A');
    }
    return text;
}

void Listen(const DeckProblem& problem, const FilePlace& place, const std::string& sentence) {
    ThreadListener::tell(
        {problem.severity, place.file, place.line, problem.code, AsSentence(sentence)});
}

const DeckProblem& ProblemOf(const std::exception& error) {
    if (dynamic_cast<const ReadFailed*>(&error) != nullptr) {
        return Problems::readFailed;
    }
    if (const auto* const odd = dynamic_cast<const OddText*>(&error)) {
        return odd->Kind() == TextKind::CarriageReturns ? Problems::carriageReturns
                                                        : Problems::utf16;
    }
    return Problems::refused;
}

std::string SentenceOf(const std::exception& error) {
    if (const auto* const located = dynamic_cast<const KeywordFileError*>(&error)) {
        return located->Sentence();
    }
    if (dynamic_cast<const std::bad_alloc*>(&error) != nullptr) {
        return "expected memory for the deck, found none left.";
    }
    return error.what();
}

} // namespace

void DeckLog::Tell(const DeckProblem& problem, const FilePlace& place,
                   const std::string& sentence) {
    if (problem.severity != Log::Warning || ++warnings_ <= mostWarnings) {
        const std::string where = place.line == 0 ? place.file : Describe(place);
        Log::getCurrentLogger()->write(problem.severity, where + ": " + sentence);
    }
    Listen(problem, place, sentence);
}

void DeckLog::TellFailure(const std::exception& error, const std::string& deck) {
    Log::getCurrentLogger()->write(Log::Error, error.what());
    const auto* const located = dynamic_cast<const KeywordFileError*>(&error);
    Listen(ProblemOf(error), located != nullptr ? located->Place() : FilePlace{deck, 0},
           SentenceOf(error));
}

void DeckLog::TellPassedOver(std::string_view keyword, const FilePlace& place) {
    const std::string name(keyword);
    if (tracker_ != nullptr && tracker_->addPassedOver(name)) {
        Tell(Problems::passedOver, place, "keyword " + Quote(name) + " is passed over.");
    }
}

void DeckLog::KeepRead(const KeywordPlace& place) {
    if (tracker_ != nullptr) {
        tracker_->addRead({place.keyword, {place.line.file, place.line.line}});
    }
}

void DeckLog::KeepUnits(const KeywordPlace& place, bool isMetric) {
    if (tracker_ != nullptr) {
        tracker_->addStatedUnits({place.keyword, isMetric, {place.line.file, place.line.line}});
    }
}

} // namespace Orv::Kes::KesModel
