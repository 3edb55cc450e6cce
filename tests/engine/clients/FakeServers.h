// SPDX-License-Identifier: GPL-3.0-or-later
// Servers of a test's own, that a database's client program takes for real: they answer every
// statement with success and note its text.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace clients {

// The statements that a client sent, in order. The command is what the shell runs; %s in it is the
// folder of the server's socket. Empty, with a failure of the test, if no client came.
std::vector<std::string> SentToMySql(const std::string& command, const std::string& script);
std::vector<std::string> SentToPostgreSql(const std::string& command, const std::string& script);

} // namespace clients
