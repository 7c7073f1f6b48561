// The way back of a number from a file in other units than the model's.
#pragma once

#include <vector>

namespace Orv::FluidBench::IO {

/// Undoes a conversion that writes numbers. A quotient isn't always what the product came from: its
/// last digit may be another one, and a file with as many digits as a double has would show that
/// when it is written again. There the neighbours are tried as well.
class FileNumber {
public:
    using Conversion = double (*)(double);

    /// The way back of a product with a constant. `isLong` tells of numbers with so many digits.
    FileNumber(Conversion toFile, bool isLong)
        : toFile_(toFile), factor_(toFile(1.0)), isLong_(isLong) {}
    /// The way back of any conversion, near which `toModel` leads.
    FileNumber(Conversion toFile, Conversion toModel)
        : toFile_(toFile), toModel_(toModel), isLong_(true) {}

    /// The model's number whose conversion is that of the file, or has the same decimals.
    double ToModel(double number, int decimals = 15) const {
        const double value = toModel_ == nullptr ? number / factor_ : toModel_(number);
        return !isLong_ || toFile_(value) == number ? value
                                                    : TryNeighbours(number, value, decimals);
    }

private:
    double TryNeighbours(double number, double value, int decimals) const;

    Conversion toFile_;
    Conversion toModel_ = nullptr;
    double factor_ = 1.0;
    bool isLong_;
};

/// The number and so many doubles on either side of it, the nearest first.
std::vector<double> NeighboursOf(double number, int reach = 4);

/// Whether both numbers are written alike with that many decimals.
bool HaveSameText(double first, double second, int decimals);

/// The conversion of what is written in model units.
inline double AsItIs(double value) {
    return value;
}

} // namespace Orv::FluidBench::IO
