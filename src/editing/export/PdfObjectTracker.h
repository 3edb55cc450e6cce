// SPDX-License-Identifier: GPL-3.0-or-later
// PdfObjectTracker: the numbers of a PDF's objects, and where each begins in the file.
#pragma once

#include <cstdio>
#include <string>
#include <vector>

class PdfObjectTracker
{
public:
    explicit PdfObjectTracker(std::FILE* output) : file(output) {} // stays the caller's

    // Writes the text as an object. The object's number, from 1.
    int WriteObject(const std::string& text);

    // Writes the table of all objects. Where it begins, in bytes.
    int WriteOffsets();

    std::FILE* file;
    int capacity = 100;                               // of the table
    int next = 1;                                     // the number of the next object
    std::vector<int> offsets = std::vector<int>(100); // of object n at n - 1, in bytes
};
