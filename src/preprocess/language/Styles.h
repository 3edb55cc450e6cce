// SPDX-License-Identifier: GPL-3.0-or-later
// Which styles of a lexer are those of comments and of strings. Numbers of the engine.
#pragma once

bool IsCommentStyle(int lexer, int style);
bool IsStringStyle(int lexer, int style);

// Whether the lexer has any such style; for the others no style needs to be asked for.
bool TellsCommentsAndStrings(int lexer);
