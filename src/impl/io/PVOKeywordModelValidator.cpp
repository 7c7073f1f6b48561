#include "PVOKeywordModelValidator.h"

#include "Kes/Core/DeckManager/KeywordIterator.h"

#include <set>
#include <string>

namespace Orv::FluidBench::Impl::IO {

using Kes::Core::DeckManager::KeywordIterator;
using Kes::KesModel::IFluidsKeywordValidator;
using Kes::KesModel::IKeywordValidator;

namespace {

class FluidsKeywordValidator : public IFluidsKeywordValidator {
public:
    bool isValidKeyword(const std::string& name) const override { return keywords.contains(name); }
    bool isValidKeyword(const KeywordIterator& keyword) const override {
        const std::string name = (*keyword)->getName();
        return isValidKeyword(name);
    }

private:
    // clang-format off
    std::set<std::string> keywords{
        "CNAMES",   "BIC",
        // the equation of state of the reservoir
        "EOS",      "OMEGAA",   "OMEGAB",   "MW",     "ACF",    "PARACHOR", "SSHIFT",
        "TCRIT",    "PCRIT",    "VCRIT",    "ZCRIT",
        // viscosity
        "VCRITVIS", "ZCRITVIS", "PEDERSEN",
        // specific heats
        "SPECHA",   "SPECHB",   "SPECHG",   "SPECHH",
        // the equation of state of the surface
        "BICS",     "EOSS",     "OMEGAAS",  "OMEGABS", "MWS",   "ACFS",     "SSHIFTS",
        "TCRITS",   "PCRITS",   "VCRITS",   "ZCRITS",
        // composition and temperature
        "ZI",       "ZMFVD",    "RTEMP"};
    // clang-format on
};

} // namespace

PVOKeywordModelValidator::PVOKeywordModelValidator()
    : fluidsValidator(std::make_unique<FluidsKeywordValidator>()) {}
PVOKeywordModelValidator::~PVOKeywordModelValidator() = default;

const IKeywordValidator* PVOKeywordModelValidator::getKeywordValidator1() const {
    return validator1;
}
const IKeywordValidator* PVOKeywordModelValidator::getKeywordValidator2() const {
    return validator2;
}
const IFluidsKeywordValidator* PVOKeywordModelValidator::getFluidsKeywordValidator() const {
    return fluidsValidator.get();
}
const IKeywordValidator* PVOKeywordModelValidator::getKeywordValidator4() const {
    return validator4;
}

} // namespace Orv::FluidBench::Impl::IO
