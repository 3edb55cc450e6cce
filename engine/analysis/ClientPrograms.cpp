// SPDX-License-Identifier: GPL-3.0-or-later
// Facts from the manuals of the programs.
#include "engine/analysis/ClientPrograms.h"

namespace engine::analysis {
namespace {

using enum ClientWord;
using Match = ClientCommand::Match;

// clang-format off
constexpr ClientCommand kSqlPlusWords[] = {
    {"accept", 3},      {"append", 1},          {"archive", 7},       {"attribute", 4},
    {"break", 3},       {"btitle", 3},          {"change", 1},        {"clear", 2},
    {"column", 3},      {"compute", 4},         {"connect", 4},       {"copy", 4},
    {"define", 3},      {"del", 3},             {"describe", 4},      {"disconnect", 4},
    {"edit", 2},        {"execute", 4},         {"exit", 4},          {"get", 3},
    {"help", 4, Text},  {"history", 4},         {"host", 2, Text},    {"input", 1, Text},
    {"list", 1},        {"password", 5},        {"pause", 3, Text},   {"print", 3},
    {"prompt", 3, Text},{"quit", 4},            {"recover", 7},       {"remark", 3, Remark},
    {"repfooter", 4},   {"repheader", 4},       {"run", 1},           {"save", 3},
    {"set", 3, Setting},{"show", 3},            {"shutdown", 8},      {"spool", 3, Text},
    {"start", 3, Text}, {"startup", 7},         {"store", 5},         {"timing", 4},
    {"ttitle", 3},      {"undefine", 5},        {"variable", 3},      {"whenever", 8},
};

constexpr ClientCommand kSqlcmdWords[] = {
    {"ed", 2, Bare}, {"exit", 4}, {"quit", 4, Bare}, {"reset", 5, Bare},
};
constexpr ClientCommand kSqlcmdLeads[] = {{"setvar", 6, Variable}, {"!", 1, Text}, {"r", 1, Text}};

constexpr ClientCommand kAseWords[] = {
    {"exit", 4, Bare}, {"quit", 4, Bare}, {"reset", 5, Bare}, {"vi", 2, Bare},
};
constexpr ClientCommand kAseLeads[] = {{"!", 1, Text}, {"r", 1, Text}};

constexpr ClientCommand kMySqlWords[] = {
    {"charset", 7},          {"clear", 5, Bare},        {"connect", 7},      {"delimiter", 9, Delimiter},
    {"edit", 4, Bare},       {"ego", 3, Bare},          {"exit", 4, Bare},   {"go", 2, Bare},
    {"help", 4, Text},       {"nopager", 7, Bare},      {"notee", 5, Bare},  {"nowarning", 9, Bare},
    {"pager", 5, Text},      {"print", 5, Bare},        {"prompt", 6, Text}, {"quit", 4, Bare},
    {"rehash", 6, Bare},     {"resetconnection", 15, Bare},                  {"sandbox", 7, Bare},
    {"source", 6, Text},     {"status", 6, Bare},       {"system", 6, Text}, {"tee", 3, Text},
    {"warnings", 8, Bare},
};
constexpr ClientCommand kMySqlEscapes[] = {
    {"g", 1, Send, Match::Exact},  {"G", 1, Send, Match::Exact},  {"c", 1, Send, Match::Exact},
    {"d", 1, Delimiter, Match::Exact}, {"u", 1, Connect, Match::Exact},
    {".", 1, Text, Match::Exact},  {"!", 1, Text, Match::Exact},  {"?", 1, Text, Match::Exact},
    {"C", 1, Text, Match::Exact},  {"h", 1, Text, Match::Exact},  {"P", 1, Text, Match::Exact},
    {"r", 1, Text, Match::Exact},  {"R", 1, Text, Match::Exact},  {"T", 1, Text, Match::Exact},
    {"#", 1, Alone, Match::Exact}, {"-", 1, Alone, Match::Exact}, {"e", 1, Alone, Match::Exact},
    {"n", 1, Alone, Match::Exact}, {"p", 1, Alone, Match::Exact}, {"q", 1, Alone, Match::Exact},
    {"s", 1, Alone, Match::Exact}, {"t", 1, Alone, Match::Exact}, {"w", 1, Alone, Match::Exact},
    {"W", 1, Alone, Match::Exact}, {"x", 1, Alone, Match::Exact},
};

constexpr ClientCommand kPsqlCommands[] = {
    {"c", 1, Connect, Match::Exact},      {"connect", 7, Connect, Match::Exact},
    {"crosstabview", 12, Send, Match::Exact}, {"g", 1, Send, Match::Exact},
    {"gdesc", 5, Send, Match::Exact},     {"gexec", 5, Send, Match::Exact},
    {"gset", 4, Send, Match::Exact},      {"gx", 2, Send, Match::Exact},
    {"watch", 5, Send, Match::Exact},     {"d", 1, Cut, Match::Front},
    {";", 1, Inner, Match::Exact},        {":", 1, None, Match::Exact},
    // Their arguments are all of the line.
    {"!", 1, Text, Match::Exact},         {"copy", 4, Text, Match::Exact},
    {"ef", 2, Text, Match::Exact},        {"ev", 2, Text, Match::Exact},
    {"h", 1, Text, Match::Exact},         {"help", 4, Text, Match::Exact},
    {"sf", 2, Text, Match::Exact},        {"sf+", 3, Text, Match::Exact},
    {"sv", 2, Text, Match::Exact},        {"sv+", 3, Text, Match::Exact},
};


constexpr ClientCommand kDb2Words[] = {{"echo", 4, Text}};
// clang-format on

} // namespace

const ClientProgram kSqlPlus = {
    .leads = "@!?", .lead = Text, .words = kSqlPlusWords, .goesOnAtDash = true};
const ClientProgram kSqlcmd = {
    .leads = ":!", .words = kSqlcmdWords, .leadWords = kSqlcmdLeads, .leadsAnywhere = true};
const ClientProgram kAseIsql = {.leads = ":!", .words = kAseWords, .leadWords = kAseLeads};
const ClientProgram kMySqlClient = {.words = kMySqlWords,
                                    .leadWords = kMySqlEscapes,
                                    .escape = '\\',
                                    .escaped = Inner,
                                    .wordsLackTerminator = true,
                                    .dashesBegin = true};
const ClientProgram kPsql = {
    .leadWords = kPsqlCommands, .escape = '\\', .escaped = Line, .escapesMeet = true};
const ClientProgram kSqliteShell = {.leads = ".", .lead = Text};
const ClientProgram kDb2Clp = {.leads = "!?", .lead = Text, .words = kDb2Words};
const ClientProgram kNoClient = {};

} // namespace engine::analysis
