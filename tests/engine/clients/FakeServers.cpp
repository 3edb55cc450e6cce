// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/engine/clients/FakeServers.h"

#include <gtest/gtest.h>

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <regex>
#include <thread>

namespace clients {
namespace {

constexpr int kPatience = 20000; // ms

// The server's end of a connection.
class Connection
{
public:
    explicit Connection(int handle) : m_handle(handle) {}
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    ~Connection() { close(m_handle); }

    // Empty at the end.
    std::string Read(std::size_t bytes) const
    {
        std::string data(bytes, '\0');
        for (std::size_t at = 0; at < bytes;) {
            const ssize_t count = read(m_handle, data.data() + at, bytes - at);
            if (count <= 0)
                return {};
            at += static_cast<std::size_t>(count);
        }
        return data;
    }

    void Write(const std::string& data) const
    {
        if (send(m_handle, data.data(), data.size(), MSG_NOSIGNAL) < 0)
            ADD_FAILURE() << std::strerror(errno);
    }

private:
    int m_handle;
};

using Serve = std::function<void(const Connection&, std::vector<std::string>& sent)>;

std::vector<std::string> Run(const std::string& socketName, std::string command,
                             const std::string& script, const Serve& serve)
{
    std::string folder = (std::filesystem::temp_directory_path() / "clientXXXXXX").string();
    if (!mkdtemp(folder.data())) {
        ADD_FAILURE() << "no folder";
        return {};
    }
    std::ofstream(folder + "/script.sql", std::ios::binary) << script;
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    (folder + "/" + socketName).copy(address.sun_path, sizeof address.sun_path - 1);
    const int listening = socket(AF_UNIX, SOCK_STREAM, 0);
    bind(listening, reinterpret_cast<const sockaddr*>(&address), sizeof address);
    listen(listening, 1);
    for (std::size_t at; (at = command.find("%s")) != std::string::npos;)
        command.replace(at, 2, folder);
    std::vector<std::string> sent;
    std::thread server([&] {
        pollfd wait{listening, POLLIN, 0};
        if (poll(&wait, 1, kPatience) != 1) {
            ADD_FAILURE() << "the client did not come: " << command;
            return;
        }
        serve(Connection(accept(listening, nullptr, nullptr)), sent);
    });
    const int result =
        std::system((command + " <" + folder + "/script.sql >/dev/null 2>&1").c_str());
    EXPECT_GE(result, 0);
    server.join();
    close(listening);
    std::filesystem::remove_all(folder);
    return sent;
}

std::string Bytes(unsigned value, int count, bool bigEnd)
{
    std::string bytes;
    for (int i = 0; i < count; ++i)
        bytes += static_cast<char>(value >> (8 * (bigEnd ? count - 1 - i : i)) & 0xFF);
    return bytes;
}

unsigned Number(const std::string& bytes, bool bigEnd)
{
    unsigned value = 0;
    for (std::size_t i = 0; i < bytes.size(); ++i)
        value = value << 8 | static_cast<unsigned char>(bytes[bigEnd ? i : bytes.size() - 1 - i]);
    return value;
}

void ServeMySql(const Connection& client, std::vector<std::string>& sent)
{
    constexpr unsigned kAbilities = 0x3A20B; // protocol 41, plain passwords, several statements
    const auto packet = [&](int number, const std::string& data) {
        client.Write(Bytes(static_cast<unsigned>(data.size()), 3, false) +
                     static_cast<char>(number) + data);
    };
    const std::string ok("\0\0\0\2\0\0\0", 7);
    packet(0, std::string("\x0a") + "5.5.5-10.11.0" + '\0' + Bytes(1, 4, false) + "12345678" +
                  '\0' + Bytes(kAbilities & 0xFFFF, 2, false) + '\x21' + Bytes(2, 2, false) +
                  Bytes(kAbilities >> 16, 2, false) + std::string(11, '\0') + "901234567890" +
                  '\0');
    bool isGreeting = true;
    for (;;) {
        const std::string head = client.Read(4);
        if (head.empty())
            return;
        const std::string data = client.Read(Number(head.substr(0, 3), false));
        if (!isGreeting && data[0] == '\1') // quit
            return;
        if (!isGreeting && data[0] == '\3')
            sent.push_back(data.substr(1));
        packet(head[3] + 1, ok);
        isGreeting = false;
    }
}

void ServePostgreSql(const Connection& client, std::vector<std::string>& sent)
{
    const auto message = [&](char kind, const std::string& data) {
        client.Write(kind + Bytes(static_cast<unsigned>(data.size()) + 4, 4, true) + data);
    };
    const auto setting = [&](const std::string& name, const std::string& value) {
        message('S', name + '\0' + value + '\0');
    };
    client.Read(Number(client.Read(4), true) - 4);
    message('R', Bytes(0, 4, true));
    setting("server_version", "15.0");
    setting("client_encoding", "UTF8");
    setting("standard_conforming_strings", "on");
    message('Z', "I");
    static const std::regex kCopy("^\\s*copy\\s+\\w+\\s+from\\s+std(in|out)\\s*;?\\s*$",
                                  std::regex::icase);
    for (std::string kind = client.Read(1); !kind.empty() && kind != "X"; kind = client.Read(1)) {
        const unsigned length = Number(client.Read(4), true) - 4;
        const std::string data = length > 0 ? client.Read(length) : std::string();
        if (kind == "Q") {
            sent.push_back(data.substr(0, data.size() - 1));
            if (std::regex_search(sent.back(), kCopy)) {
                message('G', std::string(3, '\0'));
                continue;
            }
        } else if (kind != "c" && kind != "f") {
            continue;
        }
        message('C', std::string("INSERT 0 0") + '\0');
        message('Z', "I");
    }
}

} // namespace

std::vector<std::string> SentToMySql(const std::string& command, const std::string& script)
{
    return Run("server", command, script, ServeMySql);
}

std::vector<std::string> SentToPostgreSql(const std::string& command, const std::string& script)
{
    return Run(".s.PGSQL.5432", command, script, ServePostgreSql);
}

} // namespace clients
