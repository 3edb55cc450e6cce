// How a number stands in a settings file.
#pragma once

#include <QString>

// Leading blanks and a sign are taken, and the first other character ends the number; without a
// digit it is 0. What an int does not hold becomes the nearest that it does.
int TextToInt(QStringView text);
