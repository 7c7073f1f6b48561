// A component of a fluid while a deck is interpreted.
#pragma once

#include "Kes/SimFluid/IComponent.h"

#include <cstdint>
#include <map>
#include <string>

namespace Orv::FluidBench::Impl::IO {

/// A bag of numbers by keys, as the interpreter gives them: it knows no key's meaning and converts
/// nothing. A value that owns everything in it.
class PVOComponentAdaptor : public Kes::SimFluid::IComponent {
public:
    explicit PVOComponentAdaptor(const std::string& componentName);
    PVOComponentAdaptor(const PVOComponentAdaptor&) = default;
    PVOComponentAdaptor& operator=(const PVOComponentAdaptor&) = default;
    ~PVOComponentAdaptor() override;

    const std::string& getName() const override;
    int getKind() const override;

    bool hasProperty(int key) const override;
    double getProperty(int key) const override;
    void setProperty(int key, double value) override;
    void deleteProperty(int key) override;

    int getAttribute1() const override;
    void setAttribute1(int value) override;
    int getAttribute2() const override;
    void setAttribute2(int value) override;
    int getAttribute3() const override;
    void setAttribute3(int value) override;
    int getAttribute4() const override;
    void setAttribute4(int value) override;

    int getDensity(int key) const override;
    void setDensity(int key, int value) override;
    int getViscosity(int key) const override;
    void setViscosity(int key, int value) override;

private:
    std::string name;
    std::map<std::int32_t, double> properties;
    std::int32_t attribute1 = 0;
    std::int32_t attribute2 = 0;
    std::int32_t attribute3 = 0;
    std::int32_t attribute4 = 0;
    std::map<std::int32_t, std::int32_t> densities;
    std::map<std::int32_t, std::int32_t> viscosities;
};

} // namespace Orv::FluidBench::Impl::IO
