// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/faults/FaultInjector.h"

#include <array>
#include <cerrno>
#include <climits>
#include <csignal>
#include <string_view>

#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <sys/user.h>
#include <sys/wait.h>
#include <unistd.h>

namespace faults {

namespace {

// Which argument tells the file: a path, or a descriptor.
enum class By
{
    Path,
    PathAt,
    Descriptor,
};

struct Row
{
    long number;
    const char* name;
    By by;
    bool writes; // a full disk fails it
};

constexpr Row kCalls[] = {
    {SYS_open, "open", By::Path, true},
    {SYS_openat, "openat", By::PathAt, true},
    {SYS_stat, "stat", By::Path, false},
    {SYS_lstat, "lstat", By::Path, false},
    {SYS_fstat, "fstat", By::Descriptor, false},
    {SYS_newfstatat, "newfstatat", By::PathAt, false},
    {SYS_statx, "statx", By::PathAt, false},
    {SYS_access, "access", By::Path, false},
    {SYS_faccessat, "faccessat", By::PathAt, false},
    {SYS_readlink, "readlink", By::Path, false},
    {SYS_read, "read", By::Descriptor, false},
    {SYS_pread64, "pread64", By::Descriptor, false},
    {SYS_write, "write", By::Descriptor, true},
    {SYS_writev, "writev", By::Descriptor, true},
    {SYS_pwrite64, "pwrite64", By::Descriptor, true},
    {SYS_fsync, "fsync", By::Descriptor, true},
    {SYS_fdatasync, "fdatasync", By::Descriptor, true},
    {SYS_ftruncate, "ftruncate", By::Descriptor, true},
    {SYS_fallocate, "fallocate", By::Descriptor, true},
    {SYS_fchmod, "fchmod", By::Descriptor, false},
    {SYS_fchown, "fchown", By::Descriptor, false},
    {SYS_flistxattr, "flistxattr", By::Descriptor, false},
    {SYS_fgetxattr, "fgetxattr", By::Descriptor, false},
    {SYS_fsetxattr, "fsetxattr", By::Descriptor, true},
    {SYS_flock, "flock", By::Descriptor, false},
    {SYS_lseek, "lseek", By::Descriptor, false},
    {SYS_getdents64, "getdents64", By::Descriptor, false},
    {SYS_rename, "rename", By::Path, true},
    {SYS_renameat2, "renameat2", By::PathAt, true},
    {SYS_link, "link", By::Path, true},
    {SYS_linkat, "linkat", By::PathAt, true},
    {SYS_unlink, "unlink", By::Path, false},
    {SYS_unlinkat, "unlinkat", By::PathAt, false},
    {SYS_mkdir, "mkdir", By::Path, true},
    {SYS_mkdirat, "mkdirat", By::PathAt, true},
    {SYS_close, "close", By::Descriptor, true},
};

const Row* RowOf(long number)
{
    for (const Row& row : kCalls) {
        if (row.number == number)
            return &row;
    }
    return nullptr;
}

std::string PathAt(pid_t process, unsigned long long address)
{
    std::array<char, PATH_MAX> bytes{};
    // Up to the end of a page, behind which nothing may be mapped.
    constexpr unsigned long long kPage = 4096;
    std::size_t done = 0;
    while (done < bytes.size() - 1) {
        const std::size_t room =
            std::min<std::size_t>(kPage - (address + done) % kPage, bytes.size() - 1 - done);
        const iovec local{bytes.data() + done, room};
        const iovec remote{reinterpret_cast<void*>(address + done), room};
        if (process_vm_readv(process, &local, 1, &remote, 1, 0) != static_cast<ssize_t>(room))
            break;
        if (std::string_view(bytes.data() + done, room).find('\0') != std::string_view::npos)
            break;
        done += room;
    }
    return bytes.data();
}

std::string PathOf(pid_t process, const Row& row, const user_regs_struct& registers)
{
    switch (row.by) {
    case By::Path:
        return PathAt(process, registers.rdi);
    case By::PathAt: {
        const std::string path = PathAt(process, registers.rsi);
        if (!path.empty())
            return path; // relative ones are not asked for by those who are tried here
        break;
    }
    case By::Descriptor:
        break;
    }
    std::array<char, PATH_MAX> link{};
    const std::string entry = "/proc/" + std::to_string(process) + "/fd/" +
                              std::to_string(static_cast<int>(registers.rdi));
    const ssize_t size = readlink(entry.c_str(), link.data(), link.size());
    return size > 0 ? std::string(link.data(), static_cast<std::size_t>(size)) : std::string();
}

class Tracer
{
public:
    Tracer(pid_t process, std::string folder, int place, Fault fault)
        : m_process(process), m_folder(std::move(folder)), m_place(place), m_fault(fault)
    {}

    Trial Follow()
    {
        int status = 0;
        if (waitpid(m_process, &status, 0) != m_process || !WIFSTOPPED(status))
            return m_trial;
        ptrace(PTRACE_SETOPTIONS, m_process, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
        bool enters = true;
        int signal = 0;
        while (ptrace(PTRACE_SYSCALL, m_process, nullptr, signal) == 0) {
            signal = 0;
            if (waitpid(m_process, &status, 0) != m_process)
                break;
            if (WIFEXITED(status))
                m_trial.exitCode = WEXITSTATUS(status);
            if (WIFEXITED(status) || WIFSIGNALED(status))
                break;
            if (WSTOPSIG(status) != (SIGTRAP | 0x80)) {
                signal = WSTOPSIG(status) == SIGTRAP ? 0 : WSTOPSIG(status);
                continue;
            }
            if (enters)
                Enter();
            else
                Leave();
            enters = !enters;
        }
        return m_trial;
    }

private:
    void Enter()
    {
        user_regs_struct registers{};
        ptrace(PTRACE_GETREGS, m_process, nullptr, &registers);
        const Row* row = RowOf(static_cast<long>(registers.orig_rax));
        if (!row)
            return;
        const std::string path = PathOf(m_process, *row, registers);
        if (path.compare(0, m_folder.size(), m_folder) != 0 || m_trial.places++ != m_place)
            return;
        m_trial.struck = true;
        m_trial.call = std::string(row->name) + ' ' + path.substr(m_folder.size());
        if (m_fault == Fault::Killed) {
            kill(m_process, SIGKILL);
            return;
        }
        m_error = m_fault == Fault::NoRoom && row->writes ? ENOSPC : EIO;
        // A descriptor goes also if its close fails.
        if (row->number == SYS_close)
            return;
        registers.orig_rax = ~0ull;
        ptrace(PTRACE_SETREGS, m_process, nullptr, &registers);
    }

    void Leave()
    {
        if (m_error == 0)
            return;
        user_regs_struct registers{};
        ptrace(PTRACE_GETREGS, m_process, nullptr, &registers);
        registers.rax = static_cast<unsigned long long>(-static_cast<long long>(m_error));
        ptrace(PTRACE_SETREGS, m_process, nullptr, &registers);
        m_error = 0;
    }

    pid_t m_process;
    std::string m_folder;
    int m_place;
    Fault m_fault;
    int m_error = 0; // for the call that is under way
    Trial m_trial;
};

} // namespace

Trial Trace(const std::function<int()>& work, const QByteArray& folder, int place, Fault fault)
{
    const pid_t process = fork();
    if (process < 0)
        return {};
    if (process == 0) {
        ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
        raise(SIGSTOP);
        _exit(work());
    }
    return Tracer(process, folder.toStdString(), place, fault).Follow();
}

} // namespace faults
