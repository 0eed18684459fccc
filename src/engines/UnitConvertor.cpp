#include "engines/UnitConvertor.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace {

// Units of each code in a metre.
constexpr std::array<double, 11> PerMetre{
    1000,            // millimetre
    100,             // centimetre
    1,               // metre
    39.370078740157, // inch
    3.2808398950131, // foot
    39.370078740157, // foot and inch: its number is in inches
    10000000000,     // angstrom
    1000000000,      // nanometre
    1000000,         // micron
    39370.078740157, // mil
    39370078.740157, // microinch
};

// Units of each code in a radian.
constexpr std::array<double, 3> PerRadian{
    57.295779513082, // degree
    3437.7467707849, // minute of arc
    206264.8062471,  // second of arc
};

double FactorOf(unsigned long unit, unsigned long dimension) {
    if (dimension == DimensionNone || dimension == 10)
        return 1;
    const std::span<const double> factors =
        dimension == DimensionAngle ? std::span<const double>(PerRadian) : std::span<const double>(PerMetre);
    const std::size_t code = static_cast<std::uint32_t>(unit);
    return code < factors.size() ? factors[code] : 1;
}

// One step of a mass conversion. A division is not the product with the reciprocal to the last digit,
// and the pound's two factors are not each other's reciprocal: both are kept as they are.
struct MassStep {
    double multiply = 1;
    double divide = 1;
};

// From the row's unit to the column's, in the order milligram, gram, kilogram, pound.
constexpr std::array<std::array<MassStep, 4>, 4> MassSteps{{
    {{{}, {1, 1000}, {1, 1000000}, {2.2046224760379583e-06}}},
    {{{1000}, {}, {1, 1000}, {0.0022046224760379584}}},
    {{{1000000}, {1000}, {}, {2.2046224760379585}}},
    {{{453592.4}, {453.5924}, {0.4535924}, {}}},
}};

constexpr unsigned long Radian = 3;
constexpr double DegreesPerRadian = 57.2957779; // shorter than the table's on purpose

} // namespace

double CUnitConvertor::ConvertFromBase(double value, unsigned long unit, unsigned long dimension) const {
    return value * FactorOf(unit, dimension);
}

double CUnitConvertor::ConvertToBase(double value, unsigned long unit, unsigned long dimension) const {
    return value / FactorOf(unit, dimension);
}

double CUnitConvertor::Convert(double value, unsigned long dimension, unsigned long fromUnit,
                               unsigned long toUnit) const {
    return ConvertFromBase(ConvertToBase(value, fromUnit, dimension), toUnit, dimension);
}

double CUnitConvertor::ConvertMass(double value, unsigned long fromUnit, unsigned long toUnit) const {
    if (fromUnit < 1 || fromUnit > MassSteps.size() || toUnit < 1 || toUnit > MassSteps.size())
        return 0.0;
    const MassStep& step = MassSteps[fromUnit - 1][toUnit - 1];
    return value * step.multiply / step.divide;
}

double CUnitConvertor::RadiansToDegrees(double value, unsigned long unit) const {
    return unit == Radian ? value * DegreesPerRadian : value;
}

double CUnitConvertor::DegreesToRadians(double value, unsigned long unit) const {
    return unit == Radian ? value / DegreesPerRadian : value;
}
