// SPDX-License-Identifier: GPL-3.0-or-later
// PdfWriter: what a PDF begins with, its header and its four fonts.
//
// This is all that SaveToPDF writes, whatever the document holds. It is no exporter that waits for
// its pages: hosts count on these bytes, so nothing is to be added here. A PDF of the text comes
// out of printing.
#pragma once

#include "editing/export/PdfObjectTracker.h"

#include <array>
#include <string>
#include <vector>

// One for each style of the engine.
struct PdfStyle
{
    std::array<char, 24> fore{}; // operands of the colour
    int font = 0;                // of the family, 0 to 3
};

class PdfWriter
{
public:
    static constexpr int kDefaultStyle = 32;
    static constexpr int kStyles = 128;

    // "Courier", "Helvetica" or "Times"; any other name leaves the family as it is.
    void SetFont(const std::u16string& name);
    void WriteHeader();

    double FontToPoints(int thousandths) const;
    // Writes what changes from the style in force, which stays in force. -1 stands for that one,
    // and is written in full. The buffer holds length bytes.
    void StyleChange(char* buffer, int length, int style) const;
    void NextLine();

    static int IntFromHexDigit(char digit); // 0 for what is none
    static int IntFromHexByte(const char* digits);

    bool firstLine = false; // the next line is the first of its page
    int pageObjectStart = 0;
    double xPos = 0; // points, as all that follow
    double yPos = 0;
    std::u16string pageData;
    int styleCurrent = kDefaultStyle;
    double leading = 0;
    PdfObjectTracker* tracker = nullptr; // the caller's
    std::vector<PdfStyle> styles;
    int fontSize = 10;
    int fontSet = 1;
    int pageWidth = 612;
    int pageHeight = 792;
    int marginLeft = 72;
    int marginTop = 72;
    int marginRight = 72;
    int marginBottom = 72;
};
