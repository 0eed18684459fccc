// Units as the engines take them.
#pragma once

inline constexpr unsigned long Millimetre = 0, Centimetre = 1, Metre = 2, FootAndInch = 5;
inline constexpr unsigned long Degree = 0, Minute = 1, Radian = 3;
