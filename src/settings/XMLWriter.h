// SPDX-License-Identifier: GPL-3.0-or-later
// The text of a document tree: a tab for each level, a line for each node, lines end in CR LF.
// Nothing is escaped: what stands in a value stands in the text.
#pragma once

#include "settings/Pug.h"

// Values come out with all their line ends as CR LF. Text beside other nodes gets a line of its
// own, and has the blanks around it as a part of it when it is read again.
QString WriteXML(const pug::xml_node& document);
