// The rows of the lists of units.
#pragma once

#include "editing/ParameterControls.h"

namespace UnitRows {

constexpr CodedRow Lengths[] = {{1621, 6},  {1622, 7}, {1623, 8}, {1624, 0}, {1625, 1}, {1626, 2},
                                {1627, 10}, {1628, 9}, {1629, 3}, {1630, 4}, {1631, 5}};
// Of angles the row itself is stored.
constexpr CodedRow Angles[] = {{1633, 0}, {1634, 1}, {1635, 2}, {1636, 3}};
constexpr CodedRow Masses[] = {{1637, 1}, {1638, 2}, {1639, 3}, {1640, 4}};
constexpr CodedRow Volumes[] = {{1641, 1}, {1642, 2}, {1643, 3}, {1644, 4}, {1645, 5},
                                {1646, 6}, {1647, 7}, {1649, 9}, {1650, 10}};
constexpr CodedRow Forces[] = {{1651, 1}, {1652, 2}, {1653, 3}, {1654, 4}, {1655, 5}, {1656, 6}};

} // namespace UnitRows
