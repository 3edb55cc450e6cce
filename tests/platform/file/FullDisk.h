// SPDX-License-Identifier: GPL-3.0-or-later
// For its lifetime no file can grow beyond a number of bytes, as on a disk that is full.
#pragma once

#include <csignal>

#include <sys/resource.h>

class FullDisk
{
public:
    explicit FullDisk(rlim_t room) : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const struct rlimit limit = {room, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    struct rlimit m_before = {};
    void (*m_handler)(int);
};
