// The arithmetic of units. Lengths pass through metres, angles through radians.
#pragma once

// What a unit measures: the first selector of every conversion.
enum UnitDimension : unsigned long {
    DimensionNone = 0, // no conversion; neither for 10
    DimensionLength = 2,
    DimensionAngle = 3, // every other number is a length
};

// Unit codes are those of the value lists of length and angle units; an unknown one leaves the value as it
// is.
class CUnitConvertor {
public:
    virtual ~CUnitConvertor() = default;

    // From metres or radians to the unit, and back.
    double ConvertFromBase(double value, unsigned long unit, unsigned long dimension) const;
    double ConvertToBase(double value, unsigned long unit, unsigned long dimension) const;

    // Always both steps, so that the last digits may change even from a unit to itself.
    double Convert(double value, unsigned long dimension, unsigned long fromUnit, unsigned long toUnit) const;

    // Mass units: 1 milligram, 2 gram, 3 kilogram, 4 pound; 0.0 for any other source or target.
    double ConvertMass(double value, unsigned long fromUnit, unsigned long toUnit) const;

    // Convert for unit 3 only.
    double RadiansToDegrees(double value, unsigned long unit) const;
    double DegreesToRadians(double value, unsigned long unit) const;
};
