// SPDX-License-Identifier: GPL-3.0-or-later
// For its lifetime the thread has to keep to the permissions of files, even if it is root's.
#pragma once

#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>

class OrdinaryUser
{
public:
    OrdinaryUser()
    {
        syscall(SYS_capget, &m_header, m_before);
        __user_cap_data_struct without[_LINUX_CAPABILITY_U32S_3] = {m_before[0], m_before[1]};
        without[0].effective &= ~(1u << CAP_DAC_OVERRIDE | 1u << CAP_DAC_READ_SEARCH);
        syscall(SYS_capset, &m_header, without);
    }
    ~OrdinaryUser() { syscall(SYS_capset, &m_header, m_before); }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

private:
    __user_cap_header_struct m_header = {_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct m_before[_LINUX_CAPABILITY_U32S_3] = {};
};
