// SPDX-License-Identifier: GPL-3.0-or-later
// A sheet with the sample of each language, one below the other, in each scheme beside each other.
#pragma once

#include <QImage>

QImage PictureLanguages();
