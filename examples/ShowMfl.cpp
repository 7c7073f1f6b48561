// Reads a fluid and its streams from an MFL file and prints them:
//
//     ShowMfl examples/data/six-component-oil.mfl
#include "io/MFLFileReader.h"

#include <iostream>
#include <vector>

int main(int argumentCount, char** arguments) {
    using namespace Orv::FluidBench;
    if (argumentCount != 2) {
        std::cerr << "usage: ShowMfl FILE\n";
        return 2;
    }
    IO::MFLFileReader reader;
    reader.SetMFLFileName(arguments[1]);
    Model::CompositionalFluid fluid("");
    std::vector<std::vector<double>> streams;
    const auto report = reader.ReadStreams(fluid, streams);
    for (const auto& message : report.GetMessages()) {
        std::cerr << message.GetText() << '\n';
    }
    if (report.HasErrors()) {
        return 1;
    }
    std::cout << fluid.GetName() << '\n';
    for (const auto& component : fluid.GetOrderedComponents()) {
        const std::string& name = component.GetName();
        std::cout << name << ' ' << fluid.GetComponentFraction(name) << ' '
                  << component.GetMolecularWeight() << " g/mol\n";
    }
    for (const auto& stream : streams) {
        std::cout << "stream:";
        for (const double amount : stream) {
            std::cout << ' ' << amount;
        }
        std::cout << '\n';
    }
    return 0;
}
